// "Crop": margins cut away in percent of the image size.
#pragma once

#include "keyednode.h"

class ComboSlider;

struct CRPValues
{
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
};

class CRPNode : public KeyedNode<CRPNode, CRPValues>
{
    Q_OBJECT

public:
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Crop");

    explicit CRPNode(QWidget* parent = nullptr);

    static const Keys& keys();
    static QImage run(QImage image, const CRPValues& values);

private:
    ComboSlider* left = nullptr;
    ComboSlider* right = nullptr;
    ComboSlider* top = nullptr;
    ComboSlider* bottom = nullptr;
};
