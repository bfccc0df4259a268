// Test images shared by the kernel tests.
#pragma once

#include <QImage>

#include <algorithm>
#include <random>

namespace KernelImages {

// Random pixels in the given format, every fifth one semi-transparent (for the formats that
// keep alpha), reproducible from the seed.
inline QImage noise(int width, int height, QImage::Format format, unsigned seed = 1)
{
    QImage image(width, height, QImage::Format_ARGB32);
    std::mt19937 random(seed);
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const int alpha = (x + y) % 5 == 0 ? int(random() % 256) : 255;
            line[x] = qRgba(int(random() % 256), int(random() % 256), int(random() % 256), alpha);
        }
    }
    return image.convertToFormat(format);
}

// One pixel word repeated; the word is stored as it stands, whatever the format.
inline QImage filled(int width, int height, QImage::Format format, QRgb word)
{
    QImage image(width, height, format);
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::fill(line, line + width, word);
    }
    return image;
}

// The three formats the kernels handle as words.
const QImage::Format wordFormats[] = {QImage::Format_RGB32, QImage::Format_ARGB32,
                                      QImage::Format_ARGB32_Premultiplied};

inline const char* formatName(QImage::Format format)
{
    switch (format) {
    case QImage::Format_RGB32:
        return "RGB32";
    case QImage::Format_ARGB32:
        return "ARGB32";
    default:
        return "premultiplied";
    }
}

inline QRgb word(const QImage& image, int x, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
}

} // namespace KernelImages
