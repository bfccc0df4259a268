#include "rsznode.h"

#include "commondata.h"
#include "geometric.h"
#include "ui/comboslider.h"

#include <QComboBox>
#include <QFormLayout>

namespace {
const SliderRange percentRange{1, 100, 1, 1, 50, "%"};
const SliderRange pixelRange{8, 5000, 1, 1, 300, "px"};
} // namespace

RSZNode::RSZNode(QWidget* parent)
    : KeyedNode(Name, parent)
    , modeCombo(new QComboBox(this))
{
    setNodeIcon(Name);
    modeCombo->addItem(tr("Percentage"), 0);
    modeCombo->addItem(tr("Maximum Pixels"), 1);
    modeCombo->addItem(tr("Pixels"), 2);
    QFormLayout* form = addFramedForm(optionsLayout);
    form->addRow(tr("Scale by:"), modeCombo);
    width = addSliderRow(this, form, tr("Width:"), percentRange);
    height = addSliderRow(this, form, tr("Height:"), percentRange);
    connect(modeCombo, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &RSZNode::slotComboItemChanged);
}

const RSZNode::Keys& RSZNode::keys()
{
    static const Keys table = {
        Keys::bind("Mode", &RSZValues::mode, &RSZNode::modeCombo),
        Keys::bind("Width", &RSZValues::width, &RSZNode::width),
        Keys::bind("Height", &RSZValues::height, &RSZNode::height),
    };
    return table;
}

QImage RSZNode::run(QImage image, const RSZValues& values)
{
    return OrkGraphX::resizeImage(image, values.width, values.height, values.mode,
                                  values.previewMode);
}

RSZValues RSZNode::currentValues() const
{
    RSZValues values = keys().values(*this);
    values.previewMode = CommonData::instance()->previewMode != 0;
    return values;
}

void RSZNode::slotComboItemChanged(int index)
{
    if (index == 0 || index == 1 || index == 2) {
        const SliderRange& range = index == 0 ? percentRange : pixelRange;
        applyRange(width, range);
        applyRange(height, range);
    }
    emit parametersChanged();
}
