// The small "Result" view: the flow's result fitted into a 360 x 360 square.
#pragma once

#include "photolabel.h"

#include <QImage>

class ImagePreview : public PhotoLabel
{
    Q_OBJECT

public:
    explicit ImagePreview(QWidget* parent = nullptr);

    // Scaled to the view's size times the screen's device pixel ratio, keeping the aspect; the
    // caption gives the result's size, marked as the preview's while the live run made it.
    void setResult(const QImage& result);

signals:
    void next();
    void previous();

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
};
