#include "flatbutton.h"

#include <QPushButton>

namespace OrkWidgets {

QPushButton* newFlatButton(const QString& objectName, QWidget* parent, const QString& text,
                           const QString& toolTip)
{
    auto* button = new QPushButton(text, parent);
    button->setObjectName(objectName);
    button->setToolTip(toolTip);
    button->setFlat(true);
    return button;
}

QPushButton* newToggleButton(const QString& objectName, QWidget* parent, const QString& toolTip)
{
    QPushButton* button = newFlatButton(objectName, parent, QString(), toolTip);
    button->setCheckable(true);
    return button;
}

} // namespace OrkWidgets
