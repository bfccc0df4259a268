#include "rttnode.h"

#include "geometric.h"

#include <QPushButton>

RTTNode::RTTNode(QWidget* parent)
    : KeyedNode(Name, parent)
    , rightButton(new QPushButton(this))
    , leftButton(new QPushButton(this))
{
    setNodeIcon(Name);
    rightButton->setObjectName("RotateRightButton");
    rightButton->setToolTip(tr("Rotate clockwise"));
    leftButton->setObjectName("RotateLeftButton");
    leftButton->setToolTip(tr("Rotate anticlockwise"));
    connect(rightButton, &QPushButton::clicked, this, &RTTNode::slotRightClicked);
    connect(leftButton, &QPushButton::clicked, this, &RTTNode::slotLeftClicked);

    addCentredRow(optionsLayout, {leftButton, rightButton});
}

const RTTNode::Keys& RTTNode::keys()
{
    static const Keys table = {
        Keys::bind("Angle", &RTTValues::angle, &RTTNode::angle),
    };
    return table;
}

QImage RTTNode::run(QImage image, const RTTValues& values)
{
    return OrkGraphX::rotateImage(image, values.angle);
}

void RTTNode::slotRightClicked()
{
    angle += 90;
    if (angle > 270)
        angle = 0;
    emit parametersChanged();
}

void RTTNode::slotLeftClicked()
{
    angle -= 90;
    if (angle < -270)
        angle = 0;
    emit parametersChanged();
}
