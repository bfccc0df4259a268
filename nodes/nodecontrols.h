// Small helpers the node constructors share: slider rows in a form, and the uniform
// take/give accessors through which a key table reads and sets any kind of control.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>

#include <initializer_list>

class BaseNode;
class ComboSlider;
class DirectionsWidget;
class QAbstractButton;
class QComboBox;
class QFontComboBox;
class QFormLayout;
class QLayout;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QVBoxLayout;
class QWidget;
namespace OrkWidgets {
class ColorButton;
}

// Range, ticks, step, default value and unit of one slider.
struct SliderRange
{
    SliderRange(int minimum, int maximum, int tickInterval, int singleStep, int value,
                const QString& unit = QString())
        : minimum(minimum)
        , maximum(maximum)
        , tickInterval(tickInterval)
        , singleStep(singleStep)
        , value(value)
        , unit(unit)
    {
    }

    int minimum;
    int maximum;
    int tickInterval;
    int singleStep;
    int value;
    QString unit;
};

// The layout between two stretches, appended to the node's options layout: the node's controls
// stay together in the middle of the options area whatever its height.
void addFramedLayout(QVBoxLayout* options, QLayout* layout);

// A form layout between two stretches, appended to the node's options layout.
QFormLayout* addFramedForm(QVBoxLayout* options);

// The widgets side by side, centred, between two stretches of the node's options layout.
void addCentredRow(QVBoxLayout* options, std::initializer_list<QWidget*> widgets);

void applyRange(ComboSlider* slider, const SliderRange& range);

// A slider whose moves report the node's parametersChanged.
ComboSlider* newSlider(BaseNode* node, const SliderRange& range);
// A colour button whose changes report the node's parametersChanged.
OrkWidgets::ColorButton* newColorButton(BaseNode* node, const QColor& color);

// A flat, checkable push button; its look comes from the style sheet by its object name.
QPushButton* newFlatButton(QWidget* parent, const QString& objectName, const QString& toolTip);

// A row "label | slider" whose moves report the node's parametersChanged.
ComboSlider* addSliderRow(BaseNode* node, QFormLayout* form, const QString& label,
                          const SliderRange& range);

// A row "label | colour button" whose changes report the node's parametersChanged.
OrkWidgets::ColorButton* addColorRow(BaseNode* node, QFormLayout* form, const QString& label,
                                     const QColor& color);

void takeValue(const ComboSlider* slider, int& value);
void giveValue(ComboSlider* slider, int value);
// Combo boxes store their current index.
void takeValue(const QComboBox* combo, int& value);
void giveValue(QComboBox* combo, int value);
void takeValue(const QSpinBox* spinBox, int& value);
void giveValue(QSpinBox* spinBox, int value);
void takeValue(const QAbstractButton* button, bool& checked);
void giveValue(QAbstractButton* button, bool checked);
void takeValue(const OrkWidgets::ColorButton* button, QColor& color);
void giveValue(OrkWidgets::ColorButton* button, const QColor& color);
void takeValue(const QLineEdit* edit, QString& text);
void giveValue(QLineEdit* edit, const QString& text);
void takeValue(const DirectionsWidget* directions, int& direction);
void giveValue(DirectionsWidget* directions, int direction);
// Only the family travels: a font of that family with default size and weight.
void takeValue(const QFontComboBox* combo, QFont& font);
void giveValue(QFontComboBox* combo, const QFont& font);

// A plain member of the node holds the value itself.
template <typename T> void takeValue(const T& member, T& value)
{
    value = member;
}

template <typename T> void giveValue(T& member, const T& value)
{
    member = value;
}

// The rich-text "No options" label of the nodes that have no controls.
void addNoOptionsLabel(QVBoxLayout* options);
