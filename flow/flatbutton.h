// The flat push buttons of the flow panel and its dialog; their look comes from the style sheet.
#pragma once

#include <QPushButton>

inline QPushButton* flatButton(const QString& text, const QString& objectName, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setObjectName(objectName);
    button->setFlat(true);
    return button;
}
