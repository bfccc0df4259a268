// The image kernels: each against its rule written out plainly over random images, and small
// cases worked out by hand, the deliberate oddities of the rules included.
#include "geometric.h"
#include "neighbourhood.h"
#include "point.h"
#include "rowshrinker.h"
#include "testutils.h"
#include "watermark.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>

#include <functional>
#include <random>
#include <tuple>

using namespace OrkGraphX;
using TestUtils::addColumns;
using TestUtils::addRow;
using TestUtils::fetch;
using Kernel = std::function<QImage(QImage&)>;
Q_DECLARE_METATYPE(Kernel)
Q_DECLARE_METATYPE(WMRParams)

// A kernel call on the image i, so that a table row names its call in one line.
#define KERNEL(...) Kernel([](QImage& i) { return __VA_ARGS__; })

namespace {

// Counts Qt's messages while it lives and keeps them out of the output.
struct MessageCount
{
    static inline int count = 0;
    const QtMessageHandler previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString&) { ++count; });
    ~MessageCount() { qInstallMessageHandler(previous); }
};

// An ARGB32 image of hex words written row by row ("1 2/3 4", w*n for n times w) times unit;
// O is the 12345 that pixel() answers outside the image, R opaque red.
QImage fromWords(const QString& text, QRgb unit = 1)
{
    QVector<QRgb> words;
    const QStringList rows = text.split('/', Qt::SkipEmptyParts);
    for (const QString& row : rows)
        for (const QString& item : row.split(' ')) {
            const QString w = item.section('*', 0, 0);
            const QRgb value = w == "O"   ? 12345
                               : w == "R" ? 0xffff0000
                                          : w.toUInt(nullptr, 16) * unit;
            words += QVector<QRgb>(qMax(1, item.section('*', 1).toInt()), value);
        }
    QImage image(rows.isEmpty() ? 0 : words.size() / rows.size(), rows.size(),
                 QImage::Format_ARGB32);
    for (int i = 0; i < words.size(); ++i)
        image.setPixel(i % image.width(), i / image.width(), words[i]);
    return image;
}

} // namespace

// The rules as stated, with the kernels' signatures.
namespace Rules {

// The turns read one place too far: right 90 takes source(y, h − x), 180 source(w − x, h − y)
// and left 90 source(w − y, x), through pixel() and setPixel(), so RGB32 words become opaque.
QImage rotateImage(const QImage& s, int angle)
{
    const int w = s.width(), h = s.height();
    QImage result(angle == 180 ? s.size() : s.size().transposed(), s.format());
    for (int y = 0; y < result.height(); ++y)
        for (int x = 0; x < result.width(); ++x)
            result.setPixel(x, y,
                            s.pixel(angle == 90    ? QPoint(y, h - x)
                                    : angle == 180 ? QPoint(w - x, h - y)
                                                   : QPoint(w - y, x)));
    return result;
}

QImage invertImage(QImage s)
{
    s.invertPixels();
    return s;
}

// Four passes over the region (down, right, up, left), one channel and one pixel at a time:
// z += (16 · byte − z) · a / 16 with a weight a in sixteenths.
QImage blurImage(const QImage& image, int radius, QRect region, bool alphaOnly)
{
    static const int sixteenths[] = {14, 10, 8, 6, 5, 5, 4, 3, 3, 3, 3, 2, 2, 2, 2, 2, 2};
    QImage result = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int a = radius <= 0 ? 16 : radius <= 17 ? sixteenths[radius - 1] : 1;
    const QRect r = region.normalized() & result.rect();
    const auto line = [&](int c, int x, int y, int dx, int dy, int steps) {
        int z = result.scanLine(y)[4 * x + c] * 16;
        for (int i = 1; i <= steps; ++i) {
            uchar& byte = result.scanLine(y + i * dy)[4 * (x + i * dx) + c];
            z += (byte * 16 - z) * a / 16;
            byte = uchar(z >> 4);
        }
    };
    for (int c = alphaOnly ? 3 : 0; c < 4 && !r.isEmpty(); ++c) {
        for (int x = r.left(); x <= r.right(); ++x)
            line(c, x, r.top(), 0, 1, r.height() - 1);
        for (int y = r.top(); y <= r.bottom(); ++y)
            line(c, r.left(), y, 1, 0, r.width() - 1);
        for (int x = r.left(); x <= r.right(); ++x)
            line(c, x, r.bottom(), 0, -1, r.height() - 1);
        for (int y = r.top(); y <= r.bottom(); ++y)
            line(c, r.right(), y, -1, 0, r.width() - 1);
    }
    return result;
}

// A radial gradient painted on an S x S square (S the longer side) and drawn stretched over the
// image: transparent colour + 200 at the centre, + 40 halfway, the colour itself at the radius.
QImage vignetteImage(QImage image, int radius, int opacity, const QColor& colour)
{
    const int s = std::max(image.width(), image.height());
    const auto lifted = [&colour](int amount) {
        return QColor(std::min(colour.red() + amount, 255), std::min(colour.green() + amount, 255),
                      std::min(colour.blue() + amount, 255), 0);
    };
    QRadialGradient gradient(QPointF(s / 2, s / 2), radius * s / 100, QPointF(s / 2, s / 2));
    gradient.setStops({{0.0, lifted(200)}, {0.5, lifted(40)}, {1.0, QColor(colour.rgb())}});
    QImage square(s, s, image.format());
    square.fill(QColor(255, 255, 255, 0));
    QPainter painter(&square);
    painter.setOpacity(opacity / 100.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRect(square.rect());
    painter.end();
    QPainter(&image).drawImage(image.rect(), square);
    return image;
}

} // namespace Rules

namespace {

// A name, a size and two calls of the same name: the kernel's and the rule's.
using Case = std::tuple<const char*, QSize, Kernel, Kernel>;
#define RULE(n, s, ...) Case(n, s, KERNEL(OrkGraphX::__VA_ARGS__), KERNEL(Rules::__VA_ARGS__))

// "Watermark" in DejaVu Sans on a red box, or a red 100 x 50 logo.
WMRParams watermark(int mode, int size, int position, int xOffset = 0, int yOffset = 0)
{
    WMRParams params;
    params.Mode = mode;
    params.Text = "Watermark";
    params.Font = QFont("DejaVu Sans");
    params.Size = size;
    params.Position = position;
    params.XOffset = xOffset;
    params.YOffset = yOffset;
    params.Background = Qt::red;
    params.BackgroundEnabled = true;
    params.ImageData = TestUtils::filledImage(100, 50, 0xffff0000);
    return params;
}

QRect bounds(const QImage& image, QRgb color)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == color)
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

QRect redBounds(const QImage& image)
{
    return bounds(image, 0xffff0000);
}

// The first and last pixel of each red run along row y, or along column x when y is -1.
QVector<QPair<int, int>> redRuns(const QImage& image, int x, int y)
{
    QVector<QPair<int, int>> runs;
    const int length = y < 0 ? image.height() : image.width();
    for (int i = 0; i < length; ++i) {
        if (image.pixel(y < 0 ? x : i, y < 0 ? i : y) != 0xffff0000)
            continue;
        if (runs.isEmpty() || runs.last().second != i - 1)
            runs.append({i, i});
        runs.last().second = i;
    }
    return runs;
}

// Grey noise with one flat quadrant (0 top left .. 3 bottom right), no pixel of it red.
QImage noiseBesideFlat(int width, int height, int flatQuadrant)
{
    std::mt19937 random(7);
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const bool flat = (x >= width / 2) == bool(flatQuadrant & 1) &&
                              (y >= height / 2) == bool(flatQuadrant & 2);
            const int level = flat ? 128 : int(random() % 256);
            image.setPixel(x, y, qRgb(level, level, level));
        }
    return image;
}

} // namespace

class TestKernels : public QObject
{
    Q_OBJECT

private slots:
    void followsTheRule_data()
    {
        addColumns<Kernel, Kernel, QImage>("kernel", "rule", "image");
        const Kernel same = KERNEL(i);
        const Case cases[] = {
            RULE("right 90", QSize(131, 66), rotateImage(i, 90)),
            RULE("right 90 one pixel", QSize(1, 1), rotateImage(i, 90)),
            RULE("left 90", QSize(70, 130), rotateImage(i, 270)),
            // Large enough for the result to live in huge-page memory.
            RULE("180", QSize(1500, 1400), rotateImage(i, 180)),
            Case("mirror horizontal", {37, 11}, KERNEL(mirrorImage(i, 1, 0)),
                 KERNEL(i.mirrored(1, 0))),
            Case("mirror both", {37, 11}, KERNEL(mirrorImage(i, 1, 1)), KERNEL(i.mirrored(1, 1))),
            RULE("invert", QSize(97, 61), invertImage(i)),
            Case("neutral settings", {97, 61},
                 KERNEL(adjustBrightnessContrastSaturation(i, 0, 0, 1)), same),
            RULE("blur 1", QSize(64, 63), blurImage(i, 1, {0, 0, 64, 63}, false)),
            RULE("blur 5 alpha only", QSize(9, 9), blurImage(i, 5, {0, 0, 9, 9}, true)),
            RULE("blur 30 weighs 1/16", QSize(33, 17), blurImage(i, 30, {0, 0, 33, 17}, false)),
            RULE("blur inner region", QSize(40, 30), blurImage(i, 3, {5, 4, 20, 11}, false)),
            RULE("blur past the edges", QSize(40, 30), blurImage(i, 7, {-10, 20, 60, 50}, false)),
            RULE("blur region backwards", QSize(40, 30),
                 blurImage(i, 2, {30, 25, -26, -22}, false)),
            RULE("blur region outside", QSize(40, 30), blurImage(i, 4, {50, 40, 10, 10}, false)),
            RULE("vignette landscape", QSize(120, 80), vignetteImage(i, 65, 80, Qt::darkRed)),
            RULE("vignette radius 0", QSize(77, 13), vignetteImage(i, 0, 60, Qt::black)),
            // Wider than Qt's raster chunk of 2048 and stretched beyond 100 : 1.
            RULE("vignette 2600 wide", QSize(2600, 20), vignetteImage(i, 60, 100, Qt::darkGreen)),
            RULE("vignette 2600 high", QSize(20, 2600), vignetteImage(i, 60, 55, Qt::darkBlue)),
            // Faint values, where premultiplying shows which of Qt's paths was followed.
            RULE("vignette faint", QSize(1528, 358), vignetteImage(i, 100, 32, QColor(0x413180)))};
        const std::pair<QImage::Format, const char*> formats[] = {
            {QImage::Format_RGB32, "RGB32"},
            {QImage::Format_ARGB32, "ARGB32"},
            {QImage::Format_ARGB32_Premultiplied, "premultiplied"}};
        std::mt19937 random(1);
        for (const auto& [name, size, kernel, rule] : cases)
            for (const auto& [format, formatName] : formats) {
                // Random words, every fifth pixel translucent.
                QImage image(size, QImage::Format_ARGB32);
                for (int y = 0; y < image.height(); ++y)
                    for (int x = 0; x < image.width(); ++x)
                        image.setPixel(x, y, QRgb(random()) | ((x + y) % 5 ? 0xff000000 : 0));
                image = image.convertToFormat(format);
                image.setDotsPerMeterX(5000);
                // A stray alpha byte in RGB32 words, which pixel() and setPixel() make opaque.
                for (int y = 0; format == QImage::Format_RGB32 && y < image.height(); y += 2)
                    reinterpret_cast<QRgb*>(image.scanLine(y))[0] &= 0x12ffffff;
                QTest::addRow("%s %s", name, formatName) << kernel << rule << image;
            }
    }

    void followsTheRule()
    {
        auto [kernel, rule, image] = fetch<Kernel, Kernel, QImage>("kernel", "rule", "image");
        const MessageCount messages;
        const QImage expected = rule(image);
        const int before = MessageCount::count;
        const QImage result = kernel(image);
        QCOMPARE(MessageCount::count, before); // no warning per pixel read outside the image
        QCOMPARE(result.format(), expected.format());
        QCOMPARE(result.dotsPerMeterX(), expected.dotsPerMeterX());
        QCOMPARE_IMAGES(result, expected);
        QImage empty;
        QVERIFY(kernel(empty).isNull());
    }

    void byHand_data()
    {
        addColumns<Kernel, QString, QString>("kernel", "input", "expected");
        // The turns read one place too far (O).
        const QString g = "1 2 3 4/5 6 7 8/9 a b c";
        addRow("right 90", KERNEL(rotateRight90(i)), g, "O 9 5/O a 6/O b 7/O c 8");
        addRow("-270 is right 90", KERNEL(rotateImage(i, -270)), g, "O 9 5/O a 6/O b 7/O c 8");
        addRow("-180 is 180", KERNEL(rotateImage(i, -180)), g, "O*4/O c b a/O 8 7 6");
        addRow("-90 is left 90", KERNEL(rotateImage(i, -90)), g, "O O O/4 8 c/3 7 b/2 6 a");
        addRow("45 leaves the image", KERNEL(rotateImage(i, 45)), g, g);
        addRow("mirror horizontal", KERNEL(mirrorImage(i, 1, 0)), g, "4 3 2 1/8 7 6 5/c b a 9");
        addRow("mirror vertical", KERNEL(mirrorImage(i, 0, 1)), g, "9 a b c/5 6 7 8/1 2 3 4");
        // Margins in percent, truncated toward zero: 25 % of 4 is 1, 34 % of 3 is 1, -34 % is -1.
        addRow("crop of nothing", KERNEL(cropImage(i, 0, 0, 0, 0)), g, g);
        addRow("crop 25 25 34 0", KERNEL(cropImage(i, 25, 25, 34, 0)), g, "6 7/a b");
        addRow("crop out left and top", KERNEL(cropImage(i, -25, 0, -34, 0)), g,
               "O*5/O 1 2 3 4/O 5 6 7 8/O 9 a b c");
        addRow("crop out right and bottom", KERNEL(cropImage(i, 0, -25, 0, -34)), g,
               "1 2 3 4 O/5 6 7 8 O/9 a b c O/O*5");
        addRow("crop 100 left leaves nothing", KERNEL(cropImage(i, 100, 0, 0, 0)), g, "");
        // The border is a percentage of the width on all four sides (25 % of the height is 0).
        addRow("frame 25", KERNEL(drawFrame(i, 25, Qt::red)), g,
               "R*6/R 1 2 3 4 R/R 5 6 7 8 R/R 9 a b c R/R*6");
        addRow("frame -25 cuts in", KERNEL(drawFrame(i, -25, Qt::red)), g, "6 7");

        // Weight 14/16, every channel alike. Down the centre column 3570 → 223, then 447 → 27
        // and 56 → 3; then along the rows, back up and back left.
        addRow("blur of one bright pixel", KERNEL(blurImage(i, 1, i.rect(), false)),
               "0*5/0*5/0 0 ffffffff 0 0/0*5/0*5",
               "0 0 1010101 0 0/0 2020202 12121212 1010101 0/"
               "2020202 13131313 99999999 12121212 2020202/0 2020202 11111111 1010101 0/0 0 "
               "1010101 0 0");

        // Brightness P = sqrt(0.299 R² + 0.587 G² + 0.114 B²), contrast factor k = (c + 127) / 127;
        // saturation around P first, then brightness, then contrast pivoting around 0.
        static const auto bcs = adjustBrightnessContrastSaturation;
        addRow("saturation 0: red is P = 139", KERNEL(bcs(i, 0, 0, 0)), "ffff0000", "ff8b8b8b");
        // k = 137 / 127: 120 k = 129.4, 70 k = 75.5, 20 k = 21.6.
        addRow("brightness 20 contrast 10", KERNEL(bcs(i, 20, 10, 1)), "80643200", "80814b15");
        // k = 2 with the pivot at 0, not at mid-grey (which would give 72 for 100).
        addRow("contrast 127 doubles", KERNEL(bcs(i, 0, 127, 1)), "ff641ec8", "ffc83cff");
        addRow("brightness -50 clamps", KERNEL(bcs(i, -50, 0, 1)), "ff1e3cff", "ff000acd");
        // P = 134.59: 2 (c − P) + P = 265.4, 65.4, −34.6.
        addRow("saturation 2", KERNEL(bcs(i, 0, 0, 2)), "ffc86432", "ffff4100");
        // P = 5.47: (5.47 + 10) · 2 = 30.9; contrast before brightness would give 20.
        addRow("order of the three", KERNEL(bcs(i, 10, 127, 0)), "ff0a0000", "ff1e1e1e");
        addRow("grayscale: plain average", KERNEL(grayscaleImage(i)), "8000ff01", "80555555");
        addRow("swap 0 red and blue", KERNEL(swapChannels(i, 0)), "80112233", "80332211");
        addRow("swap 1 red and green", KERNEL(swapChannels(i, 1)), "80112233", "80221133");
        addRow("swap 2 green and blue", KERNEL(swapChannels(i, 2)), "80112233", "80113322");
        addRow("binarize: equal is white", KERNEL(binarizeImage(i, 20)), "80102030", "8000ffff");
        addRow("invert", KERNEL(invertImage(i)), "80102030", "80efdfcf");
        // Hues less than 10 degrees from the source's move to (h − h1 + h2 + 359) mod 359 (hue 9
        // to 249, whose red is 38), saturation and value scale by target / source (64 / 128 · 255
        // = 127, 255 / 128 · 255 capped); the result is premultiplied.
        static const Kernel redToBlue = KERNEL(colorizeImage(i, Qt::red, Qt::blue));
        static const QColor half = QColor::fromHsv(0, 128, 255);
        addRow("colorize: far hue stays", redToBlue, "800000ff", "80000080");
        addRow("colorize: hue 10 stays", redToBlue, "ffff2b00", "ffff2b00");
        addRow("colorize: hue 9 moves", redToBlue, "ffff2a00", "ff2600ff");
        // Hue 5 towards 354: 5 + 354 + 359 = 718 is hue 0 modulo 359, where 360 would give 359.
        addRow("colorize: modulus 359",
               KERNEL(colorizeImage(i, Qt::red, QColor::fromHsv(354, 255, 255))), "ffff1600",
               "ffff0000");
        addRow("colorize: saturation scaled",
               KERNEL(colorizeImage(i, half, QColor::fromHsv(0, 64, 255))), "ffff0000", "ffff8080");
        addRow("colorize: saturation capped", KERNEL(colorizeImage(i, half, Qt::red)), "ffff0000",
               "ffff0000");
        // Black has hue -1 like grey, and its saturation and value of 0 count as ratio 0.
        addRow("colorize: black source", KERNEL(colorizeImage(i, Qt::black, Qt::red)), "ff808080",
               "ff000000");
        // The levels come from red alone: red 50 .. 150 maps 50 + k to trunc(k · 256 / 100) and
        // from 150 on to 255, in every channel; the result is opaque.
        const QString spread = "80320a4b ff644bc8 ff96c80a";
        addRow("histogram stretches red's range", KERNEL(optimizeHistogram(i, 0, 0)), spread,
               "ff000040 ff8040ff ffffff00");
        // Every pixel clipped from the top: 0 below the lowest red, 255 from there on.
        addRow("histogram high clip 200", KERNEL(optimizeHistogram(i, 200, 0)), spread,
               "ffff00ff ffffffff ffffff00");
        addRow("histogram ignores green", KERNEL(optimizeHistogram(i, 0, 0)), "ff800000 ff80ff7f",
               "ffff0000 ffffff00");
        // Clips are halved: 19 is 9.5 % of 20 pixels, 1, and keeps the ends; 100 becomes
        // trunc(100 · 256 / 255). 20 is 2 pixels and cuts them.
        const QString ends = "0*2 646464*16 ffffff*2";
        addRow("histogram clips 19", KERNEL(optimizeHistogram(i, 19, 19)), ends,
               "ff000000*2 ff646464*16 ffffffff*2");
        addRow("histogram clips 20", KERNEL(optimizeHistogram(i, 20, 20)), ends,
               "ff000000*2 ffffffff*18");
    }

    void byHand()
    {
        auto [kernel, input, expected] =
            fetch<Kernel, QString, QString>("kernel", "input", "expected");
        QImage image = fromWords(input);
        QCOMPARE_IMAGES(kernel(image), fromWords(expected));
        QCOMPARE_IMAGES(image, fromWords(input));
        QImage empty;
        QVERIFY(kernel(empty).isNull());
    }

    void sharpenCountsTheLeftNeighbourTwice()
    {
        // (8 c − the neighbours, the left one twice and the right one not at all) / 9. At the
        // first bright pixel of 0 0 0 90 90 90: (720 − 360) / 9 = 40; at the last bright pixel
        // of the mirror image: (720 − 540) / 9 = 20.
        QImage edge = fromWords("0*3 5a*3/0*3 5a*3/0*3 5a*3/0*3 5a*3", 0x010101);
        QImage mirror = edge.mirrored(true, false);
        QCOMPARE(sharpenImage(edge).pixel(2, 1), 0xff000000u);
        QCOMPARE(sharpenImage(edge).pixel(3, 1), 0xff282828u);
        QCOMPARE(sharpenImage(mirror).pixel(2, 1), 0xff141414u);
        QCOMPARE(sharpenImage(mirror).pixel(3, 1), 0xff000000u);
        for (QImage narrow : {TestUtils::filledImage(3, 10, 0), QImage()})
            QCOMPARE(sharpenImage(narrow).size(), narrow.size());
    }

    void resize_data()
    {
        // An empty size: the image comes back unchanged.
        addColumns<QSize, int, QSize, bool, QSize>("source", "mode", "asked", "preview", "size");
        addRow("percent truncates", QSize(105, 55), 0, QSize(50, 50), false, QSize(52, 27));
        addRow("maximum keeps aspect", QSize(200, 100), 1, QSize(300, 300), false, QSize(300, 150));
        // 200 x 2 into 50 x 50 would be 50 x 0.5: no side of a fit goes below one pixel.
        addRow("maximum at least 1", QSize(200, 2), 1, QSize(50, 50), false, QSize(50, 1));
        addRow("maximum skipped in preview", QSize(200, 100), 1, QSize(30, 30), true, QSize());
        // The preview caps the longer requested side at 700.
        addRow("preview caps width", QSize(90, 60), 2, QSize(1000, 500), true, QSize(700, 350));
        addRow("preview caps height", QSize(90, 60), 2, QSize(500, 1000), true, QSize(350, 700));
        addRow("preview 701 wide", QSize(90, 60), 2, QSize(701, 10), true, QSize(700, 9));
        addRow("preview 700 stays", QSize(90, 60), 2, QSize(700, 700), true, QSize(700, 700));
    }

    void resize()
    {
        auto [source, mode, asked, preview, size] =
            fetch<QSize, int, QSize, bool, QSize>("source", "mode", "asked", "preview", "size");
        QImage image = fromWords("ff102030 ff405060/ff708090 ffa0b0c0").scaled(source);
        QCOMPARE_IMAGES(resizeImage(image, asked.width(), asked.height(), mode, preview),
                        size.isEmpty()
                            ? image
                            : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }

    // Every alpha with changing colours: a photo the resize alone holds is premultiplied where
    // it lies, and must come out as Qt's own conversion into a copy gives it.
    void resizeOwnImage()
    {
        QImage image(256, 4, QImage::Format_ARGB32);
        for (int y = 0; y < 4; ++y) {
            for (int x = 0; x < 256; ++x)
                image.setPixel(x, y, qRgba(x * 7 + y * 50, 255 - x, x * 3 + y, x));
        }
        const QImage expected =
            image.scaled(101, 3, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        QCOMPARE_IMAGES(resizeImage(image, 101, 3, 2, false), expected);
        // To its own size it comes back as it is, format and all.
        QImage same = TestUtils::filledImage(8, 4, 0x80402010);
        QCOMPARE(resizeImage(same, 8, 4, 2, false).format(), QImage::Format_ARGB32);
    }

    void shrinkRowByRow_data()
    {
        // The stored size, how it is turned upright, and the size the upright image shrinks to.
        addColumns<QSize, int, QSize>("stored", "turn", "target");
        using Turn = QImageIOHandler::Transformation;
        addRow("half", QSize(64, 48), int(Turn::TransformationNone), QSize(32, 24));
        addRow("a third, odd, turned a quarter", QSize(301, 97), int(Turn::TransformationRotate90),
               QSize(32, 100));
        addRow("one pixel less, mirrored", QSize(100, 3), int(Turn::TransformationMirror),
               QSize(99, 2));
        addRow("to one pixel, turned three quarters", QSize(53, 41),
               int(Turn::TransformationRotate270), QSize(1, 1));
        addRow("one row, uneven, flipped", QSize(777, 5), int(Turn::TransformationFlip),
               QSize(13, 1));
        addRow("one column, tall, mirrored and turned", QSize(300, 2),
               int(Turn::TransformationMirrorAndRotate90), QSize(1, 7));
        addRow("most of it, flipped and turned", QSize(129, 257),
               int(Turn::TransformationFlipAndRotate90), QSize(256, 128));
        addRow("half turned", QSize(90, 70), int(Turn::TransformationRotate180), QSize(45, 35));
    }

    // Premultiplied noise with every alpha, fed a stored row at a time, against Qt's smooth
    // scaling of the whole image turned upright by Qt (mirrored, flipped, then a quarter
    // clockwise): word for word, each target row written as soon as its rows are in.
    void shrinkRowByRow()
    {
        auto [stored, turnNumber, target] = fetch<QSize, int, QSize>("stored", "turn", "target");
        const RowShrinker::Turn turn(turnNumber);
        std::mt19937 noise(uint32_t(stored.width() * 7919 + stored.height()));
        QImage image(stored, QImage::Format_ARGB32_Premultiplied);
        for (int y = 0; y < stored.height(); ++y) {
            auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (int x = 0; x < stored.width(); ++x)
                row[x] = qPremultiply(QRgb(noise()));
        }
        QImage upright = image.mirrored(turn & QImageIOHandler::TransformationMirror,
                                        turn & QImageIOHandler::TransformationFlip);
        if (turn & QImageIOHandler::TransformationRotate90)
            upright = upright.transformed(QTransform().rotate(90));
        QCOMPARE(RowShrinker::upright(stored, turn), upright.size());
        QVERIFY(RowShrinker::shrinks(upright.size(), target));
        QImage shrunk(target, QImage::Format_ARGB32_Premultiplied);
        shrunk.fill(0);
        RowShrinker shrinker(stored, turn, shrunk);
        for (int y = 0; y < stored.height(); ++y) {
            QCOMPARE(shrinker.done(), false);
            shrinker.addRow(reinterpret_cast<const QRgb*>(image.constScanLine(y)));
        }
        QVERIFY(shrinker.done());
        QCOMPARE_IMAGES(shrunk,
                        upright.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        QVERIFY(!RowShrinker::shrinks(stored, QSize(stored.width(), 1)));
        QVERIFY(!RowShrinker::shrinks(stored, QSize(1, stored.height() + 1)));
    }

    void watermarkPlacement_data()
    {
        // The red on a 1000 x 500 image; null for none.
        addColumns<WMRParams, QRect>("params", "expected");
        // Text at the first pixel size wider than 30 % of 1000 (one more than fits) in its cell
        // of the 3 x 3 grid, moved by the offsets in percent of the height (y up), with a 2-pixel
        // margin around it.
        QFont font("DejaVu Sans");
        QVERIFY2(QFontInfo(font).family() == "DejaVu Sans", "fonts-dejavu-core is missing");
        for (int size = 1; QFontMetrics(font).horizontalAdvance("Watermark") <= 300; ++size)
            font.setPixelSize(size);
        const QSize text(QFontMetrics(font).horizontalAdvance("Watermark"),
                         QFontMetrics(font).height());
        const auto box = [text](int column, int row, int dx, int dy) {
            return QRect(column * (1000 - text.width()) / 2 + 5 * dx - 2,
                         row * (500 - text.height()) / 2 - 5 * dy - 2, text.width() + 4,
                         text.height() + 4);
        };
        addRow("TopLeft", watermark(0, 30, 0), box(0, 0, 0, 0));
        addRow("TopRight", watermark(0, 30, 2), box(2, 0, 0, 0));
        addRow("MiddleLeft offsets 10 10", watermark(0, 30, 3, 10, 10), box(0, 1, 10, 10));
        addRow("Middle", watermark(0, 30, 4), box(1, 1, 0, 0));
        addRow("BottomRight offsets -4 -6", watermark(0, 30, 8, -4, -6), box(2, 2, -4, -6));
        addRow("unknown 9 is TopLeft", watermark(0, 30, 9), box(0, 0, 0, 0));
        // The logo at 20 % of 1000 is 200 x 100, drawn at 204 x 104 with the margin; at 33 %
        // it is 330 x trunc(0.5 · 330) = 165 with its left at (1000 − 330) / 2 = 335.
        addRow("logo BottomRight", watermark(1, 20, 8), QRect(798, 398, 204, 104));
        addRow("logo TopMiddle 33 %", watermark(1, 33, 1), QRect(333, -2, 334, 169));
        WMRParams params = watermark(1, 5, 8, 20);
        params.Expand = true;
        addRow("logo expanded over everything", params, QRect(0, 0, 1000, 500));
        params.Transparency = 100;
        addRow("transparency 100", params, QRect());
        params = watermark(0, 30, 4);
        params.Transparency = 100;
        addRow("transparency 100 text", params, QRect());
        addRow("unknown mode 2", watermark(2, 30, 4), QRect());
        params = watermark(0, 30, 4);
        params.Text.clear();
        addRow("empty text", params, QRect());
        params.Text = QString(3, QChar(0x200B));
        params.BackgroundEnabled = false;
        addRow("zero-width text ends", params, QRect());
        params = watermark(1, 30, 4);
        params.ImageData = QImage(0, 10, QImage::Format_ARGB32);
        addRow("logo of width 0", params, QRect());
    }

    void watermarkPlacement()
    {
        auto [params, expected] = fetch<WMRParams, QRect>("params", "expected");
        const QImage paper = TestUtils::filledImage(1000, 500, 0xff204060);
        QImage image = paper;
        const QImage result = drawWatermark(image, params);
        QCOMPARE(redBounds(result), expected & paper.rect());
        QCOMPARE(result == paper, expected.isNull());
        QImage empty;
        QVERIFY(drawWatermark(empty, params).isNull());
    }

    void watermarkLaidOut_data()
    {
        // The red logo box (100 x 50 at Size 20 of 1000: 200 x 100, drawn 204 x 104) on a photo.
        addColumns<WMRParams, QImage, QRect>("params", "photo", "expected");
        const QImage wide = TestUtils::filledImage(1000, 500, 0xff204060);
        // A quarter turn about the centre (500, 250) stands the box up: 104 x 204.
        WMRParams params = watermark(1, 20, 4);
        params.Angle = 90;
        addRow("angle 90", params, wide, QRect(448, 148, 104, 204));
        params.Angle = -90;
        addRow("angle -90", params, wide, QRect(448, 148, 104, 204));
        params.Angle = 400;
        addRow("angle beyond 90 is 90", params, wide, QRect(448, 148, 104, 204));
        // Size 30 of the width, the long or the short edge; the logo box is 4 wider.
        const QImage landscape = TestUtils::filledImage(3000, 2000, 0xff204060);
        const QImage portrait = TestUtils::filledImage(2000, 3000, 0xff204060);
        const auto sized = [](int sizeOf) {
            WMRParams sizedParams = watermark(1, 30, 0);
            sizedParams.SizeOf = sizeOf;
            return sizedParams;
        };
        addRow("width of landscape", sized(0), landscape, QRect(0, 0, 902, 452));
        addRow("width of portrait", sized(0), portrait, QRect(0, 0, 602, 302));
        addRow("long edge of landscape", sized(1), landscape, QRect(0, 0, 902, 452));
        addRow("long edge of portrait", sized(1), portrait, QRect(0, 0, 902, 452));
        addRow("short edge of landscape", sized(2), landscape, QRect(0, 0, 602, 302));
        addRow("short edge of portrait", sized(2), portrait, QRect(0, 0, 602, 302));
        // On 600 x 400 the box is 124 x 64: in a corner it shows 122 x 62. Among the corners the
        // flat one wins; the offsets still apply (5 % of 400 = 20 to the right).
        params = watermark(1, 20, 4);
        params.AutoPosition = true;
        addRow("flat top left", params, noiseBesideFlat(600, 400, 0), QRect(0, 0, 122, 62));
        addRow("flat top right", params, noiseBesideFlat(600, 400, 1), QRect(478, 0, 122, 62));
        addRow("flat bottom left", params, noiseBesideFlat(600, 400, 2), QRect(0, 338, 122, 62));
        addRow("flat bottom right", params, noiseBesideFlat(600, 400, 3), QRect(478, 338, 122, 62));
        params.XOffset = 5;
        addRow("flat top right, offset", params, noiseBesideFlat(600, 400, 1),
               QRect(498, 0, 102, 62));
        params.XOffset = 0;
        params.AutoPositions = 1 << 4 | 1 << 8;
        addRow("only middle and bottom right", params, noiseBesideFlat(600, 400, 3),
               QRect(478, 338, 122, 62));
        params.AutoPositions = 0;
        addRow("no cell ticked: the position", params, noiseBesideFlat(600, 400, 3),
               QRect(238, 168, 124, 64));
    }

    void watermarkLaidOut()
    {
        auto [params, photo, expected] =
            fetch<WMRParams, QImage, QRect>("params", "photo", "expected");
        QImage image = photo;
        QCOMPARE(redBounds(drawWatermark(image, params)), expected);
    }

    // Tiles of the 204 x 104 box with a gap of 50 %: steps of 306 and 156, every other row half
    // a step (153) to the right, from the top left cell at (-2, -2).
    void watermarkTiles()
    {
        WMRParams params = watermark(1, 20, 0);
        params.Tile = true;
        QImage image = TestUtils::filledImage(1000, 500, 0xff204060);
        drawWatermark(image, params);
        using Runs = QVector<QPair<int, int>>;
        QCOMPARE(redRuns(image, 0, 50), (Runs{{0, 201}, {304, 507}, {610, 813}, {916, 999}}));
        QCOMPARE(redRuns(image, 0, 200), (Runs{{0, 48}, {151, 354}, {457, 660}, {763, 966}}));
        QCOMPARE(redRuns(image, 100, -1), (Runs{{0, 101}, {310, 413}}));
        QCOMPARE(redRuns(image, 200, -1), (Runs{{0, 101}, {154, 257}, {310, 413}, {466, 499}}));
        // A quarter turn swaps the steps: 156 across, 306 down.
        params.Angle = 90;
        image = TestUtils::filledImage(1000, 500, 0xff204060);
        drawWatermark(image, params);
        QCOMPARE(redRuns(image, 0, 150).mid(0, 3), (Runs{{48, 151}, {204, 307}, {360, 463}}));
    }

    // With the red box behind the text, its blue shadow shows as the box moved right and down by
    // 20 % of the text height; transparency 100 hides shadow and text alike.
    void watermarkShadow()
    {
        WMRParams params = watermark(0, 30, 4);
        params.Shadow = true;
        params.ShadowColor = Qt::blue;
        params.ShadowDistance = 20;
        params.ShadowBlur = 0;
        const QImage paper = TestUtils::filledImage(1000, 500, 0xff204060);
        QImage image = paper;
        drawWatermark(image, params);
        const QRect box = redBounds(image);
        // The box is the text height plus the 2-pixel margins.
        const int distance = (box.height() - 4) * 20 / 100;
        QVERIFY(distance > 3);
        QCOMPARE(bounds(image, 0xff0000ff), box.translated(distance, distance));
        params.Transparency = 100;
        image = paper;
        QCOMPARE_IMAGES(drawWatermark(image, params), paper);
    }

    // Large, outlined and turned letters come from outlines: drawn again after smaller texts on
    // the same thread, the same mark comes out the same.
    void watermarkTextKeepsNoHistory()
    {
        for (int variant = 0; variant < 3; ++variant) {
            WMRParams params = watermark(0, 60, 4);
            params.Outline = variant == 1;
            params.Angle = variant == 2 ? 30 : 0;
            const QImage paper = TestUtils::filledImage(1000, 300, 0xff204060);
            QImage first = paper;
            drawWatermark(first, params);
            WMRParams small = watermark(0, 60, 4);
            small.Text = QString("Other %1").arg(variant);
            for (int width = 20; width < 200; width += 7) {
                QImage other = TestUtils::filledImage(width, 50, 0xff204060);
                drawWatermark(other, small);
            }
            QImage again = paper;
            QCOMPARE_IMAGES(drawWatermark(again, params), first);
        }
    }

    // White text gives way to black on a white photo and stays on a black one; black text turns
    // white on black.
    void watermarkAutoColor_data()
    {
        addColumns<QRgb, QRgb, QRgb>("photo", "chosen", "drawn");
        addRow("white on white", 0xffffffff, 0xffffffff, 0xff000000);
        addRow("white on black", 0xff000000, 0xffffffff, 0xffffffff);
        addRow("black on black", 0xff000000, 0xff000000, 0xffffffff);
        addRow("black on white", 0xffffffff, 0xff000000, 0xff000000);
    }

    void watermarkAutoColor()
    {
        auto [photo, chosen, drawn] = fetch<QRgb, QRgb, QRgb>("photo", "chosen", "drawn");
        WMRParams params = watermark(0, 60, 4);
        params.BackgroundEnabled = false;
        params.Color = QColor::fromRgb(chosen);
        params.AutoColor = true;
        QImage image = TestUtils::filledImage(600, 400, photo);
        drawWatermark(image, params);
        QVERIFY(!bounds(image, drawn).isEmpty());
    }
};

PELODINE_TEST_MAIN(TestKernels)
#include "tst_kernels.moc"
