// "Binarization": each colour channel becomes 0 or 255 against a threshold.
#pragma once

#include "keyednode.h"

class ComboSlider;

struct BINValues
{
    int threshold = 0;
};

class BINNode : public KeyedNode<BINNode, BINValues>
{
    Q_OBJECT

public:
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Binarization");

    explicit BINNode(QWidget* parent = nullptr);

    static const Keys& keys();
    static QImage run(QImage image, const BINValues& values);

private:
    ComboSlider* threshold = nullptr;
};
