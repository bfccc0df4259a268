#include "watermarkchoice.h"

#include "pixelwords.h"

#include <QTransform>

#include <array>
#include <cmath>
#include <limits>

namespace OrkGraphX {

namespace {

// About this many pixels of a region are looked at, on a regular grid: enough for a mean, and
// a 12-megapixel photo is judged in well under a millisecond per cell.
constexpr double SamplesPerRegion = 16384;

int samplingStep(const QRect& region)
{
    return std::max(1, int(std::sqrt(double(region.width()) * region.height() / SamplesPerRegion)));
}

int luma(QRgb pixel)
{
    return (qRed(pixel) * 77 + qGreen(pixel) * 150 + qBlue(pixel) * 29) >> 8;
}

// An sRGB channel 0..255 as linear light 0..1.
double linear(int channel)
{
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double relativeLuminance(int red, int green, int blue)
{
    return 0.2126 * linear(red) + 0.7152 * linear(green) + 0.0722 * linear(blue);
}

// The pixels of one row: 32-bit words are read straight from it, other formats through pixel().
class Row
{
public:
    Row(const QImage& image, int y)
        : image(image)
        , y(y)
        , words(PixelWords::isWordFormat(image.format())
                    ? reinterpret_cast<const QRgb*>(image.constScanLine(y))
                    : nullptr)
    {
    }

    QRgb operator[](int x) const { return words ? words[x] : image.pixel(x, y); }

private:
    const QImage& image;
    int y;
    const QRgb* words;
};

// The mean of |gradient| over the region, from forward differences of the luma; infinite for a
// region too small to have any.
double meanGradient(const QImage& image, const QRect& region)
{
    const int step = samplingStep(region);
    double sum = 0;
    int count = 0;
    for (int y = region.top(); y < region.bottom(); y += step) {
        const Row row(image, y);
        const Row below(image, y + 1);
        for (int x = region.left(); x < region.right(); x += step) {
            const int here = luma(row[x]);
            const int dx = luma(row[x + 1]) - here;
            const int dy = luma(below[x]) - here;
            sum += std::sqrt(float(dx * dx + dy * dy));
            ++count;
        }
    }
    return count ? sum / count : std::numeric_limits<double>::infinity();
}

// The mean relative luminance of the region, from a histogram per channel so that each of the
// 256 levels is made linear once.
double meanLuminance(const QImage& image, const QRect& region)
{
    std::array<std::array<qint64, 256>, 3> counts{};
    const int step = samplingStep(region);
    qint64 total = 0;
    for (int y = region.top(); y <= region.bottom(); y += step) {
        const Row row(image, y);
        for (int x = region.left(); x <= region.right(); x += step) {
            const QRgb pixel = row[x];
            ++counts[0][qRed(pixel)];
            ++counts[1][qGreen(pixel)];
            ++counts[2][qBlue(pixel)];
            ++total;
        }
    }
    if (!total)
        return 0;
    const double weights[] = {0.2126, 0.7152, 0.0722};
    double sum = 0;
    for (int channel = 0; channel < 3; ++channel) {
        for (int level = 0; level < 256; ++level)
            sum += weights[channel] * linear(level) * counts[channel][level];
    }
    return sum / total;
}

// The WCAG contrast ratio of two relative luminances, 1 to 21.
double contrastRatio(double luminance, double other)
{
    return (std::max(luminance, other) + 0.05) / (std::min(luminance, other) + 0.05);
}

double luminanceOf(const QColor& color)
{
    return relativeLuminance(color.red(), color.green(), color.blue());
}

} // namespace

QRect watermarkRect(const QSize& image, const QSize& box, int position, const WMRParams& params)
{
    const int w = box.width() - 4;
    const int h = box.height() - 4;
    const int column = position >= 0 && position <= 8 ? position % 3 : 0;
    const int row = position >= 0 && position <= 8 ? position / 3 : 0;
    const int cellX[] = {0, (image.width() - w) / 2, image.width() - w};
    const int cellY[] = {0, (image.height() - h) / 2, image.height() - h};
    const int offX = int(qint64(params.XOffset) * image.height() / 100);
    const int offY = int(qint64(params.YOffset) * image.height() / 100);
    const int left = cellX[column] + offX - 2;
    const int top = cellY[row] - offY - 2;
    return QRect(QPoint(left, top), QPoint(left + w + 3, top + h + 3));
}

QRect turnedBounds(const QRect& rect, int angle)
{
    const QRectF box(rect);
    return QTransform()
        .translate(box.center().x(), box.center().y())
        .rotate(-angle)
        .translate(-box.center().x(), -box.center().y())
        .mapRect(box)
        .toAlignedRect();
}

WatermarkChoice chooseWatermark(const QImage& image, const QSize& box, int angle,
                                const WMRParams& params)
{
    WatermarkChoice choice{params.Position, false};
    const QRect whole = image.rect();
    if (params.AutoPosition && !params.Tile) {
        double least = std::numeric_limits<double>::infinity();
        for (int cell = 0; cell <= 8; ++cell) {
            if (!(params.AutoPositions & (1 << cell)))
                continue;
            const QRect under =
                turnedBounds(watermarkRect(image.size(), box, cell, params), angle) & whole;
            const double detail = under.isEmpty() ? least : meanGradient(image, under);
            if (detail < least) {
                least = detail;
                choice.position = cell;
            }
        }
    }
    if (params.AutoColor && params.Mode == 0) {
        const QRect under =
            params.Tile
                ? whole
                : turnedBounds(watermarkRect(image.size(), box, choice.position, params), angle) &
                      whole;
        if (!under.isEmpty()) {
            const double background = meanLuminance(image, under);
            choice.opposite = contrastRatio(luminanceOf(oppositeColor(params.Color)), background) >
                              contrastRatio(luminanceOf(params.Color), background);
        }
    }
    return choice;
}

QColor oppositeColor(const QColor& color)
{
    const QColor hsl = color.toHsl();
    const double lightness = hsl.lightnessF();
    double mirrored = 1 - lightness;
    if (std::abs(mirrored - lightness) < 0.5)
        mirrored = lightness < 0.5 ? 1 : 0;
    return QColor::fromHslF(hsl.hslHueF(), hsl.hslSaturationF(), mirrored, hsl.alphaF()).toRgb();
}

} // namespace OrkGraphX
