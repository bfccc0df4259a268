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
}

int RowShrinker::Axis::mostSpansAtOnePixel(int source) const
{
    std::vector<int> starting(size_t(source) + 1, 0);
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

RowShrinker::RowShrinker(const QSize& source, QImage& into)
    : across(source.width(), into.width())
    , down(source.height(), into.height())
    , into(into)
    , openRows(down.mostSpansAtOnePixel(source.height()))
    , rowSums(size_t(into.width()))
    , targetSums(size_t(openRows) * size_t(into.width()) * 4)
{
}

void RowShrinker::addRow(const QRgb* row)
{
    if (done())
        return;
    sumAcross(row, rowSums.data());
    const int source = nextSource++;
    const size_t channels = size_t(into.width()) * 4;
    const uint32_t* sums = rowSums.data()->channel;
    // Every target row whose span holds this row takes it with its weight; they are the open
    // ones, at most openRows, each with its sums in the slot of its number.
    for (int target = nextTarget; target < into.height(); ++target) {
        const Span& span = down.spans[size_t(target)];
        if (span.first > source)
            break;
        const uint32_t weight = down.weights[size_t(span.weightsAt + source - span.first)];
        uint32_t* slot = targetSums.data() + size_t(target % openRows) * channels;
        if (source == span.first) {
            for (size_t i = 0; i < channels; ++i)
                slot[i] = sums[i] * weight;
        } else {
            for (size_t i = 0; i < channels; ++i)
                slot[i] += sums[i] * weight;
        }
    }
    while (!done()) {
        const Span& span = down.spans[size_t(nextTarget)];
        if (span.first + span.count > nextSource)
            break;
        writeTargetRow();
        ++nextTarget;
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

void RowShrinker::sumAcross(const QRgb* row, Sums* into) const
{
    const uint32_t* weights = across.weights.data();
    for (const Span& span : across.spans) {
        const QRgb* pixel = row + span.first;
        const uint32_t* weight = weights + span.weightsAt;
#ifdef __SSE2__
        // Spans of two or three pixels, the most common, go without a loop.
        __m128i sums;
        if (span.count == 2) {
            sums = sumOfTwo(pixel, weight);
        } else if (span.count == 3) {
            sums = _mm_add_epi32(sumOfTwo(pixel, weight), sumOfOne(pixel + 2, weight + 2));
        } else {
            sums = _mm_setzero_si128();
            int k = 0;
            for (; k + 1 < span.count; k += 2)
                sums = _mm_add_epi32(sums, sumOfTwo(pixel + k, weight + k));
            if (k < span.count)
                sums = _mm_add_epi32(sums, sumOfOne(pixel + k, weight + k));
        }
        _mm_storeu_si128(reinterpret_cast<__m128i*>(into->channel), _mm_srli_epi32(sums, 4));
#else
        uint32_t sums[4] = {0, 0, 0, 0};
        for (int k = 0; k < span.count; ++k) {
            for (int c = 0; c < 4; ++c)
                sums[c] += ((pixel[k] >> (8 * c)) & 0xff) * weight[k];
        }
        for (int c = 0; c < 4; ++c)
            into->channel[c] = sums[c] >> 4;
#endif
        ++into;
    }
}

void RowShrinker::writeTargetRow()
{
    const size_t channels = size_t(into.width()) * 4;
    const uint32_t* sums = targetSums.data() + size_t(nextTarget % openRows) * channels;
    auto* out = reinterpret_cast<QRgb*>(into.scanLine(nextTarget));
    for (size_t i = 0; i < channels; i += 4, ++out)
        *out = (sums[i] >> 24) | ((sums[i + 1] >> 24) << 8) | ((sums[i + 2] >> 24) << 16) |
               ((sums[i + 3] >> 24) << 24);
}

} // namespace OrkGraphX
