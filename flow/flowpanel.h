// The strip in which the user builds the flow: one tab per node, the flows menu and the batch
// button.
#pragma once

#include "flowcommands.h"

#include <QFrame>
#include <QHash>
#include <QMap>

#include <functional>

class BaseNode;
class FavoritesDeleteDlg;
class NodesOptionsPanel;
class NodesTabBar;
class QAction;
class QMenu;
class QPushButton;
class QToolButton;
class QUndoStack;
class TabLabel;

class FlowPanel : public QFrame, private FlowEditor
{
    Q_OBJECT

public:
    // Nodes are created through optionsPanel->createNode; the panel is not connected to it here.
    explicit FlowPanel(NodesOptionsPanel* optionsPanel, QWidget* parent = nullptr);

    QMap<int, BaseNode*> flow() const { return nodes; }
    // One action per catalogue name, each adding that node: the menu of "+", also on a right click.
    QMenu* nodesMenu() const { return addMenu; }
    // Every change of the flow is a step: adding, removing, moving, clearing, loading and
    // editing a node's parameters.
    QUndoStack* undoStack() const { return undo; }

    // Replaces the flow by the one text describes; text that does not parse leaves it empty.
    void loadFlow(const QString& text);
    // Writes the flow to the flows folder under fileName, which already ends in ".flow".
    bool saveFlow(const QString& fileName) const;
    // The flow the last session left, if it kept one; not an undo step.
    void restoreKeptFlow();

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
    // Records a change the user made in the sending node's controls as an undo step.
    void slotNodeParametersChanged();
    void slotKeepFlowToggled(bool keep);

protected:
    // Counts the user's acts, which bound the steps that merge.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildLayout();
    void buildNodesMenu();
    void rebuildFavoritesMenu();
    // A new tab at position with the node of that name, made current; nullptr for unknown names.
    BaseNode* addNode(const QString& name, int position);
    // The current node taken out, announced by nodeRemoved.
    void removeCurrentNode();
    void clearNodes();
    // Adds the named node at the end as an undo step.
    void pushAddNode(const QString& name);
    bool askYesNo(const QString& question);
    // Makes a change of a step being done or undone, which is not recorded again.
    void replay(const std::function<void()>& change);
    // After a step is done or undone: the parameter texts the next recorded change is compared
    // with, and the flow kept for the next start.
    void afterChange();
    // Writes the flow for the next start, unless keeping is off; while a slider is held, not
    // before it is let go.
    void keepFlow();

    void insertNode(int position, const QString& name, const QString& parametersText) override;
    void removeNode(int position) override;
    void moveNode(int from, int to) override;
    void replaceFlow(const QString& text) override;
    void restoreParameters(int position, const QString& parametersText) override;
    QString flowText() const override;

    NodesOptionsPanel* optionsPanel = nullptr;
    NodesTabBar* tabBar = nullptr;
    QMap<int, BaseNode*> nodes;
    QHash<BaseNode*, TabLabel*> thumbnails;
    QHash<BaseNode*, QString> parameterTexts;
    QToolButton* addButton = nullptr;
    QPushButton* removeButton = nullptr;
    QPushButton* flowsButton = nullptr;
    QPushButton* runBatchButton = nullptr;
    QMenu* favoritesMenu = nullptr;
    QAction* saveAction = nullptr;
    QMenu* addMenu = nullptr;
    FavoritesDeleteDlg* deleteDialog = nullptr;
    QUndoStack* undo = nullptr;
    bool isReplaying = false;
    // One act is a press of a mouse button or a key, or a turn of the wheel; a drag, a key held
    // down and text typed into one field go on until the next act.
    int userActs = 0;
    bool keepAfterRelease = false;
    // What the flow file for the next start holds, so that an unchanged flow is not written again.
    QString keptText;
};
