#include "invnode.h"

INVNode::INVNode(QWidget* parent)
    : KeyedNode(parent)
{
    addNoOptionsLabel(optionsLayout);
}
