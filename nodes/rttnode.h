// "Rotate": quarter and half turns in either direction.
#pragma once

#include "keyednode.h"

class QPushButton;

struct RTTValues
{
    int angle = 0;
};

class RTTNode : public KeyedNode<RTTNode, RTTValues>
{
    Q_OBJECT

public:
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Rotate");

    explicit RTTNode(QWidget* parent = nullptr);

    static const Keys& keys();
    // 90 or -270, 180 or -180, 270 or -90; any other angle, 0 included, leaves the image alone.
    static QImage run(QImage image, const RTTValues& values);

public slots:
    // The two directions keep their own signs (-270 .. 270) on purpose; past a full turn the
    // angle starts again at 0.
    void slotRightClicked();
    void slotLeftClicked();

private:
    QPushButton* rightButton = nullptr;
    QPushButton* leftButton = nullptr;
    int angle = 0;
};
