#include "grsnode.h"

#include "point.h"

GRSNode::GRSNode(QWidget* parent)
    : KeyedNode(Name, parent)
{
    setNodeIcon(Name);
    addNoOptionsLabel(optionsLayout);
}

const GRSNode::Keys& GRSNode::keys()
{
    static const Keys table = {};
    return table;
}

QImage GRSNode::run(QImage image, const NoValues& /*values*/)
{
    return OrkGraphX::grayscaleImage(image);
}
