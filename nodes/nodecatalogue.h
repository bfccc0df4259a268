// The catalogue of nodes by display name: icons, display names and the node factory; the
// headless forms are in the operation catalogue.
#pragma once

#include "operationcatalogue.h"

#include <QImage>
#include <QPixmap>
#include <QString>
#include <QStringList>

class BaseNode;
class QWidget;

// ":/Icon_XXX.png" for the first catalogue word the name contains; a null pixmap for none.
QPixmap iconForNodeName(const QString& name);

// The name as the user reads it, in the current language; the name itself stays the key
// in flow files and the batch.
QString displayNameForNodeName(const QString& name);

// A short form of the display name for narrow places, such as a flow tab.
QString shortDisplayNameForNodeName(const QString& name);

// The fourteen names the factory creates, in the factory's order.
QStringList factoryNodeNames();

// A new node for the exact display name, or nullptr for a name the factory does not know.
BaseNode* createNodeByName(const QString& name, QWidget* parent = nullptr);
