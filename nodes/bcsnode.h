// "Brightness, Contrast, Saturation": the three point adjustments in one pass.
#pragma once

#include "keyednode.h"

class BCSNode : public KeyedNode<BCSNode, BCSOperation>
{
    Q_OBJECT

public:
    explicit BCSNode(QWidget* parent = nullptr);
};
