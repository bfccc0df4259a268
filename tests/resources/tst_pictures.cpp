// The compiled-in pictures: each with a double-size version for high-density screens, each node
// with its icon, and the style sheet's pictures present and drawn on its picture buttons.
#include "app.h"
#include "nodecatalogue.h"
#include "testutils.h"

#include <QDir>
#include <QPushButton>
#include <QRegularExpression>

namespace {

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
    // Qt picks name@2x.png on high-density screens; without it the small one is blown up.
    void everyPictureHasADoubleSize()
    {
        int count = 0;
        for (const QString folder : {":/", ":/buttons"})
            for (const QFileInfo& file : QDir(folder).entryInfoList({"*.png"}, QDir::Files)) {
                QString path = file.filePath();
                if (path.contains("@2x") || path == ":/qubrast.png")
                    continue;
                const QSize size = QImage(path).size();
                QVERIFY2(!size.isEmpty() &&
                             QImage(path.insert(path.lastIndexOf('.'), "@2x")).size() == size * 2,
                         qPrintable(path));
                ++count;
            }
        QVERIFY(count > 40);
    }

    void nodeIcons()
    {
        const auto icons = TestUtils::keyValues(
            "RGB-Order=RGB|Brightness, Contrast, Saturation=BRT|Rotate=RTT|Blur=BLR|Invert=INV|"
            "Mirror=MRR|Grayscale=GRS|Watermark=WMR|Crop=CRP|Resize=RSZ|Histogram optimizer=HST|"
            "Frame=FRM|Binarization=BIN|Vignetting=WGN");
        QCOMPARE(factoryNodeNames().size(), icons.size());
        for (const auto& [name, code] : icons) {
            QVERIFY2(factoryNodeNames().contains(name), qPrintable(name));
            QCOMPARE_IMAGES(
                iconForNodeName(name).toImage().convertToFormat(QImage::Format_ARGB32),
                QImage(":/Icon_" + code + ".png").convertToFormat(QImage::Format_ARGB32));
        }
    }

    // Every picture the style sheet names exists, and every button it gives a picture shows
    // it, looks different when checked and is dimmer when disabled.
    void styleSheetPictures()
    {
        const QString sheet = OrkWidgets::App::resourceText(":/stylesheet.qss");
        qApp->setStyleSheet(sheet);
        for (auto it = QRegularExpression(R"(url\((:/[^)]+)\))").globalMatch(sheet);
             it.hasNext();) {
            const QString path = it.next().captured(1);
            QVERIFY2(QFile::exists(path), qPrintable(path));
        }
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
