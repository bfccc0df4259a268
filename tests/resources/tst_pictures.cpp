// The compiled-in pictures: each node's icon and each picture of the style sheet present with a
// double-size version for high-density screens, and the sheet's picture buttons drawn.
#include "app.h"
#include "nodecatalogue.h"
#include "testutils.h"

#include <QPushButton>
#include <QRegularExpression>

namespace {

// Qt picks name@2x.png on high-density screens; without it the small one is blown up.
bool hasDoubleSize(QString path)
{
    const QSize size = QImage(path).size();
    const bool ok =
        !size.isEmpty() && QImage(path.insert(path.lastIndexOf('.'), "@2x")).size() == size * 2;
    if (!ok)
        qWarning("%s has no picture of double size", qPrintable(path));
    return ok;
}

// The pictures are light strokes on the dark panels.
int lightPixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += qGray(image.pixel(x, y)) > 160;
    return count;
}

} // namespace

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void nodeIcons()
    {
        const auto icons = TestUtils::keyValues(
            "RGB-Order=RGB|Brightness, Contrast, Saturation=BRT|Rotate=RTT|Blur=BLR|Invert=INV|"
            "Mirror=MRR|Grayscale=GRS|Watermark=WMR|Crop=CRP|Resize=RSZ|Histogram optimizer=HST|"
            "Frame=FRM|Binarization=BIN|Vignetting=WGN");
        QCOMPARE(factoryNodeNames().size(), icons.size());
        for (const auto& [name, code] : icons) {
            QVERIFY2(factoryNodeNames().contains(name), qPrintable(name));
            QVERIFY(hasDoubleSize(":/Icon_" + code + ".png"));
            QCOMPARE_IMAGES(
                iconForNodeName(name).toImage().convertToFormat(QImage::Format_ARGB32),
                QImage(":/Icon_" + code + ".png").convertToFormat(QImage::Format_ARGB32));
        }
    }

    // Every button the style sheet gives a picture shows it, looks different when checked and
    // is dimmer when disabled.
    void styleSheetPictures()
    {
        const QString sheet = OrkWidgets::App::resourceText(":/stylesheet.qss");
        qApp->setStyleSheet(sheet);
        for (auto it = QRegularExpression(R"(url\((:/[^)]+)\))").globalMatch(sheet); it.hasNext();)
            QVERIFY(hasDoubleSize(it.next().captured(1)));
        int count = 0;
        for (auto it = QRegularExpression(R"(QPushButton#(\w+) \{[^}]*image:)").globalMatch(sheet);
             it.hasNext(); ++count) {
            const QString name = it.next().captured(1);
            QPushButton button;
            button.setObjectName(name);
            button.setFlat(true);
            button.setCheckable(true);
            button.resize(32, 32);
            const auto grab = [&button] {
                return button.grab().toImage().convertToFormat(QImage::Format_ARGB32);
            };
            const QImage normal = grab();
            QVERIFY2(lightPixels(normal) > 0, qPrintable(name));
            button.setChecked(true);
            if (sheet.contains("QPushButton#" + name + ":checked"))
                QVERIFY2(grab() != normal, qPrintable(name));
            button.setChecked(false);
            button.setEnabled(false);
            QVERIFY2(lightPixels(grab()) < lightPixels(normal), qPrintable(name));
        }
        QVERIFY(count > 10);
    }
};

PELODINE_TEST_MAIN(TestPictures)
#include "tst_pictures.moc"
