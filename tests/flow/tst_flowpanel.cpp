#include "app.h"
#include "basenode.h"
#include "favoritesdeletedlg.h"
#include "flowfile.h"
#include "flowpanel.h"
#include "flowtexts.h"
#include "nodecatalogue.h"
#include "nodestabbar.h"
#include "previewbubble.h"
#include "tablabel.h"
#include "testutils.h"
#include "ui/nodesoptionspanel.h"

#include <QBuffer>
#include <QDesktopServices>
#include <QDir>
#include <QDomDocument>
#include <QInputDialog>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTimer>
#include <QUrl>

#include <functional>

using Flow = QMap<int, BaseNode*>;
using FlowTest::flowOfNames;
using FlowTest::operation;
using FlowTest::readBytes;

namespace {

// Answers the modal dialogs that show up while a slot runs, one answer per dialog in order.
// An answer always closes its dialog, so a failing test cannot hang on it.
class DialogScript : public QObject
{
public:
    using Answer = std::function<void(QWidget*)>;

    explicit DialogScript(const QList<Answer>& answers)
        : answers(answers)
    {
        connect(&poll, &QTimer::timeout, this, &DialogScript::answerModal);
        poll.start(5);
    }

    int unanswered() const { return answers.size(); }
    int unexpected = 0;

private:
    void answerModal()
    {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || dialog == answered)
            return;
        answered = dialog;
        if (answers.isEmpty()) {
            ++unexpected;
            if (auto* modal = qobject_cast<QDialog*>(dialog))
                modal->reject();
            return;
        }
        answers.takeFirst()(dialog);
    }

    QList<Answer> answers;
    QTimer poll;
    QPointer<QWidget> answered;
};

// Types text into the input dialog and accepts it (or cancels); notes "title|label".
DialogScript::Answer typeName(const QString& text, QStringList* seen, bool accept = true)
{
    return [=](QWidget* dialog) {
        auto* input = qobject_cast<QInputDialog*>(dialog);
        if (!input) {
            seen->append("not an input dialog");
            qobject_cast<QDialog*>(dialog)->reject();
            return;
        }
        seen->append(input->windowTitle() + "|" + input->labelText());
        input->setTextValue(text);
        accept ? input->accept() : input->reject();
    };
}

// Presses button in the message box; notes "title|text|buttons".
DialogScript::Answer press(QMessageBox::StandardButton button, QStringList* seen)
{
    return [=](QWidget* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        if (!box) {
            seen->append("not a message box");
            qobject_cast<QDialog*>(dialog)->reject();
            return;
        }
        seen->append(box->windowTitle() + "|" + box->text() + "|" +
                     QString::number(int(box->standardButtons())));
        box->button(button) ? box->button(button)->click() : box->reject();
    };
}

// Selects name in the delete dialog and accepts it (or rejects); notes the listed names.
DialogScript::Answer chooseFlow(const QString& name, QStringList* listed, bool accept = true)
{
    return [=](QWidget* dialog) {
        auto* list = dialog->findChild<QListWidget*>();
        for (int row = 0; list && row < list->count(); ++row) {
            listed->append(list->item(row)->text());
            if (list->item(row)->text() == name)
                list->setCurrentRow(row);
        }
        accept ? qobject_cast<QDialog*>(dialog)->accept()
               : qobject_cast<QDialog*>(dialog)->reject();
    };
}

QStringList tabTexts(const QTabBar* bar)
{
    QStringList texts;
    for (int i = 0; i < bar->count(); ++i)
        texts.append(bar->tabText(i));
    return texts;
}

QStringList nodeNames(const Flow& flow)
{
    QStringList names;
    for (auto it = flow.cbegin(); it != flow.cend(); ++it)
        names.append(QString::number(it.key()) + ":" + it.value()->name());
    return names;
}

QStringList positionsOf(const QStringList& names)
{
    QStringList numbered;
    for (int i = 0; i < names.size(); ++i)
        numbered.append(QString::number(i) + ":" + names.at(i));
    return numbered;
}

QStringList menuTexts(const QMenu* menu)
{
    QStringList texts;
    const QList<QAction*> actions = menu->actions();
    for (const QAction* action : actions)
        texts.append(action->isSeparator() ? "--" : action->text());
    return texts;
}

QAction* menuAction(const QMenu* menu, const QString& text)
{
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

// (tag, text) of the children of a Parameters text.
QVector<QPair<QString, QString>> parameterValues(const QString& parametersText)
{
    QDomDocument document;
    document.setContent(parametersText);
    QVector<QPair<QString, QString>> values;
    for (QDomElement e = document.documentElement().firstChildElement(); !e.isNull();
         e = e.nextSiblingElement())
        values.append({e.tagName(), e.text()});
    return values;
}

// Sends a press, then moves with the button held (as a user's drag does), then the release.
void dragTab(QTabBar* bar, const QPoint& from, const QPoint& to)
{
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, from);
    const int steps = 10;
    for (int step = 1; step <= steps; ++step) {
        const QPoint position = from + (to - from) * step / steps;
        QMouseEvent move(QEvent::MouseMove, position, bar->mapToGlobal(position), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(bar, &move);
    }
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, to);
}

// A landscape to run the nodes on: sky, sun, hills and a lake.
QImage landscape()
{
    QImage photo(360, 240, QImage::Format_ARGB32);
    QPainter painter(&photo);
    QLinearGradient sky(0, 0, 0, 150);
    sky.setColorAt(0, QColor(40, 90, 190));
    sky.setColorAt(1, QColor(250, 190, 120));
    painter.fillRect(photo.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 230, 120));
    painter.drawEllipse(QPoint(260, 90), 30, 30);
    painter.setBrush(QColor(60, 120, 60));
    painter.drawEllipse(QRect(-80, 120, 300, 200));
    painter.setBrush(QColor(40, 95, 50));
    painter.drawEllipse(QRect(140, 140, 320, 180));
    painter.setBrush(QColor(70, 130, 180));
    painter.drawRect(0, 200, 360, 40);
    return photo;
}

} // namespace

// Notes the addresses handed to the desktop's "file" handler.
class UrlRecorder : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> opened;

public slots:
    void open(const QUrl& url) { opened.append(url); }
};

class TestFlowPanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void widgetsCarryTheirNames_data();
    void widgetsCarryTheirNames();
    void favoritesMenuWithoutFlows();
    void addButtonAddsWatermark();
    void nodesMenuAddsEveryCatalogueName();
    void tabBarCountsAndPresses();
    void tabClickShowsOptions();

    void removeNode_data();
    void removeNode();
    void removedNodeIsHandedOut_data();
    void removedNodeIsHandedOut();
    void removeButtonAndSaveFollowCount();
    void dragTwoPlacesKeepsMapAndTabsInStep();
    void clearRemovesEveryNode();

    void saveFlow_data();
    void saveFlow();
    void overwrite_data();
    void overwrite();
    void deleteFavorite_data();
    void deleteFavorite();
    void deleteDialog();

    void loadFavoriteFromMenu();
    void brokenTextAfterLoadedFlowLeavesPanelEmpty();
    void indicesRenumbered();
    void saveThenLoadEveryKind();
    void goToFlowsLocationOpensFolder();

    void thumbnailFollowsPreview();
    void thumbnailsAreDrawnOnTheTabs();
    void thumbnailButtonAndBubble();
    void bubbleGeometry_data();
    void bubbleGeometry();

private:
    QMenu* flowsMenu() const { return panel->findChild<QPushButton*>("PushButton")->menu(); }
    QAction* flowsAction(const QString& text) const { return menuAction(flowsMenu(), text); }

    NodesOptionsPanel* options = nullptr;
    FlowPanel* panel = nullptr;
    NodesTabBar* bar = nullptr;
};

void TestFlowPanel::init()
{
    QDir(FlowFile::flowsFolder()).removeRecursively();
    options = new NodesOptionsPanel;
    panel = new FlowPanel(options);
    panel->resize(1200, 165);
    bar = panel->findChild<NodesTabBar*>();
    QVERIFY(bar);
}

void TestFlowPanel::cleanup()
{
    delete panel;
    delete options;
}

void TestFlowPanel::widgetsCarryTheirNames_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QSize>("fixedSize");
    TestUtils::addRow("add", "PushButtonAdd", "Add node", QSize(40, 40));
    TestUtils::addRow("remove", "PushButtonRemove", "Remove selected node", QSize(40, 40));
    TestUtils::addRow("flows", "PushButton", "", QSize());
    TestUtils::addRow("run batch", "RunBatchButton",
                      "Save the resulted photos to the separate folder", QSize());
}

void TestFlowPanel::widgetsCarryTheirNames()
{
    QFETCH(QString, objectName);
    QFETCH(QString, toolTip);
    QFETCH(QSize, fixedSize);
    const auto* button = panel->findChild<QPushButton*>(objectName);
    QVERIFY(button);
    QCOMPARE(button->toolTip(), toolTip);
    if (fixedSize.isValid()) {
        QCOMPARE(button->minimumSize(), fixedSize);
        QCOMPARE(button->maximumSize(), fixedSize);
    }
    QCOMPARE(panel->objectName(), QString("FlowPanel"));
    QCOMPARE(panel->maximumHeight(), 165);
    QCOMPARE(bar->parentWidget()->objectName(), QString("FlowPanelFrame"));
    QVERIFY(bar->isMovable());
}

void TestFlowPanel::favoritesMenuWithoutFlows()
{
    QVERIFY(flowsMenu());
    QCOMPARE(flowsMenu()->objectName(), QString("FavoritesMenu"));
    QCOMPARE(menuTexts(flowsMenu()),
             (QStringList{"&Clear", "&Save...", "&Delete...", "&Go To Flows Location", "--"}));
}

void TestFlowPanel::addButtonAddsWatermark()
{
    QSignalSpy changed(panel, &FlowPanel::flowChanged);
    auto* add = panel->findChild<QPushButton*>("PushButtonAdd");
    add->click();
    add->click();

    QCOMPARE(tabTexts(bar), (QStringList{"Watermark", "Watermark"}));
    QCOMPARE(bar->tabToolTip(1), QString("Watermark"));
    QCOMPARE(bar->currentIndex(), 1);
    auto* thumbnail = qobject_cast<TabLabel*>(bar->tabButton(1, QTabBar::LeftSide));
    QVERIFY(thumbnail);
    QCOMPARE(thumbnail->size(), QSize(70, 70));
    QCOMPARE(changed.count(), 2);
    const Flow flow = changed.last().at(0).value<Flow>();
    QCOMPARE(nodeNames(flow), (QStringList{"0:Watermark", "1:Watermark"}));
    QCOMPARE(flow, panel->flow());
    QVERIFY(flow.value(0) != flow.value(1));
}

void TestFlowPanel::nodesMenuAddsEveryCatalogueName()
{
    const QStringList names = factoryNodeNames();
    QCOMPARE(menuTexts(panel->nodesMenu()), names);
    QSignalSpy changed(panel, &FlowPanel::flowChanged);
    const QList<QAction*> actions = panel->nodesMenu()->actions();
    for (QAction* action : actions)
        action->trigger();
    QCOMPARE(tabTexts(bar), names);
    QCOMPARE(nodeNames(panel->flow()), positionsOf(names));
    QCOMPARE(changed.count(), names.size());
}

void TestFlowPanel::tabBarCountsAndPresses()
{
    NodesTabBar tabs;
    tabs.resize(600, 70);
    QSignalSpy counts(&tabs, &NodesTabBar::countChanged);
    QSignalSpy clicks(&tabs, &NodesTabBar::tabClicked);
    tabs.addTab("a");
    tabs.addTab("b");
    tabs.insertTab(0, "c");
    tabs.removeTab(1);
    QCOMPARE(counts.count(), 4);
    QCOMPARE((QList<int>{counts.at(0).at(0).toInt(), counts.at(1).at(0).toInt(),
                         counts.at(2).at(0).toInt(), counts.at(3).at(0).toInt()}),
             (QList<int>{1, 2, 3, 2}));

    tabs.show();
    tabs.setCurrentIndex(0);
    QTest::mouseClick(&tabs, Qt::LeftButton, Qt::NoModifier, tabs.tabRect(0).center());
    QTest::mouseClick(&tabs, Qt::LeftButton, Qt::NoModifier, tabs.tabRect(1).center());
    QCOMPARE(clicks.count(), 2);
    QCOMPARE(tabs.currentIndex(), 1);
}

void TestFlowPanel::tabClickShowsOptions()
{
    QSignalSpy shown(panel, &FlowPanel::showOptions);
    panel->slotTabClicked();
    QCOMPARE(shown.count(), 1);
    QCOMPARE(shown.last().at(0).value<BaseNode*>(), nullptr);

    panel->loadFlow(flowOfNames({"Blur", "Crop", "Invert"}));
    panel->show();
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
    QCOMPARE(shown.count(), 2);
    QCOMPARE(shown.last().at(0).value<BaseNode*>(), panel->flow().value(1));
    // A press on the current tab shows its options again.
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
    QCOMPARE(shown.count(), 3);
}

void TestFlowPanel::removeNode_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("remaining");
    QTest::addColumn<int>("newCurrent");

    const QStringList three = {"Blur", "Crop", "Invert"};
    QTest::newRow("last of three") << 2 << three << QStringList{"Blur", "Crop"} << 1;
    QTest::newRow("middle of three") << 1 << three << QStringList{"Blur", "Invert"} << 1;
    QTest::newRow("first of three") << 0 << three << QStringList{"Crop", "Invert"} << 0;
    QTest::newRow("only") << 0 << QStringList{"Blur"} << QStringList{} << -1;
}

void TestFlowPanel::removeNode()
{
    QFETCH(int, current);
    QFETCH(QStringList, names);
    QFETCH(QStringList, remaining);
    QFETCH(int, newCurrent);

    panel->loadFlow(flowOfNames(names));
    const Flow before = panel->flow();
    bar->setCurrentIndex(current);
    QSignalSpy removed(panel, &FlowPanel::nodeRemoved);
    panel->findChild<QPushButton*>("PushButtonRemove")->click();

    QCOMPARE(removed.count(), 1);
    const Flow flow = removed.at(0).at(0).value<Flow>();
    QCOMPARE(nodeNames(flow), positionsOf(remaining));
    QCOMPARE(flow, panel->flow());
    QCOMPARE(tabTexts(bar), remaining);
    QCOMPARE(removed.at(0).at(1).value<BaseNode*>(), before.value(current));
    QCOMPARE(bar->currentIndex(), newCurrent);
    QCOMPARE(removed.at(0).at(2).value<BaseNode*>(), flow.value(newCurrent, nullptr));
}

void TestFlowPanel::removedNodeIsHandedOut_data()
{
    QTest::addColumn<bool>("wired");
    QTest::newRow("kept alive for the receiver") << false;
    QTest::newRow("deleted by the options panel") << true;
}

void TestFlowPanel::removedNodeIsHandedOut()
{
    QFETCH(bool, wired);
    if (wired) {
        connect(panel, &FlowPanel::nodeRemoved, options, &NodesOptionsPanel::slotNodeRemoved);
        connect(panel, &FlowPanel::flowChanged, options, &NodesOptionsPanel::slotFlowChanged);
        connect(panel, &FlowPanel::showOptions, options, &NodesOptionsPanel::slotShowOptions);
    }
    panel->loadFlow(flowOfNames({"Blur", "Crop"}));
    QPointer<BaseNode> crop = panel->flow().value(1);
    QPointer<QWidget> thumbnail = bar->tabButton(1, QTabBar::LeftSide);
    panel->slotRemoveNode();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QVERIFY(!thumbnail);
    QCOMPARE(crop.isNull(), wired);
    if (wired)
        return;
    // Its previews no longer reach the panel.
    crop->updatePreview(TestUtils::filledImage(8, 8, 0xff00ff00));
    QVERIFY(qobject_cast<TabLabel*>(bar->tabButton(0, QTabBar::LeftSide))->preview().isNull());
    delete crop;
}

void TestFlowPanel::removeButtonAndSaveFollowCount()
{
    auto* remove = panel->findChild<QPushButton*>("PushButtonRemove");
    QVERIFY(!remove->isEnabled());
    QVERIFY(!flowsAction("&Save...")->isEnabled());

    panel->slotAddWaterMarkNode();
    QVERIFY(remove->isEnabled());
    QVERIFY(flowsAction("&Save...")->isEnabled());
    panel->slotAddWaterMarkNode();
    panel->slotRemoveNode();
    QVERIFY(remove->isEnabled());
    panel->slotRemoveNode();
    QVERIFY(!remove->isEnabled());
    QVERIFY(!flowsAction("&Save...")->isEnabled());
}

void TestFlowPanel::dragTwoPlacesKeepsMapAndTabsInStep()
{
    panel->loadFlow(flowOfNames({"Blur", "Crop", "Invert"}));
    const Flow before = panel->flow();
    // Each node's thumbnail shows its own colour, so a thumbnail can be traced to its node.
    const QList<QRgb> colours = {0xffff0000, 0xff00ff00, 0xff0000ff};
    for (int i = 0; i < 3; ++i)
        before.value(i)->updatePreview(TestUtils::filledImage(10, 10, colours.at(i)));
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel));

    QSignalSpy moved(bar, &QTabBar::tabMoved);
    QSignalSpy changed(panel, &FlowPanel::flowChanged);
    const QPoint from = bar->tabRect(0).center();
    const QPoint to(bar->tabRect(2).center().x() + bar->tabRect(0).width() / 2, from.y());
    dragTab(bar, from, to);

    QCOMPARE(moved.count(), 2);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(tabTexts(bar), (QStringList{"Crop", "Invert", "Blur"}));
    const Flow flow = panel->flow();
    QCOMPARE(changed.last().at(0).value<Flow>(), flow);
    QCOMPARE(flow.value(0), before.value(1));
    QCOMPARE(flow.value(1), before.value(2));
    QCOMPARE(flow.value(2), before.value(0));
    const QList<QRgb> movedColours = {colours.at(1), colours.at(2), colours.at(0)};
    for (int i = 0; i < 3; ++i) {
        const auto* thumbnail = qobject_cast<TabLabel*>(bar->tabButton(i, QTabBar::LeftSide));
        QCOMPARE(thumbnail->preview().toImage().pixel(0, 0), movedColours.at(i));
    }
}

void TestFlowPanel::clearRemovesEveryNode()
{
    panel->loadFlow(flowOfNames({"Blur", "Crop", "Invert"}));
    bar->setCurrentIndex(1);
    QSignalSpy removed(panel, &FlowPanel::nodeRemoved);
    QSignalSpy changed(panel, &FlowPanel::flowChanged);
    flowsAction("&Clear")->trigger();
    QCOMPARE(removed.count(), 3);
    QCOMPARE(removed.last().at(0).value<Flow>(), Flow());
    QCOMPARE(removed.last().at(2).value<BaseNode*>(), nullptr);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(bar->count(), 0);
    QVERIFY(panel->flow().isEmpty());
}

void TestFlowPanel::saveFlow_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("accept");
    QTest::addColumn<QString>("fileName");
    QTest::newRow("plain name") << "holiday" << true << "holiday.flow";
    QTest::newRow("empty name") << "" << true << ".flow";
    QTest::newRow("with extension") << "a.flow" << true << "a.flow";
    QTest::newRow("upper-case extension") << "a.FLOW" << true << "a.FLOW.flow";
    QTest::newRow("cancelled writes nothing") << "holiday" << false << "";
}

void TestFlowPanel::saveFlow()
{
    QFETCH(QString, typed);
    QFETCH(bool, accept);
    QFETCH(QString, fileName);
    panel->loadFlow(flowOfNames({"Blur", "Crop"}));

    QStringList seen;
    DialogScript script({typeName(typed, &seen, accept)});
    flowsAction("&Save...")->trigger();

    QCOMPARE(script.unanswered(), 0);
    QCOMPARE(script.unexpected, 0);
    QCOMPARE(seen, QStringList{"Save Flow|Flow's Name:"});
    const QStringList saved = accept ? QStringList{fileName} : QStringList();
    QCOMPARE(FlowFile::flowNames(), saved);
    // The menu lists the flows after its five fixed entries.
    QCOMPARE(menuTexts(flowsMenu()).mid(5), saved);
    if (accept) {
        QCOMPARE(QString::fromUtf8(readBytes(FlowFile::flowsFolder() + fileName)),
                 FlowFile::flowText(panel->flow()));
    }
}

void TestFlowPanel::overwrite_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("overwritten");
    QTest::newRow("yes") << int(QMessageBox::Yes) << true;
    QTest::newRow("no") << int(QMessageBox::No) << false;
}

void TestFlowPanel::overwrite()
{
    QFETCH(int, answer);
    QFETCH(bool, overwritten);
    const QString path = FlowFile::flowsFolder() + "x.flow";
    FlowTest::writeBytes(path, "old");
    panel->loadFlow(flowOfNames({"Blur"}));

    QStringList seen;
    DialogScript script({typeName("x", &seen), press(QMessageBox::StandardButton(answer), &seen)});
    panel->slotSaveFlow();

    QCOMPARE(script.unanswered(), 0);
    const QString yesNo = QString::number(int(QMessageBox::Yes | QMessageBox::No));
    QCOMPARE(seen, (QStringList{"Save Flow|Flow's Name:",
                                "Warning|The flow the with name \"x.flow\" already exists.\n"
                                "Overwrite?|" +
                                    yesNo}));
    QCOMPARE(readBytes(path) == "old", !overwritten);
}

void TestFlowPanel::deleteFavorite_data()
{
    QTest::addColumn<bool>("acceptDialog");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("left");

    QTest::newRow("confirmed") << true << int(QMessageBox::Yes) << QStringList{"a.flow"};
    QTest::newRow("not confirmed")
        << true << int(QMessageBox::No) << QStringList{"a.flow", "b.flow"};
    QTest::newRow("dialog cancelled") << false << 0 << QStringList{"a.flow", "b.flow"};
}

void TestFlowPanel::deleteFavorite()
{
    QFETCH(bool, acceptDialog);
    QFETCH(int, answer);
    QFETCH(QStringList, left);

    FlowTest::writeBytes(FlowFile::flowsFolder() + "a.flow", flowOfNames({"Blur"}).toUtf8());
    FlowTest::writeBytes(FlowFile::flowsFolder() + "b.flow", flowOfNames({"Crop"}).toUtf8());
    delete panel;
    panel = new FlowPanel(options);
    const QMenu* menu = flowsMenu();
    const QStringList menuFlows = menuTexts(menu).mid(5);

    QStringList listed;
    QStringList seen;
    QList<DialogScript::Answer> answers = {chooseFlow("b.flow", &listed, acceptDialog)};
    if (acceptDialog)
        answers.append(press(QMessageBox::StandardButton(answer), &seen));
    DialogScript script(answers);
    menuAction(menu, "&Delete...")->trigger();

    QCOMPARE(script.unanswered(), 0);
    QCOMPARE(script.unexpected, 0);
    // The dialog lists the menu's flows in reverse order.
    QStringList reversed;
    for (const QString& name : menuFlows)
        reversed.prepend(name);
    QCOMPARE(listed, reversed);
    if (acceptDialog) {
        const QString yesNo = QString::number(int(QMessageBox::Yes | QMessageBox::No));
        QCOMPARE(seen, QStringList{"Warning|Remove the flow:\n \"b.flow\"?|" + yesNo});
    }
    QStringList files = FlowFile::flowNames();
    files.sort();
    QCOMPARE(files, left);
    QStringList inMenu = menuTexts(menu).mid(5);
    inMenu.sort();
    QCOMPARE(inMenu, left);
}

void TestFlowPanel::deleteDialog()
{
    FavoritesDeleteDlg dialog;
    QCOMPARE(dialog.windowTitle(), QString("Delete the flow"));
    QCOMPARE(dialog.objectName(), QString("Dialog"));
    QCOMPARE(dialog.minimumSize(), QSize(400, 300));
    auto* cancel = dialog.findChild<QPushButton*>("PushButton");
    auto* remove = dialog.findChild<QPushButton*>("DeleteButton");
    QVERIFY(cancel && remove);
    QCOMPARE(cancel->text(), QString("&Cancel"));
    QCOMPARE(remove->text(), QString("&Delete"));
    QCOMPARE(remove->maximumHeight(), 32);
    QVERIFY(cancel->isFlat() && remove->isFlat());

    QCOMPARE(dialog.selectedName(), QString());
    dialog.setFlowNames({"one.flow", "two.flow", "three.flow"});
    dialog.show();
    QCOMPARE(dialog.selectedName(), QString("three.flow"));
    auto* list = dialog.findChild<QListWidget*>();
    QCOMPARE(list->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    list->setCurrentRow(2);
    QCOMPARE(dialog.selectedName(), QString("one.flow"));

    // Shown again, the selection starts at the top; an emptied list selects nothing.
    dialog.hide();
    dialog.show();
    QCOMPARE(dialog.selectedName(), QString("three.flow"));
    dialog.setFlowNames({});
    QCOMPARE(dialog.selectedName(), QString());

    QSignalSpy accepted(&dialog, &QDialog::accepted);
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    remove->click();
    dialog.show();
    cancel->click();
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(rejected.count(), 1);
}

void TestFlowPanel::loadFavoriteFromMenu()
{
    QVERIFY(FlowFile::installSampleFlow());
    delete panel;
    panel = new FlowPanel(options);
    bar = panel->findChild<NodesTabBar*>();
    const QMenu* menu = flowsMenu();
    QCOMPARE(menuTexts(menu).mid(5), QStringList{"sample.flow"});

    QSignalSpy changed(panel, &FlowPanel::flowChanged);
    menuAction(menu, "sample.flow")->trigger();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(nodeNames(changed.at(0).at(0).value<Flow>()),
             (QStringList{"0:Watermark", "1:Watermark", "2:Watermark"}));
    QCOMPARE(bar->count(), 3);
    QCOMPARE(bar->currentIndex(), 2);
}

void TestFlowPanel::brokenTextAfterLoadedFlowLeavesPanelEmpty()
{
    panel->loadFlow(QString::fromUtf8(readBytes(":/sample.flow")));
    QCOMPARE(bar->count(), 3);
    QSignalSpy removed(panel, &FlowPanel::nodeRemoved);
    QSignalSpy changed(panel, &FlowPanel::flowChanged);
    panel->loadFlow("<OperationsFlow><Operation name=\"Blur\" index=\"0\">");
    QCOMPARE(removed.count(), 3);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(bar->count(), 0);
    QVERIFY(panel->flow().isEmpty());
}

void TestFlowPanel::indicesRenumbered()
{
    panel->loadFlow("<OperationsFlow>" + operation("Blur", "5") + operation("Crop", "2") +
                    operation("Invert", "9") + "</OperationsFlow>");
    QCOMPARE(nodeNames(panel->flow()), (QStringList{"0:Crop", "1:Blur", "2:Invert"}));
    QCOMPARE(tabTexts(bar), (QStringList{"Crop", "Blur", "Invert"}));
    QVERIFY(panel->saveFlow("renumbered.flow"));
    const QString saved = QString::fromUtf8(readBytes(FlowFile::flowsFolder() + "renumbered.flow"));
    QVERIFY(saved.contains(" <Operation name=\"Crop\" index=\"0\">\n"));
    QVERIFY(saved.contains(" <Operation name=\"Blur\" index=\"1\">\n"));
    QVERIFY(saved.contains(" <Operation name=\"Invert\" index=\"2\">\n"));
}

void TestFlowPanel::saveThenLoadEveryKind()
{
    // A user logo: three columns of different colours.
    QImage logo(3, 2, QImage::Format_ARGB32);
    logo.fill(0xff102030);
    logo.setPixel(1, 0, 0xffa0b0c0);
    logo.setPixel(2, 1, 0x80ff0000);
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    logo.save(&png, "PNG");
    const QString logoData = "data:image/png;base64," + QString::fromLatin1(png.data().toBase64());

    // The font a new watermark node starts with is one the font box certainly holds.
    const QString font = [] {
        std::unique_ptr<BaseNode> watermark(createNodeByName("Watermark"));
        const auto values = parameterValues(watermark->parametersText());
        for (const auto& value : values) {
            if (value.first == "Font")
                return value.second;
        }
        return QString();
    }();

    using Values = QVector<QPair<QString, QString>>;
    const QList<QPair<QString, Values>> flow = {
        {"RGB-Order", {{"Active", "yes"}, {"Mode", "2"}}},
        {"Brightness, Contrast, Saturation",
         {{"Active", "yes"}, {"Brightness", "-20"}, {"Contrast", "15"}, {"Saturation", "50"}}},
        {"Rotate", {{"Active", "yes"}, {"Angle", "-90"}}},
        {"Blur", {{"Active", "yes"}, {"Radius", "15"}}},
        {"Invert", {{"Active", "no"}}},
        {"Mirror", {{"Active", "yes"}, {"Horizontal", "no"}, {"Vertical", "yes"}}},
        {"Grayscale", {{"Active", "yes"}}},
        {"Watermark", TestUtils::keyValues(
                          QString("Active=yes|Mode=1|Size=42|Text=%1|Position=TopMiddle|Expand=yes|"
                                  "Bold=yes|Italic=no|Underlined=yes|XOffset=-5|YOffset=7|"
                                  "Transparency=60|Color=#12ab34|Background=#fedcba|"
                                  "BackgroundEnabled=yes|Font=%2|ImageData=%3|ImageName=logo.png")
                              .arg("\u00dcber & <\"quoted\"> ]]>", font, logoData))},
        {"Crop",
         {{"Active", "no"}, {"Left", "10"}, {"Right", "20"}, {"Top", "5"}, {"Bottom", "1"}}},
        {"Resize", {{"Active", "yes"}, {"Mode", "2"}, {"Width", "1200"}, {"Height", "800"}}},
        {"Histogram optimizer", {{"Active", "yes"}, {"Left", "3"}, {"Right", "4"}}},
        {"Frame", {{"Active", "yes"}, {"Width", "7"}, {"Color", "#808000"}}},
        {"Binarization", {{"Active", "no"}, {"Threshold", "200"}}},
        {"Vignetting",
         {{"Active", "yes"}, {"Radius", "40"}, {"Opacity", "30"}, {"Color", "#102030"}}},
    };
    QStringList names;
    for (const auto& node : flow)
        names.append(node.first);
    names.sort();
    QStringList catalogue = factoryNodeNames();
    catalogue.sort();
    QCOMPARE(names, catalogue);

    QDomDocument source;
    QDomElement root = source.createElement("OperationsFlow");
    source.appendChild(root);
    for (int i = 0; i < flow.size(); ++i) {
        QDomElement operation = source.createElement("Operation");
        operation.setAttribute("name", flow.at(i).first);
        operation.setAttribute("index", i);
        QDomElement parameters = source.createElement("Parameters");
        for (const auto& value : flow.at(i).second) {
            QDomElement element = source.createElement(value.first);
            element.appendChild(source.createTextNode(value.second));
            parameters.appendChild(element);
        }
        operation.appendChild(parameters);
        root.appendChild(operation);
    }
    panel->loadFlow(source.toString());
    QVERIFY(panel->saveFlow("every kind.flow"));

    FlowPanel loaded(options);
    QString text;
    QVERIFY(FlowFile::readFlowFile(FlowFile::flowsFolder() + "every kind.flow", &text));
    loaded.loadFlow(text);

    const Flow nodes = loaded.flow();
    QCOMPARE(nodes.size(), flow.size());
    for (int i = 0; i < flow.size(); ++i) {
        QCOMPARE(nodes.value(i)->name(), flow.at(i).first);
        QCOMPARE(nodes.value(i)->isActive(), flow.at(i).second.first().second == "yes");
        Values values = parameterValues(nodes.value(i)->parametersText());
        Values expected = flow.at(i).second;
        for (int k = 0; k < values.size(); ++k) {
            if (values.at(k).first != "ImageData")
                continue;
            // The logo is encoded anew on saving: compare pictures, not bytes.
            const QString data = values.at(k).second;
            QVERIFY(data.startsWith("data:image/png;base64,"));
            const QImage image = QImage::fromData(
                QByteArray::fromBase64(data.mid(data.indexOf(',') + 1).toLatin1()));
            QCOMPARE_IMAGES(image.convertToFormat(QImage::Format_ARGB32), logo);
            values[k].second = logoData;
        }
        QCOMPARE(values, expected);
    }
    QVERIFY(loaded.saveFlow("again.flow"));
    QCOMPARE(readBytes(FlowFile::flowsFolder() + "again.flow"),
             readBytes(FlowFile::flowsFolder() + "every kind.flow"));
}

void TestFlowPanel::goToFlowsLocationOpensFolder()
{
    UrlRecorder recorder;
    QDesktopServices::setUrlHandler("file", &recorder, "open");
    flowsAction("&Go To Flows Location")->trigger();
    QDesktopServices::unsetUrlHandler("file");
    QCOMPARE(recorder.opened,
             QList<QUrl>{QUrl::fromLocalFile(TestUtils::sandboxHome() + "/Pelodine/Flows/")});
}

void TestFlowPanel::thumbnailFollowsPreview()
{
    panel->loadFlow(flowOfNames({"Blur", "Crop"}));
    const QImage preview = TestUtils::filledImage(200, 100, 0xff336699);
    panel->flow().value(0)->updatePreview(preview);

    const auto* first = qobject_cast<TabLabel*>(bar->tabButton(0, QTabBar::LeftSide));
    const auto* second = qobject_cast<TabLabel*>(bar->tabButton(1, QTabBar::LeftSide));
    QCOMPARE_IMAGES(first->preview().toImage().convertToFormat(QImage::Format_ARGB32), preview);
    QCOMPARE(first->pixmap(Qt::ReturnByValue).size(), QSize(70, 35));
    QVERIFY(second->preview().isNull());
}

void TestFlowPanel::thumbnailsAreDrawnOnTheTabs()
{
    const QString styleSheet = OrkWidgets::App::resourceText(":/stylesheet.qss");
    QVERIFY(!styleSheet.isEmpty());
    qApp->setStyleSheet(styleSheet);
    const auto plainAgain = qScopeGuard([] { qApp->setStyleSheet(QString()); });

    panel->loadFlow(flowOfNames({"Watermark", "Brightness, Contrast, Saturation", "Vignetting",
                                 "Frame", "Mirror", "Grayscale"}));
    // As the options panel runs the flow: each node works on the previous node's result.
    QImage photo = landscape();
    const Flow flow = panel->flow();
    for (BaseNode* node : flow)
        node->process(photo);
    panel->flow().value(5)->setActive(false);
    panel->flow().value(5)->process(photo);
    bar->setCurrentIndex(2);
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel));

    const QImage shot = panel->grab().toImage();
    const QByteArray screenshot = qgetenv("PELODINE_SCREENSHOT");
    if (!screenshot.isEmpty())
        shot.save(QString::fromLocal8Bit(screenshot));

    // Every thumbnail picture is drawn whole on its tab, centred in its label.
    for (int i = 0; i < bar->count(); ++i) {
        const auto* thumbnail = qobject_cast<TabLabel*>(bar->tabButton(i, QTabBar::LeftSide));
        const QImage picture = thumbnail->pixmap(Qt::ReturnByValue).toImage();
        // Placed as a label centres a picture: half the label less half the picture.
        const QRect drawn(
            thumbnail->mapTo(panel, QPoint(35 - picture.width() / 2, 35 - picture.height() / 2)),
            picture.size());
        QVERIFY(panel->rect().contains(drawn));
        QCOMPARE_IMAGES(shot.copy(drawn).convertToFormat(QImage::Format_ARGB32),
                        picture.convertToFormat(QImage::Format_ARGB32));
    }
}

void TestFlowPanel::thumbnailButtonAndBubble()
{
    TabLabel label;
    label.setFixedSize(70, 70);
    label.show();
    auto* button = label.findChild<QPushButton*>("ThumbnailPreviewButton");
    QVERIFY(button);
    QVERIFY(button->isFlat());
    QVERIFY(button->isHidden());

    // Without a preview nothing is offered.
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(&label, &enter);
    QVERIFY(button->isHidden());
    label.slotShowPreview();
    QVERIFY(!label.findChild<PreviewBubble*>());

    label.setPreview(QPixmap::fromImage(TestUtils::filledImage(300, 200, 0xffcc8800)));
    QApplication::sendEvent(&label, &enter);
    QVERIFY(!button->isHidden());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&label, &leave);
    QVERIFY(button->isHidden());

    button->click();
    auto* bubble = label.findChild<PreviewBubble*>();
    QVERIFY(bubble);
    QVERIFY(bubble->isVisible());
    const auto* growth = bubble->findChild<QPropertyAnimation*>();
    QVERIFY(growth);
    QCOMPARE(growth->propertyName(), QByteArray("geometry"));
    QCOMPARE(growth->duration(), 500);
    QCOMPARE(growth->startValue().toRect(), QRect(label.mapToGlobal(QPoint(0, 0)), QSize(70, 70)));
    QCOMPARE(growth->endValue().toRect().size(), QSize(306, 206));
    QCOMPARE(growth->state(), QAbstractAnimation::Running);

    QPointer<PreviewBubble> closing = bubble;
    QTest::mouseClick(bubble, Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!closing);
}

void TestFlowPanel::bubbleGeometry_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QRect>("origin");
    QTest::addColumn<QRect>("target");

    // The screen is 1920 x 1080; a border of 3 pixels on each side, a gap of 6 pixels.
    // A 70-pixel origin at x 500 has its centre at 534; a 306-wide bubble starts 152 left of
    // it. Its bottom row is 6 above the origin's top row 900: 894, so its top is 894 - 205.
    QTest::newRow("above the tab")
        << QSize(300, 200) << QRect(500, 900, 70, 70) << QRect(382, 689, 306, 206);
    // 960 x 720 shrinks to 480 x 360, 486 x 366 with the border, pushed in at the left.
    QTest::newRow("large picture shrunk, kept on screen")
        << QSize(960, 720) << QRect(10, 900, 70, 70) << QRect(0, 529, 486, 366);
    // Above would start at -111: it goes 6 below the origin's bottom row 169 instead.
    QTest::newRow("below when no room above")
        << QSize(300, 200) << QRect(500, 100, 70, 70) << QRect(382, 175, 306, 206);
    // Centred it would end at 2037; the last column that fits starts at 1920 - 306.
    QTest::newRow("pushed in at the right")
        << QSize(300, 200) << QRect(1850, 900, 70, 70) << QRect(1614, 689, 306, 206);
    // 100 x 720 fitted into 480 x 360 is 50 x 360; 56 wide, it starts 27 left of 534.
    QTest::newRow("tall picture fitted by height")
        << QSize(100, 720) << QRect(500, 900, 70, 70) << QRect(507, 529, 56, 366);
}

void TestFlowPanel::bubbleGeometry()
{
    QFETCH(QSize, picture);
    QFETCH(QRect, origin);
    QFETCH(QRect, target);
    QCOMPARE(PreviewBubble::targetGeometry(picture, origin, QRect(0, 0, 1920, 1080)), target);
}

PELODINE_TEST_MAIN(TestFlowPanel)
#include "tst_flowpanel.moc"
