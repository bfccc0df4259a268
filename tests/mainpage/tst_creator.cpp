// The photo side: the current photo handed whole to the options panel, the icon list and the
// single-load rule when stepping.
#include "commondata.h"
#include "creator.h"
#include "creatordroparea.h"
#include "creatoriconsview.h"
#include "nodesoptionspanel.h"
#include "photofixtures.h"
#include "testutils.h"

#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestCreator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void handsPhotoToPanel_data();
    void handsPhotoToPanel();
    void iconViewButtonToggles();
    void steppingLoadsOnce_data();
    void steppingLoadsOnce();
    void newListLoadsOnce_data();
    void newListLoadsOnce();
    void clickingAnIconLoadsIt();
    void iconListShowsThePhotos();
    void dropBesideTheArea();

private:
    QList<QUrl> threePhotos() const;

    QTemporaryDir dir;
    NodesOptionsPanel* panel = nullptr;
    Creator* creator = nullptr;
};

void TestCreator::initTestCase()
{
    PhotoFixtures::writePng(dir.filePath("small.png"), 300, 200);
    PhotoFixtures::writePng(dir.filePath("large.png"), 4000, 3000);
    PhotoFixtures::writePng(dir.filePath("tall.png"), 300, 2000);
    PhotoFixtures::writeFile(
        dir.filePath("turned.jpg"),
        TestUtils::jpegWithOrientation(PhotoFixtures::halvesPicture(400, 200), 6));
    PhotoFixtures::writeFile(dir.filePath("broken.jpg"), "not a photo");
}

void TestCreator::init()
{
    CommonData::instance()->previewMode = 1;
    panel = new NodesOptionsPanel;
    creator = new Creator(panel);
}

void TestCreator::cleanup()
{
    delete creator;
    delete panel;
}

QList<QUrl> TestCreator::threePhotos() const
{
    return {QUrl::fromLocalFile(dir.filePath("small.png")),
            QUrl::fromLocalFile(dir.filePath("tall.png")),
            QUrl::fromLocalFile(dir.filePath("turned.jpg"))};
}

void TestCreator::handsPhotoToPanel_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("whole");
    QTest::addColumn<QSize>("preview");
    QTest::addColumn<QString>("format");

    // The live preview works on at most 360 wide (device pixel ratio 1), fitted into 360 x 360.
    QTest::newRow("small photo") << "small.png" << QSize(300, 200) << QSize(300, 200) << "png";
    QTest::newRow("4000x3000 reduced to 360x270")
        << "large.png" << QSize(4000, 3000) << QSize(360, 270) << "png";
    QTest::newRow("300x2000 narrow, left unreduced")
        << "tall.png" << QSize(300, 2000) << QSize(300, 2000) << "png";
    QTest::newRow("turned upright") << "turned.jpg" << QSize(200, 400) << QSize(200, 400) << "jpeg";
    // A null image, whose size is 0 x 0.
    QTest::newRow("unreadable") << "broken.jpg" << QSize(0, 0) << QSize(0, 0) << "";
}

void TestCreator::handsPhotoToPanel()
{
    QFETCH(QString, file);
    QFETCH(QSize, whole);
    QFETCH(QSize, preview);
    QFETCH(QString, format);

    QSignalSpy changed(creator, &Creator::imageChanged);
    QSignalSpy formats(creator, &Creator::formatChanged);
    QSignalSpy real(creator, &Creator::realPreview);
    creator->dropArea()->setPhotos({QUrl::fromLocalFile(dir.filePath(file))});

    QCOMPARE(panel->sourceImage().size(), whole);
    QCOMPARE(panel->sourceImage().devicePixelRatio(), 1.0);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().at(0).value<QImage>().size(), preview);
    QCOMPARE(real.count(), 1);
    QCOMPARE(formats.count(), 1);
    QCOMPARE(formats.first().at(0).toString(), format);
}

void TestCreator::iconViewButtonToggles()
{
    auto* button = creator->findChild<QPushButton*>("IconViewButton");
    QVERIFY(button);
    QVERIFY(button->isCheckable() && button->isChecked() && button->isFlat());
    QVERIFY(!creator->dropArea()->isHidden());
    QVERIFY(creator->iconsView()->isHidden());

    button->click();
    QVERIFY(creator->dropArea()->isHidden());
    QVERIFY(!creator->iconsView()->isHidden());

    button->click();
    QVERIFY(!creator->dropArea()->isHidden());
    QVERIFY(creator->iconsView()->isHidden());
}

void TestCreator::steppingLoadsOnce_data()
{
    QTest::addColumn<bool>("iconList");
    QTest::addColumn<QString>("step");
    QTest::addColumn<int>("index");
    QTest::addColumn<QSize>("whole");

    // From photo 0 of 3 (small 300 x 200, tall 300 x 2000, turned 200 x 400); in either mode
    // the new photo is loaded exactly once.
    QTest::newRow("next, photo shown") << false << "next" << 1 << QSize(300, 2000);
    QTest::newRow("next, icon list shown") << true << "next" << 1 << QSize(300, 2000);
    QTest::newRow("previous, photo shown") << false << "previous" << 2 << QSize(200, 400);
    QTest::newRow("previous, icon list shown") << true << "previous" << 2 << QSize(200, 400);
    QTest::newRow("first, photo shown") << false << "first" << 0 << QSize(300, 200);
}

void TestCreator::steppingLoadsOnce()
{
    QFETCH(bool, iconList);
    QFETCH(QString, step);
    QFETCH(int, index);
    QFETCH(QSize, whole);

    creator->dropArea()->setPhotos(threePhotos());
    creator->slotShowModeChanged(!iconList);
    if (step == "first")
        creator->slotNext();
    QSignalSpy real(creator, &Creator::realPreview);
    if (step == "next")
        creator->slotNext();
    else if (step == "previous")
        creator->slotPrevious();
    else
        creator->slotGotoFirst();

    QCOMPARE(real.count(), 1);
    QCOMPARE(creator->dropArea()->currentIndex(), index);
    QCOMPARE(creator->iconsView()->currentIndex().row(), index);
    QCOMPARE(panel->sourceImage().size(), whole);
}

void TestCreator::newListLoadsOnce_data()
{
    QTest::addColumn<bool>("iconList");

    QTest::newRow("photo shown") << false;
    QTest::newRow("icon list shown") << true;
}

void TestCreator::newListLoadsOnce()
{
    QFETCH(bool, iconList);

    creator->slotShowModeChanged(!iconList);
    QSignalSpy real(creator, &Creator::realPreview);
    creator->dropArea()->setPhotos(threePhotos());
    QCOMPARE(real.count(), 1);
    QCOMPARE(creator->iconsView()->currentIndex().row(), 0);
}

void TestCreator::clickingAnIconLoadsIt()
{
    creator->dropArea()->setPhotos(threePhotos());
    creator->slotShowModeChanged(false);
    QSignalSpy real(creator, &Creator::realPreview);
    QSignalSpy indexChanged(creator->dropArea(), &CreatorDropArea::indexChanged);

    CreatorIconsView* icons = creator->iconsView();
    icons->setCurrentIndex(icons->model()->index(1, 0));

    QCOMPARE(creator->dropArea()->currentIndex(), 1);
    QCOMPARE(real.count(), 1);
    QCOMPARE(indexChanged.count(), 0);
    QCOMPARE(panel->sourceImage().size(), QSize(300, 2000));
}

void TestCreator::iconListShowsThePhotos()
{
    creator->dropArea()->setPhotos(threePhotos());
    const QAbstractItemModel* model = creator->iconsView()->model();
    QCOMPARE(creator->iconsView()->objectName(), QString("CreatorIconsView"));
    QCOMPARE(model->rowCount(), 3);
    QCOMPARE(model->index(2, 0).data().toString(), QString("turned"));
    QCOMPARE(model->index(1, 0).data(Qt::DecorationRole).value<QImage>().size(), QSize(48, 48));
}

void TestCreator::dropBesideTheArea()
{
    QMimeData data;
    data.setUrls(threePhotos());
    QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(creator, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(creator, &drop);
    QCOMPARE(creator->dropArea()->photos(), threePhotos());
}

PELODINE_TEST_MAIN(TestCreator)
#include "tst_creator.moc"
