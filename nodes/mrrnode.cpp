#include "mrrnode.h"

#include "geometric.h"

#include <QPushButton>

namespace {
QPushButton* newMirrorButton(const QString& objectName, const QString& toolTip, bool checked,
                             BaseNode* node)
{
    QPushButton* button = newFlatButton(node, objectName, toolTip);
    button->setChecked(checked);
    QObject::connect(button, &QPushButton::clicked, node, &BaseNode::parametersChanged);
    return button;
}
} // namespace

MRRNode::MRRNode(QWidget* parent)
    : KeyedNode(Name, parent)
    , horizontalButton(newMirrorButton("MirrorVButton", tr("Mirror left to right"), true, this))
    , verticalButton(newMirrorButton("MirrorHButton", tr("Mirror top to bottom"), false, this))
{
    setNodeIcon(Name);
    addCentredRow(optionsLayout, {horizontalButton, verticalButton});
}

const MRRNode::Keys& MRRNode::keys()
{
    static const Keys table = {
        Keys::bind("Horizontal", &MRRValues::horizontal, &MRRNode::horizontalButton),
        Keys::bind("Vertical", &MRRValues::vertical, &MRRNode::verticalButton),
    };
    return table;
}

QImage MRRNode::run(QImage image, const MRRValues& values)
{
    return OrkGraphX::mirrorImage(image, values.horizontal, values.vertical);
}
