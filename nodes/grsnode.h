// "Grayscale": the plain average of the three channels; no options.
#pragma once

#include "keyednode.h"

// The nodes without options store no keys.
struct NoValues
{
};

class GRSNode : public KeyedNode<GRSNode, NoValues>
{
    Q_OBJECT

public:
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Grayscale");

    explicit GRSNode(QWidget* parent = nullptr);

    static const Keys& keys();
    static QImage run(QImage image, const NoValues& values);
};
