#include "bcsnode.h"

#include "point.h"

#include <QFormLayout>

BCSNode::BCSNode(QWidget* parent)
    : KeyedNode(Name, parent)
{
    setNodeIcon(Name);
    QFormLayout* form = addFramedForm(optionsLayout);
    brightness = addSliderRow(this, form, tr("Brightness:"), {-127, 128, 20, 1, 0});
    contrast = addSliderRow(this, form, tr("Contrast:"), {-127, 128, 20, 1, 0});
    saturation = addSliderRow(this, form, tr("Saturation:"), {0, 100, 20, 1, 100});
}

const BCSNode::Keys& BCSNode::keys()
{
    static const Keys table = {
        Keys::bind("Brightness", &BCSValues::brightness, &BCSNode::brightness),
        Keys::bind("Contrast", &BCSValues::contrast, &BCSNode::contrast),
        Keys::bind("Saturation", &BCSValues::saturation, &BCSNode::saturation),
    };
    return table;
}

QImage BCSNode::run(QImage image, const BCSValues& values)
{
    return OrkGraphX::adjustBrightnessContrastSaturation(image, values.brightness, values.contrast,
                                                         values.saturation / 50.0);
}
