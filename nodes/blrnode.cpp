#include "blrnode.h"

BLRNode::BLRNode(QWidget* parent)
    : KeyedNode(parent)
{
    addTableForm();
}
