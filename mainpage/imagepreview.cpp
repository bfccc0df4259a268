#include "imagepreview.h"

#include "app.h"
#include "commondata.h"

#include <QPushButton>

ImagePreview::ImagePreview(QWidget* parent)
    : PhotoLabel(parent)
{
    setObjectName("DropArea");
    setFixedSize(360, 360);
    infoLabel->setText(tr("<H1>INFO</H1>"));
    connect(nextButton, &QPushButton::clicked, this, &ImagePreview::next);
    connect(previousButton, &QPushButton::clicked, this, &ImagePreview::previous);
}

void ImagePreview::setResult(const QImage& result)
{
    const double ratio = OrkWidgets::App::devicePixelRatio();
    const QSize box(qRound(width() * ratio), qRound(height() * ratio));
    setPicture(result.isNull() ? QPixmap()
                               : QPixmap::fromImage(result.scaled(box, Qt::KeepAspectRatio,
                                                                  Qt::SmoothTransformation)));
    // The live run works on a reduced copy and leaves out what only the full size shows, so
    // its size is not that of the result a batch writes.
    const QString size = captionText({}, result.size());
    const bool preview = CommonData::instance()->previewMode != 0;
    setCaption(preview && !size.isEmpty() ? tr("Preview · %1").arg(size) : size);
}

void ImagePreview::enterEvent(QEvent* event)
{
    PhotoLabel::enterEvent(event);
    const CommonData* data = CommonData::instance();
    if (data->photoCount > 1) {
        infoLabel->setText(positionText(data->currentIndex, data->photoCount));
        setStepControlsVisible(true);
    }
}

void ImagePreview::leaveEvent(QEvent* event)
{
    PhotoLabel::leaveEvent(event);
    setStepControlsVisible(false);
}
