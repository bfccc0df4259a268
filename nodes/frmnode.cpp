#include "frmnode.h"

FRMNode::FRMNode(QWidget* parent)
    : KeyedNode(parent)
{
    addTableForm({"Color", "Width"});
}
