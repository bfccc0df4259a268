// "Crop": margins cut away in percent of the image size.
#pragma once

#include "keyednode.h"

class CRPNode : public KeyedNode<CRPNode, CRPOperation>
{
    Q_OBJECT

public:
    explicit CRPNode(QWidget* parent = nullptr);
};
