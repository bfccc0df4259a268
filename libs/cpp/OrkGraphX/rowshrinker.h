// Smooth shrinking fed one stored row at a time, so that a photo never has to be whole in
// memory at its full size on its way to a smaller one.
#pragma once

#include <QImage>
#include <QImageIOHandler>

#include <cstdint>
#include <vector>

namespace OrkGraphX {

// Gives, word for word, what QImage::scaled(target, Qt::IgnoreAspectRatio,
// Qt::SmoothTransformation) gives for a premultiplied 32-bit image shrunk on both sides, once
// the image is turned upright as a stored photo is (mirrored, flipped, then turned a quarter
// clockwise): the same area weights in fixed point, the same order of rounding. The rows come as
// stored and each goes, weighed, into the few target rows (or, turned a quarter, columns) that
// take it, so that nothing larger than a row or a column is kept.
class RowShrinker
{
public:
    using Turn = QImageIOHandler::Transformations;

    // Whether target is smaller than source on both sides, the case this class handles.
    static bool shrinks(const QSize& source, const QSize& target);
    // The size of a photo stored at stored, once it is turned upright.
    static QSize upright(const QSize& stored, Turn turn);

    // into: the target image, 32 bits a pixel, already of its size, which upright(stored, turn)
    // must shrink to; its rows or columns are written as they complete.
    RowShrinker(const QSize& stored, Turn turn, QImage& into);

    // The next stored row, stored.width() premultiplied words.
    void addRow(const QRgb* row);

    // Whether every target row or column has been written.
    bool done() const { return completed == targets; }

private:
    // The source pixels one target pixel takes along one side, and their weights, which add up
    // to 1 << 14.
    struct Span
    {
        int first = 0;
        int weightsAt = 0;
        int count = 0;
        int last() const { return first + count - 1; }
    };
    struct Axis
    {
        Axis(int source, int target);
        // The most spans any one source pixel lies in.
        int mostSpansAtOnePixel() const;
        std::vector<Span> spans;
        std::vector<uint32_t> weights;
        // For each source pixel, the first span that reaches it.
        std::vector<int> firstSpanAt;
    };

    void sumAcross(const QRgb* row, uint32_t* sums) const;
    void complete(int target, const uint32_t* sums);

    const bool quarterTurn;
    // Stored rows step against the upright side they step along; a stored row runs against the
    // upright side it lies along.
    const bool rowsBackwards;
    const bool rowBackwards;
    const int storedRows;
    const Axis across;
    const Axis down;
    // The side the stored rows step along: down, or across when turned a quarter.
    const Axis& stepped;
    QImage& into;
    const int targets;
    const int openTargets;
    std::vector<QRgb> turnedRow;
    // Four channels a pixel: what one row adds (its sums across, or turned a quarter its own
    // channels), and the sums of the targets under way in slots by number modulo openTargets.
    std::vector<uint32_t> rowValues;
    std::vector<uint32_t> openSums;
    std::vector<uint32_t> columnSums;
    int nextRow = 0;
    int completed = 0;
};

} // namespace OrkGraphX
