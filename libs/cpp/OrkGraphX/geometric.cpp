#include "geometric.h"

#include "pixelwords.h"

#include <QPainter>

#include <algorithm>
#include <cstdint>
#include <cstring>

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

// Square tiles keep both the rows read and the rows written of a turn in the cache; inside a
// tile, 4 x 4 blocks of words are turned in vector registers.
constexpr int TileSize = 64;

using Words4 = std::uint32_t __attribute__((vector_size(16)));

inline Words4 loadWords(const QRgb* words)
{
    Words4 v;
    std::memcpy(&v, words, sizeof v);
    return v;
}

inline void storeWords(QRgb* words, Words4 v)
{
    std::memcpy(words, &v, sizeof v);
}

// The rows a, b, c, d of a 4 x 4 block become its columns.
inline void transpose(Words4& a, Words4& b, Words4& c, Words4& d)
{
    const Words4 ab0 = __builtin_shufflevector(a, b, 0, 4, 1, 5);
    const Words4 ab1 = __builtin_shufflevector(a, b, 2, 6, 3, 7);
    const Words4 cd0 = __builtin_shufflevector(c, d, 0, 4, 1, 5);
    const Words4 cd1 = __builtin_shufflevector(c, d, 2, 6, 3, 7);
    a = __builtin_shufflevector(ab0, cd0, 0, 1, 4, 5);
    b = __builtin_shufflevector(ab0, cd0, 2, 3, 6, 7);
    c = __builtin_shufflevector(ab1, cd1, 0, 1, 4, 5);
    d = __builtin_shufflevector(ab1, cd1, 2, 3, 6, 7);
}

// A quarter turn whose source column or row runs one place too far: column 0 (right turn) or
// row 0 (left turn) of the result lies outside the source; the rest is a transposition.
class QuarterTurn
{
public:
    QuarterTurn(const QImage& source, QImage& result, bool clockwise)
        : transfer(source.format())
        , sourceBits(source.constBits())
        , sourceStride(source.bytesPerLine())
        , resultBits(result.bits())
        , resultStride(result.bytesPerLine())
        , w(source.width())
        , h(source.height())
        , clockwise(clockwise)
    {
    }

    void run()
    {
        if (clockwise) {
            // result(x, y) = source(y, h - x); x = 0 reads row h.
            for (int y = 0; y < w; ++y)
                resultRow(y)[0] = transfer.outOfRange();
            tiles(1, h, 0, w);
        } else {
            // result(x, y) = source(w - y, x); y = 0 reads column w.
            std::fill_n(resultRow(0), h, transfer.outOfRange());
            tiles(0, h, 1, w);
        }
    }

private:
    WordTransfer transfer;
    const uchar* sourceBits = nullptr;
    qsizetype sourceStride = 0;
    uchar* resultBits = nullptr;
    qsizetype resultStride = 0;
    int w = 0;
    int h = 0;
    bool clockwise = true;

    const QRgb* sourceRow(int y) const
    {
        return reinterpret_cast<const QRgb*>(sourceBits + y * sourceStride);
    }
    QRgb* resultRow(int y) const { return reinterpret_cast<QRgb*>(resultBits + y * resultStride); }

    QRgb sourceFor(int x, int y) const
    {
        return clockwise ? sourceRow(h - x)[y] : sourceRow(x)[w - y];
    }

    // Result columns x0..x1-1 and rows y0..y1-1.
    void tiles(int x0, int x1, int y0, int y1)
    {
        for (int ty = y0; ty < y1; ty += TileSize)
            for (int tx = x0; tx < x1; tx += TileSize)
                tile(tx, std::min(x1, tx + TileSize), ty, std::min(y1, ty + TileSize));
    }

    void tile(int x0, int x1, int y0, int y1)
    {
        const int xBlocks = x0 + (x1 - x0) / 4 * 4;
        const int yBlocks = y0 + (y1 - y0) / 4 * 4;
        for (int y = y0; y < yBlocks; y += 4)
            for (int x = x0; x < xBlocks; x += 4)
                block(x, y);
        for (int y = y0; y < y1; ++y) {
            QRgb* to = resultRow(y);
            for (int x = y < yBlocks ? xBlocks : x0; x < x1; ++x)
                to[x] = transfer(sourceFor(x, y));
        }
    }

    void block(int x, int y)
    {
        Words4 rows[4];
        for (int k = 0; k < 4; ++k) {
            if (clockwise) {
                rows[k] = loadWords(sourceRow(h - x - k) + y);
            } else {
                // Columns w - y - 3 .. w - y, reversed so that result row y comes first.
                const Words4 v = loadWords(sourceRow(x + k) + (w - y - 3));
                rows[k] = __builtin_shufflevector(v, v, 3, 2, 1, 0);
            }
        }
        transpose(rows[0], rows[1], rows[2], rows[3]);
        for (int k = 0; k < 4; ++k)
            storeWords(resultRow(y + k) + x, rows[k] | transfer.orMask);
    }
};

// to[i] = from[count - 1 - i] | orMask, four words at a time.
void copyReversed(const QRgb* from, QRgb* to, int count, QRgb orMask)
{
    int i = 0;
    for (; i + 4 <= count; i += 4) {
        const Words4 v = loadWords(from + (count - 4 - i));
        storeWords(to + i, __builtin_shufflevector(v, v, 3, 2, 1, 0) | orMask);
    }
    for (; i < count; ++i)
        to[i] = from[count - 1 - i] | orMask;
}

QImage quarterTurn(QImage& image, bool clockwise)
{
    const QImage source = wordImage(image);
    QImage result = newImage(source.height(), source.width(), source.format());
    if (!result.isNull())
        QuarterTurn(source, result, clockwise).run();
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

// The conversion from ARGB32 to ARGB32_Premultiplied, word for word what Qt's gives, done in
// the image's own memory (Qt converts memory it did not allocate into a copy).
void premultiplyInPlace(QImage& image)
{
    const int width = image.width();
    for (int y = 0; y < image.height(); ++y) {
        QRgb* row = rowWords(image, y);
        for (QRgb* pixel = row; pixel != row + width; ++pixel) {
            if (qAlpha(*pixel) != 255)
                *pixel = qPremultiply(*pixel);
        }
    }
    image.reinterpretAsFormat(QImage::Format_ARGB32_Premultiplied);
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

QSize rotatedSize(const QSize& size, int angle)
{
    const bool quarterTurn = angle == 90 || angle == -270 || angle == 270 || angle == -90;
    return quarterTurn ? size.transposed() : size;
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
    QImage result = newImage(w, h, source.format());
    if (result.isNull())
        return result;
    const WordTransfer transfer(source.format());
    std::fill_n(rowWords(result, 0), w, transfer.outOfRange());
    for (int y = 1; y < h; ++y) {
        QRgb* to = rowWords(result, y);
        to[0] = transfer.outOfRange();
        copyReversed(rowWords(source, h - y) + 1, to + 1, w - 1, transfer.orMask);
    }
    return result;
}

QImage rotateLeft90(QImage& image)
{
    return quarterTurn(image, false);
}

QImage mirrorImage(QImage& image, bool horizontal, bool vertical)
{
    if (!isWordFormat(image.format()) || (!horizontal && !vertical))
        return image.mirrored(horizontal, vertical);
    // The same words as QImage::mirrored(), four at a time.
    const QImage& source = image;
    QImage result = blankCopy(source);
    for (int y = 0; y < result.height(); ++y) {
        const QRgb* from = rowWords(source, vertical ? source.height() - 1 - y : y);
        QRgb* to = rowWords(result, y);
        if (horizontal)
            copyReversed(from, to, source.width(), 0);
        else
            std::copy_n(from, source.width(), to);
    }
    return result;
}

QImage cropImage(QImage& image, int left, int right, int top, int bottom)
{
    const QImage source = wordImage(image);
    const QSize size = croppedSize(source.size(), left, right, top, bottom);
    if (size.isEmpty())
        return QImage();
    QImage result = newImage(size.width(), size.height(), source.format());
    if (!result.isNull())
        copyShifted(source, result, (left * qint64(source.width())) / 100,
                    (top * qint64(source.height())) / 100);
    return result;
}

QSize croppedSize(const QSize& size, int left, int right, int top, int bottom)
{
    const qint64 w = size.width();
    const qint64 h = size.height();
    const qint64 newWidth = w - ((w * right) / 100 + (left * w) / 100);
    const qint64 newHeight = h - ((h * bottom) / 100 + (top * h) / 100);
    if (newWidth < 1 || newHeight < 1 || newWidth > INT_MAX || newHeight > INT_MAX)
        return QSize();
    return QSize(int(newWidth), int(newHeight));
}

QSize framedSize(const QSize& size, int percent)
{
    const qint64 border = truncToInt(double(qint64(size.width()) * percent) / 100.0);
    const qint64 width = size.width() + 2 * border;
    const qint64 height = size.height() + 2 * border;
    if (width < 1 || height < 1 || width > INT_MAX || height > INT_MAX)
        return QSize();
    return QSize(int(width), int(height));
}

QImage drawFrame(QImage& image, int percent, QColor colour)
{
    const QImage source = wordImage(image);
    const QSize size = framedSize(source.size(), percent);
    if (size.isEmpty())
        return QImage();
    const int border = (size.width() - source.width()) / 2;
    QImage result = newImage(size.width(), size.height(), source.format());
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
    if (image.isNull() || (previewMode && mode == 1))
        return image;
    QSize target = resizedSize(image.size(), width, height, mode);
    // The interactive preview caps the longer requested side at 700 pixels.
    if (previewMode && mode == 2 && width >= 701)
        target = QSize(700, int(qint64(height) * 700 / width));
    else if (previewMode && mode == 2 && height > 700)
        target = QSize(int(qint64(width) * 700 / height), 700);
    // Qt scales premultiplied words only; an image no one else holds is converted where it lies
    // instead of into a copy as large. An image of the target size comes back as it is.
    if (image.format() == QImage::Format_ARGB32 && image.isDetached() && !target.isEmpty() &&
        target != image.size())
        premultiplyInPlace(image);
    return image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QSize resizedSize(const QSize& source, int width, int height, int mode)
{
    switch (mode) {
    case 0:
        return {truncToInt(width / 100.0 * source.width()),
                truncToInt(height / 100.0 * source.height())};
    case 1:
        // As QImage::scaled fits: an empty box gives nothing, no side of a fit is below 1.
        if (width <= 0 || height <= 0)
            return {width, height};
        return source.scaled(width, height, Qt::KeepAspectRatio).expandedTo({1, 1});
    case 2:
        return {width, height};
    default:
        return source;
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
