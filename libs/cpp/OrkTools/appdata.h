// Where the program keeps its data and results, and its settings store: shared by the window
// and the command-line tool, so no widgets here.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

namespace OrkTools::AppData {

// Home + "/" + application name + "/", created when missing.
QString dataFolder();
// The folders whose absence marks a first start; the data folder comes first.
QStringList userFolders();
// The data folder's "Flows/", created when missing.
QString flowsFolder();
// First pictures location + "/" + organization + "/" + application + "/".
QString outputBaseFolder();

// Copies source to folder + "/" + name (the source's file name when name is empty),
// creating the folder. An existing target is left untouched and counts as success.
bool copyFile(const QString& source, const QString& folder, const QString& name = {});

// The per-user store keyed by organisation and application name.
QVariant readSetting(const QString& key, const QVariant& defaultValue = {});
void writeSetting(const QString& key, const QVariant& value);

} // namespace OrkTools::AppData
