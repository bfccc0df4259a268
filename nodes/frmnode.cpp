#include "frmnode.h"

#include "geometric.h"

#include <QFormLayout>

FRMNode::FRMNode(QWidget* parent)
    : KeyedNode(Name, parent)
{
    setNodeIcon(Name);
    QFormLayout* form = addFramedForm(optionsLayout);
    colorButton = addColorRow(this, form, tr("Color:"), Qt::black);
    width = addSliderRow(this, form, tr("Width:"), {0, 100, 20, 1, 2, "%"});
}

const FRMNode::Keys& FRMNode::keys()
{
    static const Keys table = {
        Keys::bind("Width", &FRMValues::width, &FRMNode::width),
        Keys::bind("Color", &FRMValues::color, &FRMNode::colorButton),
    };
    return table;
}

QImage FRMNode::run(QImage image, const FRMValues& values)
{
    return OrkGraphX::drawFrame(image, values.width, values.color);
}
