#include "ucsnode.h"

#include "neighbourhood.h"

#include <QFormLayout>

UCSNode::UCSNode(QWidget* parent)
    : KeyedNode(Name, parent)
{
    setNodeIcon(Name);
    QFormLayout* form = addFramedForm(optionsLayout);
    radius = addSliderRow(this, form, tr("Radius:"), {0, 100, 5, 5, 65});
    opacity = addSliderRow(this, form, tr("Opacity:"), {0, 100, 5, 5, 80});
    colorButton = addColorRow(this, form, tr("Color:"), Qt::black);
}

const UCSNode::Keys& UCSNode::keys()
{
    static const Keys table = {
        Keys::bind("Radius", &UCSValues::radius, &UCSNode::radius),
        Keys::bind("Opacity", &UCSValues::opacity, &UCSNode::opacity),
        Keys::bind("Color", &UCSValues::color, &UCSNode::colorButton),
    };
    return table;
}

QImage UCSNode::run(QImage image, const UCSValues& values)
{
    return OrkGraphX::vignetteImage(image, values.radius, values.opacity, values.color);
}
