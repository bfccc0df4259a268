#include "crpnode.h"

#include "geometric.h"

#include <QFormLayout>

CRPNode::CRPNode(QWidget* parent)
    : KeyedNode(Name, parent)
{
    setNodeIcon(Name);
    QFormLayout* form = addFramedForm(optionsLayout);
    const SliderRange margin{0, 100, 20, 1, 0, "%"};
    left = addSliderRow(this, form, tr("Left:"), margin);
    right = addSliderRow(this, form, tr("Right:"), margin);
    top = addSliderRow(this, form, tr("Top:"), margin);
    bottom = addSliderRow(this, form, tr("Buttom:"), margin);
}

const CRPNode::Keys& CRPNode::keys()
{
    static const Keys table = {
        Keys::bind("Left", &CRPValues::left, &CRPNode::left),
        Keys::bind("Right", &CRPValues::right, &CRPNode::right),
        Keys::bind("Top", &CRPValues::top, &CRPNode::top),
        Keys::bind("Bottom", &CRPValues::bottom, &CRPNode::bottom),
    };
    return table;
}

QImage CRPNode::run(QImage image, const CRPValues& values)
{
    return OrkGraphX::cropImage(image, values.left, values.right, values.top, values.bottom);
}
