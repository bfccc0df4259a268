#include "nodecontrols.h"

#include "basenode.h"
#include "colorbutton.h"
#include "ui/comboslider.h"
#include "ui/directionswidget.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QFontComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {
const int roomySliderWidth = 240;
} // namespace

void addFramedLayout(QVBoxLayout* options, QLayout* layout)
{
    options->addStretch(1);
    options->addLayout(layout);
    options->addStretch(1);
}

QFormLayout* addFramedForm(QVBoxLayout* options)
{
    auto* form = new QFormLayout;
    addFramedLayout(options, form);
    return form;
}

void addCentredRow(QVBoxLayout* options, std::initializer_list<QWidget*> widgets)
{
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    for (QWidget* widget : widgets)
        row->addWidget(widget);
    row->addStretch(1);
    addFramedLayout(options, row);
}

void applyRange(ComboSlider* slider, const SliderRange& range)
{
    slider->setRange(range.minimum, range.maximum);
    slider->setTickInterval(range.tickInterval);
    slider->setSingleStep(range.singleStep);
    slider->setValue(range.value);
    slider->setUnit(range.unit);
}

ComboSlider* newSlider(BaseNode* node, const SliderRange& range)
{
    auto* slider = new ComboSlider(QString(), node);
    applyRange(slider, range);
    QObject::connect(slider, &ComboSlider::sliderMoved, node, &BaseNode::parametersChanged);
    return slider;
}

OrkWidgets::ColorButton* newColorButton(BaseNode* node, const QColor& color)
{
    auto* button = new OrkWidgets::ColorButton(color, node);
    QObject::connect(button, &OrkWidgets::ColorButton::colorChanged, node,
                     &BaseNode::parametersChanged);
    return button;
}

ComboSlider* addSliderRow(BaseNode* node, QFormLayout* form, const QString& label,
                          const SliderRange& range)
{
    ComboSlider* slider = newSlider(node, range);
    // A node made of a few slider rows has the options area to itself: room for a fine grip.
    slider->setMinimumWidth(roomySliderWidth);
    form->addRow(label, slider);
    return slider;
}

OrkWidgets::ColorButton* addColorRow(BaseNode* node, QFormLayout* form, const QString& label,
                                     const QColor& color)
{
    OrkWidgets::ColorButton* button = newColorButton(node, color);
    form->addRow(label, button);
    return button;
}

QVariant controlValue(ParamKind kind, const QObject* control)
{
    switch (kind) {
    case ParamKind::Slider:
        return static_cast<const ComboSlider*>(control)->value();
    case ParamKind::SpinBox:
        return static_cast<const QSpinBox*>(control)->value();
    case ParamKind::Choice:
        return static_cast<const QComboBox*>(control)->currentIndex();
    case ParamKind::Toggle:
        return static_cast<const QAbstractButton*>(control)->isChecked();
    case ParamKind::Colour:
        return static_cast<const OrkWidgets::ColorButton*>(control)->color();
    case ParamKind::Text:
        return static_cast<const QLineEdit*>(control)->text();
    case ParamKind::Direction:
        return int(static_cast<const DirectionsWidget*>(control)->direction());
    case ParamKind::Cells:
        return static_cast<const DirectionsWidget*>(control)->cells();
    case ParamKind::Font:
        // Only the family travels: a font of that family with default size and weight.
        return QFont(static_cast<const QFontComboBox*>(control)->currentFont().family());
    case ParamKind::Plain:
        break;
    }
    return {};
}

void setControlValue(ParamKind kind, QObject* control, const QVariant& value)
{
    switch (kind) {
    case ParamKind::Slider:
        static_cast<ComboSlider*>(control)->setValue(value.toInt());
        break;
    case ParamKind::SpinBox:
        static_cast<QSpinBox*>(control)->setValue(value.toInt());
        break;
    case ParamKind::Choice:
        // An index the combo does not have clears the selection, which the kernels take as
        // "leave the image alone", just as the headless form does with the same number.
        static_cast<QComboBox*>(control)->setCurrentIndex(value.toInt());
        break;
    case ParamKind::Toggle:
        static_cast<QAbstractButton*>(control)->setChecked(value.toBool());
        break;
    case ParamKind::Colour:
        static_cast<OrkWidgets::ColorButton*>(control)->setColor(value.value<QColor>());
        break;
    case ParamKind::Text:
        static_cast<QLineEdit*>(control)->setText(value.toString());
        break;
    case ParamKind::Direction:
        static_cast<DirectionsWidget*>(control)->setDirection(Direction(value.toInt()));
        break;
    case ParamKind::Cells:
        static_cast<DirectionsWidget*>(control)->setCells(value.toInt());
        break;
    case ParamKind::Font:
        static_cast<QFontComboBox*>(control)->setCurrentFont(QFont(value.value<QFont>().family()));
        break;
    case ParamKind::Plain:
        break;
    }
}

void addNoOptionsLabel(QVBoxLayout* options)
{
    auto* label = new QLabel(QCoreApplication::translate("BaseNode", "<H2>No options</H2>"));
    label->setTextFormat(Qt::RichText);
    label->setAlignment(Qt::AlignCenter);
    options->addWidget(label);
}
