#include "nodesoptionspanel.h"

#include "animatedlabel.h"
#include "app.h"
#include "basenode.h"
#include "commondata.h"
#include "imagelabel.h"
#include "nodecatalogue.h"
#include "previewcopy.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPointer>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QVector>

namespace {
// Where the picture leaves room for the hint.
const int startHintLeft = 118;
const int startHintWidth = 370;
} // namespace

NodesOptionsPanel::NodesOptionsPanel(QWidget* parent)
    : QFrame(parent)
    , startLabel(new OrkWidgets::ImageLabel(":/initlabel.png", this))
    , stack(new QStackedWidget(this))
{
    OrkWidgets::AnimatedLabel* arrow =
        startLabel->addAnimation(":/arrow.gif", QSize(100, 100), Qt::AlignLeft | Qt::AlignBottom);
    arrow->setRepeatDelay(10000);
    addStartHint();
    // The picture is drawn for the whole window width; the panel inside the window's border is
    // a few pixels narrower and shows it centred, so the picture must not set the panel's size.
    startLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    stack->addWidget(startLabel);
    setMinimumHeight(175);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(stack);
}

void NodesOptionsPanel::addStartHint()
{
    auto* title = new QLabel(tr("Build your flow"), startLabel);
    title->setObjectName("StartHintTitle");
    auto* text =
        new QLabel(tr("Add an operation with the %1 button below.")
                           .arg("<span style=\"color: #3daee9; font-weight: bold;\">+</span>") +
                       "<br>" + tr("Its options will appear here."),
                   startLabel);
    text->setObjectName("StartHintText");
    for (QLabel* label : {title, text}) {
        label->setWordWrap(true);
        label->setFixedWidth(startHintWidth);
    }
    // Left of the little flow in the picture, right of the arrow's corner.
    auto* hint = new QVBoxLayout;
    hint->setContentsMargins(startHintLeft, 0, 0, 0);
    hint->setSpacing(6);
    hint->addWidget(title);
    hint->addWidget(text);
    startLabel->addOverlay(hint, Qt::AlignLeft | Qt::AlignVCenter);
}

BaseNode* NodesOptionsPanel::createNode(const QString& name)
{
    BaseNode* node = createNodeByName(name);
    if (!node)
        return nullptr;
    createdNodes.append(node);
    stack->addWidget(node);
    stack->setCurrentWidget(node);
    connect(node, &BaseNode::parametersChanged, this, &NodesOptionsPanel::slotParametersChanged);
    return node;
}

void NodesOptionsPanel::setImage(const QImage& image)
{
    source = image.convertToFormat(QImage::Format_ARGB32);
    reducedFor = -1;
    runFlow();
    emit realPreview();
}

int NodesOptionsPanel::previewLimit()
{
    return qRound(OrkWidgets::App::devicePixelRatio() * PreviewCopy::baseLimit);
}

QImage NodesOptionsPanel::previewCopy(const QImage& image)
{
    return CommonData::instance()->previewMode ? PreviewCopy::reduced(image, previewLimit())
                                               : image;
}

void NodesOptionsPanel::slotShowOptions(BaseNode* node)
{
    if (node)
        stack->setCurrentWidget(node);
}

void NodesOptionsPanel::slotFlowChanged(QMap<int, BaseNode*> flow)
{
    nodesFlow = flow;
    runFlow();
}

void NodesOptionsPanel::slotNodeRemoved(QMap<int, BaseNode*> flow, BaseNode* removed,
                                        BaseNode* next)
{
    if (removed) {
        stack->removeWidget(removed);
        createdNodes.removeAll(removed);
        removed->deleteLater();
    }
    if (next)
        stack->setCurrentWidget(next);
    nodesFlow = flow;
    runFlow();
}

void NodesOptionsPanel::slotParametersChanged()
{
    runFlow();
}

QImage NodesOptionsPanel::workingCopy()
{
    const int limit = CommonData::instance()->previewMode ? previewLimit() : 0;
    if (limit != reducedFor) {
        reducedSource = previewCopy(source);
        reducedFor = limit;
    }
    return reducedSource;
}

void NodesOptionsPanel::runFlow()
{
    QImage image = workingCopy();
    // Before the first photo there is nothing for the kernels to work on.
    if (!image.isNull()) {
        // Guarded: a node removed while events run is skipped, not touched.
        QVector<QPointer<BaseNode>> nodes;
        for (int position = 0; position < nodesFlow.size(); ++position)
            nodes.append(nodesFlow.value(position));
        for (const QPointer<BaseNode>& node : qAsConst(nodes)) {
            QCoreApplication::processEvents();
            if (node)
                node->process(image);
        }
    }
    QCoreApplication::processEvents();
    emit imageChanged(image);
}
