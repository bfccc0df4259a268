// Watermark placement and sizing, measured on the solid background box or a one-colour logo
// rather than on glyph pixels. The font is DejaVu Sans (fonts-dejavu-core, installed by
// scripts/install-deps.sh), so the figures do not depend on the machine's default font.
#include "kernelimages.h"
#include "testutils.h"
#include "watermark.h"

#include <QFontInfo>
#include <QFontMetrics>

using KernelImages::word;

namespace {

constexpr QRgb Paper = 0xff204060;
constexpr QRgb Box = 0xffff0000;

QFont testFont()
{
    return QFont("DejaVu Sans");
}

OrkGraphX::WMRParams textParams(int size, int position, int xOffset, int yOffset)
{
    OrkGraphX::WMRParams params;
    params.Mode = 0;
    params.Text = "Watermark";
    params.Font = testFont();
    params.Size = size;
    params.Position = position;
    params.XOffset = xOffset;
    params.YOffset = yOffset;
    params.Transparency = 0;
    params.Color = Qt::white;
    params.Background = QColor(Box);
    params.BackgroundEnabled = true;
    return params;
}

// The bounding rectangle of the pixels holding exactly this word (null when there are none).
QRect boundsOf(const QImage& image, QRgb value)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (word(image, x, y) == value)
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

int advanceAt(int pixelSize, const QString& text)
{
    QFont font = testFont();
    font.setWeight(50);
    font.setPixelSize(pixelSize);
    return QFontMetrics(font).horizontalAdvance(text);
}

// The first pixel size at which the text is wider than the target, counted up from 1.
int firstSizeWiderThan(int target, const QString& text)
{
    int size = 1;
    while (advanceAt(size, text) <= target)
        ++size;
    return size;
}

QSize textBoxContent(int target, const QString& text)
{
    QFont font = testFont();
    font.setWeight(50);
    font.setPixelSize(firstSizeWiderThan(target, text));
    const QFontMetrics metrics(font);
    return QSize(metrics.horizontalAdvance(text), metrics.height());
}

} // namespace

class TestWatermarkKernel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void placement_data();
    void placement();
    void textIsOnePixelSizeTooLarge();
    void transparency100DrawsNothing();
    void nothingToDraw_data();
    void nothingToDraw();
    void logoPlacement_data();
    void logoPlacement();
    void logoExpandCoversTheImage();
    void hugeAndInvisibleTexts_data();
    void hugeAndInvisibleTexts();
};

void TestWatermarkKernel::initTestCase()
{
    QVERIFY2(QFontInfo(testFont()).family() == "DejaVu Sans",
             "DejaVu Sans is missing: run scripts/install-deps.sh (fonts-dejavu-core)");
}

void TestWatermarkKernel::placement_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("xOffset");
    QTest::addColumn<int>("yOffset");
    QTest::addColumn<QPoint>("cell"); // column and row of the 3 x 3 grid
    const char* names[] = {"TopLeft",     "TopMiddle",  "TopRight",     "MiddleLeft", "Middle",
                           "MiddleRight", "BottomLeft", "BottomMiddle", "BottomRight"};
    for (int position = 0; position < 9; ++position) {
        const QPoint cell(position % 3, position / 3);
        QTest::addRow("%s", names[position]) << position << 0 << 0 << cell;
        QTest::addRow("%s offsets 10 10", names[position]) << position << 10 << 10 << cell;
        QTest::addRow("%s offsets -4 -6", names[position]) << position << -4 << -6 << cell;
    }
    QTest::newRow("unknown position 9 is TopLeft") << 9 << 0 << 0 << QPoint(0, 0);
}

void TestWatermarkKernel::placement()
{
    QFETCH(int, position);
    QFETCH(int, xOffset);
    QFETCH(int, yOffset);
    QFETCH(QPoint, cell);
    const int w = 1000, h = 500;
    QImage image = TestUtils::filledImage(w, h, Paper);
    const OrkGraphX::WMRParams params = textParams(30, position, xOffset, yOffset);
    const QImage result = OrkGraphX::drawWatermark(image, params);

    // Target width 300; the content box is the text's advance by the font height.
    const QSize content = textBoxContent(300, params.Text);
    const int cellX[] = {0, (w - content.width()) / 2, w - content.width()};
    const int cellY[] = {0, (h - content.height()) / 2, h - content.height()};
    const int x = cellX[cell.x()];
    const int y = cellY[cell.y()];
    // Both offsets are percentages of the height: 10 % of 500 is 50 pixels, y moving up.
    const QRect expected(x + xOffset * h / 100 - 2, y - yOffset * h / 100 - 2, content.width() + 4,
                         content.height() + 4);
    QCOMPARE(boundsOf(result, Box), expected & image.rect());
}

void TestWatermarkKernel::textIsOnePixelSizeTooLarge()
{
    QImage image = TestUtils::filledImage(1000, 500, Paper);
    const QImage result = OrkGraphX::drawWatermark(image, textParams(50, 4, 0, 0));
    const int drawnWidth = boundsOf(result, Box).width() - 4;
    // The size used is the first one whose text is wider than 500: slightly over half the
    // image, while one pixel size less still fits.
    const int size = firstSizeWiderThan(500, "Watermark");
    QCOMPARE(drawnWidth, advanceAt(size, "Watermark"));
    QVERIFY(drawnWidth > 500);
    QVERIFY(advanceAt(size - 1, "Watermark") <= 500);
}

void TestWatermarkKernel::transparency100DrawsNothing()
{
    // An opaque photo: painting at opacity 0 still passes semi-transparent ARGB32 pixels
    // through Qt's premultiplication, which is not visible but not bit-exact either.
    QImage image =
        KernelImages::noise(300, 200, QImage::Format_RGB32).convertToFormat(QImage::Format_ARGB32);
    const QImage original = image.copy();
    OrkGraphX::WMRParams params = textParams(60, 8, 0, 0);
    params.Transparency = 100;
    QCOMPARE_IMAGES(OrkGraphX::drawWatermark(image, params), original);
    params.Mode = 1;
    params.ImageData = TestUtils::filledImage(40, 40, Box);
    params.Expand = true;
    QCOMPARE_IMAGES(OrkGraphX::drawWatermark(image, params), original);
}

void TestWatermarkKernel::nothingToDraw_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QImage>("logo");
    QTest::newRow("empty text") << 0 << QString() << QImage();
    QTest::newRow("unknown mode 2") << 2 << "Watermark" << TestUtils::filledImage(9, 9, Box);
    QTest::newRow("null logo") << 1 << "Watermark" << QImage();
    QTest::newRow("logo of width 0") << 1 << "Watermark" << QImage(0, 10, QImage::Format_ARGB32);
}

void TestWatermarkKernel::nothingToDraw()
{
    QFETCH(int, mode);
    QFETCH(QString, text);
    QFETCH(QImage, logo);
    QImage image = KernelImages::noise(120, 80, QImage::Format_ARGB32);
    const QImage original = image.copy();
    OrkGraphX::WMRParams params = textParams(60, 8, 0, 0);
    params.Mode = mode;
    params.Text = text;
    params.ImageData = logo;
    QCOMPARE_IMAGES(OrkGraphX::drawWatermark(image, params), original);
    QImage empty;
    QVERIFY(OrkGraphX::drawWatermark(empty, params).isNull());
}

void TestWatermarkKernel::logoPlacement_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("size");
    QTest::addColumn<QRect>("expected");
    // A 100 x 50 logo at 20 % of 1000: w = 200, h = trunc(50 / 100 · 200) = 100, drawn at
    // 204 x 104 including the margin.
    QTest::newRow("BottomRight ends past the corner") << 8 << 20 << QRect(798, 398, 204, 104);
    QTest::newRow("TopLeft starts before the corner") << 0 << 20 << QRect(-2, -2, 204, 104);
    QTest::newRow("Middle") << 4 << 20 << QRect(398, 198, 204, 104);
    // 33 % of 1000 is 330.0: h = trunc(0.5 · 330) = 165; (1000 − 330) / 2 = 335.
    QTest::newRow("TopMiddle 33 %") << 1 << 33 << QRect(333, -2, 334, 169);
}

void TestWatermarkKernel::logoPlacement()
{
    QFETCH(int, position);
    QFETCH(int, size);
    QFETCH(QRect, expected);
    QImage image = TestUtils::filledImage(1000, 500, Paper);
    OrkGraphX::WMRParams params = textParams(size, position, 0, 0);
    params.Mode = 1;
    params.ImageData = TestUtils::filledImage(100, 50, Box);
    QCOMPARE(boundsOf(OrkGraphX::drawWatermark(image, params), Box), expected & image.rect());
}

void TestWatermarkKernel::logoExpandCoversTheImage()
{
    QImage image = KernelImages::noise(333, 177, QImage::Format_ARGB32);
    OrkGraphX::WMRParams params = textParams(5, 8, 20, -20);
    params.Mode = 1;
    params.Expand = true;
    params.ImageData = TestUtils::filledImage(30, 70, Box);
    // Position, offsets and size play no part.
    QCOMPARE_IMAGES(OrkGraphX::drawWatermark(image, params), TestUtils::filledImage(333, 177, Box));
}

void TestWatermarkKernel::hugeAndInvisibleTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("size");
    QTest::newRow("100000 characters") << QString(100000, QChar('W')) << 60;
    QTest::newRow("zero-width characters only") << QString(3, QChar(0x200B)) << 60;
    QTest::newRow("size 0") << "Watermark" << 0;
    QTest::newRow("negative size") << "Watermark" << -40;
}

void TestWatermarkKernel::hugeAndInvisibleTexts()
{
    QFETCH(QString, text);
    QFETCH(int, size);
    QImage image = TestUtils::filledImage(200, 100, Paper);
    OrkGraphX::WMRParams params = textParams(size, 4, 0, 0);
    params.Text = text;
    QCOMPARE(OrkGraphX::drawWatermark(image, params).size(), QSize(200, 100));
}

PELODINE_TEST_MAIN(TestWatermarkKernel)
#include "tst_watermarkkernel.moc"
