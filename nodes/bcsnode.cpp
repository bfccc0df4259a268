#include "bcsnode.h"

BCSNode::BCSNode(QWidget* parent)
    : KeyedNode(parent)
{
    addTableForm();
}
