// "Frame": a solid border of a percentage of the width on all four sides.
#pragma once

#include "keyednode.h"

class FRMNode : public KeyedNode<FRMNode, FRMOperation>
{
    Q_OBJECT

public:
    explicit FRMNode(QWidget* parent = nullptr);
};
