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

QPushButton* newFlatButton(QWidget* parent, const QString& objectName, const QString& toolTip)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(objectName);
    button->setToolTip(toolTip);
    button->setFlat(true);
    button->setCheckable(true);
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

void takeValue(const ComboSlider* slider, int& value)
{
    value = slider->value();
}

void giveValue(ComboSlider* slider, int value)
{
    slider->setValue(value);
}

void takeValue(const QComboBox* combo, int& value)
{
    value = combo->currentIndex();
}

void giveValue(QComboBox* combo, int value)
{
    // An index the combo does not have clears the selection, which the kernels take as
    // "leave the image alone", just as the headless form does with the same number.
    combo->setCurrentIndex(value);
}

void takeValue(const QSpinBox* spinBox, int& value)
{
    value = spinBox->value();
}

void giveValue(QSpinBox* spinBox, int value)
{
    spinBox->setValue(value);
}

void takeValue(const QAbstractButton* button, bool& checked)
{
    checked = button->isChecked();
}

void giveValue(QAbstractButton* button, bool checked)
{
    button->setChecked(checked);
}

void takeValue(const OrkWidgets::ColorButton* button, QColor& color)
{
    color = button->color();
}

void giveValue(OrkWidgets::ColorButton* button, const QColor& color)
{
    button->setColor(color);
}

void takeValue(const QLineEdit* edit, QString& text)
{
    text = edit->text();
}

void giveValue(QLineEdit* edit, const QString& text)
{
    edit->setText(text);
}

void takeValue(const DirectionsWidget* directions, int& direction)
{
    direction = directions->direction();
}

void giveValue(DirectionsWidget* directions, int direction)
{
    directions->setDirection(Direction(direction));
}

void takeValue(const QFontComboBox* combo, QFont& font)
{
    font = QFont(combo->currentFont().family());
}

void giveValue(QFontComboBox* combo, const QFont& font)
{
    combo->setCurrentFont(QFont(font.family()));
}

void addNoOptionsLabel(QVBoxLayout* options)
{
    auto* label = new QLabel(QCoreApplication::translate("BaseNode", "<H2>No options</H2>"));
    label->setTextFormat(Qt::RichText);
    label->setAlignment(Qt::AlignCenter);
    options->addWidget(label);
}
