#include "point.h"

#include "pixelwords.h"

#include <array>
#include <cmath>
#include <cstdlib>

namespace OrkGraphX {

using namespace PixelWords;

namespace {

// Runs wordFunction over every pixel word of the image into a new image.
template <typename WordFunction> QImage mapWords(const QImage& image, WordFunction wordFunction)
{
    const QImage source = wordImage(image);
    QImage result = blankCopy(source);
    if (result.isNull())
        return source;
    const int width = source.width();
    for (int y = 0; y < source.height(); ++y) {
        const QRgb* in = rowWords(source, y);
        QRgb* out = rowWords(result, y);
        for (int x = 0; x < width; ++x)
            out[x] = wordFunction(in[x]);
    }
    return result;
}

constexpr QRgb AlphaMask = 0xff000000;

inline int red(QRgb word)
{
    return (word >> 16) & 255;
}
inline int green(QRgb word)
{
    return (word >> 8) & 255;
}
inline int blue(QRgb word)
{
    return word & 255;
}

inline QRgb withChannels(QRgb word, int r, int g, int b)
{
    return (word & AlphaMask) | QRgb(r) << 16 | QRgb(g) << 8 | QRgb(b);
}

// trunc(value) clamped to 0..255; a NaN becomes 0.
inline int channel(float value)
{
    if (!(value > 0.0f))
        return 0;
    return value >= 255.0f ? 255 : int(value);
}

// 0.299 R², 0.587 G² and 0.114 B² for every channel value, so that the perceived brightness
// sums three table entries in the same order and precision as the formula does.
struct BrightnessTerms
{
    std::array<double, 256> red{}, green{}, blue{};
    BrightnessTerms()
    {
        for (int c = 0; c < 256; ++c) {
            red[c] = 0.299 * (c * c);
            green[c] = 0.587 * (c * c);
            blue[c] = 0.114 * (c * c);
        }
    }
};

const BrightnessTerms& brightnessTerms()
{
    static const BrightnessTerms terms;
    return terms;
}

// sqrt(0.299 R² + 0.587 G² + 0.114 B²) as a single-precision float.
inline float perceivedBrightness(const BrightnessTerms& terms, QRgb word)
{
    return float(
        std::sqrt(terms.red[red(word)] + terms.green[green(word)] + terms.blue[blue(word)]));
}

float contrastFactor(int contrast)
{
    return float((contrast + 127) / 127.0);
}

// Runs a per-channel float formula f(channel, P) over every pixel.
template <typename ChannelFormula> QImage mapWithBrightness(QImage& image, ChannelFormula formula)
{
    const BrightnessTerms& terms = brightnessTerms();
    return mapWords(image, [&terms, formula](QRgb word) {
        const float p = perceivedBrightness(terms, word);
        return withChannels(word, channel(formula(red(word), p)), channel(formula(green(word), p)),
                            channel(formula(blue(word), p)));
    });
}

} // namespace

QImage invertImage(QImage& image)
{
    // Qt inverts premultiplied pixels through their straight colours; keep its result there.
    if (image.format() == QImage::Format_ARGB32_Premultiplied) {
        QImage result = image.copy();
        result.invertPixels(QImage::InvertRgb);
        return result;
    }
    return mapWords(image, [](QRgb word) { return word ^ 0x00ffffff; });
}

QImage grayscaleImage(QImage& image)
{
    return mapWords(image, [](QRgb word) {
        // A plain average; for non-negative integers the integer quotient is the truncation.
        const int g = (red(word) + green(word) + blue(word)) / 3;
        return withChannels(word, g, g, g);
    });
}

QImage swapRedBlue(QImage& image)
{
    return mapWords(
        image, [](QRgb word) { return withChannels(word, blue(word), green(word), red(word)); });
}

QImage swapRedGreen(QImage& image)
{
    return mapWords(
        image, [](QRgb word) { return withChannels(word, green(word), red(word), blue(word)); });
}

QImage swapGreenBlue(QImage& image)
{
    return mapWords(
        image, [](QRgb word) { return withChannels(word, red(word), blue(word), green(word)); });
}

QImage swapChannels(QImage& image, int mode)
{
    switch (mode) {
    case 0:
        return swapRedBlue(image);
    case 1:
        return swapRedGreen(image);
    case 2:
        return swapGreenBlue(image);
    default:
        return image;
    }
}

QImage adjustBrightnessContrastSaturation(QImage& image, int brightness, int contrast,
                                          float saturationFactor)
{
    const float k = contrastFactor(contrast);
    // Saturation around P first, then brightness, then contrast pivoting around 0.
    return mapWithBrightness(image, [brightness, k, saturationFactor](int c, float p) {
        return ((c - p) * saturationFactor + p + brightness) * k;
    });
}

QImage adjustBrightnessContrast(QImage& image, int brightness, int contrast)
{
    const float k = contrastFactor(contrast);
    return mapWords(image, [brightness, k](QRgb word) {
        return withChannels(word, channel((red(word) + brightness) * k),
                            channel((green(word) + brightness) * k),
                            channel((blue(word) + brightness) * k));
    });
}

QImage adjustSaturation(QImage& image, float saturationFactor)
{
    return mapWithBrightness(
        image, [saturationFactor](int c, float p) { return (c - p) * saturationFactor + p; });
}

QImage binarizeImage(QImage& image, int threshold)
{
    std::array<QRgb, 256> level{};
    for (int c = 0; c < 256; ++c)
        level[c] = threshold > c ? 0 : 255;
    return mapWords(image, [&level](QRgb word) {
        return (word & AlphaMask) | level[red(word)] << 16 | level[green(word)] << 8 |
               level[blue(word)];
    });
}

namespace {

// trunc(ratio · value) limited to 0..255; a zero denominator (achromatic or black source) gives 0.
int scaledComponent(int numerator, int denominator, int value)
{
    if (denominator == 0)
        return 0;
    const int scaled = truncToInt(double(numerator) / denominator * value);
    return scaled >= 256 ? 255 : (scaled > 0 ? scaled : 0);
}

} // namespace

QImage colorizeImage(QImage& image, QColor source, QColor target)
{
    if (image.isNull())
        return image;
    int h1 = 0, s1 = 0, v1 = 0;
    int h2 = 0, s2 = 0, v2 = 0;
    source.getHsv(&h1, &s1, &v1);
    target.getHsv(&h2, &s2, &v2);
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    QImage result = mapWords(argb, [=](QRgb word) {
        int h = 0, s = 0, v = 0, a = 0;
        QColor::fromRgba(word).getHsv(&h, &s, &v, &a);
        if (std::abs(h - h1) >= 10)
            return word;
        // The modulus 359 (not 360) is kept: it shifts replaced hues by one degree per turn.
        const int hue = (h - h1 + h2 + 359) % 359;
        return QColor::fromHsv(hue, scaledComponent(s2, s1, s), scaledComponent(v2, v1, v), a)
            .rgba();
    });
    result.convertTo(QImage::Format_ARGB32_Premultiplied);
    return result;
}

} // namespace OrkGraphX
