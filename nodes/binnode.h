// "Binarization": each colour channel becomes 0 or 255 against a threshold.
#pragma once

#include "keyednode.h"

class BINNode : public KeyedNode<BINNode, BINOperation>
{
    Q_OBJECT

public:
    explicit BINNode(QWidget* parent = nullptr);
};
