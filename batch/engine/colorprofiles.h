// Colour profiles of photos: pixels carried from the profile they were taken in to sRGB.
#pragma once

#include <QByteArray>
#include <QImage>

#include <memory>

namespace ColorProfiles {

// Pixels carried from the colour space an ICC profile describes to sRGB, a row at a time.
class SrgbConversion
{
public:
    // Converts nothing for an empty or sRGB profile, nor for one that cannot be read or is not
    // for RGB pixels (a damaged profile, a grey or CMYK one): those pixels are taken as sRGB.
    explicit SrgbConversion(const QByteArray& iccProfile);
    bool converts() const { return bool(transform); }
    // width 32-bit ARGB words in place, transparency kept; from several threads at once if need
    // be. Only when converts().
    void convertRow(QRgb* words, int width) const;

private:
    std::shared_ptr<void> transform;
};

// image, whose pixels are in the colour space the ICC profile iccProfile describes, with its
// pixels in sRGB and sRGB as its colour space; transparency is kept. An image without a profile
// is taken as sRGB already, and so is one whose profile cannot be read or is not for RGB pixels
// (a damaged profile, a grey or CMYK one): its pixels stay as they are.
QImage toSrgb(const QImage& image, const QByteArray& iccProfile);

} // namespace ColorProfiles
