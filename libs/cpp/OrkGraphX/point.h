// Per-pixel kernels. Each takes the image by reference, works on a copy and returns it;
// 32-bit input formats are assumed (colorizeImage converts). Floats truncate toward zero.
#pragma once

#include <QColor>
#include <QImage>

namespace OrkGraphX {

QImage invertImage(QImage& image);
QImage grayscaleImage(QImage& image);

QImage swapRedBlue(QImage& image);
QImage swapRedGreen(QImage& image);
QImage swapGreenBlue(QImage& image);
// mode 0 red/blue, 1 red/green, 2 green/blue; any other mode returns the image unchanged.
QImage swapChannels(QImage& image, int mode);

// brightness and contrast -127..128; saturationFactor 1.0 keeps the colours.
QImage adjustBrightnessContrastSaturation(QImage& image, int brightness, int contrast,
                                          float saturationFactor);
QImage adjustBrightnessContrast(QImage& image, int brightness, int contrast);
QImage adjustSaturation(QImage& image, float saturationFactor);

QImage binarizeImage(QImage& image, int threshold);

// Replaces hues near the source colour's hue; returns ARGB32 premultiplied.
QImage colorizeImage(QImage& image, QColor source, QColor target);

} // namespace OrkGraphX
