#include "imageviewdialog.h"

#include "commondata.h"
#include "imageviewer.h"
#include "itemsmodel.h"
#include "photolabel.h"

#include <QCoreApplication>
#include <QPropertyAnimation>
#include <QVBoxLayout>

ImageViewDialog::ImageViewDialog(QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Result"));
    imageViewer = new OrkWidgets::ImageViewer(this);
    imageViewer->setObjectName("ImageViewer");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(imageViewer);

    connect(imageViewer, &OrkWidgets::ImageViewer::systemPreviewOpened, this, &QDialog::accept);
    connect(imageViewer, &OrkWidgets::ImageViewer::next, this, &ImageViewDialog::next);
    connect(imageViewer, &OrkWidgets::ImageViewer::previous, this, &ImageViewDialog::previous);

    opening = new QPropertyAnimation(this, "geometry", this);
    opening->setDuration(1000);
    opening->setEasingCurve(QEasingCurve::OutQuint);
}

void ImageViewDialog::setImage(const QImage& image)
{
    // Lets the viewer finish painting the previous result before the next one replaces it.
    if (isVisible())
        QCoreApplication::processEvents();
    CommonData* data = CommonData::instance();
    imageViewer->setHeading(PhotoLabel::positionText(data->currentIndex, data->photoCount));
    const QUrl photo = data->itemsModel()->photos().value(data->currentIndex);
    imageViewer->setCaption(PhotoLabel::captionText(photo.fileName(), image.size()));
    imageViewer->setImage(image);
    imageViewer->setNavigationHidden(data->photoCount < 2);
}

void ImageViewDialog::animateOpening(const QRect& start, const QRect& target)
{
    setMinimumSize(5, 5);
    opening->stop();
    opening->setStartValue(start);
    opening->setEndValue(target);
    opening->start();
}
