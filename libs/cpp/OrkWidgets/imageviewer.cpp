#include "imageviewer.h"

#include "flatbutton.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace OrkWidgets {

namespace {
constexpr double zoomStep = 1.25;
constexpr double minimumZoom = 0.01;
constexpr double maximumZoom = 32.0;
} // namespace

ImageViewer::ImageViewer(QWidget* parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(200, 150);

    headingLabel = new QLabel(this);
    headingLabel->setObjectName("ImageViewerHeading");
    headingLabel->setAlignment(Qt::AlignCenter);
    captionLabel = new QLabel(this);
    captionLabel->setObjectName("ImageViewerCaption");
    captionLabel->setAlignment(Qt::AlignCenter);
    captionLabel->setTextFormat(Qt::PlainText);
    captionLabel->hide();

    zoomBar = new QWidget(this);
    zoomBar->setObjectName("ImageViewerBar");
    auto* zoomOutButton = makeButton("ImageViewerZoomOutButton", tr("-"), tr("Zoom out (-)"));
    auto* fitButton = makeButton("ImageViewerFitButton", tr("Fit"), tr("Fit to the window (0)"));
    auto* actualButton = makeButton("ImageViewerActualButton", tr("1:1"), tr("Actual pixels (1)"));
    auto* zoomInButton = makeButton("ImageViewerZoomInButton", tr("+"), tr("Zoom in (+)"));
    closeButton = makeButton("ImageViewerCloseButton", tr("Close"), tr("Close (Esc)"));
    connect(zoomOutButton, &QPushButton::clicked, this, &ImageViewer::slotZoomOut);
    connect(fitButton, &QPushButton::clicked, this, &ImageViewer::slotFitToWindow);
    connect(actualButton, &QPushButton::clicked, this, &ImageViewer::slotActualPixels);
    connect(zoomInButton, &QPushButton::clicked, this, &ImageViewer::slotZoomIn);
    connect(closeButton, &QPushButton::clicked, this, &ImageViewer::systemPreviewOpened);

    auto* barLayout = new QHBoxLayout(zoomBar);
    barLayout->setContentsMargins(6, 4, 6, 6);
    barLayout->setSpacing(4);
    barLayout->addStretch(1);
    barLayout->addWidget(zoomOutButton);
    barLayout->addWidget(fitButton);
    barLayout->addWidget(actualButton);
    barLayout->addWidget(zoomInButton);
    barLayout->addStretch(1);
    barLayout->addWidget(closeButton);

    // The picture is painted between the heading and the bar.
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(headingLabel);
    layout->addWidget(captionLabel);
    layout->addStretch(1);
    layout->addWidget(zoomBar);

    previousButton = makeButton("PreviousImageButton", {}, tr("Previous photo (Left)"));
    nextButton = makeButton("NextImageButton", {}, tr("Next photo (Right)"));
    previousButton->setFixedSize(32, 48);
    nextButton->setFixedSize(32, 48);
    connect(previousButton, &QPushButton::clicked, this, &ImageViewer::previous);
    connect(nextButton, &QPushButton::clicked, this, &ImageViewer::next);
}

QPushButton* ImageViewer::makeButton(const char* objectName, const QString& text,
                                     const QString& toolTip)
{
    QPushButton* button = newFlatButton(objectName, this, text, toolTip);
    // The keys belong to the viewer.
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

void ImageViewer::setImage(const QImage& image)
{
    const bool sameSize = !picture.isNull() && image.size() == picture.size();
    picture = image;
    scaledPicture = {};
    if (!sameSize)
        fitting = true;
    if (fitting) {
        zoom = fitZoom();
        origin = {};
    }
    keepInView();
    update();
}

void ImageViewer::setHeading(const QString& text)
{
    headingLabel->setText(text);
}

QString ImageViewer::heading() const
{
    return headingLabel->text();
}

void ImageViewer::setNavigationHidden(bool hidden)
{
    navigationHidden = hidden;
    previousButton->setHidden(hidden);
    nextButton->setHidden(hidden);
}

void ImageViewer::setCaption(const QString& text)
{
    captionLabel->setText(text);
    captionLabel->setHidden(text.isEmpty());
}

QString ImageViewer::caption() const
{
    return captionLabel->text();
}

QRectF ImageViewer::imageRect() const
{
    return QRectF(origin, QSizeF(picture.size()) * scale());
}

QRect ImageViewer::viewRect() const
{
    const QLabel* above = captionLabel->isHidden() ? headingLabel : captionLabel;
    const int top = above->geometry().bottom() + 1;
    const int bottom = zoomBar->geometry().top();
    return QRect(0, top, width(), std::max(0, bottom - top));
}

double ImageViewer::scale() const
{
    return zoom / devicePixelRatioF();
}

double ImageViewer::fitZoom() const
{
    const QRect view = viewRect();
    if (picture.isNull() || view.isEmpty())
        return 1.0;
    const double fit =
        std::min(double(view.width()) / picture.width(), double(view.height()) / picture.height());
    return fit * devicePixelRatioF();
}

bool ImageViewer::canPan() const
{
    const QRectF shown = imageRect();
    const QRect view = viewRect();
    return shown.width() > view.width() || shown.height() > view.height();
}

void ImageViewer::slotZoomIn()
{
    zoomAround(zoom * zoomStep, QRectF(viewRect()).center());
}

void ImageViewer::slotZoomOut()
{
    zoomAround(zoom / zoomStep, QRectF(viewRect()).center());
}

void ImageViewer::slotActualPixels()
{
    zoomAround(1.0, QRectF(viewRect()).center());
}

void ImageViewer::slotFitToWindow()
{
    fitting = true;
    refit();
}

void ImageViewer::zoomAround(double newZoom, const QPointF& anchor)
{
    const QPointF pictureAnchor = (anchor - origin) / scale();
    zoom = std::clamp(newZoom, minimumZoom, maximumZoom);
    fitting = false;
    scaledPicture = {};
    origin = anchor - pictureAnchor * scale();
    keepInView();
    update();
}

void ImageViewer::keepInView()
{
    const QRectF view = viewRect();
    const QSizeF shown = imageRect().size();
    const auto place = [](double position, double length, double viewStart, double viewLength) {
        if (length <= viewLength)
            return viewStart + (viewLength - length) / 2;
        return std::clamp(position, viewStart + viewLength - length, viewStart);
    };
    origin.setX(place(origin.x(), shown.width(), view.left(), view.width()));
    origin.setY(place(origin.y(), shown.height(), view.top(), view.height()));
    placeControls();
}

void ImageViewer::placeControls()
{
    const QRect view = viewRect();
    const int y = view.center().y() - previousButton->height() / 2;
    previousButton->move(view.left() + 6, y);
    nextButton->move(view.right() - 6 - nextButton->width(), y);
    previousButton->raise();
    nextButton->raise();
}

void ImageViewer::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    if (picture.isNull())
        return;
    const QRect view = viewRect();
    painter.setClipRect(view);
    const QRectF shown = imageRect();
    if (zoom < 1.0) {
        // Scaling a whole photo on every paint would make panning crawl: keep the result.
        const QSize deviceSize = (QSizeF(picture.size()) * zoom).toSize().expandedTo({1, 1});
        if (scaledPicture.size() != deviceSize) {
            scaledPicture =
                picture.scaled(deviceSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            scaledPicture.setDevicePixelRatio(devicePixelRatioF());
        }
        painter.drawImage(shown.topLeft(), scaledPicture);
    } else {
        // Enlarged pixels stay sharp, and only the part in sight is drawn.
        const QRectF visible = shown.intersected(view);
        const QRectF source((visible.topLeft() - shown.topLeft()) / scale(),
                            visible.size() / scale());
        painter.drawImage(visible, picture, source);
    }
}

void ImageViewer::refit()
{
    if (fitting) {
        zoom = fitZoom();
        scaledPicture = {};
    }
    keepInView();
    update();
}

bool ImageViewer::event(QEvent* event)
{
    // The layout has just placed the heading and the bar anew.
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest)
        refit();
    return handled;
}

void ImageViewer::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    refit();
}

void ImageViewer::wheelEvent(QWheelEvent* event)
{
    const int delta = event->angleDelta().y();
    if (delta == 0)
        return;
    zoomAround(delta > 0 ? zoom * zoomStep : zoom / zoomStep, event->position());
    event->accept();
}

void ImageViewer::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        slotZoomIn();
        break;
    case Qt::Key_Minus:
        slotZoomOut();
        break;
    case Qt::Key_1:
        slotActualPixels();
        break;
    case Qt::Key_0:
        slotFitToWindow();
        break;
    case Qt::Key_Right:
        if (!navigationHidden)
            emit next();
        break;
    case Qt::Key_Left:
        if (!navigationHidden)
            emit previous();
        break;
    case Qt::Key_Escape:
        emit systemPreviewOpened();
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
}

void ImageViewer::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !canPan()) {
        QWidget::mousePressEvent(event);
        return;
    }
    dragging = true;
    lastDragPosition = event->pos();
    setCursor(Qt::ClosedHandCursor);
}

void ImageViewer::mouseMoveEvent(QMouseEvent* event)
{
    if (!dragging) {
        QWidget::mouseMoveEvent(event);
        return;
    }
    origin += event->pos() - lastDragPosition;
    lastDragPosition = event->pos();
    keepInView();
    update();
}

void ImageViewer::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && dragging) {
        dragging = false;
        unsetCursor();
    }
    QWidget::mouseReleaseEvent(event);
}

void ImageViewer::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (fitting)
        zoomAround(1.0, event->pos());
    else
        slotFitToWindow();
}

} // namespace OrkWidgets
