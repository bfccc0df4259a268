// The strip in which the user builds the flow: one tab per node, the flows menu and the batch
// button.
#pragma once

#include <QFrame>
#include <QHash>
#include <QMap>

class BaseNode;
class FavoritesDeleteDlg;
class NodesOptionsPanel;
class NodesTabBar;
class QAction;
class QMenu;
class QPushButton;
class TabLabel;

class FlowPanel : public QFrame
{
    Q_OBJECT

public:
    // Nodes are created through optionsPanel->createNode; the panel is not connected to it here.
    explicit FlowPanel(NodesOptionsPanel* optionsPanel, QWidget* parent = nullptr);

    QMap<int, BaseNode*> flow() const { return nodes; }
    // One action per catalogue name, each adding that node; shown on a right click on "+".
    QMenu* nodesMenu() const { return addMenu; }

    // Replaces the flow by the one text describes; text that does not parse leaves it empty.
    void loadFlow(const QString& text);
    // Writes the flow to the flows folder under fileName, which already ends in ".flow".
    bool saveFlow(const QString& fileName) const;

signals:
    void showOptions(BaseNode* node);
    void flowChanged(QMap<int, BaseNode*> flow);
    // The new flow, the node taken out (not deleted: the receiver decides) and the new current one.
    void nodeRemoved(QMap<int, BaseNode*> flow, BaseNode* removed, BaseNode* current);
    void runBatch();

public slots:
    void slotTabMoved(int from, int to);
    void slotAddNode();
    void slotAddWaterMarkNode();
    void slotNewFavorite();
    void slotSaveFlow();
    void slotLoadFavorite();
    void slotDeleteFavorite();
    void slotTabClicked();
    void slotRemoveNode();
    void slotNodesCountChanged(int count);
    void slotRunBatch();
    void slotGotoPresetsLocation();
    void slotNodePreviewChanged(const QImage& preview);

private:
    void buildLayout();
    void buildNodesMenu();
    void rebuildFavoritesMenu();
    // A new tab at the end with the node of that name, made current; nullptr for unknown names.
    BaseNode* addNode(const QString& name);
    bool askYesNo(const QString& question);

    NodesOptionsPanel* optionsPanel = nullptr;
    NodesTabBar* tabBar = nullptr;
    QMap<int, BaseNode*> nodes;
    QHash<BaseNode*, TabLabel*> thumbnails;
    QPushButton* addButton = nullptr;
    QPushButton* removeButton = nullptr;
    QPushButton* flowsButton = nullptr;
    QPushButton* runBatchButton = nullptr;
    QMenu* favoritesMenu = nullptr;
    QAction* saveAction = nullptr;
    QMenu* addMenu = nullptr;
    FavoritesDeleteDlg* deleteDialog = nullptr;
};
