#include "invnode.h"

#include "point.h"

INVNode::INVNode(QWidget* parent)
    : KeyedNode(Name, parent)
{
    setNodeIcon(Name);
    addNoOptionsLabel(optionsLayout);
}

const INVNode::Keys& INVNode::keys()
{
    static const Keys table = {};
    return table;
}

QImage INVNode::run(QImage image, const NoValues& /*values*/)
{
    return OrkGraphX::invertImage(image);
}
