// "RGB-Order": swaps two colour channels.
#pragma once

#include "keyednode.h"

class QComboBox;

struct RGBValues
{
    int mode = 0;
};

class RGBNode : public KeyedNode<RGBNode, RGBValues>
{
    Q_OBJECT

public:
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "RGB-Order");

    explicit RGBNode(QWidget* parent = nullptr);

    static const Keys& keys();
    // 0 red/blue, 1 red/green, 2 green/blue; any other mode leaves the image as it is.
    static QImage run(QImage image, const RGBValues& values);

private:
    QComboBox* modeCombo = nullptr;
};
