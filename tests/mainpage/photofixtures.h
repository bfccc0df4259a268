// Photos made on the spot for the main page tests.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace PhotoFixtures {

// Writes data to path, creating the folders on the way; returns path.
QString writeFile(const QString& path, const QByteArray& data);

// A PNG of one colour at path; returns path.
QString writePng(const QString& path, int width, int height, QRgb argb = 0xff4080c0);

// A picture whose left half is red and right half blue, to see which way it was turned.
QImage halvesPicture(int width, int height);

} // namespace PhotoFixtures
