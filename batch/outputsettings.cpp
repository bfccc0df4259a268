#include "outputsettings.h"

#include "app.h"

using OrkWidgets::App;

namespace {

const char keyOpenLocation[] = "KeyOpenLocation";
const char keyFormat[] = "KeyFormat";
const char keyQuality[] = "KeyQuality";
const char keyRename[] = "KeyRename";
const char keyNewName[] = "KeyNewName";
const char keyNumbers[] = "KeyNumbers";

// A stored number, or the default when the stored text is not one.
int readInt(const char* key, int defaultValue)
{
    bool ok = false;
    const int value = App::readSetting(key, defaultValue).toInt(&ok);
    return ok ? value : defaultValue;
}

} // namespace

OutputSettings OutputSettings::load()
{
    const OutputSettings defaults;
    OutputSettings settings;
    settings.openLocation = App::readSetting(keyOpenLocation, defaults.openLocation).toBool();
    settings.format = App::readSetting(keyFormat, defaults.format).toString();
    settings.quality = readInt(keyQuality, defaults.quality);
    settings.rename = App::readSetting(keyRename, defaults.rename).toBool();
    settings.newName = App::readSetting(keyNewName, defaults.newName).toString();
    settings.numbers = readInt(keyNumbers, defaults.numbers);
    return settings;
}

void OutputSettings::save() const
{
    App::writeSetting(keyOpenLocation, openLocation);
    App::writeSetting(keyRename, rename);
    App::writeSetting(keyQuality, quality);
    App::writeSetting(keyNewName, newName);
    App::writeSetting(keyFormat, format);
    App::writeSetting(keyNumbers, numbers);
}

QStringList OutputSettings::formats()
{
    return {"JPEG", "PNG", "BMP", "TIFF", "PPM", "XPM"};
}

int OutputSettings::writerQuality() const
{
    return format == "JPEG" ? quality : -1;
}
