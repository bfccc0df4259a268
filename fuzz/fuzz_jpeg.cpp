// libFuzzer target: the input read as a JPEG photo whose flow begins by halving it, once shrunk
// row by row as it is decoded and once decoded whole and shrunk by Qt. Both ways must agree:
// the same pixels, or both refusing the photo.
#include "batchengine.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

// Small photos only, to stay fast; larger ones are refused the same way by both.
const qint64 pixelBudget = 1'000'000;

QSize half(const QSize& size)
{
    return {qMax(1, size.width() / 2), qMax(1, size.height() / 2)};
}

[[noreturn]] void disagree(const char* what, const QString& rows, const QString& whole)
{
    std::fprintf(stderr, "%s: shrunk while read \"%s\", read whole \"%s\"\n", what,
                 qPrintable(rows), qPrintable(whole));
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static QTemporaryDir folder;
    const QString path = folder.filePath("photo.jpg");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        std::abort();
    file.write(reinterpret_cast<const char*>(data), qint64(size));
    file.close();

    PhotoDecoding shrinking;
    shrinking.shrinksTo = half;
    const BatchEngine::Photo rows = BatchEngine::load(path, pixelBudget, shrinking);
    const BatchEngine::Photo whole = BatchEngine::load(path, pixelBudget);
    if (rows.image.isNull() != whole.image.isNull() || rows.error != whole.error)
        disagree("refused otherwise", rows.error, whole.error);
    if (rows.image.isNull() || rows.shrinkTo.isEmpty())
        return 0;
    const QImage expected =
        whole.image.convertToFormat(QImage::Format_ARGB32_Premultiplied)
            .scaled(rows.shrinkTo, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (rows.image != expected)
        disagree("other pixels", rows.error, whole.error);
    return 0;
}
