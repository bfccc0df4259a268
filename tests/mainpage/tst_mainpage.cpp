// The main page as a whole: its parts and their places, photos coming in, the live preview,
// the large view and the batch run with the flow's active nodes.
#include "app.h"
#include "basenode.h"
#include "commondata.h"
#include "creator.h"
#include "creatordroparea.h"
#include "flowpanel.h"
#include "imagepreview.h"
#include "imageviewdialog.h"
#include "imageviewer.h"
#include "mainpage.h"
#include "nodesoptionspanel.h"
#include "photofixtures.h"
#include "representor.h"
#include "testutils.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>

class TestMainPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void frame();
    void partsInTheirPlaces();
    void filesDropped_data();
    void filesDropped();
    void livePreview_data();
    void livePreview();
    void smallViewHover_data();
    void smallViewHover();
    void smallViewStepsThePhotoSide_data();
    void smallViewStepsThePhotoSide();
    void largeViewRunsFullSize();
    void largeViewSteps();
    void batchOperations_data();
    void batchOperations();
    void batchRunsTwiceWithOneDialog();
    void settingsButtonOpensSettings();

private:
    // Runs check inside the next modal dialog's event loop, then closes that dialog.
    void whileModal(const std::function<void(QWidget*)>& check);
    QUrl photo(const QString& name) const { return QUrl::fromLocalFile(dir.filePath(name)); }
    QList<QUrl> photos(const QStringList& names) const
    {
        QList<QUrl> urls;
        for (const QString& name : names)
            urls << photo(name);
        return urls;
    }

    QTemporaryDir dir;
    MainPage* page = nullptr;
};

void TestMainPage::initTestCase()
{
    PhotoFixtures::writePng(dir.filePath("large.png"), 4000, 3000, 0xff3060a0);
    PhotoFixtures::writePng(dir.filePath("tall.png"), 300, 2000, 0xff30a060);
    PhotoFixtures::writePng(dir.filePath("wide.png"), 1200, 900, 0xffa06030);
    PhotoFixtures::writePng(dir.filePath("upright.png"), 900, 1200, 0xff6030a0);
}

void TestMainPage::init()
{
    CommonData::instance()->previewMode = 1;
    page = new MainPage;
}

void TestMainPage::cleanup()
{
    delete page;
    page = nullptr;
}

void TestMainPage::whileModal(const std::function<void(QWidget*)>& check)
{
    // The flow run lets events through before the dialog is up, so wait for it to be there.
    auto* poll = new QTimer(this);
    connect(poll, &QTimer::timeout, this, [poll, check] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal)
            return;
        poll->stop();
        poll->deleteLater();
        check(modal);
        auto* dialog = qobject_cast<QDialog*>(modal);
        if (dialog && dialog->isVisible())
            dialog->reject();
    });
    poll->start(10);
}

void TestMainPage::frame()
{
    QCOMPARE(page->objectName(), QString("MainPage"));
    QCOMPARE(page->minimumSize(), QSize(735, 795));
    QCOMPARE(page->maximumSize(), QSize(735, 795));
    auto* menuBar = page->findChild<QMenuBar*>("MenuBar");
    QVERIFY(menuBar);
    auto* settings = page->findChild<QPushButton*>("SettingsButton");
    QVERIFY(settings);
    QVERIFY(settings->isFlat());
    QVERIFY(menuBar->isAncestorOf(settings));
    QCOMPARE(page->creator()->width(), 360);
    QCOMPARE(page->representor()->findChild<QPushButton*>("PreviewButton")->isFlat(), true);
    QCOMPARE(page->representor()->preview()->objectName(), QString("DropArea"));
    QCOMPARE(page->representor()->preview()->size(), QSize(360, 360));
}

void TestMainPage::partsInTheirPlaces()
{
    // With the program's own look, whose borders and bars take room of their own.
    const QString styleSheet = OrkWidgets::App::resourceText(":/stylesheet.qss");
    QVERIFY(!styleSheet.isEmpty());
    qApp->setStyleSheet(styleSheet);
    const auto plainLookAfterwards = qScopeGuard([] { qApp->setStyleSheet({}); });
    page->show();
    QVERIFY(QTest::qWaitForWindowExposed(page));
    const auto placed = [this](QWidget* part) {
        return QRect(part->mapTo(page, QPoint()), part->size());
    };
    const QRect menu = placed(page->findChild<QMenuBar*>("MenuBar"));
    const QRect photos = placed(page->creator());
    const QRect result = placed(page->representor());
    const QRect options = placed(page->nodesOptionsPanel());
    const QRect flow = placed(page->flowPanel());

    // Everything inside the window: nothing cut off.
    for (const QRect& part : {menu, photos, result, options, flow})
        QVERIFY2(page->rect().contains(part), qPrintable(QString("%1,%2 %3x%4 outside")
                                                             .arg(part.x())
                                                             .arg(part.y())
                                                             .arg(part.width())
                                                             .arg(part.height())));
    // Top to bottom: menu bar, the two sides in one row, options, flow; nothing overlaps.
    QVERIFY(menu.bottom() < photos.top());
    QCOMPARE(photos.top(), result.top());
    QVERIFY(photos.right() < result.left());
    QVERIFY(qMax(photos.bottom(), result.bottom()) < options.top());
    QVERIFY(options.bottom() < flow.top());
    QVERIFY(options.height() >= 175);
    QCOMPARE(flow.height(), 165);
    // The whole drop area and the whole small view lie inside their sides.
    QVERIFY(page->creator()->rect().contains(
        QRect(page->creator()->dropArea()->pos(), page->creator()->dropArea()->size())));
    QVERIFY(
        page->representor()->contentsRect().contains(page->representor()->preview()->geometry()));
}

void TestMainPage::filesDropped_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<int>("count");

    QTest::newRow("photos open the page") << QStringList{"wide.png", "tall.png"} << 2;
    QTest::newRow("no photos still show the page") << QStringList{} << 0;
}

void TestMainPage::filesDropped()
{
    QFETCH(QStringList, files);
    QFETCH(int, count);

    QVERIFY(!page->isVisible());
    page->slotFilesDropped(photos(files));
    QVERIFY(page->isVisible());
    QCOMPARE(page->creator()->dropArea()->photos().size(), count);
}

void TestMainPage::livePreview_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("result");
    QTest::addColumn<QSize>("shown");
    QTest::addColumn<QRgb>("colour");

    // Device pixel ratio 1: run at most 360 wide; the small view fits the result into 360 x 360.
    QTest::newRow("4000x3000 runs at 360x270")
        << "large.png" << QSize(360, 270) << QSize(360, 270) << QRgb(0xff3060a0);
    QTest::newRow("300x2000 is not reduced")
        << "tall.png" << QSize(300, 2000) << QSize(54, 360) << QRgb(0xff30a060);
}

void TestMainPage::livePreview()
{
    QFETCH(QString, file);
    QFETCH(QSize, result);
    QFETCH(QSize, shown);
    QFETCH(QRgb, colour);

    QSignalSpy results(page->nodesOptionsPanel(), &NodesOptionsPanel::imageChanged);
    page->slotFilesDropped({photo(file)});
    QCOMPARE(results.count(), 1);
    QCOMPARE(results.first().at(0).value<QImage>().size(), result);
    QCOMPARE(page->representor()->preview()->picture().size(), shown);
    // With an empty flow the result is the reduced photo itself.
    QCOMPARE(results.first().at(0).value<QImage>().pixel(10, 10), colour);
}

void TestMainPage::smallViewHover_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<int>("steps");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<QString>("info");

    QTest::newRow("one photo") << QStringList{"wide.png"} << 0 << false << "<H1>INFO</H1>";
    QTest::newRow("second of two")
        << QStringList{"wide.png", "tall.png"} << 1 << true << "<H1>2 of 2</H1>";
    QTest::newRow("first of three")
        << QStringList{"wide.png", "tall.png", "upright.png"} << 0 << true << "<H1>1 of 3</H1>";
}

void TestMainPage::smallViewHover()
{
    QFETCH(QStringList, files);
    QFETCH(int, steps);
    QFETCH(bool, shown);
    QFETCH(QString, info);

    page->slotFilesDropped(photos(files));
    for (int i = 0; i < steps; ++i)
        page->creator()->slotNext();
    ImagePreview* preview = page->representor()->preview();
    auto* next = preview->findChild<QPushButton*>("NextImageButton");
    auto* previous = preview->findChild<QPushButton*>("PreviousImageButton");
    auto* infoLabel = preview->findChild<QLabel*>();
    QVERIFY(next && previous && infoLabel);

    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(preview, &enter);
    QCOMPARE(!next->isHidden(), shown);
    QCOMPARE(!previous->isHidden(), shown);
    QCOMPARE(!infoLabel->isHidden(), shown);
    QCOMPARE(infoLabel->text(), info);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(preview, &leave);
    QVERIFY(next->isHidden() && previous->isHidden() && infoLabel->isHidden());
}

void TestMainPage::smallViewStepsThePhotoSide_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("index");
    QTest::addColumn<QSize>("result");

    // Three photos: wide 1200 x 900, tall 300 x 2000, upright 900 x 1200; previewed at most
    // 360 wide.
    QTest::newRow("next") << "NextImageButton" << 1 << QSize(300, 2000);
    QTest::newRow("previous wraps to the last") << "PreviousImageButton" << 2 << QSize(270, 360);
}

void TestMainPage::smallViewStepsThePhotoSide()
{
    QFETCH(QString, button);
    QFETCH(int, index);
    QFETCH(QSize, result);

    page->slotFilesDropped({photo("wide.png"), photo("tall.png"), photo("upright.png")});
    QSignalSpy results(page->nodesOptionsPanel(), &NodesOptionsPanel::imageChanged);
    page->representor()->preview()->findChild<QPushButton*>(button)->click();
    QCOMPARE(page->creator()->dropArea()->currentIndex(), index);
    QCOMPARE(results.count(), 1);
    QCOMPARE(results.first().at(0).value<QImage>().size(), result);
}

void TestMainPage::largeViewRunsFullSize()
{
    page->slotFilesDropped({photo("wide.png")});
    Representor* representor = page->representor();
    ImageViewDialog* dialog = representor->viewDialog();
    QSignalSpy required(representor, &Representor::realSizeRequired);
    QSignalSpy results(page->nodesOptionsPanel(), &NodesOptionsPanel::imageChanged);

    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QSize target(qRound(screen.width() * 0.7), qRound(screen.height() * 0.7));
    const QPoint centre = representor->preview()->mapToGlobal(QPoint(179, 179));
    bool checked = false;
    whileModal([&](QWidget* modal) {
        QCOMPARE(modal, dialog);
        QCOMPARE(CommonData::instance()->previewMode, 0);
        QCOMPARE(required.count(), 1);
        QCOMPARE(results.count(), 1);
        QCOMPARE(results.first().at(0).value<QImage>().size(), QSize(1200, 900));
        QCOMPARE(dialog->viewer()->image().size(), QSize(1200, 900));
        QCOMPARE(dialog->viewer()->objectName(), QString("ImageViewer"));
        QCOMPARE(dialog->viewer()->heading(), QString("<H1>1 of 1</H1>"));
        QPropertyAnimation* opening = dialog->openingAnimation();
        QCOMPARE(opening->propertyName(), QByteArray("geometry"));
        QCOMPARE(opening->duration(), 1000);
        QCOMPARE(opening->easingCurve().type(), QEasingCurve::OutQuint);
        QCOMPARE(opening->startValue().toRect(), QRect(centre, QSize(36, 36)));
        QCOMPARE(opening->endValue().toRect(),
                 QRect(screen.left() + (screen.width() - target.width()) / 2,
                       screen.top() + (screen.height() - target.height()) / 2, target.width(),
                       target.height()));
        QCOMPARE(dialog->minimumSize(), QSize(5, 5));
        // A single photo offers no steps.
        QVERIFY(dialog->viewer()->isNavigationHidden());
        checked = true;
        // Escape in the viewer closes the view.
        QTest::keyClick(dialog->viewer(), Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
    });
    representor->slotPreview();
    QVERIFY(checked);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(CommonData::instance()->previewMode, 1);
    // Closing does not run the flow again: the full-size result stays until the next trigger.
    QCOMPARE(results.count(), 1);
    QCOMPARE(dialog->viewer()->image().size(), QSize(1200, 900));
    QCOMPARE(dialog->openingAnimation()->parent(), dialog);
    // The next trigger runs the reduced preview again.
    page->nodesOptionsPanel()->slotParametersChanged();
    QCOMPARE(results.last().at(0).value<QImage>().size(), QSize(360, 270));
}

void TestMainPage::largeViewSteps()
{
    page->slotFilesDropped({photo("wide.png"), photo("upright.png")});
    ImageViewDialog* dialog = page->representor()->viewDialog();
    bool checked = false;
    whileModal([&](QWidget*) {
        QVERIFY(!dialog->viewer()->isNavigationHidden());
        emit dialog->viewer()->next();
        // The next photo, run at full size while the view is open.
        QCOMPARE(page->creator()->dropArea()->currentIndex(), 1);
        QCOMPARE(dialog->viewer()->image().size(), QSize(900, 1200));
        QCOMPARE(dialog->viewer()->heading(), QString("<H1>2 of 2</H1>"));
        emit dialog->viewer()->previous();
        QCOMPARE(dialog->viewer()->image().size(), QSize(1200, 900));
        QCOMPARE(dialog->viewer()->heading(), QString("<H1>1 of 2</H1>"));
        checked = true;
    });
    page->representor()->slotPreview();
    QVERIFY(checked);
    QCOMPARE(CommonData::instance()->previewMode, 1);
}

void TestMainPage::batchOperations_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QList<bool>>("active");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("all active in position order")
        << QStringList{"Invert", "Blur", "Grayscale"} << QList<bool>{true, true, true}
        << QStringList{"Invert", "Blur", "Grayscale"};
    QTest::newRow("inactive nodes left out")
        << QStringList{"Invert", "Blur", "Grayscale"} << QList<bool>{true, false, true}
        << QStringList{"Invert", "Grayscale"};
    QTest::newRow("none active") << QStringList{"Mirror"} << QList<bool>{false} << QStringList{};
    QTest::newRow("empty flow") << QStringList{} << QList<bool>{} << QStringList{};
}

void TestMainPage::batchOperations()
{
    QFETCH(QStringList, names);
    QFETCH(QList<bool>, active);
    QFETCH(QStringList, expected);

    // Created in reverse, so that creation order and position order differ.
    QMap<int, BaseNode*> flow;
    for (int position = names.size() - 1; position >= 0; --position) {
        BaseNode* node = page->nodesOptionsPanel()->createNode(names.at(position));
        QVERIFY(node);
        node->setActive(active.at(position));
        flow.insert(position, node);
    }
    const BatchOperations operations = Representor::batchOperations(flow);
    QStringList operationNames;
    for (const auto& operation : operations) {
        operationNames << operation.first;
        QVERIFY(operation.second.contains("<Parameters>"));
        QVERIFY(operation.second.contains("<Active>yes</Active>"));
    }
    QCOMPARE(operationNames, expected);
}

void TestMainPage::batchRunsTwiceWithOneDialog()
{
    OrkWidgets::App::writeSetting("KeyOpenLocation", false);
    OrkWidgets::App::writeSetting("KeyFormat", "PNG");
    OrkWidgets::App::writeSetting("KeyRename", true);
    OrkWidgets::App::writeSetting("KeyNewName", "Odd");
    OrkWidgets::App::writeSetting("KeyNumbers", 1);
    QDir(OrkWidgets::App::outputBaseFolder()).removeRecursively();

    // A three-node flow through the flow panel, the way the user builds it.
    FlowPanel* flowPanel = page->flowPanel();
    for (int i = 0; i < 3; ++i)
        flowPanel->slotAddWaterMarkNode();
    QCOMPARE(page->nodesOptionsPanel()->flow().size(), 3);
    page->slotFilesDropped({photo("wide.png"), photo("upright.png")});

    // The run closes its dialog when done; the odd numbers go on in the second run.
    emit flowPanel->runBatch();
    emit flowPanel->runBatch();

    QStringList written;
    QDirIterator files(OrkWidgets::App::outputBaseFolder(), QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        written << QFileInfo(files.next()).fileName();
    written.sort();
    QCOMPARE(written, (QStringList{"Odd1.png", "Odd3.png", "Odd5.png", "Odd7.png"}));
}

void TestMainPage::settingsButtonOpensSettings()
{
    auto* button = page->findChild<QPushButton*>("SettingsButton");
    bool checked = false;
    whileModal([&](QWidget* modal) {
        QCOMPARE(QByteArray(modal->metaObject()->className()), QByteArray("AppSettingsDialog"));
        QCOMPARE(modal->parentWidget(), button);
        checked = true;
    });
    button->click();
    QVERIFY(checked);
    // Discarded once closed.
    QCOMPARE(button->findChildren<QDialog*>().size(), 0);
}

PELODINE_TEST_MAIN(TestMainPage)
#include "tst_mainpage.moc"
