// "Histogram optimizer": a level stretch from the clipped ends of the histogram.
#pragma once

#include "keyednode.h"

class ComboSlider;

struct HSTValues
{
    int left = 0;
    int right = 0;
};

class HSTNode : public KeyedNode<HSTNode, HSTValues>
{
    Q_OBJECT

public:
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Histogram optimizer");

    explicit HSTNode(QWidget* parent = nullptr);

    static const Keys& keys();
    // "Left:" clips the bright end and "Right:" the dark end; the crossing is deliberate.
    static QImage run(QImage image, const HSTValues& values);

private:
    ComboSlider* left = nullptr;
    ComboSlider* right = nullptr;
};
