// The photo list model: display names, 48 x 48 thumbnails and their cache.
#include "itemsmodel.h"
#include "photofixtures.h"
#include "testutils.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestItemsModel : public QObject
{
    Q_OBJECT

private slots:
    void displayName_data();
    void displayName();
    void outsideTheListIsEmpty_data();
    void outsideTheListIsEmpty();
    void fitIntoThumbnail_data();
    void fitIntoThumbnail();
    void thumbnailOfPhoto();
    void thumbnailIsCachedPerRow();
    void unreadablePhotoHasEmptyThumbnail();
    void setDataReplacesPhoto_data();
    void setDataReplacesPhoto();

private:
    QTemporaryDir dir;
};

namespace {

// Rows [top, bottom) and columns [left, right) hold the picture, the rest is transparent.
void checkPlacement(const QImage& thumbnail, const QRect& filled)
{
    QCOMPARE(thumbnail.size(), QSize(48, 48));
    for (int y = 0; y < 48; ++y) {
        for (int x = 0; x < 48; ++x) {
            const int alpha = qAlpha(thumbnail.pixel(x, y));
            if (filled.contains(x, y))
                QVERIFY2(alpha == 255, qPrintable(QString("(%1,%2) not opaque").arg(x).arg(y)));
            else
                QVERIFY2(alpha == 0, qPrintable(QString("(%1,%2) not clear").arg(x).arg(y)));
        }
    }
}

} // namespace

void TestItemsModel::displayName_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("shown");

    TestUtils::addRow("two dots", "holiday.2024.png", "holiday.2024");
    TestUtils::addRow("a.b.jpg", "a.b.jpg", "a.b");
    TestUtils::addRow("upper-case extension", "IMG_0001.JPG", "IMG_0001");
    TestUtils::addRow("no extension", "README", "README");
    TestUtils::addRow("only an extension", ".hidden", "");
}

void TestItemsModel::displayName()
{
    QFETCH(QString, fileName);
    QFETCH(QString, shown);

    ItemsModel model;
    model.setPhotos({QUrl::fromLocalFile("/photos/" + fileName)});
    QCOMPARE(model.data(model.index(0), Qt::DisplayRole).toString(), shown);
}

void TestItemsModel::outsideTheListIsEmpty_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");

    QTest::newRow("after the last row") << 2 << 0;
    QTest::newRow("negative row") << -1 << 0;
    QTest::newRow("second column") << 0 << 1;
}

void TestItemsModel::outsideTheListIsEmpty()
{
    QFETCH(int, row);
    QFETCH(int, column);

    ItemsModel model;
    model.setPhotos({QUrl::fromLocalFile("/photos/a.png"), QUrl::fromLocalFile("/photos/b.png")});
    const QModelIndex index = model.index(row, column);
    QVERIFY(!model.data(index, Qt::DisplayRole).isValid());
    QVERIFY(!model.data(index, Qt::DecorationRole).isValid());
    QVERIFY(!model.data(index, Qt::SizeHintRole).isValid());
}

void TestItemsModel::fitIntoThumbnail_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QRect>("filled");

    // 200 x 150 scales to 48 x 36, drawn at y (48 - 36) / 2 = 6.
    QTest::newRow("landscape 200x150")
        << QSize(200, 150) << QImage::Format_RGB32 << QRect(0, 6, 48, 36);
    // 100 x 25 scales to 48 x 12, at y 18.
    QTest::newRow("wide 100x25 with alpha")
        << QSize(100, 25) << QImage::Format_ARGB32 << QRect(0, 18, 48, 12);
    // 30 x 60 scales to 24 x 48, at x (48 - 24) / 2 = 12.
    QTest::newRow("portrait 30x60")
        << QSize(30, 60) << QImage::Format_RGB32 << QRect(12, 0, 24, 48);
    // 10 x 35 scales to 13 x 48 (13.7 cut), at x (48 - 13) / 2 = 17.
    QTest::newRow("narrow 10x35") << QSize(10, 35) << QImage::Format_RGB32 << QRect(17, 0, 13, 48);
    QTest::newRow("square fills") << QSize(96, 96) << QImage::Format_RGB32 << QRect(0, 0, 48, 48);
}

void TestItemsModel::fitIntoThumbnail()
{
    QFETCH(QSize, size);
    QFETCH(QImage::Format, format);
    QFETCH(QRect, filled);

    const QImage photo =
        TestUtils::filledImage(size.width(), size.height(), 0xff208040).convertToFormat(format);
    checkPlacement(ItemsModel::fitIntoThumbnail(photo), filled);
}

void TestItemsModel::thumbnailOfPhoto()
{
    // Read at 200 x 150, then 48 x 36 with transparent bands of 6 rows above and below.
    const QString path = PhotoFixtures::writePng(dir.filePath("big.png"), 4000, 3000, 0xffc08040);
    ItemsModel model;
    model.setPhotos({QUrl::fromLocalFile(path)});
    const QImage thumbnail = model.data(model.index(0), Qt::DecorationRole).value<QImage>();
    checkPlacement(thumbnail, QRect(0, 6, 48, 36));
    QCOMPARE(thumbnail.pixel(24, 24), 0xffc08040);
}

void TestItemsModel::thumbnailIsCachedPerRow()
{
    const QString first = PhotoFixtures::writePng(dir.filePath("first.png"), 96, 96, 0xffff0000);
    const QString second = PhotoFixtures::writePng(dir.filePath("second.png"), 96, 96, 0xff0000ff);
    ItemsModel model;
    model.setPhotos({QUrl::fromLocalFile(first), QUrl::fromLocalFile(second)});
    QCOMPARE(model.data(model.index(0), Qt::DecorationRole).value<QImage>().pixel(24, 24),
             0xffff0000);

    // Once made, row 0's thumbnail no longer depends on the file.
    PhotoFixtures::writePng(first, 96, 96, 0xff00ff00);
    QCOMPARE(model.data(model.index(0), Qt::DecorationRole).value<QImage>().pixel(24, 24),
             0xffff0000);
    QCOMPARE(model.data(model.index(1), Qt::DecorationRole).value<QImage>().pixel(24, 24),
             0xff0000ff);

    // A new list starts a new cache.
    model.setPhotos({QUrl::fromLocalFile(first)});
    QCOMPARE(model.data(model.index(0), Qt::DecorationRole).value<QImage>().pixel(24, 24),
             0xff00ff00);
}

void TestItemsModel::unreadablePhotoHasEmptyThumbnail()
{
    const QString path = PhotoFixtures::writeFile(dir.filePath("notes.jpg"), "not a photo");
    ItemsModel model;
    model.setPhotos({QUrl::fromLocalFile(path)});
    QVERIFY(model.data(model.index(0), Qt::DecorationRole).value<QImage>().isNull());
    QCOMPARE(model.data(model.index(0), Qt::DisplayRole).toString(), QString("notes"));
}

void TestItemsModel::setDataReplacesPhoto_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("replaced");

    QTest::newRow("url") << QVariant(QUrl::fromLocalFile("/other/new.png")) << true;
    QTest::newRow("text of a url") << QVariant(QString("file:///other/new.png")) << true;
    QTest::newRow("not a url") << QVariant(QSize(1, 2)) << false;
}

void TestItemsModel::setDataReplacesPhoto()
{
    QFETCH(QVariant, value);
    QFETCH(bool, replaced);

    ItemsModel model;
    model.setPhotos({QUrl::fromLocalFile("/photos/a.png"), QUrl::fromLocalFile("/photos/b.png")});
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QCOMPARE(model.setData(model.index(1), value), replaced);
    QCOMPARE(changed.count(), replaced ? 1 : 0);
    QCOMPARE(model.photos().at(1).toLocalFile(),
             QString(replaced ? "/other/new.png" : "/photos/b.png"));
    if (replaced) {
        QCOMPARE(changed.first().at(0).toModelIndex().row(), 1);
        QCOMPARE(model.data(model.index(1)).toString(), QString("new"));
    }
}

PELODINE_TEST_MAIN(TestItemsModel)
#include "tst_itemsmodel.moc"
