// "Brightness, Contrast, Saturation": the three point adjustments in one pass.
#pragma once

#include "keyednode.h"

class ComboSlider;

struct BCSValues
{
    int brightness = 0;
    int contrast = 0;
    int saturation = 0;
};

class BCSNode : public KeyedNode<BCSNode, BCSValues>
{
    Q_OBJECT

public:
    static constexpr const char* Name =
        QT_TRANSLATE_NOOP("NodeName", "Brightness, Contrast, Saturation");

    explicit BCSNode(QWidget* parent = nullptr);

    static const Keys& keys();
    // The saturation reaches the kernel divided by 50.0: 50 keeps the colours, 100 doubles them.
    static QImage run(QImage image, const BCSValues& values);

private:
    ComboSlider* brightness = nullptr;
    ComboSlider* contrast = nullptr;
    ComboSlider* saturation = nullptr;
};
