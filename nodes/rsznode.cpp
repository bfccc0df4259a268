#include "rsznode.h"

#include "commondata.h"
#include "ui/comboslider.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>

RSZNode::RSZNode(QWidget* parent)
    : KeyedNode(parent)
{
    auto* modeCombo = new QComboBox(this);
    modeCombo->addItem(tr("Percentage"), 0);
    modeCombo->addItem(tr("Maximum Pixels"), 1);
    modeCombo->addItem(tr("Pixels"), 2);
    QFormLayout* form = addFramedForm(optionsLayout);
    form->addRow(key("Mode").translatedCaption(), modeCombo);
    width = addSliderRow(this, form, key("Width").translatedCaption(), sliderRange(key("Width")));
    height =
        addSliderRow(this, form, key("Height").translatedCaption(), sliderRange(key("Height")));
    auto* noEnlarge = new QCheckBox(key("NoEnlarge").translatedCaption(), this);
    form->addRow(QString(), noEnlarge);
    bindControl("Mode", modeCombo);
    bindControl("Width", width);
    bindControl("Height", height);
    bindControl("NoEnlarge", noEnlarge);
    connect(noEnlarge, &QCheckBox::toggled, this, &BaseNode::parametersChanged);
    connect(modeCombo, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &RSZNode::slotComboItemChanged);
}

RSZNode::Values RSZNode::currentValues() const
{
    Values values = KeyedNode::currentValues();
    values.previewMode = CommonData::instance()->previewMode != 0;
    return values;
}

void RSZNode::slotComboItemChanged(int index)
{
    if (index == 0 || index == 1 || index == 2) {
        plain.pixelSizes = index != 0;
        const SliderRange range =
            plain.pixelSizes
                ? SliderRange(ResizeRanges::pixels.minimum, ResizeRanges::pixels.maximum,
                              ResizeRanges::pixels.tickInterval, ResizeRanges::pixels.singleStep,
                              ResizeRanges::pixelsDefault, "px")
                : sliderRange(key("Width"));
        applyRange(width, range);
        applyRange(height, range);
    }
    emit parametersChanged();
}
