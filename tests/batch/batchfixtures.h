// Photos and folders for the batch tests.
#pragma once

#include "batchoperations.h"

#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace BatchFixtures {

// A 16 x 8 PNG photo of one colour at folder + "/" + fileName (folders created); its path.
QString writePhoto(const QString& folder, const QString& fileName, QRgb colour);

// A file whose bytes are no image at all.
QString writeNonsense(const QString& folder, const QString& fileName);

QList<QUrl> urls(const QStringList& paths);

// The file names in folder, sorted.
QStringList fileNames(const QString& folder);

QByteArray fileBytes(const QString& path);

// One active operation with no keys of its own, as a node writes it.
BatchOperations operation(const QString& name);

} // namespace BatchFixtures
