// Per-pixel kernels: expected words worked out by hand from the formulas.
#include "kernelimages.h"
#include "point.h"
#include "testutils.h"

#include <functional>

using Kernel = std::function<QImage(QImage&)>;
Q_DECLARE_METATYPE(Kernel)

using KernelImages::word;

class TestPointKernels : public QObject
{
    Q_OBJECT

private:
    static QImage onePixel(QRgb argb) { return TestUtils::filledImage(1, 1, argb); }

private slots:
    void brightnessContrastSaturation_data();
    void brightnessContrastSaturation();
    void neutralSettingsKeepEveryPixel_data();
    void neutralSettingsKeepEveryPixel();
    void libraryVariants_data();
    void libraryVariants();
    void grayscale_data();
    void grayscale();
    void channelSwaps_data();
    void channelSwaps();
    void binarize_data();
    void binarize();
    void invertMatchesQt_data();
    void invertMatchesQt();
    void alphaIsKept_data();
    void alphaIsKept();
    void colorize_data();
    void colorize();
    void colorizeReturnsPremultiplied();
    void emptyImage_data();
    void emptyImage();
};

void TestPointKernels::brightnessContrastSaturation_data()
{
    QTest::addColumn<QRgb>("input");
    QTest::addColumn<int>("brightness");
    QTest::addColumn<int>("contrast");
    QTest::addColumn<float>("saturation");
    QTest::addColumn<QRgb>("expected");

    // P = sqrt(0.299 · 255²) = 139.43; every channel becomes P.
    QTest::newRow("saturation 0 turns pure red into 139")
        << 0xffff0000u << 0 << 0 << 0.0f << 0xff8b8b8bu;
    // k = 137 / 127 = 1.07874: 120 k = 129.45, 70 k = 75.51, 20 k = 21.57.
    QTest::newRow("brightness 20 contrast 10") << 0xff643200u << 20 << 10 << 1.0f << 0xff814b15u;
    // k = 2 doubles each channel: the pivot is 0, not mid-grey (which would give 72 for 100).
    QTest::newRow("contrast 127 pivots around 0") << 0xff641ec8u << 0 << 127 << 1.0f << 0xffc83cffu;
    QTest::newRow("contrast -127 gives black") << 0xff641ec8u << 0 << -127 << 1.0f << 0xff000000u;
    QTest::newRow("brightness -50 clamps at 0") << 0xff1e3cffu << -50 << 0 << 1.0f << 0xff000acdu;
    // P = sqrt(11960 + 5870 + 285) = 134.59: 2 (c − P) + P gives 265.4, 65.4, −34.6.
    QTest::newRow("saturation 2 doubles the distance from P")
        << 0xffc86432u << 0 << 0 << 2.0f << 0xffff4100u;
    // Saturation first, then brightness, then contrast: ((0 − 139.43) · 0 + 139.43 + 10) · 2.
    QTest::newRow("order saturation brightness contrast")
        << 0xffff0000u << 10 << 127 << 0.0f << 0xffffffffu;
    // P = sqrt(29.9) = 5.47: (5.47 + 10) · 2 = 30.9; contrast before brightness would give 20.
    QTest::newRow("order with a small result") << 0xff0a0000u << 10 << 127 << 0.0f << 0xff1e1e1eu;
}

void TestPointKernels::brightnessContrastSaturation()
{
    QFETCH(QRgb, input);
    QFETCH(int, brightness);
    QFETCH(int, contrast);
    QFETCH(float, saturation);
    QFETCH(QRgb, expected);
    QImage image = onePixel(input);
    const QImage result =
        OrkGraphX::adjustBrightnessContrastSaturation(image, brightness, contrast, saturation);
    QCOMPARE(word(result, 0, 0), expected);
    QCOMPARE(word(image, 0, 0), input);
}

void TestPointKernels::neutralSettingsKeepEveryPixel_data()
{
    QTest::addColumn<QImage>("image");
    for (QImage::Format format : KernelImages::wordFormats)
        QTest::newRow(KernelImages::formatName(format))
            << KernelImages::noise(97, 61, format, unsigned(format));
}

void TestPointKernels::neutralSettingsKeepEveryPixel()
{
    QFETCH(QImage, image);
    // Brightness 0, contrast 0 and the saturation value 50 (factor 1.0): P cancels exactly.
    QCOMPARE_IMAGES(OrkGraphX::adjustBrightnessContrastSaturation(image, 0, 0, 50 / 50.0f), image);
    QCOMPARE_IMAGES(OrkGraphX::adjustBrightnessContrast(image, 0, 0), image);
    QCOMPARE_IMAGES(OrkGraphX::adjustSaturation(image, 1.0f), image);
}

void TestPointKernels::libraryVariants_data()
{
    QTest::addColumn<Kernel>("kernel");
    QTest::addColumn<QRgb>("input");
    QTest::addColumn<QRgb>("expected");
    QTest::newRow("brightness and contrast")
        << Kernel([](QImage& i) { return OrkGraphX::adjustBrightnessContrast(i, 20, 10); })
        << 0xff643200u << 0xff814b15u;
    QTest::newRow("saturation 0") << Kernel([](QImage& i) {
        return OrkGraphX::adjustSaturation(i, 0.0f);
    }) << 0xffff0000u << 0xff8b8b8bu;
    QTest::newRow("saturation 2") << Kernel([](QImage& i) {
        return OrkGraphX::adjustSaturation(i, 2.0f);
    }) << 0xffc86432u << 0xffff4100u;
}

void TestPointKernels::libraryVariants()
{
    QFETCH(Kernel, kernel);
    QFETCH(QRgb, input);
    QFETCH(QRgb, expected);
    QImage image = onePixel(input);
    QCOMPARE(word(kernel(image), 0, 0), expected);
}

void TestPointKernels::grayscale_data()
{
    QTest::addColumn<QRgb>("input");
    QTest::addColumn<QRgb>("expected");
    QTest::newRow("(255, 0, 1) gives 85") << 0xffff0001u << 0xff555555u;
    QTest::newRow("4 / 3 truncates to 1") << 0xff010102u << 0xff010101u;
    QTest::newRow("white stays white") << 0xffffffffu << 0xffffffffu;
    QTest::newRow("plain average, not luminance") << 0xff00ff00u << 0xff555555u;
}

void TestPointKernels::grayscale()
{
    QFETCH(QRgb, input);
    QFETCH(QRgb, expected);
    QImage image = onePixel(input);
    QCOMPARE(word(OrkGraphX::grayscaleImage(image), 0, 0), expected);
}

void TestPointKernels::channelSwaps_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QRgb>("expected");
    QTest::newRow("0 red and blue") << 0 << 0x80332211u;
    QTest::newRow("1 red and green") << 1 << 0x80221133u;
    QTest::newRow("2 green and blue") << 2 << 0x80113322u;
    QTest::newRow("3 unknown keeps the image") << 3 << 0x80112233u;
    QTest::newRow("-1 unknown keeps the image") << -1 << 0x80112233u;
}

void TestPointKernels::channelSwaps()
{
    QFETCH(int, mode);
    QFETCH(QRgb, expected);
    QImage image = onePixel(0x80112233);
    QCOMPARE(word(OrkGraphX::swapChannels(image, mode), 0, 0), expected);
}

void TestPointKernels::binarize_data()
{
    QTest::addColumn<int>("threshold");
    QTest::addColumn<QRgb>("expected");
    QTest::newRow("0 makes every channel 255") << 0 << 0x80ffffffu;
    QTest::newRow("256 makes every channel 0") << 256 << 0x80000000u;
    // Channels 0x10, 0x20, 0x30 against 0x20: below gives 0, equal and above give 255.
    QTest::newRow("each channel on its own, equal gives 255") << 0x20 << 0x8000ffffu;
}

void TestPointKernels::binarize()
{
    QFETCH(int, threshold);
    QFETCH(QRgb, expected);
    QImage image = onePixel(0x80102030);
    QCOMPARE(word(OrkGraphX::binarizeImage(image, threshold), 0, 0), expected);
}

void TestPointKernels::invertMatchesQt_data()
{
    neutralSettingsKeepEveryPixel_data();
}

void TestPointKernels::invertMatchesQt()
{
    QFETCH(QImage, image);
    QImage expected = image.copy();
    expected.invertPixels(QImage::InvertRgb);
    QCOMPARE_IMAGES(OrkGraphX::invertImage(image), expected);
    QImage pixel = onePixel(0x80102030);
    QCOMPARE(word(OrkGraphX::invertImage(pixel), 0, 0), 0x80efdfcfu);
}

void TestPointKernels::alphaIsKept_data()
{
    QTest::addColumn<Kernel>("kernel");
    using namespace OrkGraphX;
    QTest::newRow("invert") << Kernel(invertImage);
    QTest::newRow("grayscale") << Kernel(grayscaleImage);
    QTest::newRow("swap red blue") << Kernel(swapRedBlue);
    QTest::newRow("swap red green") << Kernel(swapRedGreen);
    QTest::newRow("swap green blue") << Kernel(swapGreenBlue);
    QTest::newRow("brightness contrast saturation")
        << Kernel([](QImage& i) { return adjustBrightnessContrastSaturation(i, 40, -30, 1.6f); });
    QTest::newRow("brightness contrast")
        << Kernel([](QImage& i) { return adjustBrightnessContrast(i, -40, 60); });
    QTest::newRow("saturation") << Kernel([](QImage& i) { return adjustSaturation(i, 0.3f); });
    QTest::newRow("binarize") << Kernel([](QImage& i) { return binarizeImage(i, 100); });
    QTest::newRow("colorize") << Kernel(
        [](QImage& i) { return colorizeImage(i, QColor(255, 0, 0), QColor(0, 0, 255)); });
}

void TestPointKernels::alphaIsKept()
{
    QFETCH(Kernel, kernel);
    const QRgb pixels[] = {0x80ff0000, 0x01203040, 0xfe10ff80, 0x7fff1005};
    QImage image(4, 1, QImage::Format_ARGB32);
    for (int x = 0; x < 4; ++x)
        image.setPixel(x, 0, pixels[x]);
    const QImage result = kernel(image);
    QCOMPARE(result.size(), image.size());
    for (int x = 0; x < 4; ++x)
        QCOMPARE(qAlpha(word(result, x, 0)), qAlpha(pixels[x]));
}

void TestPointKernels::colorize_data()
{
    QTest::addColumn<QColor>("source");
    QTest::addColumn<QColor>("target");
    QTest::addColumn<QRgb>("input");
    QTest::addColumn<QRgb>("expected");
    const QColor red(255, 0, 0);
    const QColor green(0, 255, 0);
    const QColor blue(0, 0, 255);
    QTest::newRow("far hue stays") << red << blue << 0xff0000ffu << 0xff0000ffu;
    QTest::newRow("hue 10 away stays") << red << blue << 0xffff2b00u << 0xffff2b00u;
    // Hue 9: (9 − 0 + 240 + 359) mod 359 = 249.
    QTest::newRow("hue 9 away moves")
        << red << blue << 0xffff2a00u << QColor::fromHsv(249, 255, 255).rgba();
    // (120 − 120 + 240 + 359) mod 359 = 240, pure blue; a modulus of 360 would give 239.
    QTest::newRow("modulus 359") << green << blue << 0xff00ff00u << 0xff0000ffu;
    // s' = trunc(64 / 128 · 255) = 127.
    QTest::newRow("saturation scaled")
        << QColor::fromHsv(0, 128, 255) << QColor::fromHsv(0, 64, 255) << 0xffff0000u
        << QColor::fromHsv(0, 127, 255).rgba();
    // trunc(255 / 128 · 255) = 508 is set to 255.
    QTest::newRow("saturation capped at 255")
        << QColor::fromHsv(0, 128, 255) << red << 0xffff0000u << 0xffff0000u;
    // A black source has hue −1, saturation 0 and value 0: grey pixels (hue −1) take part and
    // both ratios count as 0.
    QTest::newRow("black source zeroes changed pixels")
        << QColor(Qt::black) << red << 0xff808080u << 0xff000000u;
}

void TestPointKernels::colorize()
{
    QFETCH(QColor, source);
    QFETCH(QColor, target);
    QFETCH(QRgb, input);
    QFETCH(QRgb, expected);
    QImage image = onePixel(input);
    QCOMPARE(word(OrkGraphX::colorizeImage(image, source, target), 0, 0), expected);
}

void TestPointKernels::colorizeReturnsPremultiplied()
{
    // Pure green lies 120 degrees from the red source: nothing changes but the format.
    QImage image = KernelImages::filled(20, 10, QImage::Format_RGB32, 0xff00ff00);
    const QImage result = OrkGraphX::colorizeImage(image, QColor(255, 0, 0), QColor(0, 0, 255));
    QCOMPARE(result.format(), QImage::Format_ARGB32_Premultiplied);
    QCOMPARE_IMAGES(result, image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

void TestPointKernels::emptyImage_data()
{
    alphaIsKept_data();
}

void TestPointKernels::emptyImage()
{
    QFETCH(Kernel, kernel);
    QImage empty;
    QVERIFY(kernel(empty).isNull());
    QImage zeroWidth(0, 5, QImage::Format_ARGB32);
    QVERIFY(kernel(zeroWidth).isNull());
}

PELODINE_TEST_MAIN(TestPointKernels)
#include "tst_pointkernels.moc"
