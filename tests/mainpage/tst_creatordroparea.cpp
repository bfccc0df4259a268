// The photo side's drop area: taking photos in, stepping, the counter and what it tells others.
#include "commondata.h"
#include "creatordroparea.h"
#include "photofixtures.h"
#include "testutils.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

// Calls a slot through a signal, as the step buttons and the main page do.
class Stepper : public QObject
{
    Q_OBJECT

signals:
    void step();
};

class TestCreatorDropArea : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void dropThreeFiles();
    void dragAcceptance_data();
    void dragAcceptance();
    void stepping_data();
    void stepping();
    void emissions_data();
    void emissions();
    void itemClickedDoesNotTellTheList();
    void emptyListDoesNotStep();
    void hover_data();
    void hover();
    void pictureAtTwiceTheSize_data();
    void pictureAtTwiceTheSize();
    void turnedPhotoShownUpright();
    void unreadablePhotoStaysInTheList();
    void droppedFolderExpands();
    void commonDataFollows();

private:
    QList<QUrl> threePhotos() const;
    QString counterText(const CreatorDropArea& area) const;

    QTemporaryDir dir;
};

namespace {

// Sends a drag entering the area with data; returns whether the area accepted it.
bool dragEnter(QWidget* area, QMimeData* data)
{
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(area, &enter);
    return enter.isAccepted();
}

void drop(QWidget* area, const QList<QUrl>& urls)
{
    QMimeData data;
    data.setUrls(urls);
    QVERIFY(dragEnter(area, &data));
    QDropEvent dropEvent(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(area, &dropEvent);
}

QList<int> indexes(const QSignalSpy& spy)
{
    QList<int> values;
    for (const QList<QVariant>& arguments : spy)
        values << arguments.at(0).toInt();
    return values;
}

} // namespace

void TestCreatorDropArea::initTestCase()
{
    PhotoFixtures::writePng(dir.filePath("one.png"), 40, 30);
    PhotoFixtures::writePng(dir.filePath("two.png"), 30, 40);
    PhotoFixtures::writePng(dir.filePath("holiday.2024.png"), 20, 20);
}

QList<QUrl> TestCreatorDropArea::threePhotos() const
{
    return {QUrl::fromLocalFile(dir.filePath("one.png")),
            QUrl::fromLocalFile(dir.filePath("two.png")),
            QUrl::fromLocalFile(dir.filePath("holiday.2024.png"))};
}

QString TestCreatorDropArea::counterText(const CreatorDropArea& area) const
{
    // The counter is the only label among the area's children.
    const QList<QLabel*> labels = area.findChildren<QLabel*>();
    return labels.size() == 1 ? labels.first()->text() : QString("no single counter label");
}

void TestCreatorDropArea::dropThreeFiles()
{
    CreatorDropArea area;
    QCOMPARE(area.text(), QString("<H2>Drop the photos here</H2>"));
    QSignalSpy dropped(&area, &CreatorDropArea::dropped);
    QSignalSpy updated(&area, &CreatorDropArea::updateItems);

    drop(&area, threePhotos());

    QCOMPARE(counterText(area), QString("<CENTER><H1>1 of 3</H1></CENTER>"));
    QCOMPARE(area.photos(), threePhotos());
    QCOMPARE(area.currentIndex(), 0);
    QCOMPARE(area.currentPath(), dir.filePath("one.png"));
    QCOMPARE(dropped.count(), 1);
    QCOMPARE(dropped.first().at(0).toBool(), true);
    QCOMPARE(updated.count(), 1);
    QCOMPARE(updated.first().at(0).value<QList<QUrl>>(), threePhotos());
    // The invitation gives way to the photo.
    QVERIFY(area.text().isEmpty());
    QVERIFY(area.findChild<QPushButton*>("PushButton")->isHidden());
}

void TestCreatorDropArea::dragAcceptance_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("uri list") << "text/uri-list" << QByteArray("file:///tmp/a.png\r\n") << true;
    QTest::newRow("plain text of a path") << "text/plain" << QByteArray("/tmp/a.png") << false;
    QTest::newRow("image data") << "image/png" << QByteArray("\x89PNG") << false;
}

void TestCreatorDropArea::dragAcceptance()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, contents);
    QFETCH(bool, accepted);

    CreatorDropArea area;
    QMimeData data;
    data.setData(format, contents);
    QCOMPARE(dragEnter(&area, &data), accepted);
}

void TestCreatorDropArea::stepping_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("counter");

    QTest::newRow("next") << QStringList{"next"} << 1 << "<CENTER><H1>2 of 3</H1></CENTER>";
    QTest::newRow("next after the last wraps to the first")
        << QStringList{"next", "next", "next"} << 0 << "<CENTER><H1>1 of 3</H1></CENTER>";
    QTest::newRow("previous before the first wraps to the last")
        << QStringList{"previous"} << 2 << "<CENTER><H1>3 of 3</H1></CENTER>";
    QTest::newRow("previous twice")
        << QStringList{"previous", "previous"} << 1 << "<CENTER><H1>2 of 3</H1></CENTER>";
    QTest::newRow("first") << QStringList{"next", "next", "first"} << 0
                           << "<CENTER><H1>1 of 3</H1></CENTER>";
    QTest::newRow("item") << QStringList{"item 2"} << 2 << "<CENTER><H1>3 of 3</H1></CENTER>";
}

void TestCreatorDropArea::stepping()
{
    QFETCH(QStringList, steps);
    QFETCH(int, index);
    QFETCH(QString, counter);

    CreatorDropArea area;
    area.setPhotos(threePhotos());
    for (const QString& step : steps) {
        if (step == "next")
            area.slotNext();
        else if (step == "previous")
            area.slotPreviuos();
        else if (step == "first")
            area.slotGotoFirst();
        else
            area.slotItemClicked(step.section(' ', 1).toInt());
    }
    QCOMPARE(area.currentIndex(), index);
    QCOMPARE(area.currentPath(), threePhotos().at(index).toLocalFile());
    QCOMPARE(counterText(area), counter);
}

void TestCreatorDropArea::emissions_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<bool>("throughSignal");
    QTest::addColumn<bool>("areaHidden");
    QTest::addColumn<int>("droppedCount");
    QTest::addColumn<QList<int>>("changedIndexes");

    // From photo 0 of 3.
    QTest::newRow("next called directly, area shown")
        << "next" << false << false << 1 << QList<int>{1};
    QTest::newRow("next called directly, icon list shown")
        << "next" << false << true << 0 << QList<int>{1};
    QTest::newRow("next through a signal, icon list shown")
        << "next" << true << true << 1 << QList<int>{1};
    QTest::newRow("previous called directly, area shown")
        << "previous" << false << false << 1 << QList<int>{2};
    QTest::newRow("previous called directly, icon list shown")
        << "previous" << false << true << 0 << QList<int>{2};
    QTest::newRow("previous through a signal, icon list shown")
        << "previous" << true << true << 1 << QList<int>{2};
    QTest::newRow("first called directly, icon list shown")
        << "first" << false << true << 1 << QList<int>{0};
}

void TestCreatorDropArea::emissions()
{
    QFETCH(QString, step);
    QFETCH(bool, throughSignal);
    QFETCH(bool, areaHidden);
    QFETCH(int, droppedCount);
    QFETCH(QList<int>, changedIndexes);

    CreatorDropArea area;
    area.setPhotos(threePhotos());
    area.setHidden(areaHidden);
    QSignalSpy dropped(&area, &CreatorDropArea::dropped);
    QSignalSpy changed(&area, &CreatorDropArea::indexChanged);

    void (CreatorDropArea::*slot)() = step == "next"       ? &CreatorDropArea::slotNext
                                      : step == "previous" ? &CreatorDropArea::slotPreviuos
                                                           : &CreatorDropArea::slotGotoFirst;
    if (throughSignal) {
        Stepper stepper;
        connect(&stepper, &Stepper::step, &area, slot);
        emit stepper.step();
    } else {
        (area.*slot)();
    }
    QCOMPARE(dropped.count(), droppedCount);
    QCOMPARE(indexes(changed), changedIndexes);
}

void TestCreatorDropArea::itemClickedDoesNotTellTheList()
{
    CreatorDropArea area;
    area.setPhotos(threePhotos());
    area.hide();
    QSignalSpy dropped(&area, &CreatorDropArea::dropped);
    QSignalSpy changed(&area, &CreatorDropArea::indexChanged);
    area.slotItemClicked(1);
    QCOMPARE(area.currentIndex(), 1);
    QCOMPARE(dropped.count(), 1);
    QCOMPARE(changed.count(), 0);
}

void TestCreatorDropArea::emptyListDoesNotStep()
{
    CreatorDropArea area;
    QSignalSpy dropped(&area, &CreatorDropArea::dropped);
    QSignalSpy changed(&area, &CreatorDropArea::indexChanged);
    area.slotNext();
    area.slotPreviuos();
    area.slotGotoFirst();
    area.slotItemClicked(0);
    QCOMPARE(dropped.count(), 0);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(area.currentIndex(), 0);
    // An empty drop (an empty folder) leaves the invitation in place.
    area.setPhotos({});
    QCOMPARE(dropped.count(), 0);
    QCOMPARE(area.text(), QString("<H2>Drop the photos here</H2>"));
}

void TestCreatorDropArea::hover_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("shownOnEnter");

    QTest::newRow("one photo") << 1 << false;
    QTest::newRow("two photos") << 2 << true;
    QTest::newRow("three photos") << 3 << true;
}

void TestCreatorDropArea::hover()
{
    QFETCH(int, count);
    QFETCH(bool, shownOnEnter);

    CreatorDropArea area;
    area.setPhotos(threePhotos().mid(0, count));
    auto* next = area.findChild<QPushButton*>("NextImageButton");
    auto* previous = area.findChild<QPushButton*>("PreviousImageButton");
    auto* counter = area.findChild<QLabel*>();
    QVERIFY(next && previous && counter);
    QVERIFY(next->isHidden() && previous->isHidden() && counter->isHidden());

    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&area, &enter);
    QCOMPARE(!next->isHidden(), shownOnEnter);
    QCOMPARE(!previous->isHidden(), shownOnEnter);
    QCOMPARE(!counter->isHidden(), shownOnEnter);

    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&area, &leave);
    QVERIFY(next->isHidden() && previous->isHidden() && counter->isHidden());
}

void TestCreatorDropArea::pictureAtTwiceTheSize_data()
{
    QTest::addColumn<QSize>("photo");
    QTest::addColumn<QSize>("picture");

    // Fitted into 720 x 720, twice the 360 x 360 area.
    QTest::newRow("landscape 4000x3000") << QSize(4000, 3000) << QSize(720, 540);
    QTest::newRow("portrait 300x2000") << QSize(300, 2000) << QSize(108, 720);
    QTest::newRow("small 40x30 enlarged") << QSize(40, 30) << QSize(720, 540);
}

void TestCreatorDropArea::pictureAtTwiceTheSize()
{
    QFETCH(QSize, photo);
    QFETCH(QSize, picture);

    const QString path = PhotoFixtures::writePng(
        dir.filePath(QString("p%1x%2.png").arg(photo.width()).arg(photo.height())), photo.width(),
        photo.height());
    CreatorDropArea area;
    QCOMPARE(area.size(), QSize(360, 360));
    area.setPhotos({QUrl::fromLocalFile(path)});
    QCOMPARE(area.picture().size(), picture);
}

void TestCreatorDropArea::turnedPhotoShownUpright()
{
    // Stored 400 x 200 with orientation 6: upright 200 x 400, red on top; fitted 360 x 720.
    const QString path = PhotoFixtures::writeFile(
        dir.filePath("turned.jpg"),
        TestUtils::jpegWithOrientation(PhotoFixtures::halvesPicture(400, 200), 6));
    CreatorDropArea area;
    area.setPhotos({QUrl::fromLocalFile(path)});
    const QImage picture = area.picture().toImage();
    QCOMPARE(picture.size(), QSize(360, 720));
    QVERIFY(qRed(picture.pixel(180, 100)) > 200 && qBlue(picture.pixel(180, 100)) < 60);
    QVERIFY(qBlue(picture.pixel(180, 620)) > 200 && qRed(picture.pixel(180, 620)) < 60);
}

void TestCreatorDropArea::unreadablePhotoStaysInTheList()
{
    const QString broken = PhotoFixtures::writeFile(dir.filePath("broken.jpg"), "not a photo");
    CreatorDropArea area;
    QSignalSpy dropped(&area, &CreatorDropArea::dropped);
    area.setPhotos({QUrl::fromLocalFile(broken), threePhotos().at(0)});
    QCOMPARE(area.photos().size(), 2);
    QVERIFY(area.picture().isNull());
    QCOMPARE(dropped.count(), 1);
    QCOMPARE(counterText(area), QString("<CENTER><H1>1 of 2</H1></CENTER>"));
    area.slotNext();
    QCOMPARE(area.picture().size(), QSize(720, 540));
    area.slotNext();
    QVERIFY(area.picture().isNull());
}

void TestCreatorDropArea::droppedFolderExpands()
{
    QTemporaryDir folder;
    PhotoFixtures::writePng(folder.filePath("b.png"), 4, 4);
    PhotoFixtures::writePng(folder.filePath("a.png"), 4, 4);
    PhotoFixtures::writePng(folder.filePath("c/a.png"), 4, 4);
    CreatorDropArea area;
    QSignalSpy updated(&area, &CreatorDropArea::updateItems);
    drop(&area, {threePhotos().at(0), QUrl::fromLocalFile(folder.path())});
    const QList<QUrl> expected = {threePhotos().at(0),
                                  QUrl::fromLocalFile(folder.filePath("a.png")),
                                  QUrl::fromLocalFile(folder.filePath("b.png")),
                                  QUrl::fromLocalFile(folder.filePath("c/a.png"))};
    QCOMPARE(area.photos(), expected);
    QCOMPARE(updated.first().at(0).value<QList<QUrl>>(), expected);
    QCOMPARE(counterText(area), QString("<CENTER><H1>1 of 4</H1></CENTER>"));
}

void TestCreatorDropArea::commonDataFollows()
{
    CreatorDropArea area;
    area.setPhotos(threePhotos());
    area.slotPreviuos();
    const CommonData* data = CommonData::instance();
    QCOMPARE(data->photoCount, 3);
    QCOMPARE(data->currentIndex, 2);
    QCOMPARE(data->displayName, QString("holiday.2024"));
    area.slotNext();
    QCOMPARE(data->currentIndex, 0);
    QCOMPARE(data->displayName, QString("one"));
}

PELODINE_TEST_MAIN(TestCreatorDropArea)
#include "tst_creatordroparea.moc"
