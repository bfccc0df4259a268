// The node options area: a stack holding every node's option widget, the node factory, and
// the flow run that turns the current photo into the live preview.
#pragma once

#include <QFrame>
#include <QImage>
#include <QList>
#include <QMap>

class BaseNode;
class QStackedWidget;
namespace OrkWidgets {
class ImageLabel;
}

class NodesOptionsPanel : public QFrame
{
    Q_OBJECT

public:
    explicit NodesOptionsPanel(QWidget* parent = nullptr);

    // A new node for the exact display name, added to the stack as its current page and
    // connected to the flow run; nullptr (and nothing else) for an unknown name.
    BaseNode* createNode(const QString& name);

    // Keeps the photo as ARGB32, runs the flow on it, then emits realPreview.
    void setImage(const QImage& image);

    QMap<int, BaseNode*> flow() const { return nodesFlow; }
    QImage sourceImage() const { return source; }

    // The device pixel ratio times 360, rounded: the widest preview the live run works on.
    static int previewLimit();
    // The working copy of the live run: reduced to fit limit x limit, keeping the aspect
    // ratio, when the preview-mode flag is on and the photo is wider than the limit.
    static QImage previewCopy(const QImage& image);

signals:
    void imageChanged(const QImage& image);
    void realPreview();
    // For listeners; the panel itself does not emit it.
    void processEvents();

public slots:
    // A null node leaves the current page as it is.
    void slotShowOptions(BaseNode* node);
    void slotFlowChanged(QMap<int, BaseNode*> flow);
    void slotNodeRemoved(QMap<int, BaseNode*> flow, BaseNode* removed, BaseNode* next);
    void slotParametersChanged();

private:
    // The invitation to add the first operation, over the start picture.
    void addStartHint();
    // Pending events run between the nodes, so a change made meanwhile may start a run of its
    // own from inside this one; this run then goes on with its own copy.
    void runFlow();
    // The working copy for the current flag and limit, reduced again only when they or the
    // photo change: a slider drag on a large photo does not pay for the reduction every time.
    QImage workingCopy();

    QImage source;
    QMap<int, BaseNode*> nodesFlow;
    QList<BaseNode*> createdNodes;
    OrkWidgets::ImageLabel* startLabel = nullptr;
    QStackedWidget* stack = nullptr;
    QImage reducedSource;
    // The limit reducedSource was made for, 0 when it is the photo itself, -1 when outdated.
    int reducedFor = -1;
};
