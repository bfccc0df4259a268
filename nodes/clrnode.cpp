#include "clrnode.h"

#include "colorbutton.h"
#include "nodecontrols.h"
#include "point.h"

#include <QFormLayout>

CLRNode::CLRNode(QWidget* parent)
    : BaseNode("Colorize", parent)
{
    setNodeIcon(nodeName);
    QFormLayout* form = addFramedForm(optionsLayout);
    sourceButton = addColorRow(this, form, QString(), Qt::black);
    targetButton = addColorRow(this, form, QString(), Qt::black);
    sourceButton->setMinimumSize(32, 32);
    targetButton->setMinimumSize(32, 32);
}

void CLRNode::process(QImage& image)
{
    if (isActive())
        image = OrkGraphX::colorizeImage(image, sourceButton->color(), targetButton->color());
    updatePreview(image);
}
