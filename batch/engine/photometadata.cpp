#include "photometadata.h"

#include "commondata.h"
#include "outputsettings.h"

#include <QFile>
#include <QFileInfo>

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

// The text of the first of keys the metadata holds, up to a NUL (EXIF pads its texts with them).
template <typename Key, typename Metadata>
QString firstText(const Metadata& metadata, std::initializer_list<const char*> keys)
{
    for (const char* key : keys) {
        const auto found = metadata.findKey(Key(key));
        if (found == metadata.end())
            continue;
        // Lists (XMP's creators) give their first item, language alternatives their default.
        const std::string text = found->count() > 0 ? found->toString(0) : std::string();
        const QString value = QString::fromStdString(text.substr(0, text.find('\0'))).trimmed();
        if (!value.isEmpty())
            return value;
    }
    return {};
}

// "Canon" and "Canon EOS R5" give "Canon EOS R5"; "NIKON CORPORATION" and "NIKON D750" give
// "NIKON D750": the make is left out where the model starts with its first word.
QString cameraOf(const QString& make, const QString& model)
{
    const QString brand = make.section(' ', 0, 0);
    if (model.isEmpty() || make.isEmpty() || model.startsWith(brand, Qt::CaseInsensitive))
        return model.isEmpty() ? make : model;
    return make + ' ' + model;
}

// The lens as the photo names it, else as Exiv2 reads it from the maker's own notes.
QString lensOf(const Exiv2::ExifData& exif, const Exiv2::XmpData& xmp)
{
    QString lens = firstText<Exiv2::ExifKey>(exif, {"Exif.Photo.LensModel"});
    if (lens.isEmpty())
        lens = firstText<Exiv2::XmpKey>(xmp, {"Xmp.exifEX.LensModel", "Xmp.aux.Lens"});
    const auto found = Exiv2::lensName(exif);
    if (lens.isEmpty() && found != exif.end())
        lens = QString::fromStdString(found->print(&exif)).trimmed();
    return lens;
}

QDateTime takenAt(const Exiv2::ExifData& exif, const Exiv2::XmpData& xmp)
{
    const auto found = Exiv2::dateTimeOriginal(exif);
    if (found != exif.end()) {
        const QDateTime taken = QDateTime::fromString(
            QString::fromStdString(found->toString()).left(19), "yyyy:MM:dd HH:mm:ss");
        if (taken.isValid())
            return taken;
    }
    return QDateTime::fromString(firstText<Exiv2::XmpKey>(xmp, {"Xmp.exif.DateTimeOriginal"}),
                                 Qt::ISODate);
}

} // namespace

PhotoMetadata PhotoMetadata::read(const QString& path)
{
    PhotoMetadata metadata;
    // A FIFO or a device would block the run or never end.
    if (!QFileInfo(path).isFile())
        return metadata;
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

PhotoContext PhotoMetadata::describe(const QString& path, int index, int count) const
{
    const QFileInfo file(path);
    PhotoContext photo;
    photo.number = index + 1;
    photo.count = count;
    photo.name = CommonData::displayNameOf(path);
    photo.file = file.fileName();
    if (data) {
        const Data& all = *data;
        photo.date = takenAt(all.exif, all.xmp);
        photo.camera = cameraOf(firstText<Exiv2::ExifKey>(all.exif, {"Exif.Image.Make"}),
                                firstText<Exiv2::ExifKey>(all.exif, {"Exif.Image.Model"}));
        photo.lens = lensOf(all.exif, all.xmp);
        photo.artist = firstText<Exiv2::ExifKey>(all.exif, {"Exif.Image.Artist"});
        if (photo.artist.isEmpty())
            photo.artist = firstText<Exiv2::XmpKey>(all.xmp, {"Xmp.dc.creator"});
        if (photo.artist.isEmpty())
            photo.artist = firstText<Exiv2::IptcKey>(all.iptc, {"Iptc.Application2.Byline"});
        photo.copyright = firstText<Exiv2::ExifKey>(all.exif, {"Exif.Image.Copyright"});
        if (photo.copyright.isEmpty())
            photo.copyright = firstText<Exiv2::XmpKey>(all.xmp, {"Xmp.dc.rights"});
        if (photo.copyright.isEmpty())
            photo.copyright = firstText<Exiv2::IptcKey>(all.iptc, {"Iptc.Application2.Copyright"});
    }
    if (!photo.date.isValid())
        photo.date = file.lastModified();
    return photo;
}
