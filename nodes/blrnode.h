// "Blur": the exponential blur over the whole image.
#pragma once

#include "keyednode.h"

class BLRNode : public KeyedNode<BLRNode, BLROperation>
{
    Q_OBJECT

public:
    explicit BLRNode(QWidget* parent = nullptr);
};
