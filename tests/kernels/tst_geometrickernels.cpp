// Geometric kernels: the turns, crop and frame against the pixel-by-pixel rule written with
// QImage::pixel / QImage::setPixel, plus sizes and placements worked out by hand.
#include "geometric.h"
#include "kernelimages.h"
#include "testutils.h"

#include <functional>

using Kernel = std::function<QImage(QImage&)>;
using Reference = std::function<QImage(const QImage&)>;
Q_DECLARE_METATYPE(Kernel)
Q_DECLARE_METATYPE(Reference)

using KernelImages::formatName;
using KernelImages::word;
using KernelImages::wordFormats;

namespace {

// Counts the messages Qt logs while it exists, and keeps them out of the test output.
class MessageCounter
{
public:
    MessageCounter() { previous = qInstallMessageHandler(&MessageCounter::count); }
    ~MessageCounter() { qInstallMessageHandler(previous); }
    int messages() const { return counted; }

private:
    static inline int counted = 0;
    QtMessageHandler previous = nullptr;
    static void count(QtMsgType, const QMessageLogContext&, const QString&) { ++counted; }
};

// The rules as stated, one pixel at a time; pixel() outside the image answers 12345.
QImage pixelRuleCopy(const QImage& source, QSize size,
                     const std::function<QPoint(int x, int y)>& sourceOf)
{
    const MessageCounter quiet;
    QImage result(size, source.format());
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const QPoint from = sourceOf(x, y);
            result.setPixel(x, y, source.pixel(from.x(), from.y()));
        }
    return result;
}

QImage ruleRight90(const QImage& s)
{
    const int h = s.height();
    return pixelRuleCopy(s, QSize(s.height(), s.width()),
                         [h](int x, int y) { return QPoint(y, h - x); });
}

QImage rule180(const QImage& s)
{
    const int w = s.width(), h = s.height();
    return pixelRuleCopy(s, s.size(), [w, h](int x, int y) { return QPoint(w - x, h - y); });
}

QImage ruleLeft90(const QImage& s)
{
    const int w = s.width();
    return pixelRuleCopy(s, QSize(s.height(), s.width()),
                         [w](int x, int y) { return QPoint(w - y, x); });
}

QImage ruleCrop(const QImage& s, int l, int r, int t, int b)
{
    const int w = s.width(), h = s.height();
    const int x0 = (l * w) / 100, y0 = (t * h) / 100;
    const QSize size(w - ((w * r) / 100 + x0), h - ((h * b) / 100 + y0));
    return pixelRuleCopy(s, size, [x0, y0](int x, int y) { return QPoint(x0 + x, y0 + y); });
}

QImage ruleFrame(const QImage& s, int percent, const QColor& colour)
{
    const int border = int((s.width() * percent) / 100.0);
    QImage result(s.width() + 2 * border, s.height() + 2 * border, s.format());
    result.fill(colour);
    const MessageCounter quiet;
    for (int y = 0; y < s.height(); ++y)
        for (int x = 0; x < s.width(); ++x)
            result.setPixel(border + x, border + y, s.pixel(x, y));
    return result;
}

// Noise whose RGB32 words carry a stray alpha byte here and there: pixel() and setPixel()
// both set it to 0xff, so a copy through them does too.
QImage testImage(int width, int height, QImage::Format format)
{
    QImage image = KernelImages::noise(width, height, format, unsigned(width * 31 + height));
    if (format == QImage::Format_RGB32)
        for (int y = 0; y < height; y += 2)
            reinterpret_cast<QRgb*>(image.scanLine(y))[0] &= 0x12ffffff;
    return image;
}

} // namespace

class TestGeometricKernels : public QObject
{
    Q_OBJECT

private slots:
    void turnsFollowThePixelRule_data();
    void turnsFollowThePixelRule();
    void outOfRangeValue_data();
    void outOfRangeValue();
    void rotateDispatch_data();
    void rotateDispatch();
    void noWarningPerPixel_data();
    void noWarningPerPixel();
    void crop_data();
    void crop();
    void cropOfTheWholeWidthOrHeight_data();
    void cropOfTheWholeWidthOrHeight();
    void frame();
    void frameFollowsThePixelRule_data();
    void frameFollowsThePixelRule();
    void mirror_data();
    void mirror();
    void resize_data();
    void resize();
    void fitIntoBox_data();
    void fitIntoBox();
    void emptyImage_data();
    void emptyImage();
};

void TestGeometricKernels::turnsFollowThePixelRule_data()
{
    QTest::addColumn<Kernel>("kernel");
    QTest::addColumn<Reference>("reference");
    QTest::addColumn<QImage>("image");
    const struct
    {
        const char* name;
        Kernel kernel;
        Reference reference;
    } turns[] = {{"right 90", OrkGraphX::rotateRight90, ruleRight90},
                 {"180", OrkGraphX::rotate180, rule180},
                 {"left 90", OrkGraphX::rotateLeft90, ruleLeft90}};
    // 1500 x 1400 is large enough for the result to live in huge-page memory.
    const QSize sizes[] = {{7, 5},  {1, 1},    {1, 4},    {4, 1},      {8, 3},
                           {64, 9}, {70, 130}, {131, 66}, {1500, 1400}};
    for (const auto& turn : turns)
        for (QImage::Format format : wordFormats)
            for (const QSize& size : sizes)
                QTest::addRow("%s %s %dx%d", turn.name, formatName(format), size.width(),
                              size.height())
                    << turn.kernel << turn.reference
                    << testImage(size.width(), size.height(), format);
}

void TestGeometricKernels::turnsFollowThePixelRule()
{
    QFETCH(Kernel, kernel);
    QFETCH(Reference, reference);
    QFETCH(QImage, image);
    const QImage result = kernel(image);
    QCOMPARE(result.format(), image.format());
    QCOMPARE_IMAGES(result, reference(image));
}

void TestGeometricKernels::outOfRangeValue_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QRgb>("stored");
    // setPixel() stores 12345 as it stands, except that RGB32 forces the alpha byte to 0xff.
    QTest::newRow("RGB32") << QImage::Format_RGB32 << 0xff003039u;
    QTest::newRow("ARGB32") << QImage::Format_ARGB32 << 0x00003039u;
    QTest::newRow("ARGB32 premultiplied") << QImage::Format_ARGB32_Premultiplied << 0x00003039u;
}

void TestGeometricKernels::outOfRangeValue()
{
    QFETCH(QImage::Format, format);
    QFETCH(QRgb, stored);
    // A 6 x 4 image whose bottom row is white and all else grey.
    QImage image = KernelImages::filled(6, 4, format, 0xff808080);
    std::fill_n(reinterpret_cast<QRgb*>(image.scanLine(3)), 6, 0xffffffff);

    const QImage right = OrkGraphX::rotateRight90(image);
    QCOMPARE(right.size(), QSize(4, 6));
    for (int y = 0; y < 6; ++y) {
        QCOMPARE(word(right, 0, y), stored); // not the white bottom row
        QCOMPARE(word(right, 1, y), 0xffffffffu);
        QCOMPARE(word(right, 3, y), 0xff808080u);
    }
    const QImage left = OrkGraphX::rotateLeft90(image);
    for (int x = 0; x < 4; ++x)
        QCOMPARE(word(left, x, 0), stored);
    QCOMPARE(word(left, 3, 1), 0xffffffffu);
    const QImage half = OrkGraphX::rotate180(image);
    for (int x = 0; x < 6; ++x)
        QCOMPARE(word(half, x, 0), stored);
    for (int y = 0; y < 4; ++y)
        QCOMPARE(word(half, 0, y), stored);
    QCOMPARE(word(half, 5, 1), 0xffffffffu);
}

void TestGeometricKernels::rotateDispatch_data()
{
    QTest::addColumn<int>("angle");
    QTest::addColumn<Kernel>("expected");
    const Kernel unchanged = [](QImage& i) { return i; };
    QTest::newRow("45 leaves the image") << 45 << unchanged;
    QTest::newRow("0 leaves the image") << 0 << unchanged;
    QTest::newRow("450 leaves the image") << 450 << unchanged;
    QTest::newRow("90") << 90 << Kernel(OrkGraphX::rotateRight90);
    QTest::newRow("-270 equals 90") << -270 << Kernel(OrkGraphX::rotateRight90);
    QTest::newRow("180") << 180 << Kernel(OrkGraphX::rotate180);
    QTest::newRow("-180 equals 180") << -180 << Kernel(OrkGraphX::rotate180);
    QTest::newRow("270") << 270 << Kernel(OrkGraphX::rotateLeft90);
    QTest::newRow("-90 equals 270") << -90 << Kernel(OrkGraphX::rotateLeft90);
}

void TestGeometricKernels::rotateDispatch()
{
    QFETCH(int, angle);
    QFETCH(Kernel, expected);
    QImage image = testImage(9, 4, QImage::Format_ARGB32);
    QCOMPARE_IMAGES(OrkGraphX::rotateImage(image, angle), expected(image));
}

void TestGeometricKernels::noWarningPerPixel_data()
{
    QTest::addColumn<Kernel>("kernel");
    QTest::newRow("right 90") << Kernel(OrkGraphX::rotateRight90);
    QTest::newRow("180") << Kernel(OrkGraphX::rotate180);
    QTest::newRow("left 90") << Kernel(OrkGraphX::rotateLeft90);
    QTest::newRow("crop reaching outside")
        << Kernel([](QImage& i) { return OrkGraphX::cropImage(i, -20, -20, -20, -20); });
    QTest::newRow("frame reaching outside")
        << Kernel([](QImage& i) { return OrkGraphX::drawFrame(i, -10, Qt::red); });
}

void TestGeometricKernels::noWarningPerPixel()
{
    QFETCH(Kernel, kernel);
    QImage image = testImage(40, 30, QImage::Format_ARGB32);
    const MessageCounter counter;
    const int before = counter.messages();
    kernel(image);
    QCOMPARE(counter.messages(), before);
}

void TestGeometricKernels::crop_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("margins"); // left, top, right, bottom in percent
    for (QImage::Format format : wordFormats) {
        const QByteArray f = formatName(format);
        QTest::newRow("10/10/10/10 of 105x55 " + f)
            << format << QSize(105, 55) << QRect(10, 10, 10, 10);
        QTest::newRow("nothing " + f) << format << QSize(33, 17) << QRect(0, 0, 0, 0);
        QTest::newRow("uneven 3/20/45/7 " + f) << format << QSize(64, 48) << QRect(3, 20, 45, 7);
        QTest::newRow("negative margins read outside " + f)
            << format << QSize(20, 10) << QRect(-10, -30, -25, 5);
    }
}

void TestGeometricKernels::crop()
{
    QFETCH(QImage::Format, format);
    QFETCH(QSize, size);
    QFETCH(QRect, margins);
    QImage image = testImage(size.width(), size.height(), format);
    const int l = margins.x(), t = margins.y(), r = margins.width(), b = margins.height();
    const QImage result = OrkGraphX::cropImage(image, l, r, t, b);
    QCOMPARE_IMAGES(result, ruleCrop(image, l, r, t, b));
    if (size == QSize(105, 55)) {
        // x0 = 1050 / 100 = 10, y0 = 550 / 100 = 5; 105 − (10 + 10) by 55 − (5 + 5).
        QCOMPARE(result.size(), QSize(85, 45));
        QCOMPARE(word(result, 0, 0), image.pixel(10, 5));
        QCOMPARE(word(result, 84, 44), image.pixel(94, 49));
    }
}

void TestGeometricKernels::cropOfTheWholeWidthOrHeight_data()
{
    QTest::addColumn<QRect>("margins"); // left, top, right, bottom
    QTest::newRow("left and right 50") << QRect(50, 0, 50, 0);
    QTest::newRow("top and bottom 60 + 40") << QRect(0, 60, 0, 40);
    QTest::newRow("left 100") << QRect(100, 0, 0, 0);
    QTest::newRow("bottom 250") << QRect(0, 0, 0, 250);
}

void TestGeometricKernels::cropOfTheWholeWidthOrHeight()
{
    QFETCH(QRect, margins);
    QImage image = testImage(30, 20, QImage::Format_ARGB32);
    QVERIFY(OrkGraphX::cropImage(image, margins.x(), margins.width(), margins.y(), margins.height())
                .isNull());
}

void TestGeometricKernels::frame()
{
    QImage image = TestUtils::filledImage(200, 100, 0xff102030);
    const QImage result = OrkGraphX::drawFrame(image, 10, QColor(255, 0, 0));
    // border = trunc(2000 / 100.0) = 20 on all four sides, from the width alone.
    QCOMPARE(result.size(), QSize(240, 140));
    QCOMPARE(word(result, 19, 70), 0xffff0000u);
    QCOMPARE(word(result, 20, 20), 0xff102030u);
    QCOMPARE(word(result, 219, 119), 0xff102030u);
    QCOMPARE(word(result, 220, 119), 0xffff0000u);
    QCOMPARE(word(result, 100, 139), 0xffff0000u);
    QCOMPARE(word(result, 100, 0), 0xffff0000u);
}

void TestGeometricKernels::frameFollowsThePixelRule_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<int>("percent");
    QTest::addColumn<QColor>("colour");
    for (QImage::Format format : wordFormats) {
        const QByteArray f = formatName(format);
        QTest::newRow("7% semi-transparent " + f) << format << 7 << QColor(10, 200, 30, 100);
        QTest::newRow("0% " + f) << format << 0 << QColor(Qt::blue);
        QTest::newRow("-10% cuts into the image " + f) << format << -10 << QColor(Qt::green);
        QTest::newRow("-50% leaves nothing " + f) << format << -50 << QColor(Qt::green);
    }
}

void TestGeometricKernels::frameFollowsThePixelRule()
{
    QFETCH(QImage::Format, format);
    QFETCH(int, percent);
    QFETCH(QColor, colour);
    QImage image = testImage(41, 23, format);
    QCOMPARE_IMAGES(OrkGraphX::drawFrame(image, percent, colour),
                    ruleFrame(image, percent, colour));
}

void TestGeometricKernels::mirror_data()
{
    QTest::addColumn<QImage>("image");
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<bool>("vertical");
    const bool flags[][2] = {{true, false}, {false, true}, {true, true}, {false, false}};
    for (QImage::Format format : wordFormats)
        for (const auto& f : flags) {
            QImage image = testImage(37, 11, format);
            image.setDotsPerMeterX(5000);
            image.setText("Author", "Test");
            QTest::addRow("%s%s %s", f[0] ? "horizontal" : "", f[1] ? " vertical" : "",
                          formatName(format))
                << image << f[0] << f[1];
        }
    QTest::newRow("Grayscale8 through Qt")
        << testImage(9, 4, QImage::Format_Grayscale8) << true << false;
}

void TestGeometricKernels::mirror()
{
    QFETCH(QImage, image);
    QFETCH(bool, horizontal);
    QFETCH(bool, vertical);
    const QImage expected = image.mirrored(horizontal, vertical);
    const QImage result = OrkGraphX::mirrorImage(image, horizontal, vertical);
    QCOMPARE(result.format(), expected.format());
    QCOMPARE_IMAGES(result, expected);
    QCOMPARE(result.dotsPerMeterX(), expected.dotsPerMeterX());
    QCOMPARE(result.text("Author"), expected.text("Author"));
    // A 2 x 2 image 1 2 / 3 4 by hand.
    QImage small(2, 2, QImage::Format_ARGB32);
    const QRgb words[] = {1, 2, 3, 4};
    for (int i = 0; i < 4; ++i)
        small.setPixel(i % 2, i / 2, words[i]);
    const QRgb topLeft = horizontal ? (vertical ? 4 : 2) : (vertical ? 3 : 1);
    QCOMPARE(word(OrkGraphX::mirrorImage(small, horizontal, vertical), 0, 0), topLeft);
}

void TestGeometricKernels::resize_data()
{
    QTest::addColumn<QSize>("source");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QSize>("requested");
    QTest::addColumn<bool>("preview");
    QTest::addColumn<QSize>("expected"); // empty: the image comes back unchanged
    QTest::newRow("percent 50 of 105x55")
        << QSize(105, 55) << 0 << QSize(50, 50) << false << QSize(52, 27);
    QTest::newRow("percent 200/10 ignores aspect")
        << QSize(40, 30) << 0 << QSize(200, 10) << true << QSize(80, 3);
    QTest::newRow("maximum pixels keeps aspect")
        << QSize(200, 100) << 1 << QSize(300, 300) << false << QSize(300, 150);
    QTest::newRow("maximum pixels skipped in preview")
        << QSize(200, 100) << 1 << QSize(30, 30) << true << QSize();
    QTest::newRow("pixels 1000x500 in preview")
        << QSize(90, 60) << 2 << QSize(1000, 500) << true << QSize(700, 350);
    QTest::newRow("pixels 500x1000 in preview")
        << QSize(90, 60) << 2 << QSize(500, 1000) << true << QSize(350, 700);
    QTest::newRow("pixels 701x10 in preview")
        << QSize(90, 60) << 2 << QSize(701, 10) << true << QSize(700, 9);
    QTest::newRow("pixels 700x700 in preview")
        << QSize(90, 60) << 2 << QSize(700, 700) << true << QSize(700, 700);
    QTest::newRow("pixels 1000x500 in the batch")
        << QSize(90, 60) << 2 << QSize(1000, 500) << false << QSize(1000, 500);
    QTest::newRow("unknown mode") << QSize(90, 60) << 3 << QSize(10, 10) << false << QSize();
}

void TestGeometricKernels::resize()
{
    QFETCH(QSize, source);
    QFETCH(int, mode);
    QFETCH(QSize, requested);
    QFETCH(bool, preview);
    QFETCH(QSize, expected);
    QImage image = testImage(source.width(), source.height(), QImage::Format_ARGB32);
    const QImage result =
        OrkGraphX::resizeImage(image, requested.width(), requested.height(), mode, preview);
    if (expected.isEmpty()) {
        QCOMPARE_IMAGES(result, image);
        return;
    }
    QCOMPARE(result.size(), expected);
    QCOMPARE_IMAGES(result,
                    image.scaled(expected, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void TestGeometricKernels::fitIntoBox_data()
{
    QTest::addColumn<QSize>("source");
    QTest::addColumn<QRect>("placed");
    // Scaled into 100 x 100 keeping the aspect ratio, centred on the shorter side.
    QTest::newRow("wide") << QSize(200, 100) << QRect(0, 25, 100, 50);
    QTest::newRow("tall") << QSize(100, 200) << QRect(25, 0, 50, 100);
    QTest::newRow("square") << QSize(30, 30) << QRect(0, 0, 100, 100);
    QTest::newRow("odd remainder") << QSize(100, 33) << QRect(0, 33, 100, 33);
}

void TestGeometricKernels::fitIntoBox()
{
    QFETCH(QSize, source);
    QFETCH(QRect, placed);
    QImage image = TestUtils::filledImage(source.width(), source.height(), 0xffff0000);
    const QImage result = OrkGraphX::fitIntoBox(image, QSize(100, 100), QColor(0, 0, 255));
    QCOMPARE(result.size(), QSize(100, 100));
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x)
            QCOMPARE(word(result, x, y), placed.contains(x, y) ? 0xffff0000u : 0xff0000ffu);
}

void TestGeometricKernels::emptyImage_data()
{
    QTest::addColumn<Kernel>("kernel");
    using namespace OrkGraphX;
    QTest::newRow("rotate") << Kernel([](QImage& i) { return rotateImage(i, 90); });
    QTest::newRow("right 90") << Kernel(rotateRight90);
    QTest::newRow("180") << Kernel(rotate180);
    QTest::newRow("left 90") << Kernel(rotateLeft90);
    QTest::newRow("mirror") << Kernel([](QImage& i) { return mirrorImage(i, true, true); });
    QTest::newRow("crop") << Kernel([](QImage& i) { return cropImage(i, 1, 2, 3, 4); });
    QTest::newRow("frame") << Kernel([](QImage& i) { return drawFrame(i, 0, Qt::red); });
    QTest::newRow("resize") << Kernel([](QImage& i) { return resizeImage(i, 50, 50, 0, true); });
}

void TestGeometricKernels::emptyImage()
{
    QFETCH(Kernel, kernel);
    QImage empty;
    QVERIFY(kernel(empty).isNull());
    QImage zeroHeight(7, 0, QImage::Format_RGB32);
    QVERIFY(kernel(zeroHeight).isNull());
}

PELODINE_TEST_MAIN(TestGeometricKernels)
#include "tst_geometrickernels.moc"
