// Small helpers the node constructors share: slider rows in a form, and the uniform
// accessors through which a parameter table reads and sets any kind of control.
#pragma once

#include "paramtable.h"

#include <QColor>
#include <QFont>
#include <QString>
#include <QVariant>

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

// The slider settings of a key: its range, ticks, step, default and unit.
template <typename Values> SliderRange sliderRange(const Param<Values>& key)
{
    return {key.range.minimum,    key.range.maximum,     key.range.tickInterval,
            key.range.singleStep, key.uiDefault.toInt(), QString::fromUtf8(key.unit)};
}

void applyRange(ComboSlider* slider, const SliderRange& range);

// A slider whose moves report the node's parametersChanged.
ComboSlider* newSlider(BaseNode* node, const SliderRange& range);
// A colour button whose changes report the node's parametersChanged.
OrkWidgets::ColorButton* newColorButton(BaseNode* node, const QColor& color);

// A row "label | slider" whose moves report the node's parametersChanged.
ComboSlider* addSliderRow(BaseNode* node, QFormLayout* form, const QString& label,
                          const SliderRange& range);

// A row "label | colour button" whose changes report the node's parametersChanged.
OrkWidgets::ColorButton* addColorRow(BaseNode* node, QFormLayout* form, const QString& label,
                                     const QColor& color);

// The value a control of the kind holds, and the value given to it; it clamps as it does.
QVariant controlValue(ParamKind kind, const QObject* control);
void setControlValue(ParamKind kind, QObject* control, const QVariant& value);

// The rich-text "No options" label of the nodes that have no controls.
void addNoOptionsLabel(QVBoxLayout* options);
