// Helpers shared by the kernel sources; not part of the library's interface.
#pragma once

#include "imageproperties.h"

#include <QColorSpace>
#include <QImage>

#include <climits>
#include <cmath>
#include <cstdlib>

#include <sys/mman.h>

namespace OrkGraphX {
namespace PixelWords {

// Formats that store every pixel as one 32-bit word 0xAARRGGBB.
inline bool isWordFormat(QImage::Format format)
{
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32 ||
           format == QImage::Format_ARGB32_Premultiplied;
}

// The kernels read and write whole words, so any other format is converted to ARGB32 first;
// reading an 8- or 24-bit image as words would run past its rows.
inline QImage wordImage(const QImage& image)
{
    return isWordFormat(image.format()) ? image : image.convertToFormat(QImage::Format_ARGB32);
}

// Truncation toward zero, held inside the int range so that huge or non-finite values stay
// defined (they then make allocations fail instead of invoking undefined behaviour).
inline int truncToInt(double value)
{
    if (!(value > double(INT_MIN)))
        return std::isnan(value) ? 0 : INT_MIN;
    if (value >= double(INT_MAX))
        return INT_MAX;
    return int(value);
}

// A new image of the given size and format, pixels not initialised. A large 32-bit image lives
// in memory the system may back with huge pages: for a fresh 12-megapixel result the page
// faults of ordinary pages cost more than most kernels' own work.
inline QImage newImage(int width, int height, QImage::Format format)
{
#ifdef MADV_HUGEPAGE
    constexpr qint64 hugePage = 2 << 20;
    const qint64 bytesPerLine = qint64(width) * 4;
    const qint64 bytes = bytesPerLine * height;
    if (width > 0 && height > 0 && bytes >= 4 * hugePage && bytes <= INT_MAX &&
        QImage::toPixelFormat(format).bitsPerPixel() == 32) {
        const size_t size = size_t((bytes + hugePage - 1) / hugePage * hugePage);
        if (void* data = std::aligned_alloc(size_t(hugePage), size)) {
            madvise(data, size, MADV_HUGEPAGE);
            return QImage(
                static_cast<uchar*>(data), width, height, int(bytesPerLine), format,
                [](void* memory) { std::free(memory); }, data);
        }
    }
#endif
    return QImage(width, height, format);
}

// An image as QImage::copy() would make it (size, format, resolution, texts), with pixels left
// for the caller to write: reading the source and writing the result in one pass is half the
// memory traffic of copying first and changing the copy in place.
inline QImage blankCopy(const QImage& source)
{
    QImage result = newImage(source.width(), source.height(), source.format());
    if (result.isNull())
        return result;
    copyProperties(source, result);
    return result;
}

inline QRgb* rowWords(QImage& image, int y)
{
    return reinterpret_cast<QRgb*>(image.scanLine(y));
}

inline const QRgb* rowWords(const QImage& image, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

} // namespace PixelWords
} // namespace OrkGraphX
