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
};

} // namespace OrkGraphX
