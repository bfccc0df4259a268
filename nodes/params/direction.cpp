#include "direction.h"

#include <QStringList>

namespace {
const QStringList& names()
{
    // Marked for translation: the direction buttons show them as tool tips.
    static const QStringList list = {QT_TRANSLATE_NOOP("Direction", "TopLeft"),
                                     QT_TRANSLATE_NOOP("Direction", "TopMiddle"),
                                     QT_TRANSLATE_NOOP("Direction", "TopRight"),
                                     QT_TRANSLATE_NOOP("Direction", "MiddleLeft"),
                                     QT_TRANSLATE_NOOP("Direction", "Middle"),
                                     QT_TRANSLATE_NOOP("Direction", "MiddleRight"),
                                     QT_TRANSLATE_NOOP("Direction", "BottomLeft"),
                                     QT_TRANSLATE_NOOP("Direction", "BottomMiddle"),
                                     QT_TRANSLATE_NOOP("Direction", "BottomRight")};
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
