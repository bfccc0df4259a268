// The large result view: the full-size result in an image viewer, opened with an animation
// that grows it out of the small view.
#pragma once

#include <QDialog>
#include <QImage>

class QPropertyAnimation;

namespace OrkWidgets {
class ImageViewer;
}

class ImageViewDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ImageViewDialog(QWidget* parent = nullptr);

    // Shows a result with the heading "n of m" of the current photo and below it the photo's
    // file name with the result's size; stepping is offered only for two photos or more.
    void setImage(const QImage& image);

    // Grows the dialog from start to target over one second, quintic ease-out.
    void animateOpening(const QRect& start, const QRect& target);

    OrkWidgets::ImageViewer* viewer() const { return imageViewer; }
    QPropertyAnimation* openingAnimation() const { return opening; }

signals:
    void next();
    void previous();

private:
    OrkWidgets::ImageViewer* imageViewer = nullptr;
    QPropertyAnimation* opening = nullptr;
};
