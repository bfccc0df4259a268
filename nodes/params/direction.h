// The nine placement cells of a watermark, in reading order, and their stored names.
#pragma once

#include <QMetaType>
#include <QString>

enum Direction {
    TopLeft,
    TopMiddle,
    TopRight,
    MiddleLeft,
    Middle,
    MiddleRight,
    BottomLeft,
    BottomMiddle,
    BottomRight
};
Q_DECLARE_METATYPE(Direction)

// "TopLeft" .. "BottomRight"; an empty text for a value outside 0..8.
QString directionName(int direction);
// The cell whose name is exactly name, or -1 when none is.
int directionFromName(const QString& name);
