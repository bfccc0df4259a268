// The compiled-in pictures: present, at the sizes the widgets show them, with a double-size
// version that Qt picks on high-density screens, and every picture the style sheet names.
#include "app.h"
#include "testutils.h"

#include <QFile>
#include <QIcon>
#include <QMovie>
#include <QRegularExpression>

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void pictureSize_data();
    void pictureSize();
    void highDensityIcon_data();
    void highDensityIcon();
    void arrowIsAnimated();
    void logoHasTransparentBackground();
    void styleSheetPicturesExist();
};

void TestPictures::pictureSize_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");

    // Node icons fill the 64 x 64 icon label of a node.
    const QStringList codes{"BIN", "BLR", "BRT", "CRP", "FRM", "HST", "INV",
                            "MRR", "RGB", "RSZ", "RTT", "WGN", "GRS", "WMR"};
    for (const QString& code : codes) {
        const QString path = ":/Icon_" + code + ".png";
        QTest::newRow(qPrintable(path)) << path << QSize(64, 64);
    }
    QTest::newRow("thumbnail of a switched-off node") << ":/DisabledNode.png" << QSize(70, 70);
    QTest::newRow("drop area background") << ":/droparea.png" << QSize(360, 360);
    QTest::newRow("start picture of the options area") << ":/initlabel_en.png" << QSize(735, 175);
    QTest::newRow("menu bar, 45 px high") << ":/menubar.png" << QSize(64, 45);
    QTest::newRow("open button icon") << ":/openfiles.png" << QSize(24, 24);
    QTest::newRow("menu icon new") << ":/new.png" << QSize(16, 16);
    QTest::newRow("menu icon save") << ":/save.png" << QSize(16, 16);
    QTest::newRow("menu icon delete") << ":/delete.png" << QSize(16, 16);
    QTest::newRow("menu icon go to") << ":/GotoIcon.png" << QSize(16, 16);
}

void TestPictures::pictureSize()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);

    const QImage image(path);
    QVERIFY2(!image.isNull(), qPrintable(path));
    QCOMPARE(image.size(), size);

    QString doublePath = path;
    doublePath.insert(path.lastIndexOf('.'), "@2x");
    const QImage doubled(doublePath);
    QVERIFY2(!doubled.isNull(), qPrintable(doublePath));
    QCOMPARE(doubled.size(), size * 2);
}

void TestPictures::highDensityIcon_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("side");

    QTest::newRow("node icon") << ":/Icon_WMR.png" << 64;
    QTest::newRow("menu icon") << ":/save.png" << 16;
    QTest::newRow("button icon") << ":/openfiles.png" << 24;
}

// The test runs at scale factor 2 (see main): a QIcon must then draw from the @2x file
// instead of blowing up the small one.
void TestPictures::highDensityIcon()
{
    QFETCH(QString, path);
    QFETCH(int, side);

    QCOMPARE(qApp->devicePixelRatio(), 2.0);
    const QPixmap pixmap = QIcon(path).pixmap(QSize(side, side));
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    QCOMPARE(pixmap.size(), QSize(side * 2, side * 2));

    QString doublePath = path;
    doublePath.insert(path.lastIndexOf('.'), "@2x");
    QCOMPARE_IMAGES(pixmap.toImage().convertToFormat(QImage::Format_ARGB32),
                    QImage(doublePath).convertToFormat(QImage::Format_ARGB32));
}

void TestPictures::arrowIsAnimated()
{
    QMovie movie(":/arrow.gif");
    QVERIFY(movie.isValid());
    QVERIFY(movie.frameCount() > 1);
    QVERIFY(movie.jumpToFrame(0));
    QCOMPARE(movie.currentImage().size(), QSize(100, 100));
}

void TestPictures::logoHasTransparentBackground()
{
    const QImage logo(":/qubrast.png");
    QVERIFY(!logo.isNull());
    QVERIFY(logo.hasAlphaChannel());
    QCOMPARE(qAlpha(logo.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(logo.pixel(logo.width() - 1, logo.height() - 1)), 0);
}

void TestPictures::styleSheetPicturesExist()
{
    const QString sheet = OrkWidgets::App::resourceText(":/stylesheet.qss");
    QVERIFY(!sheet.isEmpty());

    const QRegularExpression url(R"(url\((:/[^)]+)\))");
    int count = 0;
    for (auto it = url.globalMatch(sheet); it.hasNext(); ++count) {
        const QString path = it.next().captured(1);
        QVERIFY2(QFile::exists(path), qPrintable(path));
    }
    QVERIFY(count > 0);
}

int main(int argc, char* argv[])
{
    TestUtils::makeSandboxHome();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    TestPictures test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pictures.moc"
