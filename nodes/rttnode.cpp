#include "rttnode.h"

#include <QPushButton>

RTTNode::RTTNode(QWidget* parent)
    : KeyedNode(parent)
{
    auto* rightButton = new QPushButton(this);
    auto* leftButton = new QPushButton(this);
    rightButton->setObjectName("RotateRightButton");
    rightButton->setToolTip(tr("Rotate clockwise"));
    leftButton->setObjectName("RotateLeftButton");
    leftButton->setToolTip(tr("Rotate anticlockwise"));
    connect(rightButton, &QPushButton::clicked, this, &RTTNode::slotRightClicked);
    connect(leftButton, &QPushButton::clicked, this, &RTTNode::slotLeftClicked);
    addCentredRow(optionsLayout, {leftButton, rightButton});
}

void RTTNode::slotRightClicked()
{
    plain.angle += 90;
    if (plain.angle > 270)
        plain.angle = 0;
    emit parametersChanged();
}

void RTTNode::slotLeftClicked()
{
    plain.angle -= 90;
    if (plain.angle < -270)
        plain.angle = 0;
    emit parametersChanged();
}
