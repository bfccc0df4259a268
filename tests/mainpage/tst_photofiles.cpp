// Reading photos upright, and the photo list's thumbnails.
#include "itemsmodel.h"
#include "photofiles.h"
#include "testutils.h"

#include <QTemporaryDir>
#include <QtTest>

using TestUtils::addRow;

class TestPhotoFiles : public QObject
{
    Q_OBJECT

private slots:
    void readUpright_data();
    void readUpright();
    void thumbnail_data();
    void thumbnail();
    void newListReadsThumbnailsAnew();

private:
    QTemporaryDir dir;
};

void TestPhotoFiles::readUpright_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QSize>("box"); // empty: read whole
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("red");
    QTest::addColumn<QPoint>("blue");

    // Stored 80 x 40, red left, blue right.
    addRow("1 as stored", 1, QSize(), QSize(80, 40), QPoint(10, 20), QPoint(70, 20));
    addRow("3 upside down", 3, QSize(), QSize(80, 40), QPoint(70, 20), QPoint(10, 20));
    addRow("6 turned clockwise", 6, QSize(), QSize(40, 80), QPoint(20, 10), QPoint(20, 70));
    addRow("8 turned anticlockwise", 8, QSize(), QSize(40, 80), QPoint(20, 70), QPoint(20, 10));
    // Upright 40 x 80 into 40 x 20: the box applies to the upright photo, not the stored one.
    addRow("6 fitted into a wide box", 6, QSize(40, 20), QSize(10, 20), QPoint(5, 3),
           QPoint(5, 17));
}

void TestPhotoFiles::readUpright()
{
    QFETCH(int, orientation);
    QFETCH(QSize, box);
    QFETCH(QSize, size);
    QFETCH(QPoint, red);
    QFETCH(QPoint, blue);

    const QString path = TestUtils::writeFile(
        dir.filePath(QString("turned%1.jpg").arg(orientation)),
        TestUtils::jpegWithOrientation(TestUtils::halvesPicture(80, 40), orientation));
    const QImage photo = box.isEmpty() ? PhotoFiles::read(path) : PhotoFiles::readFitted(path, box);
    QCOMPARE(photo.size(), size);
    QVERIFY(qRed(photo.pixel(red)) > 200 && qBlue(photo.pixel(red)) < 60);
    QVERIFY(qBlue(photo.pixel(blue)) > 200 && qRed(photo.pixel(blue)) < 60);
}

void TestPhotoFiles::thumbnail_data()
{
    QTest::addColumn<QSize>("photo"); // empty: not a photo
    QTest::addColumn<QRect>("opaque");

    // Read at a twentieth, then fitted into 48 x 48 and centred on transparency.
    addRow("landscape 800x600", QSize(800, 600), QRect(0, 6, 48, 36));
    addRow("portrait 600x1200", QSize(600, 1200), QRect(12, 0, 24, 48));
    // Read at 1 x 2, as a twentieth would leave no pixel across.
    addRow("tiny 9x30", QSize(9, 30), QRect(12, 0, 24, 48));
    addRow("unreadable", QSize(), QRect());
}

void TestPhotoFiles::thumbnail()
{
    QFETCH(QSize, photo);
    QFETCH(QRect, opaque);

    const QString path =
        photo.isEmpty()
            ? TestUtils::writeFile(dir.filePath("broken.jpg"), "not a photo")
            : TestUtils::writeImage(
                  dir.filePath(QString("t%1x%2.png").arg(photo.width()).arg(photo.height())),
                  TestUtils::filledImage(photo.width(), photo.height(), 0xff208040));
    ItemsModel model;
    model.setPhotos({QUrl::fromLocalFile(path)});
    const QImage thumbnail = model.data(model.index(0), Qt::DecorationRole).value<QImage>();
    QCOMPARE(thumbnail.size(), opaque.isNull() ? QSize(0, 0) : QSize(48, 48));
    QRect covered;
    for (int y = 0; y < thumbnail.height(); ++y) {
        for (int x = 0; x < thumbnail.width(); ++x) {
            const int alpha = qAlpha(thumbnail.pixel(x, y));
            QVERIFY2(alpha == 0 || alpha == 255, qPrintable(QString("(%1,%2)").arg(x).arg(y)));
            covered |= alpha ? QRect(x, y, 1, 1) : QRect();
        }
    }
    QCOMPARE(covered, opaque);
}

void TestPhotoFiles::newListReadsThumbnailsAnew()
{
    const QString path = TestUtils::writeImage(dir.filePath("changing.png"),
                                               TestUtils::filledImage(96, 96, 0xffff0000));
    const auto centre = [](const ItemsModel& model) {
        return model.data(model.index(0), Qt::DecorationRole).value<QImage>().pixel(24, 24);
    };
    ItemsModel model;
    model.setPhotos({QUrl::fromLocalFile(path)});
    QCOMPARE(centre(model), 0xffff0000);
    // Kept while the list stays.
    TestUtils::writeImage(path, TestUtils::filledImage(96, 96, 0xff00ff00));
    QCOMPARE(centre(model), 0xffff0000);
    model.setPhotos({QUrl::fromLocalFile(path)});
    QCOMPARE(centre(model), 0xff00ff00);
}

PELODINE_TEST_MAIN(TestPhotoFiles)
#include "tst_photofiles.moc"
