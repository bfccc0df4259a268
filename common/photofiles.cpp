#include "photofiles.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QStringList>

#include <libheif/heif.h>

#include <memory>

namespace PhotoFiles {

namespace {

bool isPhotoFile(const QFileInfo& info)
{
    static const QStringList suffixes = readableSuffixes();
    return suffixes.contains(info.suffix().toLower());
}

// What libheif reads from the boxes alone: the primary image's size, the one the reader decodes.
QSize heifSize(const QString& path)
{
    const std::unique_ptr<heif_context, void (*)(heif_context*)> context(heif_context_alloc(),
                                                                         heif_context_free);
    heif_image_handle* handle = nullptr;
    if (heif_context_read_from_file(context.get(), QFile::encodeName(path).constData(), nullptr)
                .code != heif_error_Ok ||
        heif_context_get_primary_image_handle(context.get(), &handle).code != heif_error_Ok)
        return {};
    const QSize size(heif_image_handle_get_width(handle), heif_image_handle_get_height(handle));
    heif_image_handle_release(handle);
    return size;
}

// Symbolic links to folders are not followed, so that a link back up cannot loop forever.
void appendFolder(const QString& folder, QList<QUrl>& urls)
{
    const QFileInfoList entries =
        QDir(folder).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot,
                                   QDir::Name | QDir::IgnoreCase | QDir::LocaleAware);
    for (const QFileInfo& entry : entries) {
        if (entry.isDir()) {
            if (!entry.isSymLink())
                appendFolder(entry.filePath(), urls);
        } else if (isPhotoFile(entry)) {
            urls << QUrl::fromLocalFile(entry.filePath());
        }
    }
}

} // namespace

QImage read(const QString& path, int divisor)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    if (divisor > 1) {
        const QSize size = reader.size();
        if (size.isValid())
            reader.setScaledSize(reducedSize(size, divisor));
    }
    return reader.read();
}

QImage readFitted(const QString& path, const QSize& box)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize stored = reader.size();
    if (stored.isValid()) {
        // The scaled size applies to the photo as stored, before it is turned upright.
        const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
        reader.setScaledSize(stored.scaled(turned ? box.transposed() : box, Qt::KeepAspectRatio));
        return reader.read();
    }
    const QImage image = reader.read();
    return image.isNull() ? image
                          : image.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QSize reducedSize(const QSize& fullSize, int divisor)
{
    // A side rounded down to nothing would make the reader fail on a tiny photo.
    return QSize(qRound(double(fullSize.width()) / divisor),
                 qRound(double(fullSize.height()) / divisor))
        .expandedTo(QSize(1, 1));
}

QList<QUrl> expandFolders(const QList<QUrl>& urls, QHash<QString, QString>* foundIn)
{
    QList<QUrl> expanded;
    for (const QUrl& url : urls) {
        const QFileInfo info(url.toLocalFile());
        if (!url.isLocalFile() || !info.isDir()) {
            expanded << url;
            continue;
        }
        const int first = expanded.size();
        appendFolder(info.filePath(), expanded);
        for (int i = first; foundIn && i < expanded.size(); ++i)
            foundIn->insert(expanded.at(i).toLocalFile(), info.filePath());
    }
    return expanded;
}

bool isDrawing(const QByteArray& format)
{
    return format.startsWith("svg") || format.startsWith("eps");
}

QStringList readableSuffixes(bool withDrawings)
{
    QStringList suffixes;
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray& format : formats) {
        if (withDrawings || !isDrawing(format))
            suffixes << QString::fromLatin1(format);
    }
    return suffixes;
}

QString namePatterns(bool withDrawings)
{
    QStringList patterns;
    const QStringList suffixes = readableSuffixes(withDrawings);
    for (const QString& suffix : suffixes)
        patterns << "*." + suffix << "*." + suffix.toUpper();
    return patterns.join(' ');
}

QSize storedSize(QImageReader& reader)
{
    if (reader.format() != "heif")
        return reader.size();
    const auto* file = qobject_cast<const QFileDevice*>(reader.device());
    return file ? heifSize(file->fileName()) : QSize();
}

} // namespace PhotoFiles
