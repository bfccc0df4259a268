#include "animatedlabel.h"

#include <QMovie>
#include <QTimer>

namespace OrkWidgets {

AnimatedLabel::AnimatedLabel(const QString& fileName, QWidget* parent)
    : QLabel(parent)
    , animation(new QMovie(fileName, QByteArray(), this))
    , restTimer(new QTimer(this))
{
    setAlignment(Qt::AlignCenter);
    setScaledContents(true);
    setMovie(animation);
    restTimer->setSingleShot(true);
    connect(animation, &QMovie::frameChanged, this, &AnimatedLabel::slotFrameChanged);
    // A picture that plays only a fixed number of times rests, then starts over.
    connect(animation, &QMovie::finished, this, [this] { restTimer->start(delay); });
    connect(restTimer, &QTimer::timeout, this, &AnimatedLabel::slotRestOver);
}

void AnimatedLabel::setRepeatDelay(int milliseconds)
{
    delay = qMax(0, milliseconds);
}

void AnimatedLabel::showEvent(QShowEvent* event)
{
    QLabel::showEvent(event);
    if (animation->state() == QMovie::NotRunning)
        animation->start();
    else if (!restTimer->isActive())
        animation->setPaused(false);
}

void AnimatedLabel::hideEvent(QHideEvent* event)
{
    // Nobody sees it: no need to keep the timers busy.
    restTimer->stop();
    animation->setPaused(true);
    QLabel::hideEvent(event);
}

void AnimatedLabel::slotFrameChanged(int frame)
{
    if (delay > 0 && animation->frameCount() > 1 && frame == animation->frameCount() - 1) {
        animation->setPaused(true);
        restTimer->start(delay);
    }
}

void AnimatedLabel::slotRestOver()
{
    if (animation->state() == QMovie::NotRunning)
        animation->start();
    else
        animation->setPaused(false);
}

} // namespace OrkWidgets
