// The main page: photos read upright, their thumbnails, photos dropped in, added, removed and
// stepped through, the live preview on a reduced copy, the large view at full size and the batch
// run.
#include "app.h"
#include "appdata.h"
#include "basenode.h"
#include "commondata.h"
#include "creator.h"
#include "creatordroparea.h"
#include "creatoriconsview.h"
#include "flowpanel.h"
#include "imagepreview.h"
#include "imageviewdialog.h"
#include "imageviewer.h"
#include "itemsmodel.h"
#include "mainpage.h"
#include "nodesoptionspanel.h"
#include "photoactions.h"
#include "photofiles.h"
#include "representor.h"
#include "runsummarybar.h"
#include "testutils.h"

#include <QAction>
#include <QDirIterator>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using TestUtils::addRow;

namespace {

// What the pointer over a photo view brings up: the info line's text, with both step buttons;
// empty if it brings up nothing. All of it goes when the pointer leaves.
QString hoverInfo(QWidget* view)
{
    auto* info = view->findChild<QLabel*>();
    auto* next = view->findChild<QPushButton*>("NextImageButton");
    auto* previous = view->findChild<QPushButton*>("PreviousImageButton");
    QEvent enter(QEvent::Enter);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(view, &enter);
    const bool shown = !info->isHidden() && !next->isHidden() && !previous->isHidden();
    QCoreApplication::sendEvent(view, &leave);
    if (!info->isHidden() || !next->isHidden() || !previous->isHidden())
        return "still shown after leaving";
    return shown ? info->text() : QString();
}

} // namespace

class TestMainPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void readUpright_data();
    void readUpright();
    void thumbnail_data();
    void thumbnail();
    void newListReadsThumbnailsAnew();
    void dropPhotos_data();
    void dropPhotos();
    void steppingHandsOnThePhoto_data();
    void steppingHandsOnThePhoto();
    void editingTheList_data();
    void editingTheList();
    void addingByDialog_data();
    void addingByDialog();
    void largeViewRunsFullSize();
    void batchRunsActiveNodesOnThePhotos();
    void batchEndShowsASummary();
    void iconListShowsResults();

private:
    QList<QUrl> photos(const QStringList& names) const;
    CreatorDropArea* area() const { return page->creator()->dropArea(); }
    // Shortcuts reach only the active window.
    void showActive()
    {
        page->show();
        page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(page));
    }

    QTemporaryDir dir;
    MainPage* page = nullptr;
};

void TestMainPage::initTestCase()
{
    const auto png = [this](const char* name, int width, int height) {
        TestUtils::writeImage(dir.filePath(name),
                              TestUtils::filledImage(width, height, 0xff3060a0));
    };
    png("large.png", 1200, 900);
    png("tall.png", 300, 2000);
    png("album/b.png", 4, 4);
    png("album/a.JPG", 4, 4);
    png("album/Sub/c.png", 4, 4);
    TestUtils::writeFile(dir.filePath("album/notes.txt"), "text");
    for (const char* name : {"album/d.CR2", "album/e.heic", "album/f.svg", "album/g.eps"})
        TestUtils::writeFile(dir.filePath(name), "taken by name, read later");
    TestUtils::writeFile(dir.filePath("turned.jpg"),
                         TestUtils::jpegWithOrientation(TestUtils::halvesPicture(400, 200), 6));
    TestUtils::writeFile(dir.filePath("broken.jpg"), "not a photo");
    QDir(dir.path()).mkpath("empty");
}

void TestMainPage::init()
{
    // The photo list outlives the page.
    CommonData::instance()->itemsModel()->setPhotos({});
    CommonData::instance()->photoCount = 0;
    CommonData::instance()->previewMode = 1;
    page = new MainPage;
}

void TestMainPage::cleanup()
{
    delete page;
}

QList<QUrl> TestMainPage::photos(const QStringList& names) const
{
    QList<QUrl> urls;
    for (const QString& name : names)
        urls << QUrl::fromLocalFile(dir.filePath(name));
    return urls;
}

void TestMainPage::readUpright_data()
{
    QTest::addColumn<QSize>("box"); // empty: read whole
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("red");
    QTest::addColumn<QPoint>("blue");

    // Stored 400 x 200, red left, blue right, to be turned clockwise: red on top.
    addRow("read whole", QSize(), QSize(200, 400), QPoint(100, 50), QPoint(100, 350));
    // The box holds the upright photo, not the stored one.
    addRow("fitted into a wide box", QSize(100, 50), QSize(25, 50), QPoint(12, 8), QPoint(12, 42));
}

void TestMainPage::readUpright()
{
    QFETCH(QSize, box);
    QFETCH(QSize, size);
    QFETCH(QPoint, red);
    QFETCH(QPoint, blue);

    const QString path = dir.filePath("turned.jpg");
    const QImage photo = box.isEmpty() ? PhotoFiles::read(path) : PhotoFiles::readFitted(path, box);
    QCOMPARE(photo.size(), size);
    QVERIFY(qRed(photo.pixel(red)) > 200 && qBlue(photo.pixel(red)) < 60);
    QVERIFY(qBlue(photo.pixel(blue)) > 200 && qRed(photo.pixel(blue)) < 60);
}

void TestMainPage::thumbnail_data()
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

void TestMainPage::thumbnail()
{
    QFETCH(QSize, photo);
    QFETCH(QRect, opaque);

    const QString path =
        photo.isEmpty()
            ? dir.filePath("broken.jpg")
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

void TestMainPage::newListReadsThumbnailsAnew()
{
    const QString path = TestUtils::writeImage(dir.filePath("changing.png"),
                                               TestUtils::filledImage(96, 96, 0xffff0000));
    const auto centre = [](const ItemsModel& model) {
        return model.data(model.index(0), Qt::DecorationRole).value<QImage>().pixel(24, 24);
    };
    ItemsModel model;
    model.setPhotos({QUrl::fromLocalFile(path)});
    QCOMPARE(centre(model), 0xffff0000);
    TestUtils::writeImage(path, TestUtils::filledImage(96, 96, 0xff00ff00));
    model.setPhotos({QUrl::fromLocalFile(path)});
    QCOMPARE(centre(model), 0xff00ff00);
}

void TestMainPage::dropPhotos_data()
{
    QTest::addColumn<QString>("way"); // onto the area, beside it, as text, or to the page
    QTest::addColumn<QStringList>("dropped");
    QTest::addColumn<QStringList>("expected");

    // Kept in drop order; a folder's image files in name order whatever the case, camera RAW
    // and HEIF among them but no drawings; a file dropped itself is kept whatever it holds.
    addRow("folder expands at its place", QString("area"),
           QStringList{"large.png", "album", "album/notes.txt"},
           QStringList{"large.png", "album/a.JPG", "album/b.png", "album/d.CR2", "album/e.heic",
                       "album/Sub/c.png", "album/notes.txt"});
    addRow("photos beside the area", QString("beside"), QStringList{"large.png"},
           QStringList{"large.png"});
    addRow("a path as plain text is refused", QString("text"), QStringList{"large.png"},
           QStringList{});
    addRow("empty folder opens the page, nothing else", QString("page"), QStringList{"empty"},
           QStringList{});
}

void TestMainPage::dropPhotos()
{
    QFETCH(QString, way);
    QFETCH(QStringList, dropped);
    QFETCH(QStringList, expected);

    QMimeData data;
    if (way == "text")
        data.setText(dir.filePath(dropped.first()));
    else
        data.setUrls(photos(dropped));
    QWidget* target = way == "beside" ? static_cast<QWidget*>(page->creator()) : area();
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    if (way == "page") {
        page->slotFilesDropped(photos(dropped));
    } else {
        QCoreApplication::sendEvent(target, &enter);
        QCOMPARE(enter.isAccepted(), way != "text");
        if (enter.isAccepted())
            QCoreApplication::sendEvent(target, &drop);
    }

    QCOMPARE(page->isVisible(), way == "page");
    QCOMPARE(area()->photos(), photos(expected));
    QCOMPARE(page->creator()->iconsView()->model()->rowCount(), expected.size());
    // The invitation gives way to the first photo; steps are offered from two photos on.
    const int count = expected.size();
    QCOMPARE(area()->text().isEmpty(), count > 0);
    QCOMPARE(hoverInfo(area()),
             count > 1 ? QString("<CENTER><H1>1 of %1</H1></CENTER>").arg(count) : QString());
    QCOMPARE(hoverInfo(page->representor()->preview()),
             count > 1 ? QString("<H1>1 of %1</H1>").arg(count) : QString());
}

void TestMainPage::steppingHandsOnThePhoto_data()
{
    QTest::addColumn<bool>("iconList");
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<int>("index");

    addRow("dropped, the first", false, QStringList{}, 0);
    addRow("next", false, QStringList{"next"}, 1);
    addRow("next, icon list shown", true, QStringList{"next"}, 1);
    addRow("next past the last wraps", false, QStringList{"next", "next", "next", "next"}, 0);
    addRow("previous before the first wraps, icon list shown", true, QStringList{"previous"}, 3);
    addRow("icon clicked", true, QStringList{"icon 2"}, 2);
    addRow("small view's next button", false, QStringList{"NextImageButton"}, 1);
    addRow("small view's previous button, icon list shown", true,
           QStringList{"PreviousImageButton"}, 3);
}

void TestMainPage::steppingHandsOnThePhoto()
{
    QFETCH(bool, iconList);
    QFETCH(QStringList, steps);
    QFETCH(int, index);

    // Per photo: handed whole to the options panel, the live preview's copy (at most 360 wide),
    // fitted into the 360 x 360 small view, and into twice the 360 x 360 drop area.
    const QSize expected[4][4] = {{{1200, 900}, {360, 270}, {360, 270}, {720, 540}},
                                  {{300, 2000}, {300, 2000}, {54, 360}, {108, 720}},
                                  {{200, 400}, {200, 400}, {180, 360}, {360, 720}},
                                  {{0, 0}, {0, 0}, {0, 0}, {0, 0}}};
    Creator* creator = page->creator();
    ImagePreview* preview = page->representor()->preview();
    QSignalSpy loads(page->nodesOptionsPanel(), &NodesOptionsPanel::realPreview);
    QSignalSpy results(page->nodesOptionsPanel(), &NodesOptionsPanel::imageChanged);
    page->slotFilesDropped(photos({"large.png", "tall.png", "turned.jpg", "broken.jpg"}));
    if (iconList)
        creator->findChild<QPushButton*>("IconViewButton")->click();
    QCOMPARE(area()->isHidden(), iconList);
    QCOMPARE(creator->iconsView()->isHidden(), !iconList);
    for (const QString& step : steps) {
        if (step == "next")
            creator->slotNext();
        else if (step == "previous")
            creator->slotPrevious();
        else if (step.startsWith("icon "))
            creator->iconsView()->setCurrentIndex(
                creator->iconsView()->model()->index(step.mid(5).toInt(), 0));
        else
            preview->findChild<QPushButton*>(step)->click();
    }

    // Each step loads its photo once.
    QCOMPARE(loads.count(), 1 + steps.size());
    QCOMPARE(area()->currentIndex(), index);
    QCOMPARE(creator->iconsView()->currentIndex().row(), index);
    QCOMPARE(page->nodesOptionsPanel()->sourceImage().size(), expected[index][0]);
    QCOMPARE(results.last().at(0).value<QImage>().size(), expected[index][1]);
    QCOMPARE(preview->picture().size(), expected[index][2]);
    QCOMPARE(area()->picture().size(), expected[index][3]);
    QCOMPARE(hoverInfo(area()), QString("<CENTER><H1>%1 of 4</H1></CENTER>").arg(index + 1));
    QCOMPARE(hoverInfo(preview), QString("<H1>%1 of 4</H1>").arg(index + 1));
    // Named with the size of the photo, and the result with that of the live run's result.
    const char* const names[] = {"large.png · 1200 × 900", "tall.png · 300 × 2000",
                                 "turned.jpg · 200 × 400", "broken.jpg"};
    const char* const resultNames[] = {"Preview · 360 × 270", "Preview · 300 × 2000",
                                       "Preview · 200 × 400", ""};
    QCOMPARE(area()->caption(), QString(names[index]));
    QCOMPARE(preview->caption(), QString(resultNames[index]));
}

void TestMainPage::editingTheList_data()
{
    QTest::addColumn<QStringList>("start");
    QTest::addColumn<int>("current");
    QTest::addColumn<QString>("edit"); // photos added, a key pressed, or an action's text
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<int>("index");

    const QStringList three{"large.png", "tall.png", "turned.jpg"};
    const QStringList one{"tall.png"};
    // Added photos join the end and leave the current one as it is.
    addRow("files append", three, 1, QString("add broken.jpg large.png"),
           three + QStringList{"broken.jpg", "large.png"}, 1);
    addRow("added to none, the first is current", QStringList{}, 0,
           QString("add turned.jpg large.png"), QStringList{"turned.jpg", "large.png"}, 0);
    // The photo after the removed one takes its place; after the last, the new last.
    addRow("icon list's menu removes, the list follows", three, 0, QString("icons Remove Photo"),
           QStringList{"tall.png", "turned.jpg"}, 0);
    addRow("Delete removes the last", three, 2, QString("key Delete"),
           QStringList{"large.png", "tall.png"}, 1);
    addRow("removing the only photo empties", one, 0, QString("key Delete"), QStringList{}, 0);
    addRow("icon list emptied, the drop area is back", one, 0, QString("icons Remove Photo"),
           QStringList{}, 0);
    addRow("clear", three, 2, QString("Clear Photos"), QStringList{}, 0);
    addRow("Right steps", three, 2, QString("key Right"), three, 0);
    addRow("Left steps", three, 0, QString("key Left"), three, 2);
    addRow("a focused slider keeps its keys", three, 0, QString("slider Right"), three, 0);
}

void TestMainPage::editingTheList()
{
    QFETCH(QStringList, start);
    QFETCH(int, current);
    QFETCH(QString, edit);
    QFETCH(QStringList, expected);
    QFETCH(int, index);

    showActive();
    if (!start.isEmpty())
        page->slotFilesDropped(photos(start));
    for (int i = 0; i < current; ++i)
        page->creator()->slotNext();
    QStringList words = edit.split(' ');
    const QString how = words.takeFirst();
    const auto key = Qt::Key(QKeySequence::fromString(words.value(0))[0]);
    CreatorIconsView* icons = page->creator()->iconsView();
    if (how == "add") {
        page->slotFilesAdded(photos(words));
    } else if (how == "key") {
        QTest::keyClick(page, key);
    } else if (how == "slider") {
        page->flowPanel()->slotAddWaterMarkNode();
        auto* slider = page->nodesOptionsPanel()->findChild<QSlider*>();
        slider->setFocus();
        QTest::keyClick(slider, key);
        QCOMPARE(slider->value(), 61);
    } else {
        if (how == "icons")
            page->creator()->findChild<QPushButton*>("IconViewButton")->click();
        for (QAction* action : how == "icons" ? icons->actions() : page->findChildren<QAction*>())
            if (action->text().remove('&') == (how == "icons" ? words.join(' ') : edit))
                action->trigger();
    }

    QCOMPARE(area()->photos(), photos(expected));
    QCOMPARE(area()->currentIndex(), index);
    QCOMPARE(CommonData::instance()->photoCount, expected.size());
    // What the watermark's macros name follows the current photo.
    const PhotoContext& named = CommonData::instance()->photo;
    QCOMPARE(QString("%1 %2/%3").arg(named.file).arg(named.number).arg(named.count),
             QString("%1 %2/%3").arg(expected.value(index)).arg(index + 1).arg(expected.size()));
    QCOMPARE(icons->model()->rowCount(), expected.size());
    QCOMPARE(icons->currentIndex().row(), expected.isEmpty() ? -1 : index);
    // The current photo is loaded and named; without photos the page is as it was at first.
    const QMap<QString, QString> names{{"large.png", "large.png · 1200 × 900"},
                                       {"tall.png", "tall.png · 300 × 2000"},
                                       {"turned.jpg", "turned.jpg · 200 × 400"}};
    QCOMPARE(area()->caption(), names.value(expected.value(index)));
    ImagePreview* preview = page->representor()->preview();
    QCOMPARE(preview->picture().isNull() && preview->caption().isEmpty(), expected.isEmpty());
    QCOMPARE(area()->text(), expected.isEmpty() ? "<H2>Drop the photos here</H2>" : "");
    QCOMPARE(area()->findChild<QPushButton*>("PushButton")->isVisible(), expected.isEmpty());
    QCOMPARE(area()->isVisible(), how != "icons" || expected.isEmpty());
    QCOMPARE(page->photoCommands()->removePhoto()->isEnabled(), !expected.isEmpty());
    QCOMPARE(page->photoCommands()->nextPhoto()->isEnabled(), expected.size() > 1);
}

void TestMainPage::addingByDialog_data()
{
    QTest::addColumn<QString>("command");    // Ctrl+O, or the folder's menu entry
    QTest::addColumn<QString>("lastFolder"); // empty: none stored yet
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QStringList>("added"); // none: a warning says so

    addRow("photos, at first from the pictures folder", QString("Ctrl+O"), QString(),
           QString("tall.png"), QStringList{"tall.png"});
    addRow("photos, then where the last ones came from", QString("Ctrl+O"), QString("album"),
           QString("album/b.png"), QStringList{"album/b.png"});
    addRow("a folder with its subfolders", QString("folder"), QString("album"), QString("album"),
           QStringList{"album/a.JPG", "album/b.png", "album/d.CR2", "album/e.heic",
                       "album/Sub/c.png"});
    addRow("a folder without photos", QString("folder"), QString(), QString("empty"),
           QStringList{});
}

void TestMainPage::addingByDialog()
{
    QFETCH(QString, command);
    QFETCH(QString, lastFolder);
    QFETCH(QString, chosen);
    QFETCH(QStringList, added);

    QSettings().remove("KeyLastPhotoFolder");
    if (!lastFolder.isEmpty())
        OrkTools::AppData::writeSetting("KeyLastPhotoFolder", dir.filePath(lastFolder));
    showActive();
    page->slotFilesDropped(photos({"large.png"}));
    // Every dialog the command opens is answered as it comes up, the file dialog once: if it
    // refuses the answer, it is cancelled.
    QStringList answered;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            answered << box->text();
            box->accept();
        } else if (auto* files = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            if (!answered.isEmpty())
                return files->reject();
            answered << files->directory().absolutePath() << files->nameFilters();
            files->findChild<QLineEdit*>("fileNameEdit")->setText(dir.filePath(chosen));
            static_cast<QDialog*>(files)->accept();
        }
    });
    poll.start(10);
    if (command == "folder")
        page->photoCommands()->addFolder()->trigger();
    else
        QTest::keySequence(page, QKeySequence(command));
    poll.stop();

    QCOMPARE(area()->photos(), photos(QStringList{"large.png"} + added));
    QCOMPARE(area()->currentIndex(), 0);
    QCOMPARE(answered.value(0), lastFolder.isEmpty() ? QStandardPaths::writableLocation(
                                                           QStandardPaths::PicturesLocation)
                                                     : dir.filePath(lastFolder));
    if (command != "folder")
        QVERIFY2(answered.value(1).contains("*.png") && answered.value(1).contains("*.JPG") &&
                     answered.value(1).contains("*.CR2") && !answered.value(1).contains("svg") &&
                     answered.value(2) == "All Files (*)",
                 qPrintable(answered.join('|')));
    if (added.isEmpty())
        QCOMPARE(answered.last(),
                 "There are no photos in the folder " + dir.filePath(chosen) + ".");
    // The next dialog opens in the folder this one took photos from.
    const QFileInfo taken(dir.filePath(chosen));
    QCOMPARE(PhotoActions::startFolder(), taken.isDir() ? taken.filePath() : taken.path());
}

void TestMainPage::largeViewRunsFullSize()
{
    page->slotFilesDropped(photos({"large.png", "turned.jpg"}));
    ImageViewDialog* dialog = page->representor()->viewDialog();
    OrkWidgets::ImageViewer* viewer = dialog->viewer();
    QSignalSpy results(page->nodesOptionsPanel(), &NodesOptionsPanel::imageChanged);
    bool checked = false;
    const auto checkOpenView = [&] {
        QCOMPARE(viewer->image().size(), QSize(1200, 900));
        QCOMPARE(viewer->heading(), QString("<H1>1 of 2</H1>"));
        QCOMPARE(viewer->caption(), QString("large.png · 1200 × 900"));
        QVERIFY(!viewer->isNavigationHidden());
        // Stepping in the large view runs the next photo at full size as well.
        emit viewer->next();
        QCOMPARE(viewer->image().size(), QSize(200, 400));
        QCOMPARE(viewer->heading(), QString("<H1>2 of 2</H1>"));
        QCOMPARE(viewer->caption(), QString("turned.jpg · 200 × 400"));
        emit viewer->previous();
        QCOMPARE(viewer->image().size(), QSize(1200, 900));
        QTest::keyClick(viewer, Qt::Key_Escape);
        checked = !dialog->isVisible();
    };
    // The full-size run lets events through before the view is up, so wait for it to be there.
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        if (!dialog->isVisible())
            return;
        poll.stop();
        checkOpenView();
        dialog->reject();
    });
    poll.start(10);
    page->representor()->slotPreview();
    QVERIFY(checked);
    // Closed, the small view keeps the full-size result, and its size is the result's; the next
    // run is on the reduced copy again.
    ImagePreview* preview = page->representor()->preview();
    QCOMPARE(preview->caption(), QString("1200 × 900"));
    page->nodesOptionsPanel()->slotParametersChanged();
    QCOMPARE(results.last().at(0).value<QImage>().size(), QSize(360, 270));
    QCOMPARE(preview->caption(), QString("Preview · 360 × 270"));
}

void TestMainPage::batchRunsActiveNodesOnThePhotos()
{
    // Made in another order than their places in the flow; the middle one switched off.
    NodesOptionsPanel* panel = page->nodesOptionsPanel();
    QMap<int, BaseNode*> flow;
    flow.insert(2, panel->createNode("Grayscale"));
    flow.insert(1, panel->createNode("Blur"));
    flow.insert(0, panel->createNode("Invert"));
    flow.value(1)->setActive(false);
    QStringList names;
    for (const auto& operation : Representor::batchOperations(flow))
        names << operation.first;
    QCOMPARE(names, (QStringList{"Invert", "Grayscale"}));

    // Two runs from the flow panel, each closing its dialog when done: the page keeps one
    // dialog, so the odd numbers go on.
    OrkTools::AppData::writeSetting("KeyOpenLocation", false);
    OrkTools::AppData::writeSetting("KeyRename", true);
    OrkTools::AppData::writeSetting("KeyNumbers", 1);
    QDir(OrkTools::AppData::outputBaseFolder()).removeRecursively();
    page->flowPanel()->slotAddWaterMarkNode();
    page->slotFilesDropped(photos({"tall.png", "turned.jpg"}));
    emit page->flowPanel()->runBatch();
    emit page->flowPanel()->runBatch();
    QStringList written;
    QDirIterator files(OrkTools::AppData::outputBaseFolder(), QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        written << QFileInfo(files.next()).fileName();
    written.sort();
    QCOMPARE(written,
             (QStringList{"NewName1.jpeg", "NewName3.jpeg", "NewName5.jpeg", "NewName7.jpeg"}));
}

// Three photos of which one cannot be read: the bar names the two written, where, and the one
// that failed; the folder keeps no file for it.
void TestMainPage::batchEndShowsASummary()
{
    QSettings().clear();
    OrkTools::AppData::writeSetting("KeyOpenLocation", false);
    QDir(OrkTools::AppData::outputBaseFolder()).removeRecursively();
    page->slotFilesDropped(photos({"tall.png", "broken.jpg", "album/b.png"}));
    RunSummaryBar* bar = page->runSummaryBar();
    QVERIFY(bar->isHidden());
    emit page->flowPanel()->runBatch();
    QTRY_VERIFY(!bar->isHidden());
    QDir written(OrkTools::AppData::outputBaseFolder());
    const QString folder =
        written.filePath(written.entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0)) + "/";
    QCOMPARE(QDir(folder).entryList(QDir::Files), (QStringList{"b.jpeg", "tall.jpeg"}));
    QCOMPARE(bar->headline(), "Photos written: 2 of 3, into " + folder);
    QVERIFY2(bar->details().startsWith("Failed: 1\nbroken.jpg: "), qPrintable(bar->details()));
    QCOMPARE(bar->details().count('\n'), 1);

    // Five failures and a stop: four are named, the rest counted.
    RunSummary stopped{"/out/", 9, 0, {}};
    for (const QString name : {"1", "2", "3", "4", "5"})
        stopped.add(name + ".jpg", "damaged");
    stopped.add("6.jpg", {});
    bar->slotShowSummary(stopped);
    QCOMPARE(bar->headline(), QString("Photos written: 1 of 9, into /out/\nStopped: 3 not "
                                      "processed."));
    QCOMPARE(bar->details(), QString("Failed: 5\n1.jpg: damaged\n2.jpg: damaged\n3.jpg: "
                                     "damaged\n4.jpg: damaged\nand 1 more"));
}

// An Invert flow turns the thumbnail of a 0xff3060a0 photo into 0xffcf9f5f; switched off, the
// photo's own colour comes back, after the flow changes and in the list's own thumbnails.
void TestMainPage::iconListShowsResults()
{
    const auto flowWithInvert = [](const char* active) {
        return QString("<OperationsFlow><Operation name=\"Invert\" index=\"0\"><Parameters>"
                       "<Active>%1</Active></Parameters></Operation></OperationsFlow>")
            .arg(active);
    };
    QModelIndex row;
    const auto centre = [&row] {
        const QImage thumbnail = row.data(Qt::DecorationRole).value<QImage>();
        return thumbnail.isNull() ? QRgb(0) : thumbnail.pixel(thumbnail.rect().center());
    };
    page->flowPanel()->loadFlow(flowWithInvert("yes"));
    page->slotFilesDropped(photos({"large.png"}));
    row = CommonData::instance()->itemsModel()->index(0);
    page->findChild<QPushButton*>("IconViewButton")->click();
    auto* results = page->findChild<QPushButton*>("ResultsViewButton");
    results->click();
    QCOMPARE(OrkTools::AppData::readSetting("KeyIconListResults").toBool(), true);
    QTRY_COMPARE(centre(), QRgb(0xffcf9f5f));
    QCOMPARE(row.data(Qt::DecorationRole).value<QImage>().size(), QSize(96, 96));

    page->flowPanel()->loadFlow(flowWithInvert("no"));
    QTRY_COMPARE(centre(), QRgb(0xff3060a0));
    page->flowPanel()->loadFlow(flowWithInvert("yes"));
    results->click();
    QCOMPARE(OrkTools::AppData::readSetting("KeyIconListResults").toBool(), false);
    QCOMPARE(row.data(Qt::DecorationRole).value<QImage>().size(), QSize(48, 48));
    QCOMPARE(centre(), QRgb(0xff3060a0));
}

PELODINE_TEST_MAIN(TestMainPage)
#include "tst_mainpage.moc"
