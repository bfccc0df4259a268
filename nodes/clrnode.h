// The dormant colorize node: full options, but the factory never creates it.
#pragma once

#include "basenode.h"

namespace OrkWidgets {
class ColorButton;
}

class CLRNode : public BaseNode
{
    Q_OBJECT

public:
    explicit CLRNode(QWidget* parent = nullptr);

    // Replaces the hues near the first colour by the second, directly on the calling thread.
    void process(QImage& image) override;

private:
    OrkWidgets::ColorButton* sourceButton = nullptr;
    OrkWidgets::ColorButton* targetButton = nullptr;
};
