#include "outputsettings.h"

#include "appdata.h"
#include "outputnaming.h"

#include <QThread>

namespace {

const char keyOpenLocation[] = "KeyOpenLocation";
const char keyFormat[] = "KeyFormat";
const char keyQuality[] = "KeyQuality";
const char keyRename[] = "KeyRename";
const char keyNewName[] = "KeyNewName";
const char keyNumbers[] = "KeyNumbers";
const char keyMaxMegapixels[] = "KeyMaxMegapixels";
const char keyMetadata[] = "KeyMetadata";
const char keyArtist[] = "KeyArtist";
const char keyCopyright[] = "KeyCopyright";
const char keyBackground[] = "KeyBackground";
const char keyShortExtensions[] = "KeyShortExtensions";
const char keyMaxKilobytes[] = "KeyMaxKilobytes";
const char keyConvertToSrgb[] = "KeyConvertToSrgb";
const char keySaveInto[] = "KeySaveInto";
const char keyKeepFolders[] = "KeyKeepFolders";
const char keyJobs[] = "KeyJobs";
const char keyFastReading[] = "KeyFastReading";

// A stored number, or the default when the stored text is not one.
int readInt(const char* key, int defaultValue)
{
    bool ok = false;
    const int value = OrkTools::AppData::readSetting(key, defaultValue).toInt(&ok);
    return ok ? value : defaultValue;
}

} // namespace

OutputSettings OutputSettings::load()
{
    const OutputSettings defaults;
    OutputSettings settings;
    settings.openLocation =
        OrkTools::AppData::readSetting(keyOpenLocation, defaults.openLocation).toBool();
    settings.format = OrkTools::AppData::readSetting(keyFormat, defaults.format).toString();
    settings.quality = readInt(keyQuality, defaults.quality);
    settings.rename = OrkTools::AppData::readSetting(keyRename, defaults.rename).toBool();
    settings.newName = OrkTools::AppData::readSetting(keyNewName, defaults.newName).toString();
    settings.numbers = readInt(keyNumbers, defaults.numbers);
    const int maxMegapixels = readInt(keyMaxMegapixels, defaults.maxMegapixels);
    settings.maxMegapixels = maxMegapixels > 0 ? maxMegapixels : defaults.maxMegapixels;
    const int metadata = readInt(keyMetadata, defaults.metadata);
    settings.metadata = metadata >= 0 && metadata <= 2 ? metadata : defaults.metadata;
    settings.artist = OrkTools::AppData::readSetting(keyArtist, defaults.artist).toString();
    settings.copyright =
        OrkTools::AppData::readSetting(keyCopyright, defaults.copyright).toString();
    const QColor background(OrkTools::AppData::readSetting(keyBackground).toString());
    settings.background = background.isValid() ? background : defaults.background;
    settings.shortExtensions =
        OrkTools::AppData::readSetting(keyShortExtensions, defaults.shortExtensions).toBool();
    settings.maxKilobytes = qMax(0, readInt(keyMaxKilobytes, defaults.maxKilobytes));
    settings.convertToSrgb =
        OrkTools::AppData::readSetting(keyConvertToSrgb, defaults.convertToSrgb).toBool();
    settings.saveInto = OrkTools::AppData::readSetting(keySaveInto, defaults.saveInto).toString();
    settings.keepFolders =
        OrkTools::AppData::readSetting(keyKeepFolders, defaults.keepFolders).toBool();
    settings.jobs = qBound(0, readInt(keyJobs, defaults.jobs), maxJobs);
    settings.fastReading =
        OrkTools::AppData::readSetting(keyFastReading, defaults.fastReading).toBool();
    return settings;
}

void OutputSettings::save() const
{
    OrkTools::AppData::writeSetting(keyOpenLocation, openLocation);
    OrkTools::AppData::writeSetting(keyRename, rename);
    OrkTools::AppData::writeSetting(keyQuality, quality);
    OrkTools::AppData::writeSetting(keyNewName, newName);
    OrkTools::AppData::writeSetting(keyFormat, format);
    OrkTools::AppData::writeSetting(keyNumbers, numbers);
    OrkTools::AppData::writeSetting(keyMaxMegapixels, maxMegapixels);
    OrkTools::AppData::writeSetting(keyMetadata, metadata);
    OrkTools::AppData::writeSetting(keyArtist, artist);
    OrkTools::AppData::writeSetting(keyCopyright, copyright);
    OrkTools::AppData::writeSetting(keyBackground, background.name());
    OrkTools::AppData::writeSetting(keyShortExtensions, shortExtensions);
    OrkTools::AppData::writeSetting(keyMaxKilobytes, maxKilobytes);
    OrkTools::AppData::writeSetting(keyConvertToSrgb, convertToSrgb);
    OrkTools::AppData::writeSetting(keySaveInto, saveInto);
    OrkTools::AppData::writeSetting(keyKeepFolders, keepFolders);
    OrkTools::AppData::writeSetting(keyJobs, jobs);
    OrkTools::AppData::writeSetting(keyFastReading, fastReading);
}

QString OutputSettings::extension() const
{
    return OutputNaming::extension(format, shortExtensions);
}

bool OutputSettings::keepsTransparency() const
{
    return format != "JPEG" && format != "BMP" && format != "PPM";
}

QStringList OutputSettings::formats()
{
    return {"JPEG", "PNG", "BMP", "TIFF", "PPM", "XPM", "WEBP", "AVIF", "JXL", "HEIC"};
}

bool OutputSettings::takesQuality(const QString& format)
{
    return takesSizeBudget(format) || format == "HEIC";
}

bool OutputSettings::takesSizeBudget(const QString& format)
{
    return format == "JPEG" || format == "WEBP" || format == "AVIF" || format == "JXL";
}

qint64 OutputSettings::pixelBudget() const
{
    return qint64(maxMegapixels) * 1000000;
}

int OutputSettings::writerQuality() const
{
    return takesQuality(format) ? quality : -1;
}

int OutputSettings::jobCount() const
{
    return jobs > 0 ? jobs : qMax(1, QThread::idealThreadCount());
}
