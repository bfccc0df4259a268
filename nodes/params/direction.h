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

// The cells of a set (bit n for cell n) by name in reading order, joined by ",".
QString directionNames(int cells);
// The set of the cells named in text, joined by ","; an empty text is the empty set, and a text
// that names anything else -1.
int directionsFromNames(const QString& text);
