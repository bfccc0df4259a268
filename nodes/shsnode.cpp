#include "shsnode.h"

#include "blrnode.h"
#include "neighbourhood.h"
#include "nodecontrols.h"

SHSNode::SHSNode(QWidget* parent)
    : BaseNode(BLRNode::Name, parent)
{
    setNodeIcon(BLRNode::Name);
    sharpness = addSliderRow(this, addFramedForm(optionsLayout), tr("Sharpness:"),
                             sliderRange(*BLROperation::table().find("Radius")));
}

void SHSNode::process(QImage& image)
{
    if (isActive())
        image = OrkGraphX::sharpenImage(image);
    updatePreview(image);
}
