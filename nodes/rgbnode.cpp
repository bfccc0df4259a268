#include "rgbnode.h"

#include <QComboBox>
#include <QFormLayout>

RGBNode::RGBNode(QWidget* parent)
    : KeyedNode(parent)
{
    auto* modeCombo = new QComboBox(this);
    modeCombo->addItem(tr("Red<->Blue"), 0);
    modeCombo->addItem(tr("Red<->Green"), 1);
    modeCombo->addItem(tr("Green<->Blue"), 2);
    addFramedForm(optionsLayout)->addRow(modeCombo);
    bindControl("Mode", modeCombo);
    connect(modeCombo, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &BaseNode::parametersChanged);
}
