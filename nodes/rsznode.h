// "Resize": by percentage, to fit a maximum size, or to exact pixels; if asked, never larger.
#pragma once

#include "keyednode.h"

class ComboSlider;

class RSZNode : public KeyedNode<RSZNode, RSZOperation>
{
    Q_OBJECT

public:
    explicit RSZNode(QWidget* parent = nullptr);

    // The stored values plus the application-wide preview-mode flag at the time of the call.
    Values currentValues() const;

public slots:
    // Resets both sliders to the range, unit and value of the mode (0 percent, 1 and 2 pixels);
    // so a loader restores "Mode" before "Width" and "Height", the order they are saved in.
    void slotComboItemChanged(int index);

private:
    ComboSlider* width = nullptr;
    ComboSlider* height = nullptr;
};
