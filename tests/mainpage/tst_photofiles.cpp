// Reading photos upright and expanding dropped folders.
#include "photofiles.h"
#include "photofixtures.h"
#include "testutils.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

class TestPhotoFiles : public QObject
{
    Q_OBJECT

private slots:
    void readTurnsUpright_data();
    void readTurnsUpright();
    void readFittedTurnsUpright();
    void unreadableGivesNullImage_data();
    void unreadableGivesNullImage();
    void reducedSize_data();
    void reducedSize();
    void readReduced();
    void readFittedKeepsAspect_data();
    void readFittedKeepsAspect();
    void expandFolders_data();
    void expandFolders();

private:
    QTemporaryDir dir;
};

namespace {

bool isReddish(QRgb pixel)
{
    return qRed(pixel) > 200 && qBlue(pixel) < 60;
}

bool isBluish(QRgb pixel)
{
    return qBlue(pixel) > 200 && qRed(pixel) < 60;
}

} // namespace

void TestPhotoFiles::readTurnsUpright_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("redPoint");
    QTest::addColumn<QPoint>("bluePoint");

    // Stored 40 x 20, red left, blue right.
    QTest::newRow("1 as stored") << 1 << QSize(40, 20) << QPoint(5, 10) << QPoint(35, 10);
    // Turned clockwise: the left edge goes to the top.
    QTest::newRow("6 turned clockwise") << 6 << QSize(20, 40) << QPoint(10, 5) << QPoint(10, 35);
    // Turned anticlockwise: the left edge goes to the bottom.
    QTest::newRow("8 turned anticlockwise")
        << 8 << QSize(20, 40) << QPoint(10, 35) << QPoint(10, 5);
    // Upside down: the left edge goes to the right.
    QTest::newRow("3 upside down") << 3 << QSize(40, 20) << QPoint(35, 10) << QPoint(5, 10);
}

void TestPhotoFiles::readTurnsUpright()
{
    QFETCH(int, orientation);
    QFETCH(QSize, size);
    QFETCH(QPoint, redPoint);
    QFETCH(QPoint, bluePoint);

    const QString path = PhotoFixtures::writeFile(
        dir.filePath(QString("turned%1.jpg").arg(orientation)),
        TestUtils::jpegWithOrientation(PhotoFixtures::halvesPicture(40, 20), orientation));
    const QImage photo = PhotoFiles::read(path);
    QCOMPARE(photo.size(), size);
    QVERIFY(isReddish(photo.pixel(redPoint)));
    QVERIFY(isBluish(photo.pixel(bluePoint)));
}

void TestPhotoFiles::readFittedTurnsUpright()
{
    // Stored 400 x 200 and turned clockwise: upright 200 x 400, fitted into 100 x 100 it is
    // 50 x 100 with red on top.
    const QString path = PhotoFixtures::writeFile(
        dir.filePath("turnedlarge.jpg"),
        TestUtils::jpegWithOrientation(PhotoFixtures::halvesPicture(400, 200), 6));
    const QImage photo = PhotoFiles::readFitted(path, QSize(100, 100));
    QCOMPARE(photo.size(), QSize(50, 100));
    QVERIFY(isReddish(photo.pixel(25, 10)));
    QVERIFY(isBluish(photo.pixel(25, 90)));
}

void TestPhotoFiles::unreadableGivesNullImage_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("contents");

    QTest::newRow("text file") << "notes.txt" << QByteArray("no picture here");
    QTest::newRow("broken png") << "broken.png" << QByteArray("\x89PNG\r\n\x1a\n garbage");
    QTest::newRow("missing file") << "missing.jpg" << QByteArray();
}

void TestPhotoFiles::unreadableGivesNullImage()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, contents);

    const QString full = dir.filePath(path);
    if (!contents.isEmpty())
        PhotoFixtures::writeFile(full, contents);
    QVERIFY(PhotoFiles::read(full).isNull());
    QVERIFY(PhotoFiles::read(full, 20).isNull());
    QVERIFY(PhotoFiles::readFitted(full, QSize(720, 720)).isNull());
}

void TestPhotoFiles::reducedSize_data()
{
    QTest::addColumn<QSize>("full");
    QTest::addColumn<int>("divisor");
    QTest::addColumn<QSize>("reduced");

    QTest::newRow("4000x3000 by 20") << QSize(4000, 3000) << 20 << QSize(200, 150);
    // 4010 / 20 = 200.5 rounds up, 2990 / 20 = 149.5 rounds up.
    QTest::newRow("halves round up") << QSize(4010, 2990) << 20 << QSize(201, 150);
    // 4009 / 20 = 200.45, 3001 / 20 = 150.05.
    QTest::newRow("below half rounds down") << QSize(4009, 3001) << 20 << QSize(200, 150);
    // 9 / 20 = 0.45 would round to nothing.
    QTest::newRow("tiny photo keeps a pixel") << QSize(9, 30) << 20 << QSize(1, 2);
}

void TestPhotoFiles::reducedSize()
{
    QFETCH(QSize, full);
    QFETCH(int, divisor);
    QFETCH(QSize, reduced);

    QCOMPARE(PhotoFiles::reducedSize(full, divisor), reduced);
}

void TestPhotoFiles::readReduced()
{
    // A twentieth of 4000 x 3000.
    const QString path = PhotoFixtures::writePng(dir.filePath("big.png"), 4000, 3000);
    QCOMPARE(PhotoFiles::read(path, 20).size(), QSize(200, 150));
}

void TestPhotoFiles::readFittedKeepsAspect_data()
{
    QTest::addColumn<QSize>("photo");
    QTest::addColumn<QSize>("fitted");

    QTest::newRow("landscape 4000x3000") << QSize(4000, 3000) << QSize(720, 540);
    QTest::newRow("portrait 300x2000") << QSize(300, 2000) << QSize(108, 720);
    QTest::newRow("small photo enlarged") << QSize(100, 50) << QSize(720, 360);
}

void TestPhotoFiles::readFittedKeepsAspect()
{
    QFETCH(QSize, photo);
    QFETCH(QSize, fitted);

    const QString path = PhotoFixtures::writePng(
        dir.filePath(QString("fit%1x%2.png").arg(photo.width()).arg(photo.height())), photo.width(),
        photo.height());
    QCOMPARE(PhotoFiles::readFitted(path, QSize(720, 720)).size(), fitted);
}

void TestPhotoFiles::expandFolders_data()
{
    QTest::addColumn<QStringList>("dropped");
    QTest::addColumn<QStringList>("expected");

    // The folder "album" holds b.png, a.JPG, notes.txt, Sub/z.png, Sub/y.png and d.png.
    QTest::newRow("folder alone") << QStringList{"album"}
                                  << QStringList{"album/a.JPG", "album/b.png", "album/d.png",
                                                 "album/Sub/y.png", "album/Sub/z.png"};
    QTest::newRow("folder between files")
        << QStringList{"first.png", "album/Sub", "last.txt"}
        << QStringList{"first.png", "album/Sub/y.png", "album/Sub/z.png", "last.txt"};
    QTest::newRow("files kept in drop order") << QStringList{"last.txt", "first.png", "first.png"}
                                              << QStringList{"last.txt", "first.png", "first.png"};
    QTest::newRow("empty folder") << QStringList{"empty"} << QStringList{};
}

void TestPhotoFiles::expandFolders()
{
    QFETCH(QStringList, dropped);
    QFETCH(QStringList, expected);

    QTemporaryDir root;
    for (const char* name : {"album/b.png", "album/a.JPG", "album/d.png", "album/Sub/z.png",
                             "album/Sub/y.png", "first.png"})
        PhotoFixtures::writePng(root.filePath(name), 4, 4);
    PhotoFixtures::writeFile(root.filePath("album/notes.txt"), "text");
    PhotoFixtures::writeFile(root.filePath("last.txt"), "text");
    QDir(root.path()).mkpath("empty");

    QList<QUrl> urls;
    for (const QString& name : dropped)
        urls << QUrl::fromLocalFile(root.filePath(name));
    QStringList names;
    const QList<QUrl> expanded = PhotoFiles::expandFolders(urls);
    for (const QUrl& url : expanded)
        names << QDir(root.path()).relativeFilePath(url.toLocalFile());
    QCOMPARE(names, expected);
}

PELODINE_TEST_MAIN(TestPhotoFiles)
#include "tst_photofiles.moc"
