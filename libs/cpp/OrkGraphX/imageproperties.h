// What QImage::copy() carries over besides the pixels, for images whose pixels are made apart.
#pragma once

#include <QColorSpace>
#include <QImage>

namespace OrkGraphX {

// to takes from's resolution, offset, device pixel ratio, colour space and texts.
inline void copyProperties(const QImage& from, QImage& to)
{
    to.setDotsPerMeterX(from.dotsPerMeterX());
    to.setDotsPerMeterY(from.dotsPerMeterY());
    to.setOffset(from.offset());
    to.setDevicePixelRatio(from.devicePixelRatio());
    to.setColorSpace(from.colorSpace());
    const QStringList keys = from.textKeys();
    for (const QString& key : keys)
        to.setText(key, from.text(key));
}

} // namespace OrkGraphX
