#include "neighbourhood.h"

#include "pixelwords.h"

#include <QPainter>
#include <QTransform>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

namespace OrkGraphX {

using namespace PixelWords;

// ---------------------------------------------------------------------------------------------
// Blur

namespace {

// Weights in sixteenths for radius 1..17; larger radii use 1.
constexpr std::array<int, 17> blurAlphaTable = {14, 10, 8, 6, 5, 5, 4, 3, 3,
                                                3,  3,  2, 2, 2, 2, 2, 2};

// Eight 16-bit lanes hold the four bytes of two pixels. The accumulators keep four fraction
// bits, so they stay within 0..4080 and every step fits 16-bit arithmetic.
using Lanes = std::int16_t __attribute__((vector_size(16)));
using UnsignedLanes = std::uint16_t __attribute__((vector_size(16)));
using EightBytes = std::uint8_t __attribute__((vector_size(8)));

inline Lanes loadSixteenths(const uchar* bytes)
{
    EightBytes b;
    std::memcpy(&b, bytes, sizeof b);
    return __builtin_convertvector(b, Lanes) << 4;
}

inline void storeBytes(uchar* bytes, Lanes z)
{
    const EightBytes b = __builtin_convertvector(z >> 4, EightBytes);
    std::memcpy(bytes, &b, sizeof b);
}

// z + ((byte · 16 − z) · a) / 16 with the division truncating toward zero: the magnitude is
// scaled unsigned (|d| · a < 65536) and the sign put back afterwards.
inline Lanes blurStep(Lanes z, Lanes sixteenths, UnsignedLanes weight)
{
    const Lanes d = sixteenths - z;
    const Lanes sign = d >> 15;
    const UnsignedLanes magnitude = (UnsignedLanes)((d ^ sign) - sign);
    const Lanes quotient = (Lanes)((magnitude * weight) >> 4);
    return z + ((quotient ^ sign) - sign);
}

// The four passes over the region of a premultiplied image. The column passes walk the rows in
// order with one accumulator per column, and each row pass runs right behind the column pass
// that feeds it, eight rows at a time, so the image is read twice instead of four times.
class ExponentialBlur
{
public:
    ExponentialBlur(QImage& image, QRect region, UnsignedLanes weight)
        : bits(image.bits())
        , stride(image.bytesPerLine())
        , left(region.left())
        , right(region.right())
        , weight(weight)
        , columnAccumulators((right - left + 2) / 2)
        , scratchRow(std::size_t(right + 2) * 4)
    {
    }

    // Passes 1 and 2 from top to bottom, then 3 and 4 from bottom to top.
    void run(int top, int bottom)
    {
        sweep(top, bottom, 1);
        sweep(bottom, top, -1);
    }

private:
    static constexpr int BlockRows = 8;

    uchar* bits = nullptr;
    qsizetype stride = 0;
    int left = 0;
    int right = 0;
    UnsignedLanes weight{};
    std::vector<Lanes> columnAccumulators;
    std::vector<uchar> scratchRow;

    uchar* row(int y) const { return bits + y * stride; }

    void sweep(int first, int last, int direction)
    {
        const int rows = (last - first) * direction + 1;
        for (int done = 0; done < rows; done += BlockRows) {
            std::array<uchar*, BlockRows> block{};
            for (int i = 0; i < BlockRows; ++i) {
                const int y = first + (done + i) * direction;
                if (done + i < rows) {
                    block[i] = row(y);
                    columnStep(block[i], done + i == 0);
                } else {
                    block[i] = scratchRow.data();
                }
            }
            if (direction > 0)
                rowPass(block, left, right, 1);
            else
                rowPass(block, right, left, -1);
        }
    }

    // One row of a column pass; the first row of the line only sets the accumulators.
    void columnStep(uchar* line, bool start)
    {
        uchar* bytes = line + std::size_t(left) * 4;
        const int pixels = right - left + 1;
        const int pairs = pixels / 2;
        for (int i = 0; i < pairs; ++i) {
            const Lanes sixteenths = loadSixteenths(bytes + i * 8);
            if (start) {
                columnAccumulators[i] = sixteenths;
                continue;
            }
            columnAccumulators[i] = blurStep(columnAccumulators[i], sixteenths, weight);
            storeBytes(bytes + i * 8, columnAccumulators[i]);
        }
        if (pixels % 2) {
            // The odd last pixel goes through a padded pair.
            uchar padded[8] = {};
            std::memcpy(padded, bytes + pairs * 8, 4);
            const Lanes sixteenths = loadSixteenths(padded);
            Lanes& z = columnAccumulators[pairs];
            if (start) {
                z = sixteenths;
                return;
            }
            z = blurStep(z, sixteenths, weight);
            storeBytes(padded, z);
            std::memcpy(bytes + pairs * 8, padded, 4);
        }
    }

    // A row pass over eight rows from column `from` to column `to`, two rows per lane set.
    void rowPass(const std::array<uchar*, BlockRows>& block, int from, int to, int direction)
    {
        constexpr int Pairs = BlockRows / 2;
        std::array<Lanes, Pairs> z;
        for (int p = 0; p < Pairs; ++p)
            z[p] = pairAt(block, p, from);
        for (int x = from + direction; x != to + direction; x += direction) {
            for (int p = 0; p < Pairs; ++p) {
                z[p] = blurStep(z[p], pairAt(block, p, x), weight);
                uchar pair[8];
                storeBytes(pair, z[p]);
                std::memcpy(block[2 * p] + std::size_t(x) * 4, pair, 4);
                std::memcpy(block[2 * p + 1] + std::size_t(x) * 4, pair + 4, 4);
            }
        }
    }

    static Lanes pairAt(const std::array<uchar*, BlockRows>& block, int p, int x)
    {
        uchar pair[8];
        std::memcpy(pair, block[2 * p] + std::size_t(x) * 4, 4);
        std::memcpy(pair + 4, block[2 * p + 1] + std::size_t(x) * 4, 4);
        return loadSixteenths(pair);
    }
};

} // namespace

QImage blurImage(QImage& image, int radius, QRect region, bool alphaOnly)
{
    QImage result = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (result.isNull() || radius <= 0)
        return result;
    const std::int16_t a = radius <= 17 ? blurAlphaTable[radius - 1] : 1;
    const QRect r = region.normalized();
    const int left = std::max(r.left(), 0);
    const int top = std::max(r.top(), 0);
    const int right = std::min(r.right(), result.width() - 1);
    const int bottom = std::min(r.bottom(), result.height() - 1);
    if (left > right || top > bottom)
        return result;
    // Byte order in memory is B, G, R, A; a weight of 16 leaves a channel exactly as it is.
    const std::int16_t c = alphaOnly ? 16 : a;
    const UnsignedLanes weight = {std::uint16_t(c), std::uint16_t(c), std::uint16_t(c),
                                  std::uint16_t(a), std::uint16_t(c), std::uint16_t(c),
                                  std::uint16_t(c), std::uint16_t(a)};
    ExponentialBlur(result, QRect(QPoint(left, top), QPoint(right, bottom)), weight)
        .run(top, bottom);
    return result;
}

// ---------------------------------------------------------------------------------------------
// Sharpness

QImage sharpenImage(QImage& image)
{
    const QImage source = wordImage(image);
    const int w = source.width();
    const int h = source.height();
    // Deliberately not cleared: the border that the filter does not reach keeps what the
    // allocation holds.
    QImage result = newImage(w, h, source.format());
    if (result.isNull() || w - 2 < 2)
        return result;
    for (int y = 1; y <= h - 3; ++y) {
        const QRgb* above = rowWords(source, y - 1);
        const QRgb* line = rowWords(source, y);
        const QRgb* below = rowWords(source, y + 1);
        QRgb* out = rowWords(result, y);
        for (int x = 1; x <= w - 3; ++x) {
            QRgb word = 0xff000000;
            for (int shift = 0; shift <= 16; shift += 8) {
                const auto c = [shift](QRgb p) { return int((p >> shift) & 255); };
                // The left neighbour counts twice and the right one not at all.
                const int sum = c(above[x - 1]) + c(above[x]) + c(above[x + 1]) +
                                2 * c(line[x - 1]) + c(below[x - 1]) + c(below[x]) +
                                c(below[x + 1]);
                const int v = 8 * c(line[x]) - sum;
                word |= QRgb(v > 0 ? v / 9 : 0) << shift;
            }
            out[x] = word;
        }
    }
    return result;
}

// ---------------------------------------------------------------------------------------------
// Vignette
//
// The vignette is defined as painting a radial gradient on an S x S square (S the longer side)
// and drawing that square stretched over the image. Painting 16 million gradient pixels and
// then sampling three quarters of them is slow, so the square is never made: every square pixel
// holds one of 1024 values chosen by its gradient position, the positions are computed here
// exactly as Qt's raster engine computes them, only for the square pixels the stretched drawing
// samples, and those values are drawn onto the image unstretched, in bands, through QPainter so
// that the blending itself stays Qt's.

namespace {

// Qt's raster engine fetches a span in chunks of this many pixels and starts its incremental
// arithmetic afresh at each chunk.
constexpr int RasterChunk = 2048;
constexpr int GradientPositions = 1024;

QGradientStops vignetteStops(const QColor& colour)
{
    const auto lifted = [&colour](int amount) {
        return QColor(std::min(colour.red() + amount, 255), std::min(colour.green() + amount, 255),
                      std::min(colour.blue() + amount, 255), 0);
    };
    return {{0.0, lifted(200)}, {0.5, lifted(40)}, {1.0, QColor(colour.rgb())}};
}

// Paints a brush over the whole of a freshly made image the way the square is painted.
QImage paintedLikeSquare(QSize size, QImage::Format format, const QBrush& brush, int opacity)
{
    QImage canvas(size, format);
    canvas.fill(QColor(255, 255, 255, 0));
    QPainter painter(&canvas);
    painter.setOpacity(opacity / 100.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRect(canvas.rect());
    return canvas;
}

// The gradient position of every pixel of one square row, as Qt's radial gradient fetch computes
// it for a gradient centred on its focal point: the squared distance divided by the squared
// radius is stepped incrementally from the start of each chunk. For ARGB32 targets Qt steps it
// in double precision pixel by pixel, for premultiplied and RGB32 targets in single precision
// four pixels at a time.
class RadialPositions
{
public:
    // Rows computed side by side: each row's steps form one dependency chain, and several
    // independent chains keep the processor busy.
    static constexpr int Rows = 4;

    // Below sameValueLimit the squared distance maps to positions that all show the value of
    // position 0, so those pixels may be given position 0 (0 turns this off).
    RadialPositions(int width, QPointF centre, double radius, bool doublePrecision,
                    double sameValueLimit = 0)
        : size(width)
        , stride(std::size_t(width) + 4)
        , centre(centre)
        , a(radius * radius)
        , doublePrecision(doublePrecision)
        , sameValueLimit(sameValueLimit)
        , positions(stride * Rows)
        , doubleSteps(std::size_t(RasterChunk) * Rows)
        , floatSteps(std::size_t(RasterChunk + 4) * Rows)
    {
    }

    // A gradient of radius 0 has no positions: Qt paints it transparent black.
    bool degenerate() const { return a == 0; }

    // Makes the given square rows available to row(), computing those not held yet together.
    void prepare(const int* rows, int count)
    {
        std::array<int, Rows> missing{};
        std::array<std::size_t, Rows> slotOf{};
        int n = 0;
        std::array<bool, Rows> wanted{};
        for (int i = 0; i < count; ++i) {
            const auto at = std::find(held.begin(), held.end(), rows[i]);
            if (at != held.end())
                wanted[std::size_t(at - held.begin())] = true;
        }
        for (int i = 0; i < count; ++i) {
            if (std::find(held.begin(), held.end(), rows[i]) != held.end() ||
                std::find(missing.begin(), missing.begin() + n, rows[i]) != missing.begin() + n)
                continue;
            std::size_t slot = 0;
            while (wanted[slot])
                ++slot;
            wanted[slot] = true;
            held[slot] = rows[i];
            missing[std::size_t(n)] = rows[i];
            slotOf[std::size_t(n)] = slot;
            ++n;
        }
        if (n > 0)
            compute(missing.data(), slotOf.data(), n);
    }

    const std::uint16_t* row(int j)
    {
        const auto at = std::find(held.begin(), held.end(), j);
        if (at != held.end())
            return positions.data() + std::size_t(at - held.begin()) * stride;
        prepare(&j, 1);
        return row(j);
    }

private:
    int size = 0;
    std::size_t stride = 0;
    QPointF centre;
    double a = 0;
    bool doublePrecision = false;
    double sameValueLimit = 0;
    std::array<int, Rows> held{-1, -1, -1, -1};
    std::vector<std::uint16_t> positions;
    std::vector<double> doubleSteps;
    std::vector<float> floatSteps;

    static constexpr int Last = GradientPositions - 1;

    // Positions from the stepped squared distances. Runs of pixels wholly past the radius
    // (position 1023) or wholly inside the part where every position shows the same value
    // skip the square roots.
    template <typename Real> void indices(const Real* steps, std::uint16_t* out, int length) const
    {
        constexpr int Run = 32;
        const Real innerLimit = Real(sameValueLimit);
        int i = 0;
        for (; i + Run <= length; i += Run) {
            int outer = 0;
            int inner = 0;
            for (int k = 0; k < Run; ++k) {
                outer += steps[i + k] >= Real(1);
                inner += steps[i + k] < innerLimit;
            }
            if (outer == Run || inner == Run)
                std::fill_n(out + i, Run, std::uint16_t(outer == Run ? Last : 0));
            else
                computeIndices(steps + i, out + i, Run);
        }
        computeIndices(steps + i, out + i, length - i);
    }

    // trunc(sqrt(step) · 1023 + 0.5) within 0..1023, as Qt clamps the converted position. A
    // step is at most 2 S² / R², so the converted value always fits an int.
    template <typename Real>
    static void computeIndices(const Real* steps, std::uint16_t* out, int count)
    {
        for (int k = 0; k < count; ++k) {
            const Real value = steps[k];
            const Real step = value > Real(0) ? value : Real(0);
            const int index = int(std::sqrt(step) * Real(Last) + Real(0.5));
            out[k] = std::uint16_t(index < Last ? index : Last);
        }
    }

    void compute(const int* rows, const std::size_t* slotOf, int count)
    {
        for (int x0 = 0; x0 < size; x0 += RasterChunk) {
            const int length = std::min(RasterChunk, size - x0);
            std::array<double, Rows> det{};
            std::array<double, Rows> deltaDet{};
            double deltaDeltaDet = 0;
            // Qt's set-up of the incremental determinant for a focal point on the centre.
            const double rx = (x0 + 0.5) - centre.x();
            for (int r = 0; r < count; ++r) {
                const double ry = (rows[r] + 0.5) - centre.y();
                const double rxrxryry = rx * rx + ry * ry;
                double invA = 1 / (2 * a);
                invA *= invA;
                det[r] = (4 * a * rxrxryry) * invA;
                deltaDet[r] = (4 * a * (2 * rx + 1)) * invA;
                deltaDeltaDet = (4 * a * 2) * invA;
            }
            // Four rows at once in the common case, so that the chains stay in registers.
            if (doublePrecision && count == Rows)
                stepDouble<Rows>(det, deltaDet, deltaDeltaDet, length);
            else if (doublePrecision)
                stepDouble<1>(det, deltaDet, deltaDeltaDet, length, count);
            else if (count == Rows)
                stepFloat<Rows>(det, deltaDet, deltaDeltaDet, length);
            else
                stepFloat<1>(det, deltaDet, deltaDeltaDet, length, count);
            // The square roots run apart from the step chains, several at a time.
            for (int r = 0; r < count; ++r) {
                std::uint16_t* out = positions.data() + slotOf[r] * stride + x0;
                if (doublePrecision)
                    indices(doubleSteps.data() + std::size_t(r) * RasterChunk, out, length);
                else
                    indices(floatSteps.data() + std::size_t(r) * (RasterChunk + 4), out, length);
            }
        }
    }

    // ARGB32 targets: double precision, one pixel at a time. Count rows are stepped together,
    // the rows count in all, Count at a time.
    template <int Count>
    void stepDouble(std::array<double, Rows> det, std::array<double, Rows> deltaDet,
                    double deltaDeltaDet, int length, int rows = Count)
    {
        for (int first = 0; first < rows; first += Count)
            for (int i = 0; i < length; ++i)
                for (int r = first; r < first + Count; ++r) {
                    doubleSteps[std::size_t(r) * RasterChunk + std::size_t(i)] = det[r];
                    det[r] += deltaDet[r];
                    deltaDet[r] += deltaDeltaDet;
                }
    }

    // Premultiplied and RGB32 targets: single precision, four pixels at a time from four seeds.
    template <int Count>
    void stepFloat(std::array<double, Rows> det, std::array<double, Rows> deltaDet,
                   double deltaDeltaDet, int length, int rows = Count)
    {
        const float deltaDeltaDet16 = float(16 * deltaDeltaDet);
        const float deltaDeltaDet6 = float(6 * deltaDeltaDet);
        for (int first = 0; first < rows; first += Count) {
            float lanes[Count][4];
            float delta4Lanes[Count][4];
            for (int r = 0; r < Count; ++r)
                for (int i = 0; i < 4; ++i) {
                    lanes[r][i] = float(det[first + r]);
                    delta4Lanes[r][i] = float(4 * deltaDet[first + r]);
                    det[first + r] += deltaDet[first + r];
                    deltaDet[first + r] += deltaDeltaDet;
                }
            for (int done = 0; done < length; done += 4)
                for (int r = 0; r < Count; ++r) {
                    float* steps =
                        floatSteps.data() + std::size_t(first + r) * (RasterChunk + 4) + done;
                    for (int i = 0; i < 4; ++i) {
                        steps[i] = lanes[r][i];
                        lanes[r][i] = (lanes[r][i] + delta4Lanes[r][i]) + deltaDeltaDet6;
                        delta4Lanes[r][i] += deltaDeltaDet16;
                    }
                }
        }
    }
};

// What the square holds at each gradient position. A one-row strip is painted like the square
// with a gradient of the same stops centred on its middle, radius half its width, so that the
// pixels of its right half run through every position about two pixels apiece; the positions
// are known from RadialPositions, and each pixel shows the square's value for its position.
std::vector<QRgb> squareValues(QImage::Format format, const QGradientStops& stops, int opacity,
                               bool doublePrecision)
{
    constexpr int Half = 2 * GradientPositions;
    QRadialGradient gradient(QPointF(Half, 0), Half, QPointF(Half, 0));
    gradient.setStops(stops);
    const QImage strip = paintedLikeSquare(QSize(2 * Half, 1), format, gradient, opacity);
    RadialPositions positions(2 * Half, QPointF(Half, 0), Half, doublePrecision);
    const std::uint16_t* row = positions.row(0);
    const QRgb* painted = rowWords(strip, 0);
    std::vector<QRgb> values(GradientPositions);
    for (int x = Half; x < 2 * Half; ++x)
        values[row[x]] = painted[x];
    return values;
}

// Which square column and row the stretched drawImage() of the square over a w x h image
// samples for each image pixel. The texture fetch decides per raster chunk and row between
// 16.16 fixed point and floating point, and the columns differ between the two.
class StretchSampling
{
public:
    struct Row
    {
        int square = 0;
        bool fixedPoint = true;
    };

    StretchSampling(int w, int h, int squareSize, QImage::Format format)
        : rowsByChunk(std::size_t((w + RasterChunk - 1) / RasterChunk), std::vector<Row>(h))
    {
        // Qt's scaling blitters serve premultiplied and RGB32 targets; ARGB32 targets, and sizes
        // beyond their fixed-point range, go through the transformed texture fetch.
        const bool blitter = format != QImage::Format_ARGB32 && w <= 0x7fff && h <= 0x7fff;
        if (blitter)
            sampleLikeBlitter(w, h, squareSize);
        else
            sampleLikeTextureFetch(w, h, squareSize);
    }

    const std::vector<int>& columns(bool fixedPoint) const
    {
        return fixedPoint ? fixedPointColumns : floatingPointColumns;
    }

    std::vector<std::vector<Row>> rowsByChunk;

private:
    std::vector<int> fixedPointColumns;
    std::vector<int> floatingPointColumns;

    // qt_scale_image_32bit: a 16.16 step from the first target pixel centre.
    static std::vector<int> blitterSamples(int target, int source)
    {
        const qreal scale = source / qreal(target);
        const int step = int(0x00010000 * scale);
        quint32 at = quint32(qCeil(qreal(0.5) * scale * 65536) - 1);
        std::vector<int> samples(std::size_t(target), 0);
        for (int& sample : samples) {
            sample = int(at >> 16);
            at += quint32(step);
        }
        return samples;
    }

    void sampleLikeBlitter(int w, int h, int squareSize)
    {
        fixedPointColumns = blitterSamples(w, squareSize);
        const std::vector<int> rows = blitterSamples(h, squareSize);
        for (std::vector<Row>& chunkRows : rowsByChunk)
            for (int y = 0; y < h; ++y)
                chunkRows[std::size_t(y)].square = rows[std::size_t(y)];
    }

    // fetchTransformed: the inverse of the stretch, nudged by 1/65536 as QSpanData::setupMatrix
    // does, in 16.16 fixed point while the matrix and the chunk's coordinates allow it.
    void sampleLikeTextureFetch(int w, int h, int squareSize)
    {
        QTransform stretch;
        stretch.scale(w / qreal(squareSize), h / qreal(squareSize));
        QTransform nudge;
        nudge.translate(1.0 / 65536, 1.0 / 65536);
        const QTransform inv = (nudge * stretch).inverted();
        const qreal f1 = inv.m11() * inv.m11() + inv.m21() * inv.m21();
        const qreal f2 = inv.m12() * inv.m12() + inv.m22() * inv.m22();
        const bool fastMatrix = f1 < 1e4 && f2 < 1e4 && f1 > (1.0 / 65536) && f2 > (1.0 / 65536) &&
                                qAbs(inv.dx()) < 1e4 && qAbs(inv.dy()) < 1e4;
        constexpr qreal fixedScale = 65536;
        const auto clampToSquare = [squareSize](int v) { return std::clamp(v, 0, squareSize - 1); };
        fixedPointColumns.resize(std::size_t(w));
        floatingPointColumns.resize(std::size_t(w));
        for (int x0 = 0, chunk = 0; x0 < w; x0 += RasterChunk, ++chunk) {
            const int length = std::min(RasterChunk, w - x0);
            const qreal cx = x0 + qreal(0.5);
            const int step = int(inv.m11() * fixedScale);
            for (int y = 0; y < h; ++y) {
                const qreal cy = y + qreal(0.5);
                const qreal tx = inv.m21() * cy + inv.m11() * cx + inv.dx();
                const qreal ty = inv.m22() * cy + inv.m12() * cx + inv.dy();
                const qreal fx = tx * fixedScale;
                const qreal fy = ty * fixedScale;
                const qreal fxEnd = fx + std::trunc(inv.m11() * fixedScale) * length;
                const qreal fyEnd = fy + std::trunc(inv.m12() * fixedScale) * length;
                const bool fixedPoint = fastMatrix && std::min({fx, fy, fxEnd, fyEnd}) >= INT_MIN &&
                                        std::max({fx, fy, fxEnd, fyEnd}) <= INT_MAX;
                Row& row = rowsByChunk[std::size_t(chunk)][std::size_t(y)];
                row.fixedPoint = fixedPoint;
                row.square = clampToSquare(fixedPoint ? int(fy) >> 16 : qFloor(ty));
                if (y > 0)
                    continue;
                // Along a row only x changes, so each chunk's two column maps are computed once;
                // the fixed-point one only where its coordinates fit an int.
                const bool columnsFit =
                    std::min(fx, fxEnd) >= INT_MIN && std::max(fx, fxEnd) <= INT_MAX;
                int fixedAt = columnsFit ? int(fx) : 0;
                qreal floatingAt = tx;
                for (int x = x0; x < x0 + length; ++x) {
                    fixedPointColumns[std::size_t(x)] = clampToSquare(fixedAt >> 16);
                    floatingPointColumns[std::size_t(x)] = clampToSquare(qFloor(floatingAt));
                    if (columnsFit)
                        fixedAt += step;
                    floatingAt += inv.m11();
                }
            }
        }
    }
};

} // namespace

QImage vignetteImage(QImage& image, int radius, int opacity, QColor colour)
{
    image = wordImage(image);
    if (image.isNull())
        return image;
    const int w = image.width();
    const int h = image.height();
    const int squareSize = std::max(w, h);
    const QImage::Format format = image.format();
    const int centre = squareSize / 2;
    const qint64 gradientRadius = qint64(radius) * squareSize / 100;
    const QGradientStops stops = vignetteStops(colour);

    const bool doublePrecision = format == QImage::Format_ARGB32;
    const std::vector<QRgb> values = squareValues(format, stops, opacity, doublePrecision);
    // A gradient of radius 0 paints transparent black: the same painting on one pixel shows
    // what the square then holds.
    QRadialGradient degenerateGradient(QPointF(0.5, 0.5), 0, QPointF(0.5, 0.5));
    degenerateGradient.setStops(stops);
    const QRgb degenerate =
        rowWords(paintedLikeSquare(QSize(1, 1), format, degenerateGradient, opacity), 0)[0];
    // Positions up to k all show the same value; a squared distance below ((k + 0.25) / 1023)²
    // gives a position of at most k, a quarter position clear of any rounding.
    int sameValues = 0;
    while (sameValues + 1 < GradientPositions && values[sameValues + 1] == values[0])
        ++sameValues;
    const double sameValueLimit = std::pow((sameValues + 0.25) / (GradientPositions - 1), 2);
    RadialPositions positions(squareSize, QPointF(centre, centre), double(gradientRadius),
                              doublePrecision, sameValueLimit);
    const StretchSampling sampling(w, h, squareSize, format);
    // A landscape image samples every square column in order.
    const auto keepsColumns = [w](const std::vector<int>& columns) {
        if (columns.size() != std::size_t(w))
            return false;
        for (int x = 0; x < w; ++x)
            if (columns[std::size_t(x)] != x)
                return false;
        return true;
    };
    const bool columnsKept[] = {keepsColumns(sampling.columns(false)),
                                keepsColumns(sampling.columns(true))};

    // The image is painted band by band. A shared image is not detached first (a copy of the
    // whole image, then a second pass to paint it): each band of the new image is copied from
    // the source right before it is painted, while it is in the cache.
    const bool inPlace = image.isDetached();
    QImage target = inPlace ? QImage() : blankCopy(image);
    if (!inPlace && target.isNull())
        return image;
    uchar* targetBits = inPlace ? image.bits() : target.bits();
    const qsizetype stride = image.bytesPerLine();

    // Square values drawn unstretched: the blend per pixel is the one the stretched drawing
    // makes with the same square pixel.
    constexpr int BandRows = 16;
    const QImage::Format bandFormat =
        format == QImage::Format_ARGB32 ? format : QImage::Format_ARGB32_Premultiplied;
    QImage band(w, std::min(BandRows, h), bandFormat);
    if (band.isNull())
        return image;
    for (int y0 = 0; y0 < h; y0 += BandRows) {
        const int rows = std::min(BandRows, h - y0);
        for (int r = 0; r < rows; ++r) {
            if (r % RadialPositions::Rows == 0 && !positions.degenerate()) {
                // The next few rows' positions are computed together.
                const int group = std::min(RadialPositions::Rows, rows - r);
                int squareRows[RadialPositions::Rows];
                for (int i = 0; i < group; ++i)
                    squareRows[i] = sampling.rowsByChunk[0][std::size_t(y0 + r + i)].square;
                positions.prepare(squareRows, group);
            }
            QRgb* out = rowWords(band, r);
            for (int x0 = 0, chunk = 0; x0 < w; x0 += RasterChunk, ++chunk) {
                const int x1 = std::min(w, x0 + RasterChunk);
                if (positions.degenerate()) {
                    std::fill(out + x0, out + x1, degenerate);
                    continue;
                }
                const StretchSampling::Row sample =
                    sampling.rowsByChunk[std::size_t(chunk)][std::size_t(y0 + r)];
                const std::uint16_t* row = positions.row(sample.square);
                if (columnsKept[sample.fixedPoint]) {
                    for (int x = x0; x < x1; ++x)
                        out[x] = values[row[x]];
                    continue;
                }
                const std::vector<int>& columns = sampling.columns(sample.fixedPoint);
                for (int x = x0; x < x1; ++x)
                    out[x] = values[row[columns[std::size_t(x)]]];
            }
        }
        uchar* bandBits = targetBits + y0 * stride;
        if (!inPlace)
            std::memcpy(bandBits, image.constBits() + y0 * stride, std::size_t(rows * stride));
        QImage view(bandBits, w, rows, stride, format);
        QPainter painter(&view);
        painter.drawImage(QPoint(0, 0), band, QRect(0, 0, w, rows));
    }
    if (!inPlace)
        image = target;
    return image;
}

// ---------------------------------------------------------------------------------------------
// Histogram optimizer

QImage optimizeHistogram(QImage& image, int highClip, int lowClip)
{
    const QImage source = wordImage(image);
    const int w = source.width();
    const int h = source.height();
    QImage result = newImage(w, h, QImage::Format_ARGB32);
    if (result.isNull())
        return result;

    // The levels come from the red channel alone.
    std::array<qint64, 256> histogram{};
    for (int y = 0; y < h; ++y) {
        const QRgb* line = rowWords(source, y);
        for (int x = 0; x < w; ++x)
            ++histogram[(line[x] >> 16) & 255];
    }
    const qint64 n = qint64(w) * h;
    // The clip parameters are halved: a parameter of 2 clips one percent of the pixels.
    const auto clipCount = [n](int clip) {
        return qint64(double(n) * std::min(clip * 0.5, 100.0) / 100);
    };
    const qint64 lowCount = clipCount(lowClip);
    const qint64 highCount = clipCount(highClip);
    int low = 256;
    for (qint64 i = 0, sum = 0; i < 256; ++i) {
        sum += histogram[std::size_t(i)];
        if (sum > lowCount) {
            low = int(i);
            break;
        }
    }
    int high = -1;
    for (qint64 i = 255, sum = 0; i >= 0; --i) {
        sum += histogram[std::size_t(i)];
        if (sum > highCount) {
            high = int(i);
            break;
        }
    }

    std::array<QRgb, 256> table{};
    if (low < high) {
        for (int k = 0; k < high - low; ++k)
            table[std::size_t(low + k)] = QRgb(k * 256.0 / (high - low));
        std::fill(table.begin() + high, table.end(), 255);
    } else if (low < 256) {
        std::fill(table.begin() + low, table.end(), 255);
    }

    // Rebuilt from the three colour channels, so the result is opaque.
    for (int y = 0; y < h; ++y) {
        const QRgb* line = rowWords(source, y);
        QRgb* out = rowWords(result, y);
        for (int x = 0; x < w; ++x) {
            const QRgb word = line[x];
            out[x] = 0xff000000 | table[(word >> 16) & 255] << 16 | table[(word >> 8) & 255] << 8 |
                     table[word & 255];
        }
    }
    return result;
}

} // namespace OrkGraphX
