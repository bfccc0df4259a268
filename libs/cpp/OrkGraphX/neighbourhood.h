// Kernels that compute a pixel from its neighbours or from the whole image.
#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

namespace OrkGraphX {

// Exponential blur inside region (inclusive corners); returns ARGB32 premultiplied.
QImage blurImage(QImage& image, int radius, QRect region, bool alphaOnly);

QImage sharpenImage(QImage& image);

// radius and opacity in percent.
QImage vignetteImage(QImage& image, int radius, int opacity, QColor colour);

// Clips are percentages of the pixels, halved before use; the levels come from red only.
QImage optimizeHistogram(QImage& image, int highClip, int lowClip);

} // namespace OrkGraphX
