// "Vignetting": a radial gradient towards a colour laid over the image.
#pragma once

#include "keyednode.h"

#include <QColor>

class ComboSlider;
namespace OrkWidgets {
class ColorButton;
}

struct UCSValues
{
    int radius = 0;
    int opacity = 0;
    QColor color;
};

class UCSNode : public KeyedNode<UCSNode, UCSValues>
{
    Q_OBJECT

public:
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Vignetting");

    explicit UCSNode(QWidget* parent = nullptr);

    static const Keys& keys();
    static QImage run(QImage image, const UCSValues& values);

private:
    ComboSlider* radius = nullptr;
    ComboSlider* opacity = nullptr;
    OrkWidgets::ColorButton* colorButton = nullptr;
};
