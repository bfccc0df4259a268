#include "rowshrinker.h"

#include <algorithm>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace OrkGraphX {

namespace {

constexpr uint32_t unitWeight = 1 << 14;

} // namespace

bool RowShrinker::shrinks(const QSize& source, const QSize& target)
{
    return !target.isEmpty() && target.width() < source.width() &&
           target.height() < source.height();
}

// Target pixel i starts at i * s / d in 16.16 fixed point. Its first source pixel weighs what
// is left of that pixel, the next ones one target step each and the last one the rest, so that
// the weights make a whole. The step is rounded up, so no span runs past the edge; the count is
// held to it all the same.
RowShrinker::Axis::Axis(int source, int target)
{
    const qint64 step = (qint64(source) << 16) / target;
    const uint32_t perPixel = uint32_t(((qint64(target) << 14) + source - 1) / source);
    spans.reserve(size_t(target));
    qint64 position = 0;
    for (int i = 0; i < target; ++i, position += step) {
        Span span;
        span.first = int(position >> 16);
        span.weightsAt = int(weights.size());
        const uint32_t firstWeight = ((0x10000 - uint32_t(position & 0xffff)) * perPixel) >> 16;
        weights.push_back(firstWeight);
        uint32_t left = unitWeight - firstWeight;
        for (; left > perPixel; left -= perPixel)
            weights.push_back(perPixel);
        weights.push_back(left);
        span.count = std::min(int(weights.size()) - span.weightsAt, source - span.first);
        spans.push_back(span);
    }
    firstSpanAt.assign(size_t(source), target);
    int reached = 0;
    for (int i = 0; i < target; ++i) {
        for (; reached <= spans[size_t(i)].last(); ++reached)
            firstSpanAt[size_t(reached)] = i;
    }
}

int RowShrinker::Axis::mostSpansAtOnePixel() const
{
    std::vector<int> starting(firstSpanAt.size() + 1, 0);
    for (const Span& span : spans) {
        ++starting[size_t(span.first)];
        --starting[size_t(span.first + span.count)];
    }
    int most = 0;
    int open = 0;
    for (const int change : starting)
        most = std::max(most, open += change);
    return most;
}

QSize RowShrinker::upright(const QSize& stored, Turn turn)
{
    return turn & QImageIOHandler::TransformationRotate90 ? stored.transposed() : stored;
}

// Turned upright, pixel (x, y) is stored at (w-1-x if mirrored, h-1-y if flipped); a quarter
// turn clockwise then takes upright (x, y) from there at (y, h-1-x).
RowShrinker::RowShrinker(const QSize& stored, Turn turn, QImage& into)
    : quarterTurn(turn & QImageIOHandler::TransformationRotate90)
    , rowsBackwards(bool(turn & QImageIOHandler::TransformationFlip) != quarterTurn)
    , rowBackwards(turn & QImageIOHandler::TransformationMirror)
    , storedRows(stored.height())
    , across(upright(stored, turn).width(), into.width())
    , down(upright(stored, turn).height(), into.height())
    , stepped(quarterTurn ? across : down)
    , into(into)
    , targets(int(stepped.spans.size()))
    , openTargets(stepped.mostSpansAtOnePixel())
    , turnedRow(rowBackwards ? size_t(stored.width()) : 0)
    , rowValues(size_t(quarterTurn ? stored.width() : into.width()) * 4)
    , openSums(size_t(openTargets) * rowValues.size())
    , columnSums(quarterTurn ? rowValues.size() : 0)
{
}

void RowShrinker::addRow(const QRgb* row)
{
    if (done())
        return;
    if (rowBackwards) {
        std::reverse_copy(row, row + turnedRow.size(), turnedRow.begin());
        row = turnedRow.data();
    }
    if (quarterTurn) {
        for (size_t x = 0; x < rowValues.size() / 4; ++x) {
            for (int c = 0; c < 4; ++c)
                rowValues[x * 4 + size_t(c)] = (row[x] >> (8 * c)) & 0xff;
        }
    } else {
        sumAcross(row, rowValues.data());
    }
    const int stored = nextRow++;
    const int at = rowsBackwards ? storedRows - 1 - stored : stored;
    const size_t length = rowValues.size();
    // The targets that take this row are the ones under way, numbered one after the other.
    for (int target = stepped.firstSpanAt[size_t(at)];
         target < targets && stepped.spans[size_t(target)].first <= at; ++target) {
        const Span& span = stepped.spans[size_t(target)];
        const uint32_t weight = stepped.weights[size_t(span.weightsAt + at - span.first)];
        uint32_t* sums = openSums.data() + size_t(target % openTargets) * length;
        if (at == (rowsBackwards ? span.last() : span.first)) {
            for (size_t i = 0; i < length; ++i)
                sums[i] = rowValues[i] * weight;
        } else {
            for (size_t i = 0; i < length; ++i)
                sums[i] += rowValues[i] * weight;
        }
        if (at == (rowsBackwards ? span.first : span.last()))
            complete(target, sums);
    }
}

// A row: the sums over the rows, shifted by 24. Turned a quarter, a column: the sums over the
// stored rows are the sums across, shifted by 4, which are then summed down as above.
void RowShrinker::complete(int target, const uint32_t* sums)
{
    ++completed;
    const auto pack = [](const uint32_t* channel) {
        return (channel[0] >> 24) | ((channel[1] >> 24) << 8) | ((channel[2] >> 24) << 16) |
               ((channel[3] >> 24) << 24);
    };
    if (!quarterTurn) {
        auto* out = reinterpret_cast<QRgb*>(into.scanLine(target));
        for (size_t i = 0; i < rowValues.size(); i += 4)
            *out++ = pack(sums + i);
        return;
    }
    for (size_t i = 0; i < columnSums.size(); ++i)
        columnSums[i] = sums[i] >> 4;
    for (int y = 0; y < into.height(); ++y) {
        const Span& span = down.spans[size_t(y)];
        const uint32_t* weight = down.weights.data() + span.weightsAt;
        uint32_t pixel[4] = {0, 0, 0, 0};
        for (int k = 0; k < span.count; ++k) {
            const uint32_t* channel = columnSums.data() + size_t(span.first + k) * 4;
            for (int c = 0; c < 4; ++c)
                pixel[c] += channel[c] * weight[k];
        }
        reinterpret_cast<QRgb*>(into.scanLine(y))[target] = pack(pixel);
    }
}

#ifdef __SSE2__
namespace {

// The channels of the two pixels at pixel as 16-bit lanes b0 b1 g0 g1 r0 r1 a0 a1, multiplied by
// their weights and added in pairs: four channel sums. No product or sum leaves 31 bits.
inline __m128i sumOfTwo(const QRgb* pixel, const uint32_t* weight)
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i bytes = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(pixel));
    const __m128i paired =
        _mm_unpacklo_epi8(_mm_unpacklo_epi8(bytes, _mm_srli_si128(bytes, 4)), zero);
    return _mm_madd_epi16(paired, _mm_set1_epi32(int(weight[0] | (weight[1] << 16))));
}

inline __m128i sumOfOne(const QRgb* pixel, const uint32_t* weight)
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i lanes =
        _mm_unpacklo_epi16(_mm_unpacklo_epi8(_mm_cvtsi32_si128(int(*pixel)), zero), zero);
    return _mm_madd_epi16(lanes, _mm_set1_epi32(int(*weight)));
}

} // namespace
#endif

void RowShrinker::sumAcross(const QRgb* row, uint32_t* sums) const
{
    const uint32_t* weights = across.weights.data();
    for (const Span& span : across.spans) {
        const QRgb* pixel = row + span.first;
        const uint32_t* weight = weights + span.weightsAt;
#ifdef __SSE2__
        // Spans of two or three pixels, the most common, go without a loop.
        __m128i spanSums;
        if (span.count == 2) {
            spanSums = sumOfTwo(pixel, weight);
        } else if (span.count == 3) {
            spanSums = _mm_add_epi32(sumOfTwo(pixel, weight), sumOfOne(pixel + 2, weight + 2));
        } else {
            spanSums = _mm_setzero_si128();
            int k = 0;
            for (; k + 1 < span.count; k += 2)
                spanSums = _mm_add_epi32(spanSums, sumOfTwo(pixel + k, weight + k));
            if (k < span.count)
                spanSums = _mm_add_epi32(spanSums, sumOfOne(pixel + k, weight + k));
        }
        _mm_storeu_si128(reinterpret_cast<__m128i*>(sums), _mm_srli_epi32(spanSums, 4));
#else
        uint32_t spanSums[4] = {0, 0, 0, 0};
        for (int k = 0; k < span.count; ++k) {
            for (int c = 0; c < 4; ++c)
                spanSums[c] += ((pixel[k] >> (8 * c)) & 0xff) * weight[k];
        }
        for (int c = 0; c < 4; ++c)
            sums[c] = spanSums[c] >> 4;
#endif
        sums += 4;
    }
}

} // namespace OrkGraphX
