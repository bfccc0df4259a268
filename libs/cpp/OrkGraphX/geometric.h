// Kernels that change the size or arrangement of the pixels. The result keeps the source format.
#pragma once

#include <QColor>
#include <QImage>
#include <QSize>

namespace OrkGraphX {

// 90 or -270, 180 or -180, 270 or -90; any other angle returns the image unchanged.
QImage rotateImage(QImage& image, int angle);
QImage rotateRight90(QImage& image);
QImage rotate180(QImage& image);
QImage rotateLeft90(QImage& image);
// The size rotateImage gives an image of size: the sides swapped for a quarter turn.
QSize rotatedSize(const QSize& size, int angle);

QImage mirrorImage(QImage& image, bool horizontal, bool vertical);

// Margins in percent of the image size.
QImage cropImage(QImage& image, int left, int right, int top, int bottom);
// The size cropImage gives an image of size; empty when it would be no image.
QSize croppedSize(const QSize& size, int left, int right, int top, int bottom);

// A border of percent of the width on all four sides.
QImage drawFrame(QImage& image, int percent, QColor colour);
// The size drawFrame gives an image of size; empty when it would be no image.
QSize framedSize(const QSize& size, int percent);

// mode 0 percent, 1 maximum pixels, 2 pixels; previewMode caps the interactive preview.
QImage resizeImage(QImage& image, int width, int height, int mode, bool previewMode);
// The size resizeImage gives a photo of size source at full size (previewMode off); an unknown
// mode keeps the size.
QSize resizedSize(const QSize& source, int width, int height, int mode);

QImage fitIntoBox(QImage& image, QSize box, QColor background);

} // namespace OrkGraphX
