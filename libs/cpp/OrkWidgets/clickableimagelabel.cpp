#include "clickableimagelabel.h"

#include <QMouseEvent>

namespace OrkWidgets {

ClickableImageLabel::ClickableImageLabel(QWidget* parent)
    : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
}

void ClickableImageLabel::mousePressEvent(QMouseEvent* event)
{
    pressed = event->button() == Qt::LeftButton;
    QLabel::mousePressEvent(event);
}

void ClickableImageLabel::mouseReleaseEvent(QMouseEvent* event)
{
    const bool click =
        pressed && event->button() == Qt::LeftButton && rect().contains(event->pos());
    pressed = false;
    QLabel::mouseReleaseEvent(event);
    if (click)
        emit clicked();
}

} // namespace OrkWidgets
