// A label that shows a picture and may carry an animated picture in one of its corners.
#pragma once

#include <QLabel>

namespace OrkWidgets {

class AnimatedLabel;

class ImageLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ImageLabel(const QString& fileName, QWidget* parent = nullptr);

    // A child of the given size playing fileName, placed inside the label by alignment.
    AnimatedLabel* addAnimation(const QString& fileName, QSize size, Qt::Alignment alignment);
    // Widgets laid over the picture, placed inside the label by alignment.
    void addOverlay(QLayout* overlay, Qt::Alignment alignment);
};

} // namespace OrkWidgets
