#include "rgbnode.h"

#include "point.h"

#include <QComboBox>
#include <QFormLayout>

RGBNode::RGBNode(QWidget* parent)
    : KeyedNode(Name, parent)
    , modeCombo(new QComboBox(this))
{
    setNodeIcon(Name);
    // The item data equals the index, which is what is stored and what the kernel dispatches on.
    modeCombo->addItem(tr("Red<->Blue"), 0);
    modeCombo->addItem(tr("Red<->Green"), 1);
    modeCombo->addItem(tr("Green<->Blue"), 2);
    addFramedForm(optionsLayout)->addRow(modeCombo);
    connect(modeCombo, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &BaseNode::parametersChanged);
}

const RGBNode::Keys& RGBNode::keys()
{
    static const Keys table = {
        Keys::bind("Mode", &RGBValues::mode, &RGBNode::modeCombo),
    };
    return table;
}

QImage RGBNode::run(QImage image, const RGBValues& values)
{
    return OrkGraphX::swapChannels(image, values.mode);
}
