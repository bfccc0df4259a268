#include "previewbubble.h"

#include <QGuiApplication>
#include <QPropertyAnimation>
#include <QScreen>

namespace {
const QSize largestPicture(480, 360);
const int border = 3;
const int gap = 6;
const int growthMilliseconds = 500;
} // namespace

PreviewBubble::PreviewBubble(const QPixmap& picture, const QRect& origin, QWidget* parent)
    : QLabel(parent, Qt::Popup | Qt::FramelessWindowHint)
    , growth(new QPropertyAnimation(this, "geometry", this))
{
    setObjectName("PreviewBubble");
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(border);
    setScaledContents(true);
    setPixmap(picture);

    const QScreen* screen = QGuiApplication::screenAt(origin.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    growth->setDuration(growthMilliseconds);
    growth->setEasingCurve(QEasingCurve::OutCubic);
    growth->setStartValue(origin);
    growth->setEndValue(targetGeometry(picture.size(), origin, screen->availableGeometry()));
    setGeometry(origin);
}

QRect PreviewBubble::targetGeometry(const QSize& pictureSize, const QRect& origin,
                                    const QRect& screen)
{
    QSize size = pictureSize;
    if (size.width() > largestPicture.width() || size.height() > largestPicture.height())
        size.scale(largestPicture, Qt::KeepAspectRatio);
    size += QSize(2 * border, 2 * border);

    QRect target(QPoint(0, 0), size);
    target.moveCenter(origin.center());
    target.moveBottom(origin.top() - gap);
    if (target.top() < screen.top())
        target.moveTop(origin.bottom() + gap);
    target.moveLeft(qBound(screen.left(), target.left(), screen.right() - target.width() + 1));
    target.moveTop(qBound(screen.top(), target.top(), screen.bottom() - target.height() + 1));
    return target;
}

void PreviewBubble::showEvent(QShowEvent* event)
{
    QLabel::showEvent(event);
    growth->start();
}

void PreviewBubble::mousePressEvent(QMouseEvent* event)
{
    Q_UNUSED(event)
    close();
}
