#include "colorprofiles.h"

#include <QColorSpace>
#include <QVector>
#include <QtConcurrent>

#include <lcms2.h>

#include <memory>

namespace ColorProfiles {

namespace {

struct ProfileCloser
{
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, ProfileCloser>;

// The byte order of a 32-bit ARGB word in memory.
#if Q_BYTE_ORDER == Q_LITTLE_ENDIAN
const cmsUInt32Number pixelType = TYPE_BGRA_8;
#else
const cmsUInt32Number pixelType = TYPE_ARGB_8;
#endif

QImage taggedSrgb(QImage image)
{
    image.setColorSpace(QColorSpace::SRgb);
    return image;
}

} // namespace

SrgbConversion::SrgbConversion(const QByteArray& iccProfile)
{
    if (iccProfile.isEmpty() || QColorSpace::fromIccProfile(iccProfile) == QColorSpace::SRgb)
        return;
    const Profile source(cmsOpenProfileFromMem(iccProfile.constData(), iccProfile.size()));
    if (!source || cmsGetColorSpace(source.get()) != cmsSigRgbData)
        return;
    const Profile srgb(cmsCreate_sRGBProfile());
    // Perceptual where the profile has tables for it; a matrix profile falls back to the
    // colorimetric mapping, which clips what sRGB cannot show.
    transform.reset(cmsCreateTransform(source.get(), pixelType, srgb.get(), pixelType,
                                       INTENT_PERCEPTUAL, cmsFLAGS_COPY_ALPHA),
                    [](void* made) {
                        if (made)
                            cmsDeleteTransform(made);
                    });
}

void SrgbConversion::convertRow(QRgb* words, int width) const
{
    cmsDoTransform(transform.get(), words, words, cmsUInt32Number(width));
}

QImage toSrgb(const QImage& image, const QByteArray& iccProfile)
{
    const SrgbConversion conversion(iccProfile);
    if (!conversion.converts())
        return taggedSrgb(image);
    QImage converted = image.convertToFormat(QImage::Format_ARGB32);
    // Detached once here, so that no band detaches it again.
    uchar* const pixels = converted.bits();
    const qsizetype rowBytes = converted.bytesPerLine();
    const int width = converted.width();
    const int height = converted.height();
    // A transform may run on several threads at once: bands of rows share the pool.
    const int bandHeight = 64;
    QVector<int> bandTops;
    for (int top = 0; top < height; top += bandHeight)
        bandTops << top;
    QtConcurrent::blockingMap(bandTops, [&](int top) {
        for (int y = top; y < qMin(top + bandHeight, height); ++y)
            conversion.convertRow(reinterpret_cast<QRgb*>(pixels + y * rowBytes), width);
    });
    return taggedSrgb(std::move(converted));
}

} // namespace ColorProfiles
