// The watermark parameter record, shared by the watermark node and the watermark kernel.
// Kept free of widgets so that the kernel library does not depend on the nodes.
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QString>

namespace OrkGraphX {

struct WMRParams
{
    int Mode = 0;        // 0 text, 1 logo; anything else leaves the image alone
    QString Text;        // the watermark text
    int XOffset = 0;     // percent of the image height, positive moves right
    int YOffset = 0;     // percent of the image height, positive moves up
    QFont Font;          // family and attributes of the text font
    bool Bold = false;   // weight 75 when set, else 50
    bool Italic = false; // font style italic
    bool Underlined = false;
    int Size = 0;         // width of the text or logo in percent of the image width
    int Position = 0;     // grid cell 0..8, "TopLeft" .. "BottomRight" in reading order
    int Transparency = 0; // percent; the painter opacity is 1 - Transparency / 100
    QColor Color;         // text colour
    QColor Background;    // colour of the box behind the text
    bool BackgroundEnabled = false;
    bool Expand = false; // logo mode: stretch the logo over the whole image
    QImage ImageData;    // the logo picture

    // Added later; each starts at the value that leaves a watermark as it was without it.
    bool Tile = false;   // the mark repeated in a grid over the whole image
    int TileGap = 50;    // between tiles, percent of the mark's size, 0..200
    int Angle = 0;       // degrees, -90..90, positive turns counter-clockwise
    bool Shadow = false; // text only, as are the outline values
    QColor ShadowColor = Qt::black;
    int ShadowDistance = 8; // percent of the text height, right and down, 0..50
    int ShadowBlur = 8;     // percent of the text height, 0..50
    bool Outline = false;
    QColor OutlineColor = Qt::black;
    int OutlineWidth = 4;            // percent of the text height, 0..20
    int SizeOf = 0;                  // Size taken of 0 the width, 1 the long edge, 2 the short edge
    bool AutoColor = false;          // Color or its opposite, whichever stands out more
    bool AutoPosition = false;       // the allowed cell with the least detail under the mark
    int AutoPositions = CornerCells; // the allowed cells, bit n for cell n

    static constexpr int CornerCells = 1 << 0 | 1 << 2 | 1 << 6 | 1 << 8;
};

} // namespace OrkGraphX
