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

struct Factory
{
    const char* name;
    BaseNode* (*create)(QWidget* parent);
};

template <typename Node> BaseNode* createNode(QWidget* parent)
{
    return new Node(parent);
}

template <typename Node> constexpr Factory factory()
{
    return {Node::Name, &createNode<Node>};
}

const Factory factories[] = {
    factory<RGBNode>(), factory<BCSNode>(), factory<RTTNode>(), factory<BLRNode>(),
    factory<INVNode>(), factory<MRRNode>(), factory<GRSNode>(), factory<WMRNode>(),
    factory<CRPNode>(), factory<RSZNode>(), factory<HSTNode>(), factory<FRMNode>(),
    factory<BINNode>(), factory<UCSNode>(),
};

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
    return operationNames();
}

BaseNode* createNodeByName(const QString& name, QWidget* parent)
{
    for (const Factory& entry : factories) {
        if (name == QLatin1String(entry.name))
            return entry.create(parent);
    }
    return nullptr;
}
