#include "binnode.h"

#include "point.h"

#include <QFormLayout>

BINNode::BINNode(QWidget* parent)
    : KeyedNode(Name, parent)
{
    setNodeIcon(Name);
    threshold =
        addSliderRow(this, addFramedForm(optionsLayout), tr("Threshold:"), {0, 255, 5, 1, 127});
}

const BINNode::Keys& BINNode::keys()
{
    static const Keys table = {
        Keys::bind("Threshold", &BINValues::threshold, &BINNode::threshold),
    };
    return table;
}

QImage BINNode::run(QImage image, const BINValues& values)
{
    return OrkGraphX::binarizeImage(image, values.threshold);
}
