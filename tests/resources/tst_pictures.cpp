// The compiled-in pictures: each node's icon and each picture the style sheet names, present
// with a double-size version for high-density screens.
#include "app.h"
#include "nodecatalogue.h"
#include "testutils.h"

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

    void styleSheetPictures()
    {
        const QString sheet = OrkWidgets::App::resourceText(":/stylesheet.qss");
        int count = 0;
        for (auto it = QRegularExpression(R"(url\((:/[^)]+)\))").globalMatch(sheet); it.hasNext();
             ++count)
            QVERIFY(hasDoubleSize(it.next().captured(1)));
        QVERIFY(count > 40);
    }
};

PELODINE_TEST_MAIN(TestPictures)
#include "tst_pictures.moc"
