// "Rotate": quarter and half turns in either direction.
#pragma once

#include "keyednode.h"

class RTTNode : public KeyedNode<RTTNode, RTTOperation>
{
    Q_OBJECT

public:
    explicit RTTNode(QWidget* parent = nullptr);

public slots:
    // The two directions keep their own signs (-270 .. 270) on purpose; past a full turn the
    // angle starts again at 0.
    void slotRightClicked();
    void slotLeftClicked();
};
