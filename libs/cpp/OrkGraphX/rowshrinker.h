// Smooth shrinking fed one source row at a time, so that a photo never has to be whole in
// memory at its full size on its way to a smaller one.
#pragma once

#include <QImage>

#include <cstdint>
#include <vector>

namespace OrkGraphX {

// Gives, word for word, what QImage::scaled(target, Qt::IgnoreAspectRatio,
// Qt::SmoothTransformation) gives for a premultiplied 32-bit image shrunk on both sides: the same
// area weights in fixed point, the same order of rounding. Each source row is summed across once
// and added, weighed, into the few target rows that take it; nothing larger than a row is kept.
class RowShrinker
{
public:
    // Whether target is smaller than source on both sides, the case this class handles.
    static bool shrinks(const QSize& source, const QSize& target);

    // into: the target image, 32 bits a pixel, already of its size; rows are written into it as
    // they complete. Both sizes must satisfy shrinks().
    RowShrinker(const QSize& source, QImage& into);

    // The next source row, source.width() premultiplied words.
    void addRow(const QRgb* row);

    // Whether every target row has been written.
    bool done() const { return nextTarget == into.height(); }

private:
    // The source pixels one target pixel takes along one side, and their weights, which add up
    // to 1 << 14.
    struct Span
    {
        int first = 0;
        int weightsAt = 0;
        int count = 0;
    };
    struct Axis
    {
        Axis(int source, int target);
        // The most spans any one source pixel lies in.
        int mostSpansAtOnePixel(int source) const;
        std::vector<Span> spans;
        std::vector<uint32_t> weights;
    };
    // Four channel sums of one target column over one source row, already shifted by 4.
    struct Sums
    {
        uint32_t channel[4];
    };

    void sumAcross(const QRgb* row, Sums* into) const;
    void writeTargetRow();

    const Axis across;
    const Axis down;
    QImage& into;
    const int openRows;
    std::vector<Sums> rowSums;
    // The sums of the target rows under way, in slots by row number modulo openRows.
    std::vector<uint32_t> targetSums;
    int nextSource = 0;
    int nextTarget = 0;
};

} // namespace OrkGraphX
