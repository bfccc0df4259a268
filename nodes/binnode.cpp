#include "binnode.h"

BINNode::BINNode(QWidget* parent)
    : KeyedNode(parent)
{
    addTableForm();
}
