#include "hstnode.h"

#include "neighbourhood.h"

#include <QFormLayout>

HSTNode::HSTNode(QWidget* parent)
    : KeyedNode(Name, parent)
{
    setNodeIcon(Name);
    QFormLayout* form = addFramedForm(optionsLayout);
    left = addSliderRow(this, form, tr("Left:"), {0, 100, 20, 1, 0});
    right = addSliderRow(this, form, tr("Right:"), {0, 100, 20, 1, 0});
}

const HSTNode::Keys& HSTNode::keys()
{
    static const Keys table = {
        Keys::bind("Left", &HSTValues::left, &HSTNode::left),
        Keys::bind("Right", &HSTValues::right, &HSTNode::right),
    };
    return table;
}

QImage HSTNode::run(QImage image, const HSTValues& values)
{
    return OrkGraphX::optimizeHistogram(image, values.left, values.right);
}
