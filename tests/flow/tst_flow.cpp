// The flow files and the flow panel: what is written, what is read back, how the user edits it.
#include "appdata.h"
#include "basenode.h"
#include "favoritesdeletedlg.h"
#include "flowfile.h"
#include "flowoperations.h"
#include "flowpanel.h"
#include "flowtext.h"
#include "nodecatalogue.h"
#include "testutils.h"
#include "ui/nodesoptionspanel.h"

#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QSlider>
#include <QTimer>
#include <QToolButton>
#include <QUndoStack>

#include <algorithm>
#include <memory>

using Flow = QMap<int, BaseNode*>;
namespace AppData = OrkTools::AppData;
using TestUtils::addColumns;
using TestUtils::addRow;
using TestUtils::fetch;
using TestUtils::readFile;

namespace {

// The operations of "Blur Crop@7 Invert@x:no": one per word, at its position in the list unless
// "@index" says otherwise, with "<Active>yes" unless ":text" says otherwise.
QByteArray operationsOf(const QString& words)
{
    QString text;
    const QStringList list = words.split(' ', Qt::SkipEmptyParts);
    for (int i = 0; i < list.size(); ++i) {
        const QString word = list.at(i).section(':', 0, 0);
        const QString active = list.at(i).contains(':') ? list.at(i).section(':', 1) : "yes";
        const QString index = word.contains('@') ? word.section('@', 1) : QString::number(i);
        text += QString(R"(<Operation name="%1" index="%2"><Parameters><Active>%3</Active>)"
                        "</Parameters></Operation>")
                    .arg(word.section('@', 0, 0), index, active);
    }
    return text.toUtf8();
}

// A flow file of those operations, then more.
QByteArray flowOf(const QString& words, const QByteArray& more = {})
{
    return "<OperationsFlow>" + operationsOf(words) + more + "</OperationsFlow>";
}

// Two nodes as an older or hand-edited file may hold them: in the wrong order, indices with
// a gap, "YES" for yes, "index" before "name".
const char oddFlow[] = R"(<OperationsFlow><Operation index="7" name="Grayscale"><Parameters>)"
                       "<Active>YES</Active></Parameters></Operation>"
                       R"(<Operation name="Mirror" index="2"><Parameters><Active>no</Active>)"
                       "<Horizontal>no</Horizontal><Vertical>yes</Vertical></Parameters>"
                       "</Operation></OperationsFlow>";

// The same flow as this program writes it.
const char savedFlow[] = "<OperationsFlow>\n"
                         " <Operation name=\"Mirror\" index=\"0\">\n"
                         "  <Parameters>\n"
                         "   <Active>no</Active>\n"
                         "   <Horizontal>no</Horizontal>\n"
                         "   <Vertical>yes</Vertical>\n"
                         "  </Parameters>\n"
                         " </Operation>\n"
                         " <Operation name=\"Grayscale\" index=\"1\">\n"
                         "  <Parameters>\n"
                         "   <Active>yes</Active>\n"
                         "  </Parameters>\n"
                         " </Operation>\n"
                         "</OperationsFlow>\n";

// Answers the modal dialogs a slot opens, one word of the script each: the text typed into an
// input dialog, the flow chosen in the delete dialog, "Yes" or "No" in a message box; "cancel"
// rejects, as it does a dialog no word fits, so that no test hangs on it.
struct DialogScript : QTimer
{
    explicit DialogScript(const QString& script)
        : steps(script.split(' '))
    {
        connect(this, &QTimer::timeout, this, [this] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || dialog == answered)
                return;
            answered = dialog;
            const QString step = steps.isEmpty() ? "cancel" : steps.takeFirst();
            auto* box = qobject_cast<QMessageBox*>(dialog);
            auto* input = qobject_cast<QInputDialog*>(dialog);
            auto* list = dialog->findChild<QListWidget*>();
            const auto items =
                list ? list->findItems(step, Qt::MatchExactly) : QList<QListWidgetItem*>();
            QAbstractButton* button =
                box ? box->button(step == "Yes" ? QMessageBox::Yes : QMessageBox::No) : nullptr;
            if (button) {
                button->click();
            } else if (input && step != "cancel") {
                input->setTextValue(step);
                input->accept();
            } else if (!items.isEmpty()) {
                list->setCurrentItem(items.first());
                dialog->accept();
            } else {
                dialog->reject();
            }
        });
        start(5);
    }

    QStringList steps;
    QPointer<QDialog> answered;
};

// The node names in flow order; "gap" where a position is not the next of 0, 1, 2, ...
QStringList namesOf(const Flow& flow)
{
    QStringList names;
    for (auto it = flow.cbegin(); it != flow.cend(); ++it)
        names << (it.key() == names.size() ? it.value()->name() : "gap");
    return names;
}

QAction* menuAction(const QMenu* menu, const QString& text)
{
    const QList<QAction*> actions = menu->actions();
    const auto found = std::find_if(actions.begin(), actions.end(),
                                    [&](const QAction* action) { return action->text() == text; });
    return found == actions.end() ? nullptr : *found;
}

// Presses on tab from, moves in steps as a hand does, and lets go just past tab to.
void drag(QTabBar* bar, int from, int to)
{
    const QPoint start = bar->tabRect(from).center();
    const QPoint end(bar->tabRect(to).right() + 5, start.y());
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, start);
    for (int step = 1; step <= 10; ++step) {
        const QPoint at = start + (end - start) * step / 10;
        QMouseEvent move(QEvent::MouseMove, at, bar->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(bar, &move);
    }
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, end);
}

// Holds the slider down, moves it through the values, then lets it go: one drag.
void slide(QSlider* slider, const QString& values)
{
    slider->setSliderDown(true);
    for (const QString& value : values.split(' '))
        slider->setSliderPosition(value.toInt());
    slider->setSliderDown(false);
}

// Types text into field as the keyboard does, through its window.
void type(QLineEdit* field, const QString& text)
{
    QWidget* window = field->window();
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
    field->setFocus();
    for (const QChar letter : text)
        QTest::keyClick(window->windowHandle(), letter.toLatin1());
}

} // namespace

class TestFlow : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QDir(AppData::flowsFolder()).removeRecursively();
        renewPanel();
    }

    void reading_data()
    {
        addColumns<QByteArray, QString>("bytes", "active");

        const auto blur = [](const QByteArray& in) {
            return flowOf("", R"(<Operation name="Blur" index="0">)" + in + "</Operation>");
        };
        const auto mark = [](const QByteArray& data) {
            return flowOf("Watermark")
                .replace("</Active>", "</Active><ImageData>" + data + "</ImageData>");
        };
        const QByteArray sample = readFile(":/sample.flow");
        addRow("indices 5 2 9", flowOf("Blur@5 Crop@2 Invert@9"), "Crop Blur Invert");
        addRow("equal indices: the later wins", flowOf("Blur@1 Crop@0 Invert@0"), "Invert Blur");
        addRow("index x skipped", flowOf("Blur@0 Crop@x Invert@2"), "Blur Invert");
        addRow("missing index skipped", flowOf("Grayscale", R"(<Operation name="Crop"/>)"),
               "Grayscale");
        addRow("foreign root name", flowOf("Grayscale").replace("OperationsFlow", "F"),
               "Grayscale");
        addRow("foreign nodes skipped",
               flowOf("Grayscale", R"(t<!----><?p?><operation name="Blur" index="1"/>)"),
               "Grayscale");
        addRow("unknown name skipped", flowOf("Blur Sharpen Crop"), "Blur Crop");
        addRow("inactive left out", flowOf("Invert@4 Crop@1:no Grayscale@0"), "Grayscale Invert");
        addRow("Active in other letter case", flowOf("Blur:YES Crop:true"), "Blur");
        addRow("empty flow", QByteArray("<OperationsFlow/>\n"), "");
        // Without a Parameters element as its first child a node keeps its defaults: active.
        addRow("no Parameters", blur(""), "Blur");
        addRow("text before Parameters", blur("t<Parameters><Active>no</Active></Parameters>"),
               "Blur");
        addRow("not XML", QByteArray("Watermark, Resize"), "not a flow");
        addRow("empty file", QByteArray(), "not a flow");
        addRow("cut short", sample.left(sample.indexOf("index=\"1\"") + 40), "not a flow");
        addRow("mismatched end tag", blur("</Parameters>"), "not a flow");
        // Deep nesting would exhaust the stack of the recursive DOM.
        addRow("200000 nested elements",
               flowOf("Grayscale",
                      QByteArray("<a>").repeated(200000) + QByteArray("</a>").repeated(200000)),
               "not a flow");
        addRow("50 MB ImageData", mark("data:image/png;base64," + QByteArray(50 << 20, 'A')),
               "Watermark");
        QByteArray laughs = "<!DOCTYPE x [<!ENTITY l0 \"lol\">";
        for (int i = 1; i <= 9; ++i)
            laughs += "<!ENTITY l" + QByteArray::number(i) + " \"" +
                      ("&l" + QByteArray::number(i - 1) + ";").repeated(10) + "\">";
        addRow("billion laughs", laughs + "]>" + mark("&l9;"), "not a flow");
        addRow("external entity not read",
               "<!DOCTYPE x [<!ENTITY e SYSTEM \"file:///etc/passwd\">]>" + flowOf("Grayscale:&e;"),
               "");
        addRow("a picture picked instead", readFile(":/new.png"), "not a flow");
        addRow("NUL inside", flowOf("Grayscale", QByteArray(1, '\0')), "not a flow");
        addRow("not UTF-8", flowOf("Grayscale", "\xff\xfe"), "Grayscale");
    }

    // What the batch runs from a file: the names of the active operations in flow order.
    void reading()
    {
        auto [bytes, active] = fetch<QByteArray, QString>("bytes", "active");
        QString text;
        QVERIFY(FlowFile::readFlowFile(
            TestUtils::writeFile(AppData::flowsFolder() + "in.flow", bytes), &text));
        bool ok = false;
        QStringList names;
        const BatchOperations operations = batchOperationsFromFlow(text, &ok);
        for (const auto& operation : operations)
            names << operation.first;
        // Nothing is taken from a text that does not parse.
        QCOMPARE((ok ? "" : "not a flow") + names.join(' '), active);
    }

    // Written whole through a temporary file: a longer old file leaves no tail, and no other file
    // is left beside it.
    void savedTextIsExact()
    {
        TestUtils::writeFile(AppData::flowsFolder() + "\u00e9t\u00e9.flow", QByteArray(1000, 'x'));
        panel->loadFlow(oddFlow);
        // The DOM orders attributes by a per-process random hash seed; a fresh seed per round lets
        // both orders turn up, and "name" must come first every time.
        for (int round = 0; round < 16; ++round) {
            qSetGlobalQHashSeed(-1);
            QVERIFY(panel->saveFlow("\u00e9t\u00e9.flow"));
            QCOMPARE(readFile(AppData::flowsFolder() + "\u00e9t\u00e9.flow"),
                     QByteArray(savedFlow));
        }
        QCOMPARE(TestUtils::fileNames(AppData::flowsFolder()),
                 QString(".current.flow.kept \u00e9t\u00e9.flow"));
    }

    // Saved and read back, a flow gives the operations the panel holds: here the sample flow of
    // three watermarks, one with a text that needs escaping, and every kind of node the nodes menu
    // offers.
    void savedAndReadBack()
    {
        QString text;
        QVERIFY(FlowFile::readFlowFile(":/sample.flow", &text));
        panel->loadFlow(
            text.replace("Watermark1", QString("\u00dcber & <\"q\"> ]]>").toHtmlEscaped()));
        const QList<QAction*> actions = panel->nodesMenu()->actions();
        for (QAction* action : actions)
            action->trigger();
        QCOMPARE(namesOf(panel->flow()),
                 (QStringList{"Watermark", "Watermark", "Watermark"} + factoryNodeNames()));
        BatchOperations operations;
        for (BaseNode* node : panel->flow())
            operations << qMakePair(node->name(), node->parametersText());
        QVERIFY(operations.first().second.contains("<Text>\u00dcber &amp; &lt;"));
        QVERIFY(panel->saveFlow("a.flow"));
        QVERIFY(FlowFile::readFlowFile(AppData::flowsFolder() + "a.flow", &text));
        QCOMPARE(batchOperationsFromFlow(text), operations);
    }

    // A flow from before the watermark's later keys, the sample one, opens and is saved byte
    // for byte as it was; only the fonts are the ones this machine has.
    void oldFlowSavedUnchanged()
    {
        panel->loadFlow(QString::fromUtf8(readFile(":/sample.flow")));
        QVERIFY(panel->saveFlow("old.flow"));
        const QRegularExpression fonts("<Font>[^<]*</Font>");
        QCOMPARE(QString::fromUtf8(readFile(AppData::flowsFolder() + "old.flow")).remove(fonts),
                 QString::fromUtf8(readFile(":/sample.flow")).remove(fonts));
    }

    void editing_data()
    {
        addColumns<QString, QString>("steps", "result");
        addRow("+ adds Watermark", "add|add",
               "Watermark Watermark [1] +Watermark +Watermark Watermark");
        addRow("load", "Blur@5 Crop@2", "Crop Blur [1] +Crop Blur");
        addRow("remove last", "Blur Crop Invert|remove",
               "Blur Crop [1] +Blur Crop Invert -Invert>Crop");
        addRow("remove middle", "Blur Crop Invert|select 1|remove",
               "Blur Invert [1] +Blur Crop Invert -Crop>Invert");
        addRow("remove first", "Blur Crop Invert|select 0|remove",
               "Crop Invert [0] +Blur Crop Invert -Blur>Crop");
        addRow("remove the only", "Blur|remove", " [-1] +Blur -Blur>");
        addRow("remove from nothing", "remove", " [-1] ");
        addRow("Clear", "Blur Crop Invert|select 1|menu &Clear",
               " [-1] +Blur Crop Invert -Crop>Invert -Invert>Blur -Blur>");
        addRow("replaces", "Blur|Crop", "Crop [0] +Blur -Blur> +Crop");
        addRow("broken text empties", "Blur Crop|broken", " [-1] +Blur Crop -Crop>Blur -Blur>");
        addRow("drag first past last", "Blur Crop Invert|drag 0 2",
               "Crop Invert Blur [2] +Blur Crop Invert +Crop Blur Invert +Crop Invert Blur");
        addRow("from the menu", "menu sample.flow",
               "Watermark Watermark Watermark [2] +Watermark Watermark Watermark");
    }

    void editing()
    {
        auto [steps, result] = fetch<QString, QString>("steps", "result");
        QVERIFY(FlowFile::installSampleFlow());
        renewPanel();
        panel->show();
        QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
        QCOMPARE(play(steps), result);
    }

    void menuDialogs_data()
    {
        addColumns<QString, QString, QString, QByteArray>("action", "script", "file", "content");
        // a.flow and b.flow hold "old" before; an empty content means no file. A typed name gets
        // ".flow" unless it ends so.
        addRow("save", "&Save...", "c", "c.flow", QByteArray(savedFlow));
        addRow("save cancelled", "&Save...", "cancel", "c.flow", QByteArray());
        addRow("overwrite", "&Save...", "b.flow Yes", "b.flow", QByteArray(savedFlow));
        addRow("overwrite refused", "&Save...", "b No", "b.flow", QByteArray("old"));
        addRow("delete", "&Delete...", "b.flow Yes", "b.flow", QByteArray());
        addRow("delete refused", "&Delete...", "b.flow No", "b.flow", QByteArray("old"));
        addRow("delete cancelled", "&Delete...", "cancel", "b.flow", QByteArray("old"));
    }

    void menuDialogs()
    {
        auto [action, script, file, content] =
            fetch<QString, QString, QString, QByteArray>("action", "script", "file", "content");
        TestUtils::writeFile(AppData::flowsFolder() + "a.flow", "old");
        TestUtils::writeFile(AppData::flowsFolder() + "b.flow", "old");
        renewPanel();
        panel->loadFlow(oddFlow);
        DialogScript dialogs(script);
        menuAction(flowsMenu(), action)->trigger();
        QVERIFY(dialogs.steps.isEmpty());
        QCOMPARE(QFile::exists(AppData::flowsFolder() + file), !content.isEmpty());
        QCOMPARE(readFile(AppData::flowsFolder() + file), content);
        QCOMPARE(readFile(AppData::flowsFolder() + "a.flow"), QByteArray("old"));
        // The menu lists the flows folder as it is now.
        QCOMPARE(menuAction(flowsMenu(), file) != nullptr, !content.isEmpty());
    }

    // A click on "+" adds a watermark; its arrow opens the one menu of all fourteen operations in
    // the catalogue's order, which a right click opens too, and the chosen one is added.
    void operationsMenu()
    {
        auto* add = panel->findChild<QToolButton*>("PushButtonAdd");
        QCOMPARE(add->menu(), panel->nodesMenu());
        QStringList names;
        const QList<QAction*> actions = add->menu()->actions();
        for (const QAction* action : actions)
            names << action->text() + (action->icon().isNull() ? " without icon" : "");
        QCOMPARE(names, factoryNodeNames());
        panel->show();
        QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
        QTimer chooser;
        connect(&chooser, &QTimer::timeout, [] {
            if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
                menuAction(menu, "Resize")->trigger();
                menu->close();
            }
        });
        chooser.start(5);
        QTest::mouseClick(add, Qt::LeftButton, Qt::NoModifier, QPoint(add->width() - 5, 20));
        QTest::mouseClick(add, Qt::LeftButton, Qt::NoModifier, QPoint(10, 20));
        QCOMPARE(namesOf(panel->flow()), (QStringList{"Resize", "Watermark"}));
        QContextMenuEvent rightClick(QContextMenuEvent::Mouse, QPoint(10, 20));
        QApplication::sendEvent(add, &rightClick);
        QTRY_VERIFY(panel->nodesMenu()->isVisible());
    }

    void undoRedo_data()
    {
        addColumns<QString, QString, int>("before", "change", "steps");
        addRow("+", "Blur Crop", "add", 1);
        addRow("from the + menu", "Blur", "add Resize", 1);
        addRow("remove middle", "Blur Crop Invert|select 1", "remove", 1);
        addRow("remove the only", "Blur:no", "remove", 1);
        addRow("one drag two places", "Blur Crop Invert", "drag 0 2", 1);
        addRow("two drags", "Blur Crop Invert", "drag 0 1|drag 2 0", 2);
        addRow("Clear", "Blur Crop:no Invert", "menu &Clear", 1);
        addRow("Clear when empty", "", "menu &Clear", 0);
        addRow("load from the menu", "Blur", "menu sample.flow", 1);
        addRow("load", "Blur Crop", "Invert Grayscale:no", 1);
        addRow("load broken", "Blur Crop", "broken", 1);
        addRow("load the same", "Blur Crop", "Blur Crop", 0);
        addRow("set a slider", "Blur Crop|select 0", "set 3", 1);
        addRow("set twice", "Blur", "set 3|set 4", 2);
        addRow("switch off", "Crop Blur", "switch", 1);
        addRow("one slider drag", "Blur", "slide 12 15 18 14", 1);
        addRow("two slider drags", "Blur", "slide 12|slide 14", 2);
        addRow("dragged back", "Blur", "slide 12 10", 0);
        addRow("typing", "Watermark", "type ab c", 1);
        addRow("typing twice", "Watermark", "type ab|type c", 2);
        // The mode resets both sizes; undone, the sizes come back after it.
        addRow("resize mode", "Resize", "set 80|combo 2", 2);
    }

    // Every change of the flow is undone to the flow as it was, tabs and parameter texts alike, and
    // redone to the flow it made, without new steps; a second panel starts with the flow left
    // behind.
    void undoRedo()
    {
        auto [before, change, steps] = fetch<QString, QString, int>("before", "change", "steps");
        QVERIFY(FlowFile::installSampleFlow());
        renewPanel();
        panel->show();
        QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
        const auto state = [this] {
            QStringList tabs;
            for (int i = 0; i < bar->count(); ++i)
                tabs << bar->tabToolTip(i);
            return tabs.join(' ') + "\n" + FlowText::flowText(panel->flow());
        };
        if (!before.isEmpty())
            play(before);
        QUndoStack* stack = panel->undoStack();
        const int start = stack->index();
        const QString first = state();
        play(change);
        const QString changed = state();
        QCOMPARE(stack->index() - start, steps);
        QCOMPARE(stack->count(), stack->index());
        for (int i = 0; i < steps; ++i)
            stack->undo();
        QCOMPARE(state(), first);
        while (stack->canRedo())
            stack->redo();
        QCOMPARE(state(), changed);
        QCOMPARE(stack->count(), start + steps);
        stack->undo();
        FlowPanel next(&options);
        next.restoreKeptFlow();
        QCOMPARE(FlowText::flowText(next.flow()), FlowText::flowText(panel->flow()));
    }

    // Switched off, the kept flow is gone, changes are not kept and the next panel starts empty;
    // switched on again, the flow is kept at once. The Flows menu never lists it.
    void keepingSwitchedOff()
    {
        panel->loadFlow(flowOf("Blur"));
        const int entries = flowsMenu()->actions().size();
        QAction* keep = menuAction(flowsMenu(), "&Keep the Flow for the Next Start");
        QVERIFY(keep->isChecked());
        keep->trigger();
        QVERIFY(!QFile::exists(FlowFile::keptFlowPath()));
        panel->loadFlow(flowOf("Crop"));
        renewPanel();
        panel->restoreKeptFlow();
        QCOMPARE(namesOf(panel->flow()), QStringList());
        panel->loadFlow(flowOf("Invert"));
        keep = menuAction(flowsMenu(), "&Keep the Flow for the Next Start");
        QVERIFY(!keep->isChecked());
        keep->trigger();
        renewPanel();
        panel->restoreKeptFlow();
        QCOMPARE(namesOf(panel->flow()), QStringList{"Invert"});
        QCOMPARE(flowsMenu()->actions().size(), entries);
    }

    // The delete dialog chooses nothing for the user, also when it opens again after a choice.
    void deleteDialogChoosesNothing()
    {
        FavoritesDeleteDlg dialog;
        dialog.setFlowNames({"a.flow", "b.flow"});
        auto* list = dialog.findChild<QListWidget*>();
        auto* deleteButton = dialog.findChild<QPushButton*>("DeleteButton");
        for (int round = 0; round < 2; ++round) {
            dialog.show();
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QCOMPARE(dialog.selectedName() + (deleteButton->isEnabled() ? " enabled" : ""),
                     QString());
            list->setCurrentRow(1);
            QCOMPARE(dialog.selectedName() + (deleteButton->isEnabled() ? " enabled" : ""),
                     QString("a.flow enabled"));
            dialog.hide();
        }
    }

private:
    QMenu* flowsMenu() const { return panel->findChild<QPushButton*>("PushButton")->menu(); }
    // A new panel, whose menus list the flows folder as it is now.
    void renewPanel()
    {
        panel = std::make_unique<FlowPanel>(&options);
        panel->resize(1200, 165);
        bar = panel->findChild<QTabBar*>();
    }

    // Runs steps separated by "|" on the panel: "<words for flowOf>" loads them, "broken" loads a
    // broken text, "add" presses the + button, "add <name>" chooses from its menu, "select <tab>",
    // "remove" (the - button), "menu <flows menu entry>", "drag <from tab> <to tab>"; in the
    // current node "set <value>" sets its first slider, "slide <value>..." drags it through the
    // values, "combo <index>" chooses in its first combo box, "type <text>" types into its first
    // text field, "switch" clicks its title's check box. Returns the flow's names, " [current
    // tab]", then its signals in order: "+<names>" for flowChanged, "-<removed>><current>" for
    // nodeRemoved; a "!" marks a signal whose flow is not the panel's, "tabs" tabs that differ from
    // the flow, "buttons" Remove or Save enabled with no node or disabled with some, "deleted" a
    // removed node that is gone.
    QString play(const QString& steps)
    {
        QStringList log;
        QList<QPointer<BaseNode>> removed;
        QObject guard;
        connect(panel.get(), &FlowPanel::flowChanged, &guard, [&](const Flow& flow) {
            log << "+" + namesOf(flow).join(' ') + (flow == panel->flow() ? "" : "!");
        });
        connect(panel.get(), &FlowPanel::nodeRemoved, &guard,
                [&](const Flow& flow, BaseNode* node, BaseNode* current) {
                    log << "-" + node->name() + ">" + (current ? current->name() : "") +
                               (flow == panel->flow() ? "" : "!");
                    removed << node;
                });
        auto* removeButton = panel->findChild<QPushButton*>("PushButtonRemove");
        const QAction* save = menuAction(flowsMenu(), "&Save...");
        for (const QString& step : steps.split('|')) {
            const QString command = step.section(' ', 0, 0);
            const QString rest = step.section(' ', 1);
            // Each step is an act of the user of its own, begun as a real one is, by a press.
            QTest::keyClick(panel.get(), Qt::Key_Shift);
            BaseNode* node = panel->flow().value(bar->currentIndex());
            auto* slider = node ? node->findChild<QSlider*>() : nullptr;
            if (command == "add" && rest.isEmpty())
                panel->findChild<QToolButton*>("PushButtonAdd")->click();
            else if (command == "add")
                menuAction(panel->nodesMenu(), rest)->trigger();
            else if (command == "set")
                slider->setValue(rest.toInt());
            else if (command == "slide")
                slide(slider, rest);
            else if (command == "type")
                type(node->findChild<QLineEdit*>(), rest);
            else if (command == "combo")
                node->findChild<QComboBox*>()->setCurrentIndex(rest.toInt());
            else if (command == "switch")
                QTest::keyClick(node->findChild<QGroupBox*>(), Qt::Key_Space);
            else if (command == "select")
                bar->setCurrentIndex(rest.toInt());
            else if (command == "remove")
                removeButton->click();
            else if (command == "menu")
                menuAction(flowsMenu(), rest)->trigger();
            else if (command == "drag")
                drag(bar, rest.section(' ', 0, 0).toInt(), rest.section(' ', 1).toInt());
            else
                panel->loadFlow(step == "broken" ? "<OperationsFlow><Op" : flowOf(step));
            const bool some = bar->count() > 0;
            if (removeButton->isEnabled() != some || save->isEnabled() != some)
                log << "buttons";
        }
        for (const QPointer<BaseNode>& node : qAsConst(removed)) {
            if (!node)
                log << "deleted";
            delete node;
        }
        QStringList tabs;
        for (int i = 0; i < bar->count(); ++i)
            tabs << bar->tabToolTip(i);
        const QStringList names = namesOf(panel->flow());
        return names.join(' ') + (tabs == names ? "" : " tabs") +
               QString(" [%1] ").arg(bar->currentIndex()) + log.join(' ');
    }

    NodesOptionsPanel options;
    std::unique_ptr<FlowPanel> panel;
    QTabBar* bar = nullptr;
};

PELODINE_TEST_MAIN(TestFlow)
#include "tst_flow.moc"
