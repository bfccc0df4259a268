// One declaration per stored key of an operation: its caption, the kind of control that edits
// it, its range, step, unit and default, and the member of the operation's value record it
// binds. The option widgets, the flow reader, the XML writer and the headless forms all walk
// this table, so that they cannot disagree. No widgets here: the batch reads flows with it.
#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QDomDocument>
#include <QDomElement>
#include <QFont>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <functional>
#include <initializer_list>

// The control that edits a key, and with it how a stored value is clamped on loading.
enum class ParamKind {
    Slider,    // int within the range
    SpinBox,   // int within the range
    Choice,    // int: the index of one of `choices` items, -1 for none
    Toggle,    // bool
    Colour,    // QColor
    Text,      // QString of at most maxTextLength characters
    Direction, // int 0..8, stored by name
    Cells,     // int: a set of Direction cells, bit n for cell n, stored as names joined by ","
    Font,      // QFont: the family as the font picker resolves it
    Plain,     // a value the node keeps itself (an angle, a picture): taken as it is
};

struct ParamRange
{
    int minimum = 0;
    int maximum = 0;
    int tickInterval = 1;
    int singleStep = 1;
};

// How a value is written as parameter text and read back: read returns false for text
// that does not convert, and the previous value stays.
struct ParamText
{
    std::function<QString(const QVariant&)> write;
    std::function<bool(const QString&, QVariant&)> read;
};

namespace ParamRules {
// What a line edit holds at most.
constexpr int maxTextLength = 32767;
// The text forms of each kind: numbers in base 10, "yes"/"no", colour names, direction names,
// font families.
ParamText textFor(ParamKind kind);
// The value a control of this kind holds after being given value while it held before.
QVariant clamped(ParamKind kind, const QVariant& value, const QVariant& before,
                 const ParamRange& range, int choices);
// The family a new font picker shows: the application font's, as it is named there.
QString defaultFontFamily();
} // namespace ParamRules

template <typename Values> struct Param
{
    QString name;        // the stored key
    const char* context; // translation context of the caption
    const char* caption; // "Brightness:", or nullptr for a control without one
    ParamKind kind;
    ParamRange range;   // Slider and SpinBox
    const char* unit;   // shown after a slider's value, or nullptr
    int choices;        // Choice: the number of items
    QVariant uiDefault; // what a new node shows
    std::function<QVariant(const Values&)> get;
    std::function<void(Values&, const QVariant&)> set;
    ParamText text;
    // The text written for these values where it depends on another key (the logo is not
    // written while the built-in one is named).
    std::function<QString(const Values&)> textOf;
    // The range in force for these values, where it depends on another key (Resize's mode).
    std::function<ParamRange(const Values&)> rangeFor;
    // What loading this key does to the other values (Resize's mode resets the sizes).
    std::function<void(Values&, const QVariant& before)> afterLoad;
    // A key added to an operation later is left out of the text while it holds its default, so
    // that the text of a node that does not use it stays what it was before the key existed.
    bool writtenOnlyWhenChanged = false;

    ParamRange rangeIn(const Values& values) const { return rangeFor ? rangeFor(values) : range; }
    QString translatedCaption() const;
};

// Builders for the table rows; each row binds one member of the record. Values may be named
// for a record that inherits the member.
template <typename Values, typename Class, typename T>
Param<Values> param(const QString& name, T Class::*member, ParamKind kind, const char* context,
                    const char* caption, const QVariant& uiDefault, ParamRange range = {},
                    const char* unit = nullptr, int choices = 0)
{
    return {name,
            context,
            caption,
            kind,
            range,
            unit,
            choices,
            uiDefault,
            [member](const Values& values) { return QVariant::fromValue(values.*member); },
            [member](Values& values, const QVariant& value) { values.*member = value.value<T>(); },
            ParamRules::textFor(kind),
            {},
            {},
            {}};
}

template <typename Class, typename T>
Param<Class> param(const QString& name, T Class::*member, ParamKind kind, const char* context,
                   const char* caption, const QVariant& uiDefault, ParamRange range = {},
                   const char* unit = nullptr, int choices = 0)
{
    return param<Class, Class, T>(name, member, kind, context, caption, uiDefault, range, unit,
                                  choices);
}

template <typename Values> class ParamTable
{
public:
    using Row = Param<Values>;

    ParamTable(std::initializer_list<Row> rows)
        : rows(rows)
    {
    }

    const QVector<Row>& keys() const { return rows; }
    const Row* find(const QString& name) const
    {
        for (const Row& row : rows) {
            if (row.name == name)
                return &row;
        }
        return nullptr;
    }

    // What a new node holds: start is the record's own start (a logo that is not empty),
    // every key at its default.
    Values defaults(Values start = Values()) const
    {
        for (const Row& row : rows)
            row.set(start, row.uiDefault);
        return start;
    }

    // Loading as the node's controls do: children in document order, each value that
    // converts clamped as its control clamps it, then what the key does to the others. The
    // names of the keys whose text is not empty and did not convert are returned; their
    // values stay.
    QStringList load(const QDomElement& parameters, Values& values) const
    {
        QStringList unread;
        forEachKey(parameters, [&values, &unread](const Row& row, const QString& text) {
            QVariant value = row.get(values);
            const QVariant before = value;
            if (!row.text.read(text, value)) {
                // An empty value is how a flow says "as it was" (the built-in logo).
                if (!text.isEmpty())
                    unread << row.name;
                return;
            }
            row.set(values,
                    ParamRules::clamped(row.kind, value, before, row.rangeIn(values), row.choices));
            if (row.afterLoad)
                row.afterLoad(values, before);
        });
        return unread;
    }

    // Calls visit(row, value) for every child, in document order, that names a key and whose
    // text converts, with the value as read, unclamped.
    template <typename Visit> void readEach(const QDomElement& parameters, Visit visit) const
    {
        forEachKey(parameters, [&visit](const Row& row, const QString& text) {
            QVariant value;
            if (row.text.read(text, value))
                visit(row, value);
        });
    }

    // The headless reading: the values start from the record's zero state and take each
    // value that converts as it is.
    Values parse(const QString& parametersText) const
    {
        QDomDocument document;
        document.setContent(parametersText);
        Values parsed;
        forEachKey(document.documentElement(), [&parsed](const Row& row, const QString& text) {
            QVariant value = row.get(parsed);
            if (row.text.read(text, value))
                row.set(parsed, value);
        });
        return parsed;
    }

    // One child per key, in table order, but for a key written only when changed that holds
    // its default; every child gets a text node, even an empty one, so that it is written as a
    // start and end tag pair.
    void save(const Values& values, QDomElement& parameters, QDomDocument& document) const
    {
        for (const Row& row : rows) {
            const QString text = row.textOf ? row.textOf(values) : row.text.write(row.get(values));
            if (row.writtenOnlyWhenChanged && text == row.text.write(row.uiDefault))
                continue;
            QDomElement child = document.createElement(row.name);
            child.appendChild(document.createTextNode(text));
            parameters.appendChild(child);
        }
    }

private:
    // Calls visit(row, text) for every child element whose tag is exactly a key's name.
    template <typename Visit> void forEachKey(const QDomElement& parameters, Visit visit) const
    {
        for (QDomElement child = parameters.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement()) {
            if (const Row* row = find(child.tagName()))
                visit(*row, child.text());
        }
    }

    QVector<Row> rows;
};

template <typename Values> QString Param<Values>::translatedCaption() const
{
    return caption ? QCoreApplication::translate(context, caption) : QString();
}
