// The dormant sharpness node: full options, but the factory never creates it.
#pragma once

#include "basenode.h"

class ComboSlider;

class SHSNode : public BaseNode
{
    Q_OBJECT

public:
    explicit SHSNode(QWidget* parent = nullptr);

    // Runs the 3 x 3 sharpness filter directly on the calling thread; the slider is not used.
    void process(QImage& image) override;

private:
    ComboSlider* sharpness = nullptr;
};
