#include "blrnode.h"

#include "neighbourhood.h"

#include <QFormLayout>

const SliderRange BLRNode::radiusRange{0, 20, 5, 5, 10};

BLRNode::BLRNode(QWidget* parent)
    : KeyedNode(Name, parent)
{
    setNodeIcon(Name);
    radius = addSliderRow(this, addFramedForm(optionsLayout), tr("Blur:"), radiusRange);
}

const BLRNode::Keys& BLRNode::keys()
{
    static const Keys table = {
        Keys::bind("Radius", &BLRValues::radius, &BLRNode::radius),
    };
    return table;
}

QImage BLRNode::run(QImage image, const BLRValues& values)
{
    return OrkGraphX::blurImage(image, values.radius, QRect(0, 0, image.width(), image.height()),
                                false);
}
