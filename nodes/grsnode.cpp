#include "grsnode.h"

GRSNode::GRSNode(QWidget* parent)
    : KeyedNode(parent)
{
    addNoOptionsLabel(optionsLayout);
}
