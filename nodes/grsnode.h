// "Grayscale": the plain average of the three channels; no options.
#pragma once

#include "keyednode.h"

class GRSNode : public KeyedNode<GRSNode, GRSOperation>
{
    Q_OBJECT

public:
    explicit GRSNode(QWidget* parent = nullptr);
};
