#include "hstnode.h"

HSTNode::HSTNode(QWidget* parent)
    : KeyedNode(parent)
{
    addTableForm();
}
