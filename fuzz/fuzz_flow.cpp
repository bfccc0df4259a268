// libFuzzer target: the input read as a flow the way the batch reads one, and every operation
// it yields run in turn on a small picture, as a batch runs them on a photo.
#include "flowoperations.h"
#include "operationcatalogue.h"

#include <QImage>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

// A few frames or enlargements of the picture, not more: a run refuses larger results before
// they are made, and so does this target, to stay fast.
const qint64 pixelBudget = 1'000'000;

// Every pixel different and partly transparent, so that every kernel has something to change.
QImage picture()
{
    QImage image(16, 12, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            row[x] = qRgba(x * 16, y * 21, (x ^ y) * 16, 128 + x * 8);
    }
    return image;
}

qint64 pixels(const QSize& size)
{
    return size.isEmpty() ? 0 : qint64(size.width()) * size.height();
}

// A run refuses a result too large by the size announced before it is made, so the result may
// not have more pixels than that (Crop and the turns announce the size they are given).
void checkSize(const QString& name, const QSize& announced, const QImage& result)
{
    if (pixels(result.size()) <= pixels(announced))
        return;
    std::fprintf(stderr, "%s made %dx%d, announced %dx%d\n", qPrintable(name), result.width(),
                 result.height(), announced.width(), announced.height());
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QImage start = picture();
    const QString flowText =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QImage image = start;
    for (const auto& operation : batchOperationsFromFlow(flowText)) {
        const PreparedOperation prepared = prepareOperation(operation.first, operation.second);
        const QSize announced = prepared.resultSize(image.size());
        if (pixels(announced) > pixelBudget)
            break;
        image = prepared.apply(image, PhotoContext());
        checkSize(operation.first, announced, image);
        if (image.isNull())
            break;
    }
    return 0;
}
