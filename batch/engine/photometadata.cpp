#include "photometadata.h"

#include "outputsettings.h"

#include <QFile>

#include <exiv2/exiv2.hpp>

#include <mutex>

struct PhotoMetadata::Data
{
    Exiv2::ExifData exif;
    Exiv2::IptcData iptc;
    Exiv2::XmpData xmp;
};

namespace {

std::mutex xmpMutex;

void lockXmp(void*, bool lock)
{
    if (lock)
        xmpMutex.lock();
    else
        xmpMutex.unlock();
}

// The XMP toolkit is not thread-safe and the next photo is read while this one is written;
// Exiv2's own warnings would reach the terminal past the tool's reports. HEIF, AVIF and CR3
// photos (ISO media files) carry EXIF and XMP too, which Exiv2 reads only when asked to.
void initialise()
{
    static std::once_flag once;
    std::call_once(once, [] {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::enableBMFF(true);
        Exiv2::XmpParser::initialize(lockXmp, nullptr);
    });
}

template <typename Metadata, typename Predicate> void eraseIf(Metadata& metadata, Predicate matches)
{
    for (auto it = metadata.begin(); it != metadata.end();)
        it = matches(it->key()) ? metadata.erase(it) : std::next(it);
}

bool startsWithAny(const std::string& key, std::initializer_list<const char*> prefixes)
{
    for (const char* prefix : prefixes) {
        if (key.rfind(prefix, 0) == 0)
            return true;
    }
    return false;
}

// Where the photo was taken, in each of the three kinds.
bool isLocation(const std::string& key)
{
    return startsWithAny(key, {"Exif.GPSInfo.", "Exif.Image.GPSTag", "Xmp.exif.GPS",
                               "Xmp.photoshop.City", "Xmp.photoshop.State", "Xmp.photoshop.Country",
                               "Xmp.iptc.Location", "Xmp.iptc.CountryCode",
                               "Xmp.iptcExt.LocationCreated", "Xmp.iptcExt.LocationShown",
                               "Iptc.Application2.City", "Iptc.Application2.SubLocation",
                               "Iptc.Application2.ProvinceState", "Iptc.Application2.CountryCode",
                               "Iptc.Application2.CountryName"});
}

// Tags the result's own pixels decide: written anew, so they alone are nothing to carry.
bool isDerived(const std::string& key)
{
    return startsWithAny(key, {"Exif.Thumbnail.", "Exif.Image.Orientation", "Exif.Image.ExifTag",
                               "Exif.Image.ImageWidth", "Exif.Image.ImageLength",
                               "Exif.Photo.PixelXDimension", "Exif.Photo.PixelYDimension"});
}

bool carriesAnything(const Exiv2::ExifData& exif, const Exiv2::IptcData& iptc,
                     const Exiv2::XmpData& xmp)
{
    for (const Exiv2::Exifdatum& datum : exif) {
        if (!isDerived(datum.key()))
            return true;
    }
    return !iptc.empty() || !xmp.empty();
}

template <typename Metadata>
void replace(Metadata& metadata, const std::string& key, const QString& text)
{
    eraseIf(metadata, [&key](const std::string& each) { return each == key; });
    metadata[key] = text.toStdString();
}

template <typename Key, typename Metadata, typename Value>
void replaceWhereFound(Metadata& metadata, const std::string& key, const Value& value)
{
    if (metadata.findKey(Key(key)) != metadata.end())
        metadata[key] = value;
}

// The result is upright, at its own size and without the source's thumbnail.
void describeResult(Exiv2::ExifData& exif, Exiv2::XmpData& xmp, QSize size)
{
    Exiv2::ExifThumb(exif).erase();
    if (!exif.empty()) {
        exif["Exif.Image.Orientation"] = uint16_t(1);
        exif["Exif.Photo.PixelXDimension"] = uint32_t(size.width());
        exif["Exif.Photo.PixelYDimension"] = uint32_t(size.height());
        replaceWhereFound<Exiv2::ExifKey>(exif, "Exif.Image.ImageWidth", uint32_t(size.width()));
        replaceWhereFound<Exiv2::ExifKey>(exif, "Exif.Image.ImageLength", uint32_t(size.height()));
    }
    replaceWhereFound<Exiv2::XmpKey>(xmp, "Xmp.tiff.Orientation", std::string("1"));
    replaceWhereFound<Exiv2::XmpKey>(xmp, "Xmp.exif.PixelXDimension", std::to_string(size.width()));
    replaceWhereFound<Exiv2::XmpKey>(xmp, "Xmp.exif.PixelYDimension",
                                     std::to_string(size.height()));
    replaceWhereFound<Exiv2::XmpKey>(xmp, "Xmp.tiff.ImageWidth", std::to_string(size.width()));
    replaceWhereFound<Exiv2::XmpKey>(xmp, "Xmp.tiff.ImageLength", std::to_string(size.height()));
}

void addAuthor(Exiv2::ExifData& exif, Exiv2::IptcData& iptc, Exiv2::XmpData& xmp,
               const QString& artist, const QString& copyright)
{
    if (!artist.isEmpty()) {
        replace(exif, "Exif.Image.Artist", artist);
        replace(xmp, "Xmp.dc.creator", artist);
        replace(iptc, "Iptc.Application2.Byline", artist);
    }
    if (!copyright.isEmpty()) {
        replace(exif, "Exif.Image.Copyright", copyright);
        replace(xmp, "Xmp.dc.rights", copyright);
        replace(iptc, "Iptc.Application2.Copyright", copyright);
    }
    // IPTC text has no encoding of its own; this marks it as UTF-8.
    if (!artist.isEmpty() || !copyright.isEmpty())
        replace(iptc, "Iptc.Envelope.CharacterSet", "\x1b%G");
}

} // namespace

PhotoMetadata PhotoMetadata::read(const QString& path)
{
    PhotoMetadata metadata;
    try {
        initialise();
        // A file, never a URL: FileIo opens it for reading only.
        Exiv2::BasicIo::AutoPtr io(new Exiv2::FileIo(QFile::encodeName(path).toStdString()));
        auto image = Exiv2::ImageFactory::open(io);
        // A kind of file Exiv2 does not know (a bare JPEG XL stream, PCX) gives no image at all.
        if (!image.get())
            return metadata;
        image->readMetadata();
        metadata.data = std::make_shared<const Data>(
            Data{image->exifData(), image->iptcData(), image->xmpData()});
    } catch (const std::exception&) {
        metadata.data.reset();
    }
    return metadata;
}

QByteArray PhotoMetadata::embedInto(const QByteArray& encoded, QSize size,
                                    const OutputSettings& settings,
                                    const QByteArray& iccProfile) const
{
    Data carried = data && settings.metadata != RemoveAll ? *data : Data();
    if (settings.metadata == RemoveLocation) {
        eraseIf(carried.exif, isLocation);
        eraseIf(carried.iptc, isLocation);
        eraseIf(carried.xmp, isLocation);
    }
    addAuthor(carried.exif, carried.iptc, carried.xmp, settings.artist, settings.copyright);
    const bool carries = carriesAnything(carried.exif, carried.iptc, carried.xmp);
    if (!carries && iccProfile.isEmpty())
        return encoded;
    describeResult(carried.exif, carried.xmp, size);
    try {
        initialise();
        auto image = Exiv2::ImageFactory::open(
            reinterpret_cast<const Exiv2::byte*>(encoded.constData()), encoded.size());
        if (!image.get())
            return encoded;
        // The writer's own tags (a TIFF's strips, the ICC profile) stay as they are.
        image->readMetadata();
        // Qt's PNG and TIFF writers leave out a profile Qt cannot read. Exiv2 writes PNG's
        // profile chunk without the name libpng requires, so a PNG goes without it.
        const bool profileLeftOut = !iccProfile.isEmpty() && !image->iccProfileDefined() &&
                                    image->mimeType() != "image/png";
        if (!carries && !profileLeftOut)
            return encoded;
        if (profileLeftOut) {
            Exiv2::DataBuf profile(reinterpret_cast<const Exiv2::byte*>(iccProfile.constData()),
                                   iccProfile.size());
            image->setIccProfile(profile);
        }
        if (carries) {
            Exiv2::ExifData exif = image->exifData();
            for (const Exiv2::Exifdatum& datum : carried.exif)
                exif[datum.key()] = datum.value();
            image->setExifData(exif);
            image->setIptcData(carried.iptc);
            image->setXmpData(carried.xmp);
        }
        image->writeMetadata();
        Exiv2::BasicIo& io = image->io();
        io.open();
        const QByteArray result(reinterpret_cast<const char*>(io.mmap()), int(io.size()));
        io.munmap();
        io.close();
        return result;
    } catch (const std::exception&) {
        return encoded;
    }
}
