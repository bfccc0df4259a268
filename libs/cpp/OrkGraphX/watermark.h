// Draws a text or logo watermark onto the image it is given and returns a copy of it: single or
// tiled, turned, with a shadow and an outline, placed and coloured by the automatic choices.
#pragma once

#include "wmrparams.h"

#include <QImage>

namespace OrkGraphX {

QImage drawWatermark(QImage& image, const WMRParams& params);

} // namespace OrkGraphX
