// "Resize": by percentage, to fit a maximum size, or to exact pixels.
#pragma once

#include "keyednode.h"

class ComboSlider;
class QComboBox;

struct RSZValues
{
    int mode = 0;
    int width = 0;
    int height = 0;
    // Not stored: on while the reduced live preview runs, always off in the headless form.
    bool previewMode = false;
};

class RSZNode : public KeyedNode<RSZNode, RSZValues>
{
    Q_OBJECT

public:
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Resize");

    explicit RSZNode(QWidget* parent = nullptr);

    static const Keys& keys();
    static QImage run(QImage image, const RSZValues& values);
    // The stored values plus the application-wide preview-mode flag at the time of the call.
    RSZValues currentValues() const;

public slots:
    // Resets both sliders to the range, unit and value of the mode (0 percent, 1 and 2 pixels);
    // so a loader restores "Mode" before "Width" and "Height", the order they are saved in.
    void slotComboItemChanged(int index);

private:
    QComboBox* modeCombo = nullptr;
    ComboSlider* width = nullptr;
    ComboSlider* height = nullptr;
};
