#include "ucsnode.h"

UCSNode::UCSNode(QWidget* parent)
    : KeyedNode(parent)
{
    addTableForm();
}
