// A photo's EXIF, IPTC and XMP, carried from the source into the written result.
#pragma once

#include "textmacros.h"

#include <QByteArray>
#include <QSize>
#include <QString>

#include <memory>

struct OutputSettings;

class PhotoMetadata
{
public:
    // What a result keeps of its source's metadata; the stored "KeyMetadata" values.
    enum Choice { KeepAll = 0, RemoveLocation = 1, RemoveAll = 2 };

    // The metadata of the file at path, opened read-only; empty when it has none or it cannot be
    // read. Safe on any thread.
    static PhotoMetadata read(const QString& path);

    // encoded (a whole JPEG, PNG, TIFF or WebP file) with this metadata written into it as settings
    // choose, for a result of size that is upright and carries no thumbnail, and with the ICC
    // profile iccProfile where the image writer left it out. The bytes come back unchanged when
    // there is nothing to carry or the format or the data cannot take it.
    QByteArray embedInto(const QByteArray& encoded, QSize size, const OutputSettings& settings,
                         const QByteArray& iccProfile = {}) const;

    // What a watermark's text may name of the photo at path that this metadata was read from;
    // index is its place among count photos (-1 and 0: no list, number and count stay 0).
    PhotoContext describe(const QString& path, int index = -1, int count = 0) const;

private:
    struct Data;
    std::shared_ptr<const Data> data;
};
