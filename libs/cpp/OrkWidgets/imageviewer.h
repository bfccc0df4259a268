// A photo viewer for the large result view: fit to the window, zoom, actual pixels, panning
// and stepping through the photos. The viewer only asks for the next or previous photo; the
// owner answers with setImage.
#pragma once

#include <QImage>
#include <QPoint>
#include <QPointF>
#include <QWidget>

class QLabel;
class QPushButton;

namespace OrkWidgets {

class ImageViewer : public QWidget
{
    Q_OBJECT

public:
    explicit ImageViewer(QWidget* parent = nullptr);

    // A picture of another size is fitted to the window; one of the same size keeps the zoom
    // and the position, so that stepping through equal photos compares the same detail.
    void setImage(const QImage& image);
    QImage image() const { return picture; }

    // Rich text shown centred above the picture, such as "<H1>2 of 5</H1>".
    void setHeading(const QString& text);
    QString heading() const;
    // Plain text below the heading, such as the photo's name; hidden while empty.
    void setCaption(const QString& text);
    QString caption() const;

    // Hides the step buttons and ignores the arrow keys, as for fewer than two photos.
    void setNavigationHidden(bool hidden);
    bool isNavigationHidden() const { return navigationHidden; }

    // Device pixels per picture pixel: 1.0 shows the actual pixels.
    double zoomFactor() const { return zoom; }
    // True while the zoom follows the window's size.
    bool isFitting() const { return fitting; }
    // Where the picture lies, in the viewer's coordinates.
    QRectF imageRect() const;

signals:
    void next();
    void previous();
    // The user asked to leave the viewer (Escape or the close button).
    void systemPreviewOpened();

public slots:
    void slotZoomIn();
    void slotZoomOut();
    void slotActualPixels();
    void slotFitToWindow();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QPushButton* makeButton(const char* objectName, const QString& text, const QString& toolTip);
    // The part of the viewer between the heading (with its caption) and the zoom bar, where the
    // picture lies.
    QRect viewRect() const;
    // Logical pixels per picture pixel.
    double scale() const;
    double fitZoom() const;
    // Sets the zoom, keeping the picture point under anchor where it is.
    void zoomAround(double newZoom, const QPointF& anchor);
    // Centres the picture where it is smaller than the window and keeps the window covered
    // where it is larger.
    void keepInView();
    // Follows a change of the space for the picture: a new size or a new heading height.
    void refit();
    bool canPan() const;
    void placeControls();

    QImage picture;
    // The picture at the current zoom, made when first painted below actual pixels.
    QImage scaledPicture;
    double zoom = 1.0;
    bool fitting = true;
    bool navigationHidden = false;
    // Top-left corner of the picture in the viewer's coordinates.
    QPointF origin;
    bool dragging = false;
    QPoint lastDragPosition;

    QLabel* headingLabel = nullptr;
    QLabel* captionLabel = nullptr;
    QPushButton* previousButton = nullptr;
    QPushButton* nextButton = nullptr;
    QPushButton* closeButton = nullptr;
    QWidget* zoomBar = nullptr;
};

} // namespace OrkWidgets
