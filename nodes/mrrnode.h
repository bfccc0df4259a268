// "Mirror": flips the image left to right, top to bottom, or both.
#pragma once

#include "keyednode.h"

class QPushButton;

struct MRRValues
{
    bool horizontal = false;
    bool vertical = false;
};

class MRRNode : public KeyedNode<MRRNode, MRRValues>
{
    Q_OBJECT

public:
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Mirror");

    explicit MRRNode(QWidget* parent = nullptr);

    static const Keys& keys();
    static QImage run(QImage image, const MRRValues& values);

private:
    // The object names are crossed with the keys ("MirrorVButton" holds "Horizontal"):
    // the style sheet knows the buttons by these names.
    QPushButton* horizontalButton = nullptr;
    QPushButton* verticalButton = nullptr;
};
