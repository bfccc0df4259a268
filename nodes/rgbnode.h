// "RGB-Order": swaps two colour channels.
#pragma once

#include "keyednode.h"

class RGBNode : public KeyedNode<RGBNode, RGBOperation>
{
    Q_OBJECT

public:
    explicit RGBNode(QWidget* parent = nullptr);
};
