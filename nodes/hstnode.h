// "Histogram optimizer": a level stretch from the clipped ends of the histogram.
#pragma once

#include "keyednode.h"

class HSTNode : public KeyedNode<HSTNode, HSTOperation>
{
    Q_OBJECT

public:
    explicit HSTNode(QWidget* parent = nullptr);
};
