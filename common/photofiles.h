// Reading photos and turning dropped folders into the photos inside them.
#pragma once

#include <QHash>
#include <QImage>
#include <QList>
#include <QSize>
#include <QStringList>
#include <QUrl>

class QImageReader;
class QString;

namespace PhotoFiles {

// The photo upright as its EXIF orientation says, format detected from the contents.
// An unreadable or non-image file gives a null image. With a divisor above 1 the file is
// decoded at (width / divisor, height / divisor), each rounded, which is far cheaper.
QImage read(const QString& path, int divisor = 1);

// The photo upright and scaled smoothly to fit into box, keeping its aspect ratio. Large
// photos are decoded at the reduced size, far cheaper than decoding them whole.
QImage readFitted(const QString& path, const QSize& box);

// The size a photo of fullSize is decoded at with the given divisor (each side at least 1).
QSize reducedSize(const QSize& fullSize, int divisor);

// Each folder among urls replaced, at its place, by the image files inside it and inside its
// subfolders, in name order, a subfolder's photos at the subfolder's place; files are kept as
// they are, whatever they hold, so that an unreadable photo still shows up in the list.
// foundIn, when given, gets for each photo found inside a folder (by its local path) that folder.
QList<QUrl> expandFolders(const QList<QUrl>& urls, QHash<QString, QString>* foundIn = nullptr);

// Whether format (a reader's format name or a file suffix, lower case) is a vector drawing: SVG,
// which may read local files, or EPS, which is a program. Drawings are never taken as photos.
bool isDrawing(const QByteArray& format);

// The file suffixes of every format the image reader knows (camera RAW, HEIF, AVIF, JPEG XL, PSD
// and the rest), in lower case; drawings only when asked for.
QStringList readableSuffixes(bool withDrawings = false);

// "*.bmp *.BMP *.jpg *.JPG ...": readableSuffixes in both cases, for file dialogs (a desktop's
// own dialog may match names case-sensitively).
QString namePatterns(bool withDrawings = false);

// The photo's pixel size as stored, read without decoding it; invalid when it cannot be read so.
// The HEIF reader decodes the whole photo to tell its size, so a HEIF file's size comes from
// its container instead.
QSize storedSize(QImageReader& reader);

} // namespace PhotoFiles
