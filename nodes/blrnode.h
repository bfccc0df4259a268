// "Blur": the exponential blur over the whole image.
#pragma once

#include "keyednode.h"

class ComboSlider;

struct BLRValues
{
    int radius = 0;
};

class BLRNode : public KeyedNode<BLRNode, BLRValues>
{
    Q_OBJECT

public:
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Blur");
    // Shared with the sharpness slider, which has the same settings.
    static const SliderRange radiusRange;

    explicit BLRNode(QWidget* parent = nullptr);

    static const Keys& keys();
    // The region is the whole image, from (0, 0) to (width - 1, height - 1); all channels.
    static QImage run(QImage image, const BLRValues& values);

private:
    ComboSlider* radius = nullptr;
};
