#include "geometric.h"

#include "pixelwords.h"

#include <QPainter>

#include <algorithm>

namespace OrkGraphX {

using namespace PixelWords;

namespace {

// The turns, the crop and the frame are defined as QImage::pixel / QImage::setPixel copies.
// pixel() of an RGB32 image sets the alpha byte and setPixel() into RGB32 sets it again, so an
// RGB32 word travels as word | 0xff000000; ARGB32 words (premultiplied or not) travel unchanged.
struct WordTransfer
{
    QRgb orMask = 0;

    explicit WordTransfer(QImage::Format format)
        : orMask(format == QImage::Format_RGB32 ? 0xff000000 : 0)
    {
    }

    QRgb operator()(QRgb word) const { return word | orMask; }

    // pixel() answers 12345 for a coordinate outside the image (and logs a warning); this is
    // what setPixel() stores for that value.
    QRgb outOfRange() const { return 12345 | orMask; }

    void copy(const QRgb* from, QRgb* to, int count) const
    {
        if (orMask == 0) {
            std::copy_n(from, count, to);
            return;
        }
        for (int i = 0; i < count; ++i)
            to[i] = from[i] | orMask;
    }
};

// Square tiles keep both the rows read and the rows written of a turn in the cache.
constexpr int TileSize = 64;

// result(x, y) = source(sourceX(x, y), sourceY(x, y)) for a quarter turn whose source column or
// row runs one place too far: column 0 (right turn) or row 0 (left turn) of the result is out
// of range; the rest is a transposition walked tile by tile.
QImage quarterTurn(QImage& image, bool clockwise)
{
    const QImage source = wordImage(image);
    const int w = source.width();
    const int h = source.height();
    QImage result(h, w, source.format());
    if (result.isNull())
        return result;
    const WordTransfer transfer(source.format());
    const uchar* sourceBits = source.constBits();
    const qsizetype sourceStride = source.bytesPerLine();
    uchar* resultBits = result.bits();
    const qsizetype resultStride = result.bytesPerLine();
    const auto sourceRow = [=](int y) {
        return reinterpret_cast<const QRgb*>(sourceBits + y * sourceStride);
    };
    const auto resultRow = [=](int y) {
        return reinterpret_cast<QRgb*>(resultBits + y * resultStride);
    };
    if (clockwise) {
        // result(x, y) = source(y, h - x); x = 0 reads row h.
        for (int y = 0; y < w; ++y)
            resultRow(y)[0] = transfer.outOfRange();
        for (int x0 = 1; x0 < h; x0 += TileSize) {
            const int x1 = std::min(h, x0 + TileSize);
            for (int y0 = 0; y0 < w; y0 += TileSize) {
                const int y1 = std::min(w, y0 + TileSize);
                for (int x = x0; x < x1; ++x) {
                    const QRgb* from = sourceRow(h - x);
                    for (int y = y0; y < y1; ++y)
                        resultRow(y)[x] = transfer(from[y]);
                }
            }
        }
    } else {
        // result(x, y) = source(w - y, x); y = 0 reads column w.
        std::fill_n(resultRow(0), h, transfer.outOfRange());
        for (int x0 = 0; x0 < h; x0 += TileSize) {
            const int x1 = std::min(h, x0 + TileSize);
            for (int y0 = 1; y0 < w; y0 += TileSize) {
                const int y1 = std::min(w, y0 + TileSize);
                for (int x = x0; x < x1; ++x) {
                    const QRgb* from = sourceRow(x);
                    for (int y = y0; y < y1; ++y)
                        resultRow(y)[x] = transfer(from[w - y]);
                }
            }
        }
    }
    return result;
}

// Copies source(x + dx, y + dy) to result(x, y) for every result pixel, with the out-of-range
// value wherever the source coordinate falls outside the source.
void copyShifted(const QImage& source, QImage& result, qint64 dx, qint64 dy)
{
    const WordTransfer transfer(source.format());
    const int width = result.width();
    const qint64 inStart = std::clamp<qint64>(-dx, 0, width);
    const qint64 inEnd = std::clamp<qint64>(source.width() - dx, inStart, width);
    for (int y = 0; y < result.height(); ++y) {
        QRgb* to = rowWords(result, y);
        const qint64 sy = y + dy;
        if (sy < 0 || sy >= source.height()) {
            std::fill_n(to, width, transfer.outOfRange());
            continue;
        }
        std::fill_n(to, inStart, transfer.outOfRange());
        transfer.copy(rowWords(source, int(sy)) + (inStart + dx), to + inStart,
                      int(inEnd - inStart));
        std::fill(to + inEnd, to + width, transfer.outOfRange());
    }
}

} // namespace

QImage rotateImage(QImage& image, int angle)
{
    switch (angle) {
    case 90:
    case -270:
        return rotateRight90(image);
    case 180:
    case -180:
        return rotate180(image);
    case 270:
    case -90:
        return rotateLeft90(image);
    default:
        return image;
    }
}

QImage rotateRight90(QImage& image)
{
    return quarterTurn(image, true);
}

QImage rotate180(QImage& image)
{
    // result(x, y) = source(w - x, h - y): row 0 and column 0 read outside the image.
    const QImage source = wordImage(image);
    const int w = source.width();
    const int h = source.height();
    QImage result(w, h, source.format());
    if (result.isNull())
        return result;
    const WordTransfer transfer(source.format());
    std::fill_n(rowWords(result, 0), w, transfer.outOfRange());
    for (int y = 1; y < h; ++y) {
        const QRgb* from = rowWords(source, h - y);
        QRgb* to = rowWords(result, y);
        to[0] = transfer.outOfRange();
        for (int x = 1; x < w; ++x)
            to[x] = transfer(from[w - x]);
    }
    return result;
}

QImage rotateLeft90(QImage& image)
{
    return quarterTurn(image, false);
}

QImage mirrorImage(QImage& image, bool horizontal, bool vertical)
{
    return image.mirrored(horizontal, vertical);
}

QImage cropImage(QImage& image, int left, int right, int top, int bottom)
{
    const QImage source = wordImage(image);
    const qint64 w = source.width();
    const qint64 h = source.height();
    const qint64 x0 = (left * w) / 100;
    const qint64 y0 = (top * h) / 100;
    const qint64 newWidth = w - ((w * right) / 100 + x0);
    const qint64 newHeight = h - ((h * bottom) / 100 + y0);
    if (newWidth < 1 || newHeight < 1 || newWidth > INT_MAX || newHeight > INT_MAX)
        return QImage();
    QImage result(int(newWidth), int(newHeight), source.format());
    if (!result.isNull())
        copyShifted(source, result, x0, y0);
    return result;
}

QImage drawFrame(QImage& image, int percent, QColor colour)
{
    const QImage source = wordImage(image);
    const int border = truncToInt(double(qint64(source.width()) * percent) / 100.0);
    const qint64 width = source.width() + 2 * qint64(border);
    const qint64 height = source.height() + 2 * qint64(border);
    if (width < 1 || height < 1 || width > INT_MAX || height > INT_MAX)
        return QImage();
    QImage result(int(width), int(height), source.format());
    if (result.isNull())
        return result;
    // The image is filled with the colour and the source copied over it; only the part the
    // source does not cover is filled here, with the word QImage::fill() stores for the colour.
    QImage probe(1, 1, source.format());
    probe.fill(colour);
    const QRgb fillWord = rowWords(probe, 0)[0];
    const QRect inside = QRect(border, border, source.width(), source.height()) & result.rect();
    const WordTransfer transfer(source.format());
    for (int y = 0; y < result.height(); ++y) {
        QRgb* to = rowWords(result, y);
        if (inside.isEmpty() || y < inside.top() || y > inside.bottom()) {
            std::fill_n(to, result.width(), fillWord);
            continue;
        }
        std::fill_n(to, inside.left(), fillWord);
        transfer.copy(rowWords(source, y - border) + (inside.left() - border), to + inside.left(),
                      inside.width());
        std::fill(to + inside.left() + inside.width(), to + result.width(), fillWord);
    }
    return result;
}

QImage resizeImage(QImage& image, int width, int height, int mode, bool previewMode)
{
    if (image.isNull())
        return image;
    switch (mode) {
    case 0:
        return image.scaled(truncToInt(width / 100.0 * image.width()),
                            truncToInt(height / 100.0 * image.height()), Qt::IgnoreAspectRatio,
                            Qt::SmoothTransformation);
    case 1:
        if (previewMode)
            return image;
        return image.scaled(width, height, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    case 2: {
        // The interactive preview caps the longer requested side at 700 pixels.
        qint64 targetWidth = width;
        qint64 targetHeight = height;
        if (previewMode && width >= 701) {
            targetWidth = 700;
            targetHeight = qint64(height) * 700 / width;
        } else if (previewMode && height > 700) {
            targetWidth = qint64(width) * 700 / height;
            targetHeight = 700;
        }
        return image.scaled(int(targetWidth), int(targetHeight), Qt::IgnoreAspectRatio,
                            Qt::SmoothTransformation);
    }
    default:
        return image;
    }
}

QImage fitIntoBox(QImage& image, QSize box, QColor background)
{
    const QImage source = wordImage(image);
    QImage result(box, source.format());
    if (result.isNull())
        return result;
    result.fill(background);
    if (source.isNull())
        return result;
    const QImage scaled = source.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPoint at(0, 0);
    if (scaled.width() < box.width())
        at.setX((box.width() - scaled.width()) / 2);
    else if (scaled.height() < box.height())
        at.setY((box.height() - scaled.height()) / 2);
    QPainter painter(&result);
    painter.drawImage(at, scaled);
    return result;
}

} // namespace OrkGraphX
