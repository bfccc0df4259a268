// Colour profiles of photos: pixels carried from the profile they were taken in to sRGB.
#pragma once

#include <QByteArray>
#include <QImage>

namespace ColorProfiles {

// image, whose pixels are in the colour space the ICC profile iccProfile describes, with its
// pixels in sRGB and sRGB as its colour space; transparency is kept. An image without a profile
// is taken as sRGB already, and so is one whose profile cannot be read or is not for RGB pixels
// (a damaged profile, a grey or CMYK one): its pixels stay as they are.
QImage toSrgb(const QImage& image, const QByteArray& iccProfile);

} // namespace ColorProfiles
