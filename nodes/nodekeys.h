// The stored keys of a node, declared once per node. Each key binds its name to a member of
// the node's value record and to the control (or plain member) that holds it in the node, so
// the XML writer, the reader, the headless form and process all follow the same declaration.
#pragma once

#include "nodecontrols.h"

#include <QColor>
#include <QDomDocument>
#include <QDomElement>
#include <QString>

#include <functional>
#include <initializer_list>
#include <vector>

// How a value is written as parameter text, and read back from it. A read that returns
// false keeps the previous value.
namespace KeyText {
QString write(int value);
QString write(bool value);
QString write(const QColor& color);
QString write(const QString& text);
bool read(const QString& text, int& value);
bool read(const QString& text, bool& value);
bool read(const QString& text, QColor& color);
bool read(const QString& text, QString& value);
} // namespace KeyText

template <typename Node, typename Values> class NodeKeys
{
public:
    struct Key
    {
        QString name;
        std::function<QString(const Values&)> write;
        std::function<bool(const QString&, Values&)> read;
        std::function<void(const Node&, Values&)> take;
        std::function<void(Node&, const Values&)> give;
    };

    // The key name bound to a member of the record and to what holds it in the node, with
    // the member's own text conversion.
    template <typename T, typename Record, typename Holder>
    static Key bind(const QString& name, T Record::*member, Holder Node::*holder)
    {
        return bind(
            name, member, holder,
            [member](const Values& values) { return KeyText::write(values.*member); },
            [member](const QString& text, Values& values) {
                return KeyText::read(text, values.*member);
            });
    }

    // The same with a text conversion of its own: write(values) and read(text, values).
    template <typename T, typename Record, typename Holder, typename Write, typename Read>
    static Key bind(const QString& name, T Record::*member, Holder Node::*holder, Write write,
                    Read read)
    {
        return {name, write, read,
                [member, holder](const Node& node, Values& values) {
                    takeValue(node.*holder, values.*member);
                },
                [member, holder](Node& node, const Values& values) {
                    giveValue(node.*holder, values.*member);
                }};
    }

    NodeKeys(std::initializer_list<Key> list)
        : keys(list)
    {
    }

    // The values the node's controls hold now.
    Values values(const Node& node) const
    {
        Values values;
        for (const Key& key : keys)
            key.take(node, values);
        return values;
    }

    // One child per key, in declaration order; every child gets a text node, even an empty
    // one, so that it is written as a start and end tag pair.
    void save(const Node& node, QDomElement& parameters, QDomDocument& document) const
    {
        const Values current = values(node);
        for (const Key& key : keys) {
            QDomElement child = document.createElement(key.name);
            child.appendChild(document.createTextNode(key.write(current)));
            parameters.appendChild(child);
        }
    }

    // Children in document order; each one that names a key and converts is handed to its
    // control at once, so that a control reacting to it (a mode resetting the sizes) sees
    // the keys in the order they were written.
    void load(Node& node, const QDomElement& parameters) const
    {
        forEachKey(parameters, [this, &node](const Key& key, const QString& text) {
            Values current = values(node);
            if (key.read(text, current))
                key.give(node, current);
        });
    }

    // The headless reading: values start from the record's zero state; text that does not
    // parse leaves them there.
    Values parse(const QString& text) const
    {
        QDomDocument document;
        document.setContent(text);
        Values parsed;
        forEachKey(document.documentElement(),
                   [&parsed](const Key& key, const QString& value) { key.read(value, parsed); });
        return parsed;
    }

private:
    // Calls visit(key, text) for every child element whose tag is exactly a key's name.
    template <typename Visit> void forEachKey(const QDomElement& parameters, Visit visit) const
    {
        for (QDomElement child = parameters.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement()) {
            for (const Key& key : keys) {
                if (child.tagName() == key.name)
                    visit(key, child.text());
            }
        }
    }

    std::vector<Key> keys;
};
