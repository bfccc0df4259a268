// What the automatic watermark settings pick for one image: the allowed cell whose pixels under
// the mark show the least detail, and whether the mark's colours give way to their opposites.
#pragma once

#include "wmrparams.h"

#include <QColor>
#include <QImage>
#include <QRect>

namespace OrkGraphX {

struct WatermarkChoice
{
    int position = 0;      // grid cell 0..8
    bool opposite = false; // the text, shadow and outline colours turned light for dark
};

// The drawing rectangle of a box.width() - 4 by box.height() - 4 mark in its grid cell, moved by
// the offsets in percent of the height (positive y up), with the 2-pixel margin around it.
QRect watermarkRect(const QSize& image, const QSize& box, int position, const WMRParams& params);

// The pixels a drawing rectangle turned by angle degrees (counter-clockwise) about its centre
// covers.
QRect turnedBounds(const QRect& rect, int angle);

// The choices for a mark whose drawing rectangle has the size box, turned by angle; without the
// automatic settings, the record's own cell and colours.
WatermarkChoice chooseWatermark(const QImage& image, const QSize& box, int angle,
                                const WMRParams& params);

// The same hue and saturation at the mirrored lightness; a colour of middle lightness, whose
// mirror would hardly differ, gives way to black or white.
QColor oppositeColor(const QColor& color);

} // namespace OrkGraphX
