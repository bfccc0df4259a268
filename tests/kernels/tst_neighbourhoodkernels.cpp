// Blur, sharpness, vignette and histogram optimizer: small cases worked out by hand, and the
// blur and the vignette against their rules written out plainly (four scalar passes; the
// gradient square painted and stretched with QPainter).
#include "kernelimages.h"
#include "neighbourhood.h"
#include "testutils.h"

#include <QPainter>

#include <cmath>

using KernelImages::formatName;
using KernelImages::word;
using KernelImages::wordFormats;

namespace {

// The four passes exactly as described, one channel and one pixel at a time.
QImage ruleBlur(const QImage& image, int radius, QRect region, bool alphaOnly)
{
    static const int table[] = {14, 10, 8, 6, 5, 5, 4, 3, 3, 3, 3, 2, 2, 2, 2, 2, 2};
    QImage result = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int a = radius <= 0 ? 16 : radius <= 17 ? table[radius - 1] : 1;
    const QRect r = region.normalized();
    const int left = std::max(r.left(), 0), top = std::max(r.top(), 0);
    const int right = r.right() >= result.width() ? result.width() - 1 : r.right();
    const int bottom = r.bottom() >= result.height() ? result.height() - 1 : r.bottom();
    const auto at = [&result](int x, int y, int c) -> uchar& {
        return result.scanLine(y)[4 * x + c];
    };
    const auto line = [&](int c, int startX, int startY, int dx, int dy, int steps) {
        int z = at(startX, startY, c) * 16;
        for (int i = 1; i <= steps; ++i) {
            uchar& byte = at(startX + i * dx, startY + i * dy, c);
            z = z + ((byte * 16 - z) * a) / 16;
            byte = uchar(z >> 4);
        }
    };
    for (int c = alphaOnly ? 3 : 0; c < 4; ++c) {
        for (int x = left; x <= right; ++x)
            line(c, x, top, 0, 1, bottom - top);
        for (int y = top; y <= bottom; ++y)
            line(c, left, y, 1, 0, right - left);
        for (int x = left; x <= right; ++x)
            line(c, x, bottom, 0, -1, bottom - top);
        for (int y = top; y <= bottom; ++y)
            line(c, right, y, -1, 0, right - left);
    }
    return result;
}

// The vignette as defined: a gradient painted on an S x S square, drawn stretched over the image.
QImage ruleVignette(QImage image, int radius, int opacity, const QColor& colour)
{
    const int w = image.width(), h = image.height(), s = std::max(w, h);
    QImage square(s, s, image.format());
    square.fill(QColor(255, 255, 255, 0));
    QRadialGradient gradient(QPointF(s / 2, s / 2), (radius * s) / 100, QPointF(s / 2, s / 2));
    const auto lifted = [&colour](int amount) {
        return QColor(std::min(colour.red() + amount, 255), std::min(colour.green() + amount, 255),
                      std::min(colour.blue() + amount, 255), 0);
    };
    gradient.setColorAt(0.0, lifted(200));
    gradient.setColorAt(0.5, lifted(40));
    gradient.setColorAt(1.0, QColor(colour.red(), colour.green(), colour.blue(), 255));
    QPainter squarePainter(&square);
    squarePainter.setOpacity(opacity / 100.0);
    squarePainter.setPen(Qt::NoPen);
    squarePainter.setBrush(gradient);
    squarePainter.drawRect(0, 0, s, s);
    squarePainter.end();
    QPainter painter(&image);
    painter.drawImage(QRect(0, 0, w, h), square, QRect(0, 0, s, s));
    painter.end();
    return image;
}

QImage greyImage(const std::vector<std::vector<int>>& levels)
{
    QImage image(int(levels[0].size()), int(levels.size()), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, QRgb(levels[y][x]) * 0x01010101u);
    return image;
}

QImage rgbPixels(const std::vector<QRgb>& pixels)
{
    QImage image(int(pixels.size()), 1, QImage::Format_ARGB32);
    for (int x = 0; x < image.width(); ++x)
        image.setPixel(x, 0, pixels[x]);
    return image;
}

} // namespace

class TestNeighbourhoodKernels : public QObject
{
    Q_OBJECT

private slots:
    void blurOfOneBrightPixel();
    void blurWeights_data();
    void blurWeights();
    void blurFollowsThePasses_data();
    void blurFollowsThePasses();
    void blurKeepsPixelsOutsideTheRegion();
    void sharpenFlatImage();
    void sharpenEdgeAndItsMirror();
    void sharpenNarrowImage_data();
    void sharpenNarrowImage();
    void histogram_data();
    void histogram();
    void vignetteFollowsThePaintedSquare_data();
    void vignetteFollowsThePaintedSquare();
    void vignetteReachesItsColour_data();
    void vignetteReachesItsColour();
    void emptyImages();
};

void TestNeighbourhoodKernels::blurOfOneBrightPixel()
{
    // Radius 1 (weight 14/16) on a white pixel in a transparent 5 x 5 image, every channel alike.
    // Down the centre column: 3570 → 223, then 447 → 27 and 56 → 3; then along the rows, back
    // up and back left.
    QImage image = greyImage(
        {{0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, {0, 0, 255, 0, 0}, {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}});
    const QImage expected = greyImage({{0, 0, 1, 0, 0},
                                       {0, 2, 18, 1, 0},
                                       {2, 19, 153, 18, 2},
                                       {0, 2, 17, 1, 0},
                                       {0, 0, 1, 0, 0}});
    QCOMPARE_IMAGES(OrkGraphX::blurImage(image, 1, QRect(0, 0, 5, 5), false), expected);
}

void TestNeighbourhoodKernels::blurWeights_data()
{
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("sameAs");
    QTest::addColumn<bool>("same");
    QTest::newRow("30 behaves like 18") << 30 << 18 << true;
    QTest::newRow("1000 behaves like 18") << 1000 << 18 << true;
    QTest::newRow("17 differs from 18") << 17 << 18 << false;
    QTest::newRow("16 behaves like 17 (both 2/16)") << 16 << 17 << true;
    QTest::newRow("-5 behaves like 0") << -5 << 0 << true;
}

void TestNeighbourhoodKernels::blurWeights()
{
    QFETCH(int, radius);
    QFETCH(int, sameAs);
    QFETCH(bool, same);
    QImage image = KernelImages::noise(23, 19, QImage::Format_ARGB32);
    const QRect whole = image.rect();
    const QImage a = OrkGraphX::blurImage(image, radius, whole, false);
    const QImage b = OrkGraphX::blurImage(image, sameAs, whole, false);
    QCOMPARE(TestUtils::imageDifference(a, b).isEmpty(), same);
}

void TestNeighbourhoodKernels::blurFollowsThePasses_data()
{
    QTest::addColumn<QImage>("image");
    QTest::addColumn<int>("radius");
    QTest::addColumn<QRect>("region");
    QTest::addColumn<bool>("alphaOnly");
    const QSize sizes[] = {{1, 1}, {1, 7}, {7, 1}, {9, 9}, {33, 17}, {64, 63}};
    const int radii[] = {0, 1, 5, 18};
    for (QImage::Format format : wordFormats)
        for (const QSize& size : sizes)
            for (int radius : radii) {
                const QImage image =
                    KernelImages::noise(size.width(), size.height(), format, unsigned(radius + 7));
                const QRect whole(0, 0, size.width(), size.height());
                QTest::addRow("%s %dx%d radius %d", formatName(format), size.width(), size.height(),
                              radius)
                    << image << radius << whole << false;
                QTest::addRow("%s %dx%d radius %d alpha only", formatName(format), size.width(),
                              size.height(), radius)
                    << image << radius << whole << true;
            }
    const QImage image = KernelImages::noise(40, 30, QImage::Format_ARGB32, 99);
    QTest::newRow("inner region") << image << 3 << QRect(5, 4, 20, 11) << false;
    QTest::newRow("region past the right and bottom")
        << image << 3 << QRect(30, 20, 50, 50) << false;
    QTest::newRow("region past the left and top") << image << 7 << QRect(-10, -3, 25, 12) << false;
    QTest::newRow("region given backwards")
        << image << 2 << QRect(QPoint(30, 25), QPoint(3, 2)) << false;
    QTest::newRow("one column") << image << 1 << QRect(12, 0, 1, 30) << false;
    QTest::newRow("region outside the image") << image << 4 << QRect(50, 40, 10, 10) << false;
}

void TestNeighbourhoodKernels::blurFollowsThePasses()
{
    QFETCH(QImage, image);
    QFETCH(int, radius);
    QFETCH(QRect, region);
    QFETCH(bool, alphaOnly);
    const QImage result = OrkGraphX::blurImage(image, radius, region, alphaOnly);
    QCOMPARE(result.format(), QImage::Format_ARGB32_Premultiplied);
    QCOMPARE_IMAGES(result, ruleBlur(image, radius, region, alphaOnly));
}

void TestNeighbourhoodKernels::blurKeepsPixelsOutsideTheRegion()
{
    QImage image = KernelImages::noise(30, 20, QImage::Format_ARGB32_Premultiplied, 3);
    const QRect region(4, 5, 10, 6);
    const QImage result = OrkGraphX::blurImage(image, 2, region, false);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 30; ++x)
            if (!region.contains(x, y))
                QCOMPARE(word(result, x, y), word(image, x, y));
    QVERIFY(!TestUtils::imageDifference(result, image).isEmpty());
}

void TestNeighbourhoodKernels::sharpenFlatImage()
{
    // 8c minus eight samples of c is 0 in every channel; written pixels get alpha 255.
    QImage image = TestUtils::filledImage(9, 7, 0x80405060);
    const QImage result = OrkGraphX::sharpenImage(image);
    QCOMPARE(result.size(), image.size());
    for (int y = 1; y <= 7 - 3; ++y)
        for (int x = 1; x <= 9 - 3; ++x)
            QCOMPARE(word(result, x, y), 0xff000000u);
}

void TestNeighbourhoodKernels::sharpenEdgeAndItsMirror()
{
    // Dark (0) then bright (90) columns, and the mirror image. At the first bright pixel the
    // eight samples are 0 + 90 + 90 + 0 + 0 + 0 + 90 + 90 = 360: (720 − 360) / 9 = 40. In the
    // mirror the last bright pixel sees its bright left neighbour twice and not its dark right
    // one: 90 + 90 + 0 + 90 + 90 + 90 + 90 + 0 = 540, (720 − 540) / 9 = 20.
    const std::vector<int> darkThenBright = {0, 0, 0, 90, 90, 90};
    const std::vector<int> brightThenDark = {90, 90, 90, 0, 0, 0};
    QImage edge = greyImage(std::vector<std::vector<int>>(5, darkThenBright));
    QImage mirror = greyImage(std::vector<std::vector<int>>(5, brightThenDark));
    const QImage a = OrkGraphX::sharpenImage(edge);
    const QImage b = OrkGraphX::sharpenImage(mirror);
    for (int y = 1; y <= 2; ++y) {
        QCOMPARE(word(a, 1, y), 0xff000000u);
        QCOMPARE(word(a, 2, y), 0xff000000u);
        QCOMPARE(word(a, 3, y), 0xff282828u);
        QCOMPARE(word(b, 1, y), 0xff000000u);
        QCOMPARE(word(b, 2, y), 0xff141414u);
        QCOMPARE(word(b, 3, y), 0xff000000u);
    }
}

void TestNeighbourhoodKernels::sharpenNarrowImage_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("3 wide") << QSize(3, 10);
    QTest::newRow("1 x 1") << QSize(1, 1);
    QTest::newRow("10 x 3") << QSize(10, 3);
}

void TestNeighbourhoodKernels::sharpenNarrowImage()
{
    QFETCH(QSize, size);
    QImage image = TestUtils::filledImage(size.width(), size.height(), 0xff808080);
    QCOMPARE(OrkGraphX::sharpenImage(image).size(), size);
}

void TestNeighbourhoodKernels::histogram_data()
{
    QTest::addColumn<QImage>("image");
    QTest::addColumn<int>("highClip");
    QTest::addColumn<int>("lowClip");
    QTest::addColumn<QList<QRgb>>("expected"); // the first three pixels

    // Red 50 .. 150: entry 50 + k is trunc(k · 256 / 100), and from 150 on 255. Green and
    // blue use the red table: 75 → 64, 200 → 255, 10 → 0. Alpha becomes opaque.
    const QImage spread = rgbPixels({0x80320a4b, 0xff644bc8, 0xff96c80a});
    QTest::newRow("both clips 0 stretch min to max")
        << spread << 0 << 0 << QList<QRgb>{0xff000040, 0xff8040ff, 0xffffff00};
    // A high clip of 200 counts every pixel: high is −1, so 0 below low and 255 from low on.
    QTest::newRow("high clip 200")
        << spread << 200 << 0 << QList<QRgb>{0xffff00ff, 0xffffffff, 0xffffff00};
    // A low clip of 200 never finds low: every entry stays 0.
    QTest::newRow("low clip 200") << spread << 0 << 200
                                  << QList<QRgb>{0xff000000, 0xff000000, 0xff000000};

    // 200 pixels: two of red 0, 196 of 100, two of 255.
    QImage ends(200, 1, QImage::Format_RGB32);
    ends.fill(QColor(100, 100, 100));
    ends.setPixel(0, 0, 0xff000000);
    ends.setPixel(1, 0, 0xff000000);
    ends.setPixel(198, 0, 0xffffffff);
    ends.setPixel(199, 0, 0xffffffff);
    // Clip 1 is halved to 0.5 % = 1 pixel: both ends survive, 100 → trunc(100 · 256 / 255).
    QTest::newRow("clips 1 keep the ends")
        << ends << 1 << 1 << QList<QRgb>{0xff000000, 0xff000000, 0xff646464};
    // Clip 2 is 1 % = 2 pixels: both ends are cut, low = high = 100.
    QTest::newRow("clips 2 cut the ends")
        << ends << 2 << 2 << QList<QRgb>{0xff000000, 0xff000000, 0xffffffff};

    // Only red takes part: green spans 0..255 but red is constant 128 → low = high = 128.
    QTest::newRow("levels from red only") << rgbPixels({0xff800000, 0xff80ff7f, 0xff808080}) << 0
                                          << 0 << QList<QRgb>{0xffff0000, 0xffffff00, 0xffffffff};
}

void TestNeighbourhoodKernels::histogram()
{
    QFETCH(QImage, image);
    QFETCH(int, highClip);
    QFETCH(int, lowClip);
    QFETCH(QList<QRgb>, expected);
    const QImage result = OrkGraphX::optimizeHistogram(image, highClip, lowClip);
    QCOMPARE(result.format(), QImage::Format_ARGB32);
    QCOMPARE(result.size(), image.size());
    for (int x = 0; x < 3; ++x)
        QCOMPARE(word(result, x, 0), expected[x]);
}

void TestNeighbourhoodKernels::vignetteFollowsThePaintedSquare_data()
{
    QTest::addColumn<QImage>("image");
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("opacity");
    QTest::addColumn<QColor>("colour");
    const struct
    {
        QSize size;
        int radius;
        int opacity;
        QColor colour;
    } cases[] = {
        {{120, 80}, 65, 80, Qt::black},
        {{80, 120}, 50, 100, QColor(200, 30, 90)},
        {{101, 101}, 100, 35, QColor(20, 240, 250)},
        {{77, 13}, 0, 60, Qt::black},
        {{13, 77}, 1000, 100, QColor(255, 255, 255)},
        {{1, 1}, 65, 80, Qt::black},
        {{2, 1}, 40, 90, Qt::red},
        // Wider than one raster chunk of 2048 pixels.
        {{2300, 70}, 70, 70, QColor(10, 20, 30)},
        // A stretch beyond 100 : 1 leaves Qt's fixed-point path.
        {{2600, 20}, 60, 100, QColor(0, 90, 0)},
        {{20, 2600}, 60, 55, QColor(0, 0, 90)},
        // Faint square values, where premultiplication rounding shows which table Qt used.
        {{1528, 358}, 100, 32, QColor(0x41, 0x31, 0x80)},
    };
    for (const auto& c : cases)
        for (QImage::Format format : wordFormats)
            QTest::addRow("%dx%d radius %d opacity %d %s", c.size.width(), c.size.height(),
                          c.radius, c.opacity, formatName(format))
                << KernelImages::noise(c.size.width(), c.size.height(), format,
                                       unsigned(c.size.width() + c.radius))
                << c.radius << c.opacity << c.colour;
}

void TestNeighbourhoodKernels::vignetteFollowsThePaintedSquare()
{
    QFETCH(QImage, image);
    QFETCH(int, radius);
    QFETCH(int, opacity);
    QFETCH(QColor, colour);
    const QImage expected = ruleVignette(image, radius, opacity, colour);
    QImage given = image;
    const QImage result = OrkGraphX::vignetteImage(given, radius, opacity, colour);
    QCOMPARE(result.format(), image.format());
    QCOMPARE_IMAGES(result, expected);
    // It paints into the image it is given.
    QCOMPARE_IMAGES(given, expected);
}

void TestNeighbourhoodKernels::vignetteReachesItsColour_data()
{
    QTest::addColumn<int>("radius");
    QTest::addColumn<bool>("reached");
    QTest::newRow("radius 50 reaches it outside the inscribed circle") << 50 << true;
    QTest::newRow("radius 100 reaches it nowhere") << 100 << false;
}

void TestNeighbourhoodKernels::vignetteReachesItsColour()
{
    QFETCH(int, radius);
    QFETCH(bool, reached);
    const int s = 100;
    QImage image = TestUtils::filledImage(s, s, 0xffffffff);
    const QImage result = OrkGraphX::vignetteImage(image, radius, 100, QColor(0, 0, 255));
    int full = 0;
    for (int y = 0; y < s; ++y)
        for (int x = 0; x < s; ++x) {
            const double distance = std::hypot(x + 0.5 - s / 2, y + 0.5 - s / 2);
            const bool isColour = word(result, x, y) == 0xff0000ffu;
            full += isColour;
            // Clear of the circle's edge, where the last table step rounds up.
            if (reached && distance > s / 2.0 + 0.5)
                QVERIFY2(isColour, qPrintable(QString("(%1, %2)").arg(x).arg(y)));
            if (distance < s / 2.0 * radius / 100.0 - 1)
                QVERIFY2(!isColour, qPrintable(QString("(%1, %2)").arg(x).arg(y)));
        }
    QCOMPARE(full > 0, reached);
    // The centre lies inside the transparent half of the gradient.
    QCOMPARE(word(result, s / 2, s / 2), 0xffffffffu);
}

void TestNeighbourhoodKernels::emptyImages()
{
    QImage empty;
    QVERIFY(OrkGraphX::blurImage(empty, 5, QRect(0, 0, 10, 10), false).isNull());
    QVERIFY(OrkGraphX::sharpenImage(empty).isNull());
    QVERIFY(OrkGraphX::vignetteImage(empty, 65, 80, Qt::black).isNull());
    QVERIFY(OrkGraphX::optimizeHistogram(empty, 2, 2).isNull());
    QImage zeroWidth(0, 3, QImage::Format_ARGB32);
    QVERIFY(OrkGraphX::vignetteImage(zeroWidth, 65, 80, Qt::black).isNull());
    QVERIFY(OrkGraphX::optimizeHistogram(zeroWidth, 0, 0).isNull());
}

PELODINE_TEST_MAIN(TestNeighbourhoodKernels)
#include "tst_neighbourhoodkernels.moc"
