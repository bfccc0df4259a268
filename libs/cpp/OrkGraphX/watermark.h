// Draws a text or logo watermark onto the image it is given and returns a copy of it.
#pragma once

#include "wmrparams.h"

#include <QImage>

namespace OrkGraphX {

QImage drawWatermark(QImage& image, const WMRParams& params);

} // namespace OrkGraphX
