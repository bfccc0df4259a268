#include "direction.h"

#include <QStringList>

namespace {
const QStringList& names()
{
    static const QStringList list = {"TopLeft",    "TopMiddle",    "TopRight",
                                     "MiddleLeft", "Middle",       "MiddleRight",
                                     "BottomLeft", "BottomMiddle", "BottomRight"};
    return list;
}
} // namespace

QString directionName(int direction)
{
    return names().value(direction);
}

int directionFromName(const QString& name)
{
    return names().indexOf(name);
}
