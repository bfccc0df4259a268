// Times every image kernel on a 12-megapixel photo-like image and prints a table of figures.
// Run: make bench, or cmake --build build --target bench_kernels && build/bench/bench_kernels
// An argument keeps only the kernels whose names contain it: bench_kernels vignette
#include "benchsupport.h"
#include "geometric.h"
#include "neighbourhood.h"
#include "point.h"
#include "watermark.h"
#include "watermarkchoice.h"

#include <QElapsedTimer>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <QTransform>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>

using namespace BenchSupport;

namespace {

constexpr int Width = 4000;
constexpr int Height = 3000;

using Call = std::function<QImage(QImage&)>;

class Bench
{
public:
    explicit Bench(QImage photo)
        : photo(std::move(photo))
    {
    }

    // A plain copy of the image's bytes into a new image: every kernel makes a new image, so
    // this is its floor.
    QImage copy(QImage& image) const
    {
        QImage result(image.size(), image.format());
        std::memcpy(result.bits(), image.constBits(), std::size_t(image.sizeInBytes()));
        return result;
    }

    struct Figures
    {
        double ms = 0;
        double copyRatio = 0;
        double referenceRatio = 0;
    };

    // The kernel, the copy and the reference run in turn and the ratios are taken per round,
    // so that load from other programs on the machine weighs on both sides alike; the order
    // flips every round, as each run also frees the image of the run before it.
    Figures measure(const Call& kernel, const Call& reference = Call())
    {
        const Call copyCall = [this](QImage& image) { return copy(image); };
        QVector<double> times, copyRatios, referenceRatios;
        run(kernel);
        run(copyCall);
        if (reference)
            run(reference);
        QElapsedTimer total;
        total.start();
        while (times.size() < 8 || (times.size() < 16 && total.elapsed() < 2500)) {
            const bool kernelFirst = times.size() % 2 == 0;
            const double referenceFirstMs = !kernelFirst && reference ? run(reference) : 0;
            const double ms = kernelFirst ? run(kernel) : 0;
            const double copyMs = run(copyCall);
            const double kernelMs = kernelFirst ? ms : run(kernel);
            const double referenceMs =
                reference ? (kernelFirst ? run(reference) : referenceFirstMs) : 0;
            times.push_back(kernelMs);
            copyRatios.push_back(kernelMs / copyMs);
            if (reference)
                referenceRatios.push_back(kernelMs / referenceMs);
        }
        return {median(times), median(copyRatios), reference ? median(referenceRatios) : 0.0};
    }

    double timeOf(const Call& call)
    {
        run(call);
        QVector<double> times;
        for (int i = 0; i < 9; ++i)
            times.push_back(run(call));
        return median(times);
    }

private:
    QImage photo;
    QImage sink;

    // Every call gets a shallow copy, as a node hands its image to a worker: kernels that paint
    // into the image they are given pay for the detach, like the QPainter reference does.
    double run(const Call& call)
    {
        return milliseconds([this, &call] {
            QImage image = photo;
            sink = call(image);
        });
    }
};

void printHeader()
{
    std::printf("%-34s %9s %8s %9s  %-30s %-12s %s\n", "kernel", "ms", "MP/s", "vs copy",
                "vs Qt's nearest operation", "target", "met");
}

// target: "" none; otherwise the bound is factor times copy (byCopy) or times the reference.
void printRow(const char* name, const Bench::Figures& f, const char* referenceName,
              const char* target = "", bool byCopy = true, double factor = 0)
{
    const double megapixelsPerSecond = Width * double(Height) / 1e6 / (f.ms / 1e3);
    char reference[64] = "";
    if (referenceName[0])
        std::snprintf(reference, sizeof reference, "%6.2fx %s", f.referenceRatio, referenceName);
    const double ratio = byCopy ? f.copyRatio : f.referenceRatio;
    std::printf("%-34s %9.2f %8.1f %8.2fx  %-30s %-12s %s\n", name, f.ms, megapixelsPerSecond,
                f.copyRatio, reference, target, target[0] ? (ratio <= factor ? "yes" : "NO") : "");
}

// A row whose target is a time: met when the median takes at most maxMs.
void printTimeRow(const char* name, const Bench::Figures& f, double maxMs, const char* target)
{
    Bench::Figures againstTarget = f;
    againstTarget.referenceRatio = f.ms / maxMs;
    printRow(name, againstTarget, "", target, false, 1.0);
}

} // namespace

int main(int argc, char* argv[])
{
    useOffscreenUnlessPlatformSet();
    QGuiApplication app(argc, argv);
    using namespace OrkGraphX;

    Bench bench(photoLikeImage(Width, Height, 20240611));
    const Call qtInvert = [](QImage& image) {
        image.invertPixels(QImage::InvertRgb);
        return image;
    };
    const Call qtMirrored = [](QImage& image) { return image.mirrored(true, false); };
    const auto qtTurn = [](qreal degrees) {
        return Call(
            [degrees](QImage& image) { return image.transformed(QTransform().rotate(degrees)); });
    };
    const Call qtScaled = [](QImage& image) {
        return image.scaled(Width / 2, Height / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const Call qtFill = [](QImage& image) {
        QPainter painter(&image);
        painter.fillRect(image.rect(), QColor(20, 40, 60));
        painter.end();
        return image;
    };

    QImage preallocated(Width, Height, QImage::Format_ARGB32);
    const Call copyCall = [&bench](QImage& image) { return bench.copy(image); };
    const double copyMs = bench.timeOf(copyCall);
    const double memcpyMs = bench.timeOf([&preallocated](QImage& image) {
        std::memcpy(preallocated.bits(), image.constBits(), std::size_t(image.sizeInBytes()));
        return image;
    });
    const double fillMs = bench.timeOf(qtFill);

    std::printf("Image kernels on a %d x %d ARGB32 photo-like image, single thread.\n", Width,
                Height);
    std::printf("Each kernel runs in turn with a copy (a new image plus a memcpy of its %.0f MB: "
                "%.2f ms alone) and with Qt's nearest operation; times are medians, ratios the "
                "medians of the per-round ratios.\nA memcpy into an existing image takes %.2f ms; "
                "a QPainter fill of the whole image (with its detach) %.2f ms.\n\n",
                Width * Height * 4 / 1e6, copyMs, memcpyMs, fillMs);
    printHeader();

    const QString filter = QCoreApplication::arguments().value(1);
    const auto selected = [&filter](const char* name) {
        return QString::fromLatin1(name).contains(filter, Qt::CaseInsensitive);
    };
    const auto copyBound = [&](const char* name, const Call& kernel, double factor,
                               const char* target, const char* referenceName = "",
                               const Call& reference = Call()) {
        if (selected(name))
            printRow(name, bench.measure(kernel, reference), referenceName, target, true, factor);
    };
    const auto qtBound = [&](const char* name, const Call& kernel, const char* referenceName,
                             const Call& reference) {
        if (selected(name))
            printRow(name, bench.measure(kernel, reference), referenceName, "<= Qt", false, 1.0);
    };
    const auto fillBound = [&](const char* name, const Call& kernel) {
        if (selected(name))
            printRow(name, bench.measure(kernel, qtFill), "QPainter fill", "<= 3x fill", false,
                     3.0);
    };
    const auto figuresOnly = [&](const char* name, const Call& kernel,
                                 const char* referenceName = "", const Call& reference = Call()) {
        if (selected(name))
            printRow(name, bench.measure(kernel, reference), referenceName);
    };

    copyBound("invertImage", invertImage, 4, "<= 4x copy", "invertPixels", qtInvert);
    copyBound("grayscaleImage", grayscaleImage, 4, "<= 4x copy");
    copyBound("swapRedBlue", swapRedBlue, 4, "<= 4x copy");
    copyBound("swapRedGreen", swapRedGreen, 4, "<= 4x copy");
    copyBound("swapGreenBlue", swapGreenBlue, 4, "<= 4x copy");
    copyBound(
        "binarizeImage 127", [](QImage& image) { return binarizeImage(image, 127); }, 4,
        "<= 4x copy");
    copyBound(
        "adjustBrightnessContrastSaturation",
        [](QImage& image) { return adjustBrightnessContrastSaturation(image, 20, 10, 1.4f); }, 20,
        "<= 20x copy");
    copyBound(
        "adjustBrightnessContrast",
        [](QImage& image) { return adjustBrightnessContrast(image, 20, 10); }, 20, "<= 20x copy");
    copyBound(
        "adjustSaturation", [](QImage& image) { return adjustSaturation(image, 1.4f); }, 20,
        "<= 20x copy");
    figuresOnly("colorizeImage (QColor per pixel)", [](QImage& image) {
        return colorizeImage(image, QColor(200, 60, 40), QColor(40, 60, 200));
    });

    qtBound("rotateRight90", rotateRight90, "transformed 90", qtTurn(90));
    qtBound("rotate180", rotate180, "transformed 180", qtTurn(180));
    qtBound("rotateLeft90", rotateLeft90, "transformed 270", qtTurn(270));
    qtBound(
        "mirrorImage horizontal", [](QImage& image) { return mirrorImage(image, true, false); },
        "mirrored", qtMirrored);
    qtBound(
        "cropImage 10/10/10/10", [](QImage& image) { return cropImage(image, 10, 10, 10, 10); },
        "mirrored", qtMirrored);
    // A frame makes a larger image than the source: 8 % more pixels at 2 %, 44 % at 10 %.
    qtBound(
        "drawFrame 2% (node default)", [](QImage& image) { return drawFrame(image, 2, Qt::black); },
        "mirrored", qtMirrored);
    qtBound(
        "drawFrame 10%", [](QImage& image) { return drawFrame(image, 10, Qt::black); }, "mirrored",
        qtMirrored);
    figuresOnly(
        "resizeImage 50% (smooth)",
        [](QImage& image) { return resizeImage(image, 50, 50, 0, false); }, "scaled smooth",
        qtScaled);
    figuresOnly(
        "fitIntoBox 1000 x 1000",
        [](QImage& image) { return fitIntoBox(image, QSize(1000, 1000), Qt::black); },
        "scaled smooth", qtScaled);

    const QRect whole(0, 0, Width, Height);
    QVector<double> blurMs;
    for (int radius : {1, 10, 30}) {
        const QByteArray name = "blurImage radius " + QByteArray::number(radius);
        if (!selected(name.constData()))
            continue;
        const Bench::Figures f =
            bench.measure([&](QImage& image) { return blurImage(image, radius, whole, false); });
        blurMs.push_back(f.ms);
        printRow(name.constData(), f, "", "<= 15x copy", true, 15);
    }
    figuresOnly("sharpenImage", sharpenImage);
    copyBound(
        "optimizeHistogram 2/2", [](QImage& image) { return optimizeHistogram(image, 2, 2); }, 8,
        "<= 8x copy");

    fillBound("vignetteImage 65/80 black",
              [](QImage& image) { return vignetteImage(image, 65, 80, Qt::black); });
    WMRParams text;
    text.Mode = 0;
    text.Text = "Watermark";
    text.Font = QFont("DejaVu Sans");
    text.Size = 60;
    text.Position = 8;
    text.Transparency = 25;
    text.Color = Qt::white;
    text.Background = Qt::black;
    text.BackgroundEnabled = true;
    fillBound("drawWatermark text 60%",
              [&text](QImage& image) { return drawWatermark(image, text); });
    WMRParams logo = text;
    logo.Mode = 1;
    logo.Size = 30;
    logo.ImageData = QImage(400, 200, QImage::Format_ARGB32);
    logo.ImageData.fill(QColor(255, 255, 255, 180));
    figuresOnly(
        "drawWatermark logo 30%", [&logo](QImage& image) { return drawWatermark(image, logo); },
        "QPainter fill", qtFill);

    // The further settings: a smaller text tiled and turned against the same text alone, and
    // the automatic choices for the text at 60 % (its drawing rectangle on this photo).
    WMRParams plain = text;
    plain.Size = 25;
    plain.BackgroundEnabled = false;
    WMRParams tiled = plain;
    tiled.Tile = true;
    tiled.Angle = 30;
    if (selected("drawWatermark text 25% tiled, turned 30"))
        printRow("drawWatermark text 25% tiled, turned 30",
                 bench.measure([&tiled](QImage& image) { return drawWatermark(image, tiled); },
                               [&plain](QImage& image) { return drawWatermark(image, plain); }),
                 "the text alone", "<= 3x alone", false, 3.0);
    tiled.Shadow = true;
    figuresOnly(
        "drawWatermark text 25% tiled, turned, shadow",
        [&tiled](QImage& image) { return drawWatermark(image, tiled); }, "the text alone",
        [&plain](QImage& image) { return drawWatermark(image, plain); });
    WMRParams automatic = text;
    automatic.AutoColor = true;
    automatic.AutoPosition = true;
    const QFont measured = [&text] {
        QFont font = text.Font;
        font.setPixelSize(Width * text.Size / 100 * 96 / 100);
        return font;
    }();
    const QSize box(QFontMetrics(measured).horizontalAdvance(text.Text) + 4,
                    QFontMetrics(measured).height() + 4);
    // Timed alone, as it makes no image, each time after 64 MB of other memory has pushed the
    // photo out of the caches, as a photo fresh from the reader would be.
    if (selected("chooseWatermark auto colour + position")) {
        const QImage photo = photoLikeImage(Width, Height, 20240611);
        QByteArray flush(64 << 20, 1);
        int chosen = 0;
        QVector<double> times;
        for (int round = 0; round < 15; ++round) {
            std::memset(flush.data(), round, std::size_t(flush.size()));
            times << milliseconds(
                [&] { chosen = chooseWatermark(photo, box, 0, automatic).position; });
        }
        const double ms = median(times);
        printTimeRow("chooseWatermark auto colour + position", {ms, ms / copyMs, 0}, 5.0,
                     "<= 5 ms");
        std::printf("(cold caches; the cell chosen: %d)\n", chosen);
    }

    if (blurMs.size() > 1)
        std::printf("\nblur at radius 1, 10 and 30: slowest / fastest median = %.2f\n",
                    *std::max_element(blurMs.begin(), blurMs.end()) /
                        *std::min_element(blurMs.begin(), blurMs.end()));
    return 0;
}
