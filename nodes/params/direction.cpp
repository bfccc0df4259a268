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

QString directionNames(int cells)
{
    QStringList chosen;
    for (int cell = TopLeft; cell <= BottomRight; ++cell) {
        if (cells & (1 << cell))
            chosen << names().at(cell);
    }
    return chosen.join(',');
}

int directionsFromNames(const QString& text)
{
    int cells = 0;
    for (const QString& name : text.split(',', Qt::SkipEmptyParts)) {
        const int cell = directionFromName(name.trimmed());
        if (cell < 0)
            return -1;
        cells |= 1 << cell;
    }
    return cells;
}
