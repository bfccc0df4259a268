// "Invert": the colour negative; no options.
#pragma once

#include "grsnode.h"

class INVNode : public KeyedNode<INVNode, NoValues>
{
    Q_OBJECT

public:
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Invert");

    explicit INVNode(QWidget* parent = nullptr);

    static const Keys& keys();
    static QImage run(QImage image, const NoValues& values);
};
