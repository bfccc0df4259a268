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

// What a flow tab has room for under its thumbnail; each language shortens on its own.
const struct
{
    const char* name;
    const char* shortName;
} shortNames[] = {
    {RGBNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "RGB-Order")},
    {BCSNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "Brightness")},
    {RTTNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "Rotate")},
    {BLRNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "Blur")},
    {INVNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "Invert")},
    {MRRNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "Mirror")},
    {GRSNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "Grayscale")},
    {WMRNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "Watermark")},
    {CRPNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "Crop")},
    {RSZNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "Resize")},
    {HSTNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "Histogram")},
    {FRMNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "Frame")},
    {BINNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "Binarization")},
    {UCSNode::Name, QT_TRANSLATE_NOOP("NodeShortName", "Vignetting")},
};

} // namespace

QString shortDisplayNameForNodeName(const QString& name)
{
    for (const auto& entry : shortNames) {
        if (name == QLatin1String(entry.name))
            return QCoreApplication::translate("NodeShortName", entry.shortName);
    }
    return displayNameForNodeName(name);
}

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
