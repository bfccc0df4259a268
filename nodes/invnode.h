// "Invert": the colour negative; no options.
#pragma once

#include "keyednode.h"

class INVNode : public KeyedNode<INVNode, INVOperation>
{
    Q_OBJECT

public:
    explicit INVNode(QWidget* parent = nullptr);
};
