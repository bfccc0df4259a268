#include "appdata.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace OrkTools::AppData {

namespace {

QString dataPath()
{
    return QDir::homePath() + "/" + QCoreApplication::applicationName() + "/";
}

QString created(const QString& folder)
{
    QDir().mkpath(folder);
    return folder;
}

} // namespace

QString dataFolder()
{
    return created(dataPath());
}

QStringList userFolders()
{
    const QString data = dataPath();
    QStringList folders{data};
    for (const char* folder :
         {"Flows/", "Logos/", "Notes/", "Screenshots/", "Styles/", "Downloads/", "Cache/", "Help/"})
        folders << data + folder;
    return folders;
}

QString flowsFolder()
{
    return created(dataPath() + "Flows/");
}

QString outputBaseFolder()
{
    const QStringList pictures =
        QStandardPaths::standardLocations(QStandardPaths::PicturesLocation);
    const QString base = pictures.isEmpty() ? QDir::homePath() : pictures.first();
    return base + "/" + QCoreApplication::organizationName() + "/" +
           QCoreApplication::applicationName() + "/";
}

bool copyFile(const QString& source, const QString& folder, const QString& name)
{
    QDir().mkpath(folder);
    const QString target = folder + "/" + (name.isEmpty() ? QFileInfo(source).fileName() : name);
    if (QFile::exists(target))
        return true;
    QFile in(source);
    QFile out(target);
    if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly))
        return false;
    out.write(in.readAll());
    return true;
}

QVariant readSetting(const QString& key, const QVariant& defaultValue)
{
    QSettings settings(QCoreApplication::organizationName(), QCoreApplication::applicationName());
    return settings.value(key, defaultValue);
}

void writeSetting(const QString& key, const QVariant& value)
{
    QSettings settings(QCoreApplication::organizationName(), QCoreApplication::applicationName());
    settings.setValue(key, value);
}

} // namespace OrkTools::AppData
