#include "crpnode.h"

CRPNode::CRPNode(QWidget* parent)
    : KeyedNode(parent)
{
    addTableForm();
}
