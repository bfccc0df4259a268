// The flat push buttons of the program; their look comes from the style sheet by object name.
#pragma once

#include <QString>

class QPushButton;
class QWidget;

namespace OrkWidgets {

QPushButton* newFlatButton(const QString& objectName, QWidget* parent,
                           const QString& text = QString(), const QString& toolTip = QString());

// The same, checkable: it stays down while on.
QPushButton* newToggleButton(const QString& objectName, QWidget* parent,
                             const QString& toolTip = QString());

} // namespace OrkWidgets
