// "Vignetting": a radial gradient towards a colour laid over the image.
#pragma once

#include "keyednode.h"

class UCSNode : public KeyedNode<UCSNode, UCSOperation>
{
    Q_OBJECT

public:
    explicit UCSNode(QWidget* parent = nullptr);
};
