// "Mirror": flips the image left to right, top to bottom, or both.
#pragma once

#include "keyednode.h"

class MRRNode : public KeyedNode<MRRNode, MRROperation>
{
    Q_OBJECT

public:
    explicit MRRNode(QWidget* parent = nullptr);
};
