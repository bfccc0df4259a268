#include "flowpanel.h"

#include "appdata.h"
#include "basenode.h"
#include "elidedlabel.h"
#include "favoritesdeletedlg.h"
#include "flatbutton.h"
#include "flowfile.h"
#include "flowtext.h"
#include "nodecatalogue.h"
#include "nodestabbar.h"
#include "tablabel.h"
#include "ui/nodesoptionspanel.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDomDocument>
#include <QFile>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QToolButton>
#include <QUndoStack>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>

namespace {

const int thumbnailSize = 70;
// The size of a tab's contents in the style sheet.
const QSize tabFaceSize(93, 88);
const char keyKeepFlow[] = "KeyKeepFlow";
// Each step keeps up to two parameter texts, a watermark's logo among them.
const int undoLimit = 200;

bool keepingFlow()
{
    return OrkTools::AppData::readSetting(keyKeepFlow, true).toBool();
}

bool isSliderHeld(const BaseNode* node)
{
    const QList<QAbstractSlider*> sliders = node->findChildren<QAbstractSlider*>();
    return std::any_of(sliders.cbegin(), sliders.cend(),
                       [](const QAbstractSlider* slider) { return slider->isSliderDown(); });
}

// Text typed into a field goes on as one act; any other key begins one.
bool isTyping(const QObject* target, const QKeyEvent* key)
{
    return (qobject_cast<const QLineEdit*>(target) ||
            qobject_cast<const QAbstractSpinBox*>(target)) &&
           !key->text().isEmpty() && key->text().at(0).isPrint();
}

// The node reads parametersText without each control it sets telling the listeners.
void readQuietly(BaseNode* node, const QString& parametersText)
{
    QDomDocument document;
    document.setContent(parametersText);
    const QSignalBlocker quiet(node);
    node->readParameters(document.documentElement());
}

// The thumbnail with the operation's short name under it, filling the tab.
QWidget* newTabFace(TabLabel* thumbnail, const QString& name, QWidget* parent)
{
    auto* face = new QWidget(parent);
    face->setFixedSize(tabFaceSize);
    auto* caption = new OrkWidgets::ElidedLabel(shortDisplayNameForNodeName(name), face);
    caption->setObjectName("TabCaption");
    caption->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(face);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(thumbnail, 0, Qt::AlignHCenter);
    layout->addWidget(caption);
    return face;
}

} // namespace

FlowPanel::FlowPanel(NodesOptionsPanel* optionsPanel, QWidget* parent)
    : QFrame(parent)
    , optionsPanel(optionsPanel)
    , tabBar(new NodesTabBar(this))
    , addButton(new QToolButton(this))
    , removeButton(OrkWidgets::newFlatButton("PushButtonRemove", this, "-"))
    , flowsButton(OrkWidgets::newFlatButton("PushButton", this, tr("Flows")))
    , runBatchButton(new QPushButton(tr("Save Results"), this))
    , favoritesMenu(new QMenu(this))
    , addMenu(new QMenu(this))
    , deleteDialog(new FavoritesDeleteDlg(this))
    , undo(new QUndoStack(this))
{
    // The map travels in signals that may be queued or spied on.
    qRegisterMetaType<QMap<int, BaseNode*>>();
    setObjectName("FlowPanel");
    setFixedHeight(165);
    undo->setUndoLimit(undoLimit);
    QCoreApplication::instance()->installEventFilter(this);
    buildLayout();
    buildNodesMenu();
    rebuildFavoritesMenu();

    connect(tabBar, &NodesTabBar::tabClicked, this, &FlowPanel::slotTabClicked);
    connect(tabBar, &NodesTabBar::countChanged, this, &FlowPanel::slotNodesCountChanged);
    connect(tabBar, &NodesTabBar::tabMoved, this, &FlowPanel::slotTabMoved);
    connect(addButton, &QToolButton::clicked, this, &FlowPanel::slotAddWaterMarkNode);
    connect(addButton, &QToolButton::customContextMenuRequested, this,
            [this](const QPoint& position) { addMenu->popup(addButton->mapToGlobal(position)); });
    connect(removeButton, &QPushButton::clicked, this, &FlowPanel::slotRemoveNode);
    connect(runBatchButton, &QPushButton::clicked, this, &FlowPanel::slotRunBatch);

    slotNodesCountChanged(0);
}

void FlowPanel::buildLayout()
{
    addButton->setObjectName("PushButtonAdd");
    addButton->setText("+");
    addButton->setAutoRaise(true);
    addButton->setToolTip(
        tr("Add node") + '\n' +
        tr("A click adds a watermark; the arrow or a right click lists every operation."));
    addButton->setFixedSize(56, 40);
    addButton->setPopupMode(QToolButton::MenuButtonPopup);
    addButton->setMenu(addMenu);
    addButton->setContextMenuPolicy(Qt::CustomContextMenu);
    removeButton->setToolTip(tr("Remove selected node"));
    removeButton->setFixedSize(40, 40);
    flowsButton->setFixedHeight(40);
    favoritesMenu->setObjectName("FavoritesMenu");
    flowsButton->setMenu(favoritesMenu);
    runBatchButton->setObjectName("RunBatchButton");
    runBatchButton->setToolTip(tr("Save the resulted photos to the separate folder"));

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(3);
    buttons->setContentsMargins(1, 1, 1, 1);
    buttons->addWidget(addButton);
    buttons->addSpacing(4);
    buttons->addWidget(removeButton);
    buttons->addWidget(flowsButton);
    buttons->addStretch();
    buttons->addWidget(runBatchButton);

    tabBar->setMovable(true);
    tabBar->setUsesScrollButtons(true);
    tabBar->setMinimumHeight(thumbnailSize);
    tabBar->setExpanding(false);
    auto* frame = new QFrame(this);
    frame->setObjectName("FlowPanelFrame");
    auto* frameLayout = new QVBoxLayout(frame);
    frameLayout->setSpacing(1);
    frameLayout->setContentsMargins(1, 1, 1, 1);
    frameLayout->addWidget(tabBar);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(3);
    layout->setContentsMargins(3, 3, 3, 3);
    layout->addLayout(buttons);
    layout->addWidget(frame);
}

void FlowPanel::buildNodesMenu()
{
    const QStringList names = factoryNodeNames();
    for (const QString& name : names) {
        QAction* action = addMenu->addAction(iconForNodeName(name), displayNameForNodeName(name));
        action->setData(name);
        connect(action, &QAction::triggered, this, &FlowPanel::slotAddNode);
    }
}

void FlowPanel::rebuildFavoritesMenu()
{
    favoritesMenu->clear();
    favoritesMenu->addAction(QIcon(":/new.png"), tr("&Clear"), this, &FlowPanel::slotNewFavorite);
    saveAction = favoritesMenu->addAction(QIcon(":/save.png"), tr("&Save..."), this,
                                          &FlowPanel::slotSaveFlow);
    saveAction->setEnabled(tabBar->count() > 0);
    favoritesMenu->addAction(QIcon(":/delete.png"), tr("&Delete..."), this,
                             &FlowPanel::slotDeleteFavorite);
    favoritesMenu->addAction(QIcon(":/GotoIcon.png"), tr("&Go To Flows Location"), this,
                             &FlowPanel::slotGotoPresetsLocation);
    QAction* keep = favoritesMenu->addAction(tr("&Keep the Flow for the Next Start"));
    keep->setCheckable(true);
    keep->setChecked(keepingFlow());
    connect(keep, &QAction::toggled, this, &FlowPanel::slotKeepFlowToggled);
    favoritesMenu->addSeparator();

    const QStringList names = FlowFile::flowNames();
    for (const QString& name : names) {
        // The name travels as data: an "&" in the text would be taken for a shortcut.
        QAction* action = favoritesMenu->addAction(QString(name).replace("&", "&&"), this,
                                                   &FlowPanel::slotLoadFavorite);
        action->setData(name);
    }
    deleteDialog->setFlowNames(names);
}

BaseNode* FlowPanel::addNode(const QString& name, int position)
{
    BaseNode* node = optionsPanel->createNode(name);
    if (!node)
        return nullptr;
    // The face below shows the name; the tab's own text would be cut to nothing beside it.
    position = tabBar->insertTab(position, QString());
    tabBar->setTabToolTip(position, displayNameForNodeName(name));
    QMap<int, BaseNode*> shifted;
    for (auto it = nodes.cbegin(); it != nodes.cend(); ++it)
        shifted.insert(it.key() < position ? it.key() : it.key() + 1, it.value());
    shifted.insert(position, node);
    nodes = shifted;

    auto* thumbnail = new TabLabel;
    thumbnail->setFixedSize(thumbnailSize, thumbnailSize);
    tabBar->setTabButton(position, QTabBar::LeftSide, newTabFace(thumbnail, name, tabBar));
    tabBar->setCurrentIndex(position);

    thumbnails.insert(node, thumbnail);
    connect(node, &BaseNode::previewChanged, this, &FlowPanel::slotNodePreviewChanged);
    connect(node, &BaseNode::parametersChanged, this, &FlowPanel::slotNodeParametersChanged);
    return node;
}

void FlowPanel::pushAddNode(const QString& name)
{
    if (factoryNodeNames().contains(name))
        undo->push(new AddNodeCommand(*this, nodes.size(), name,
                                      tr("Add %1").arg(displayNameForNodeName(name))));
}

void FlowPanel::loadFlow(const QString& text)
{
    undo->push(new ReplaceFlowCommand(*this, text, tr("Load a Flow")));
}

bool FlowPanel::saveFlow(const QString& fileName) const
{
    return FlowText::writeFlow(OrkTools::AppData::flowsFolder() + fileName, nodes);
}

void FlowPanel::restoreKeptFlow()
{
    QString text;
    // Switching keeping off removes the file.
    if (FlowFile::readFlowFile(FlowFile::keptFlowPath(), &text))
        replaceFlow(text);
}

bool FlowPanel::askYesNo(const QString& question)
{
    return QMessageBox::warning(this, tr("Warning"), question,
                                QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void FlowPanel::afterChange()
{
    parameterTexts.clear();
    for (BaseNode* node : qAsConst(nodes))
        parameterTexts.insert(node, node->parametersText());
    keepFlow();
}

void FlowPanel::keepFlow()
{
    keepAfterRelease = std::any_of(nodes.cbegin(), nodes.cend(), isSliderHeld);
    if (keepAfterRelease)
        return;
    const QString text = flowText();
    if (!keepingFlow() || text == keptText)
        return;
    if (FlowText::writeFlow(FlowFile::keptFlowPath(), nodes))
        keptText = text;
}

void FlowPanel::replay(const std::function<void()>& change)
{
    {
        const QScopedValueRollback<bool> replaying(isReplaying, true);
        change();
    }
    afterChange();
}

void FlowPanel::insertNode(int position, const QString& name, const QString& parametersText)
{
    replay([&] {
        BaseNode* node = addNode(name, position);
        if (node && !parametersText.isEmpty())
            readQuietly(node, parametersText);
        emit flowChanged(nodes);
    });
}

void FlowPanel::removeNode(int position)
{
    replay([&] {
        if (position >= 0 && position < tabBar->count()) {
            tabBar->setCurrentIndex(position);
            removeCurrentNode();
        }
    });
}

void FlowPanel::moveNode(int from, int to)
{
    replay([&] { tabBar->moveTab(from, to); });
}

void FlowPanel::replaceFlow(const QString& text)
{
    replay([&] {
        clearNodes();
        if (FlowText::createNodes(
                text, [this](const QString& name) { return addNode(name, nodes.size()); }))
            emit flowChanged(nodes);
    });
}

void FlowPanel::restoreParameters(int position, const QString& parametersText)
{
    BaseNode* node = nodes.value(position);
    if (!node)
        return;
    replay([&] {
        readQuietly(node, parametersText);
        emit node->parametersChanged();
    });
}

QString FlowPanel::flowText() const
{
    return FlowText::flowText(nodes);
}

void FlowPanel::slotTabMoved(int from, int to)
{
    QList<BaseNode*> order = nodes.values();
    order.move(from, to);
    for (int i = 0; i < order.size(); ++i)
        nodes.insert(i, order.at(i));
    emit flowChanged(nodes);
    if (isReplaying)
        return;
    // A drag exchanges the dragged tab, the current one, with one neighbour at a time, and
    // reports either of the two as moved; the step is the dragged tab's move.
    if (tabBar->currentIndex() == from)
        std::swap(from, to);
    undo->push(
        new MoveNodeCommand(*this, from, to, {tabBar, userActs},
                            tr("Move %1").arg(displayNameForNodeName(order.at(to)->name()))));
    keepFlow();
}

void FlowPanel::slotAddNode()
{
    if (const auto* action = qobject_cast<QAction*>(sender()))
        pushAddNode(action->data().toString());
}

void FlowPanel::slotAddWaterMarkNode()
{
    pushAddNode("Watermark");
}

void FlowPanel::slotNewFavorite()
{
    undo->push(new ReplaceFlowCommand(*this, QString(), tr("Clear the Flow")));
}

void FlowPanel::clearNodes()
{
    const int count = tabBar->count();
    for (int i = 0; i < count; ++i)
        removeCurrentNode();
    nodes.clear();
}

void FlowPanel::slotSaveFlow()
{
    bool accepted = false;
    const QString typed = QInputDialog::getText(this, tr("Save Flow"), tr("Flow's Name:"),
                                                QLineEdit::Normal, QString(), &accepted);
    if (!accepted)
        return;
    const QString fileName = FlowFile::flowFileName(typed);
    // Tested after the extension is added, so an empty entry is saved as ".flow"; kept so.
    if (fileName.isEmpty()) {
        QMessageBox::warning(this, tr("Warning"), tr("Can not create the flow without name"),
                             QMessageBox::Ok);
        return;
    }
    if (QFile::exists(OrkTools::AppData::flowsFolder() + fileName) &&
        !askYesNo(tr("The flow the with name \"%1\" already exists.\nOverwrite?").arg(fileName)))
        return;
    saveFlow(fileName);
    rebuildFavoritesMenu();
}

void FlowPanel::slotLoadFavorite()
{
    const auto* action = qobject_cast<QAction*>(sender());
    QString text;
    if (action &&
        FlowFile::readFlowFile(OrkTools::AppData::flowsFolder() + action->data().toString(), &text))
        loadFlow(text);
}

void FlowPanel::slotDeleteFavorite()
{
    if (deleteDialog->exec() != QDialog::Accepted)
        return;
    const QString name = deleteDialog->selectedName();
    if (name.isEmpty() || !askYesNo(tr("Remove the flow:\n \"%1\"?").arg(name)))
        return;
    QFile::remove(OrkTools::AppData::flowsFolder() + name);
    rebuildFavoritesMenu();
}

void FlowPanel::slotTabClicked()
{
    emit showOptions(nodes.value(tabBar->currentIndex(), nullptr));
}

void FlowPanel::slotRemoveNode()
{
    const int current = tabBar->currentIndex();
    BaseNode* node = nodes.value(current);
    if (node)
        undo->push(
            new RemoveNodeCommand(*this, current, node->name(), node->parametersText(),
                                  tr("Remove %1").arg(displayNameForNodeName(node->name()))));
}

void FlowPanel::removeCurrentNode()
{
    const int current = tabBar->currentIndex();
    if (current < 0)
        return;
    const int count = nodes.size();
    QMap<int, BaseNode*> remaining;
    for (auto it = nodes.cbegin(); it != nodes.cend(); ++it) {
        if (it.key() != current)
            remaining.insert(it.key() < current ? it.key() : it.key() - 1, it.value());
    }
    BaseNode* removed = nodes.value(current);
    disconnect(removed, nullptr, this, nullptr);
    thumbnails.remove(removed);
    parameterTexts.remove(removed);
    tabBar->removeTab(current);
    nodes = remaining;

    const int newCurrent = current >= count - 1 ? count - 2 : current;
    tabBar->setCurrentIndex(newCurrent);
    emit nodeRemoved(nodes, removed, nodes.value(newCurrent, nullptr));
}

void FlowPanel::slotNodesCountChanged(int count)
{
    removeButton->setEnabled(count != 0);
    saveAction->setEnabled(count != 0);
}

void FlowPanel::slotRunBatch()
{
    emit runBatch();
}

void FlowPanel::slotGotoPresetsLocation()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(OrkTools::AppData::flowsFolder()));
}

void FlowPanel::slotNodePreviewChanged(const QImage& preview)
{
    TabLabel* thumbnail = thumbnails.value(qobject_cast<BaseNode*>(sender()));
    if (thumbnail)
        thumbnail->setPreview(QPixmap::fromImage(preview));
}

void FlowPanel::slotNodeParametersChanged()
{
    BaseNode* node = qobject_cast<BaseNode*>(sender());
    const int position = nodes.key(node, -1);
    if (isReplaying || position < 0)
        return;
    const QString before = parameterTexts.value(node);
    const QString after = node->parametersText();
    if (after == before)
        return;
    parameterTexts.insert(node, after);
    undo->push(new ParametersCommand(*this, position, before, after, {node, userActs},
                                     tr("Change %1").arg(displayNameForNodeName(node->name()))));
    keepFlow();
}

bool FlowPanel::eventFilter(QObject* watched, QEvent* event)
{
    // Input reaches a window before its widget; only the widget tells typing from other keys.
    if (!watched->isWidgetType())
        return QFrame::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
        ++userActs;
        break;
    case QEvent::KeyPress: {
        const auto* key = static_cast<const QKeyEvent*>(event);
        if (!key->isAutoRepeat() && !isTyping(watched, key))
            ++userActs;
        break;
    }
    case QEvent::MouseButtonRelease:
        // A drag is written once, after the slider has taken the release.
        if (keepAfterRelease)
            QMetaObject::invokeMethod(this, &FlowPanel::keepFlow, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

void FlowPanel::slotKeepFlowToggled(bool keep)
{
    OrkTools::AppData::writeSetting(keyKeepFlow, keep);
    keptText.clear();
    if (keep)
        keepFlow();
    else
        QFile::remove(FlowFile::keptFlowPath());
}
