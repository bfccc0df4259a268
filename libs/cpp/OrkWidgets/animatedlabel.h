// A label that plays an animated picture, resting for a while after each run through it.
#pragma once

#include <QLabel>

class QMovie;
class QTimer;

namespace OrkWidgets {

class AnimatedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit AnimatedLabel(const QString& fileName, QWidget* parent = nullptr);

    // Milliseconds to rest on the last frame before playing again; 0 plays without a rest.
    void setRepeatDelay(int milliseconds);
    int repeatDelay() const { return delay; }

    QMovie* movie() const { return animation; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void slotFrameChanged(int frame);
    void slotRestOver();

    QMovie* animation = nullptr;
    QTimer* restTimer = nullptr;
    int delay = 0;
};

} // namespace OrkWidgets
