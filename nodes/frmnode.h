// "Frame": a solid border of a percentage of the width on all four sides.
#pragma once

#include "keyednode.h"

#include <QColor>

class ComboSlider;
namespace OrkWidgets {
class ColorButton;
}

struct FRMValues
{
    int width = 0;
    QColor color;
};

class FRMNode : public KeyedNode<FRMNode, FRMValues>
{
    Q_OBJECT

public:
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Frame");

    explicit FRMNode(QWidget* parent = nullptr);

    static const Keys& keys();
    static QImage run(QImage image, const FRMValues& values);

private:
    OrkWidgets::ColorButton* colorButton = nullptr;
    ComboSlider* width = nullptr;
};
