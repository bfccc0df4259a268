// The common body of the nodes of an operation with a parameter table (Op: Name, table(),
// run()). The controls are bound to the table's keys, so that loading, saving and process
// read and write them through the table; the keys without a control live in a record here.
#pragma once

#include "basenode.h"
#include "colorbutton.h"
#include "nodecontrols.h"
#include "operationcatalogue.h"
#include "operations.h"
#include "ui/comboslider.h"

#include <QThreadPool>
#include <QVector>
#include <QtConcurrent/QtConcurrentRun>

template <typename Node, typename Op> class KeyedNode : public BaseNode
{
public:
    using Operation = Op;
    using Values = typename Op::Values;
    static constexpr const char* Name = Op::Name;

    explicit KeyedNode(QWidget* parent)
        : BaseNode(Op::Name, parent)
        , plain(Op::table().defaults())
        , controls(Op::table().keys().size(), nullptr)
    {
        setNodeIcon(Op::Name);
    }

    // Each value read goes to its control at once, in document order, and the control clamps
    // it; so a control reacting to one (a mode resetting the sizes) sees the keys in the order
    // they were written. The flow reader's table does the same without controls.
    void loadParameters(const QDomElement& parameters) override
    {
        Op::table().readEach(parameters, [this](const Param<Values>& row, const QVariant& value) {
            if (QObject* control = controls.at(indexOf(row)))
                setControlValue(row.kind, control, value);
            else
                row.set(plain, value);
        });
    }

    void saveParameters(QDomElement& parameters, QDomDocument document) override
    {
        Op::table().save(self().currentValues(), parameters, document);
    }

    // The kernel runs on the global pool; the caller waits for it, so the call stays synchronous.
    void process(QImage& image) override
    {
        if (isActive())
            image = QtConcurrent::run(QThreadPool::globalInstance(), &Op::run, image,
                                      self().runValues())
                        .result();
        updatePreview(image);
    }

    // What the controls and the record hold now; a node may hide it to add values that are
    // not stored (the preview-mode flag).
    Values currentValues() const
    {
        Values values = plain;
        const auto& keys = Op::table().keys();
        for (int i = 0; i < keys.size(); ++i) {
            if (controls.at(i))
                keys.at(i).set(values, controlValue(keys.at(i).kind, controls.at(i)));
        }
        return values;
    }

    // What process hands to the kernel; a node may hide it to draw something of the current
    // photo, which is not stored (the watermark's text macros).
    Values runValues() const { return self().currentValues(); }

    // The control bound to key, or nullptr for a key the node keeps itself.
    QObject* controlFor(const QString& name) const
    {
        const Param<Values>* row = Op::table().find(name);
        return row ? controls.at(indexOf(*row)) : nullptr;
    }

    // The headless form, with no widget: see applyOperation.
    static QImage applyParameters(QImage image, const QString& parametersText)
    {
        return applyOperation(Op::Name, image, parametersText);
    }

protected:
    // The key's row of the table.
    static const Param<Values>& key(const char* name) { return *Op::table().find(name); }

    // Binds a control the node built itself to the key it edits.
    void bindControl(const char* name, QObject* control) { controls[indexOf(key(name))] = control; }

    // A form row per key, in the given order of key names (table order when empty), each
    // control made from its row: sliders and colour buttons.
    QFormLayout* addTableForm(std::initializer_list<const char*> order = {})
    {
        QFormLayout* form = addFramedForm(optionsLayout);
        QVector<const Param<Values>*> rows;
        for (const char* name : order)
            rows << &key(name);
        if (rows.isEmpty()) {
            for (const Param<Values>& row : Op::table().keys())
                rows << &row;
        }
        for (const Param<Values>* row : qAsConst(rows)) {
            QWidget* control = nullptr;
            if (row->kind == ParamKind::Colour)
                control = addColorRow(this, form, row->translatedCaption(),
                                      row->uiDefault.template value<QColor>());
            else
                control = addSliderRow(this, form, row->translatedCaption(), sliderRange(*row));
            controls[indexOf(*row)] = control;
        }
        return form;
    }

    // The values of the keys that have no control.
    Values plain;

private:
    static int indexOf(const Param<Values>& row)
    {
        return int(&row - Op::table().keys().constData());
    }

    Node& self() { return static_cast<Node&>(*this); }
    const Node& self() const { return static_cast<const Node&>(*this); }

    QVector<QObject*> controls;
};
