#include "nodecatalogue.h"

#include "bcsnode.h"
#include "binnode.h"
#include "blrnode.h"
#include "crpnode.h"
#include "frmnode.h"
#include "grsnode.h"
#include "hstnode.h"
#include "invnode.h"
#include "mrrnode.h"
#include "rgbnode.h"
#include "rsznode.h"
#include "rttnode.h"
#include "ucsnode.h"
#include "wmrnode.h"

#include <QCoreApplication>

namespace {

struct Operation
{
    const char* name;
    BaseNode* (*create)(QWidget* parent);
    QImage (*apply)(QImage image, const QString& parametersText);
};

template <typename Node> BaseNode* createNode(QWidget* parent)
{
    return new Node(parent);
}

template <typename Node> constexpr Operation operation()
{
    return {Node::Name, &createNode<Node>, &Node::applyParameters};
}

// The factory's names in the factory's order.
const Operation operations[] = {
    operation<RGBNode>(), operation<BCSNode>(), operation<RTTNode>(), operation<BLRNode>(),
    operation<INVNode>(), operation<MRRNode>(), operation<GRSNode>(), operation<WMRNode>(),
    operation<CRPNode>(), operation<RSZNode>(), operation<HSTNode>(), operation<FRMNode>(),
    operation<BINNode>(), operation<UCSNode>(),
};

const Operation* findOperation(const QString& name)
{
    for (const Operation& entry : operations) {
        if (name == QLatin1String(entry.name))
            return &entry;
    }
    return nullptr;
}

// The icon lookup tests the words in this order, each as a part of the name.
const struct
{
    const char* word;
    const char* icon;
} icons[] = {
    {BINNode::Name, "Icon_BIN.png"}, {BLRNode::Name, "Icon_BLR.png"},
    {BCSNode::Name, "Icon_BRT.png"}, {CRPNode::Name, "Icon_CRP.png"},
    {FRMNode::Name, "Icon_FRM.png"}, {HSTNode::Name, "Icon_HST.png"},
    {INVNode::Name, "Icon_INV.png"}, {MRRNode::Name, "Icon_MRR.png"},
    {RGBNode::Name, "Icon_RGB.png"}, {RSZNode::Name, "Icon_RSZ.png"},
    {RTTNode::Name, "Icon_RTT.png"}, {UCSNode::Name, "Icon_WGN.png"},
    {GRSNode::Name, "Icon_GRS.png"}, {WMRNode::Name, "Icon_WMR.png"},
};

} // namespace

QString displayNameForNodeName(const QString& name)
{
    return QCoreApplication::translate("NodeName", name.toUtf8().constData());
}

QPixmap iconForNodeName(const QString& name)
{
    QString file;
    for (const auto& entry : icons) {
        if (name.contains(QLatin1String(entry.word))) {
            file = QLatin1String(entry.icon);
            break;
        }
    }
    // With no hit the path is ":/" alone, which gives a null pixmap.
    return QPixmap(":/" + file);
}

QStringList factoryNodeNames()
{
    QStringList names;
    for (const Operation& entry : operations)
        names << QLatin1String(entry.name);
    return names;
}

BaseNode* createNodeByName(const QString& name, QWidget* parent)
{
    const Operation* entry = findOperation(name);
    return entry ? entry->create(parent) : nullptr;
}

QImage applyOperation(const QString& name, const QImage& image, const QString& parametersText)
{
    const Operation* entry = findOperation(name);
    return entry ? entry->apply(image, parametersText) : image;
}
