#include "flowpanel.h"

#include "appdata.h"
#include "basenode.h"
#include "favoritesdeletedlg.h"
#include "flatbutton.h"
#include "flowfile.h"
#include "flowtext.h"
#include "nodecatalogue.h"
#include "nodestabbar.h"
#include "tablabel.h"
#include "ui/nodesoptionspanel.h"

#include <QDesktopServices>
#include <QFile>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace {
const int thumbnailSize = 70;
} // namespace

FlowPanel::FlowPanel(NodesOptionsPanel* optionsPanel, QWidget* parent)
    : QFrame(parent)
    , optionsPanel(optionsPanel)
    , tabBar(new NodesTabBar(this))
    , addButton(OrkWidgets::newFlatButton("PushButtonAdd", this, "+"))
    , removeButton(OrkWidgets::newFlatButton("PushButtonRemove", this, "-"))
    , flowsButton(OrkWidgets::newFlatButton("PushButton", this, tr("Flows")))
    , runBatchButton(new QPushButton(tr("Save Results"), this))
    , favoritesMenu(new QMenu(this))
    , addMenu(new QMenu(this))
    , deleteDialog(new FavoritesDeleteDlg(this))
{
    // The map travels in signals that may be queued or spied on.
    qRegisterMetaType<QMap<int, BaseNode*>>();
    setObjectName("FlowPanel");
    setFixedHeight(165);
    buildLayout();
    buildNodesMenu();
    rebuildFavoritesMenu();

    connect(tabBar, &NodesTabBar::tabClicked, this, &FlowPanel::slotTabClicked);
    connect(tabBar, &NodesTabBar::countChanged, this, &FlowPanel::slotNodesCountChanged);
    connect(tabBar, &NodesTabBar::tabMoved, this, &FlowPanel::slotTabMoved);
    connect(addButton, &QPushButton::clicked, this, &FlowPanel::slotAddWaterMarkNode);
    connect(addButton, &QPushButton::customContextMenuRequested, this,
            [this](const QPoint& position) { addMenu->popup(addButton->mapToGlobal(position)); });
    connect(removeButton, &QPushButton::clicked, this, &FlowPanel::slotRemoveNode);
    connect(runBatchButton, &QPushButton::clicked, this, &FlowPanel::slotRunBatch);

    slotNodesCountChanged(0);
}

void FlowPanel::buildLayout()
{
    addButton->setToolTip(tr("Add node"));
    addButton->setFixedSize(40, 40);
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
    // The thumbnail takes most of a tab; a name that does not fit is cut with an ellipsis.
    tabBar->setElideMode(Qt::ElideRight);
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

BaseNode* FlowPanel::addNode(const QString& name)
{
    BaseNode* node = optionsPanel->createNode(name);
    if (!node)
        return nullptr;
    const int position = tabBar->addTab(iconForNodeName(name), displayNameForNodeName(name));
    tabBar->setTabToolTip(position, tabBar->tabText(position));
    nodes.insert(position, node);

    auto* thumbnail = new TabLabel(tabBar);
    thumbnail->setFixedSize(thumbnailSize, thumbnailSize);
    tabBar->setTabButton(position, QTabBar::LeftSide, thumbnail);
    tabBar->setCurrentIndex(position);

    thumbnails.insert(node, thumbnail);
    connect(node, &BaseNode::previewChanged, this, &FlowPanel::slotNodePreviewChanged);
    return node;
}

void FlowPanel::loadFlow(const QString& text)
{
    slotNewFavorite();
    if (FlowText::createNodes(text, [this](const QString& name) { return addNode(name); }))
        emit flowChanged(nodes);
}

bool FlowPanel::saveFlow(const QString& fileName) const
{
    return FlowText::writeFlow(OrkTools::AppData::flowsFolder() + fileName, nodes);
}

bool FlowPanel::askYesNo(const QString& question)
{
    return QMessageBox::warning(this, tr("Warning"), question,
                                QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void FlowPanel::slotTabMoved(int from, int to)
{
    // A drag moves a tab one place at a time, so every move is an exchange of neighbours.
    BaseNode* moved = nodes.value(from);
    nodes.insert(from, nodes.value(to));
    nodes.insert(to, moved);
    emit flowChanged(nodes);
}

void FlowPanel::slotAddNode()
{
    const auto* action = qobject_cast<QAction*>(sender());
    if (action && addNode(action->data().toString()))
        emit flowChanged(nodes);
}

void FlowPanel::slotAddWaterMarkNode()
{
    if (addNode("Watermark"))
        emit flowChanged(nodes);
}

void FlowPanel::slotNewFavorite()
{
    const int count = tabBar->count();
    for (int i = 0; i < count; ++i)
        slotRemoveNode();
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
    if (current < 0)
        return;
    const int count = nodes.size();
    QMap<int, BaseNode*> remaining;
    for (auto it = nodes.cbegin(); it != nodes.cend(); ++it) {
        if (it.key() != current)
            remaining.insert(it.key() < current ? it.key() : it.key() - 1, it.value());
    }
    BaseNode* removed = nodes.value(current);
    disconnect(removed, &BaseNode::previewChanged, this, &FlowPanel::slotNodePreviewChanged);
    thumbnails.remove(removed);
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
