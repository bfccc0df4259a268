#include "photofiles.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QStringList>

namespace PhotoFiles {

namespace {

bool isImageFile(const QFileInfo& info)
{
    static const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    return formats.contains(info.suffix().toLower().toLatin1());
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
        } else if (isImageFile(entry)) {
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

QString namePatterns()
{
    QStringList patterns;
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray& format : formats) {
        const QString suffix = QString::fromLatin1(format);
        patterns << "*." + suffix << "*." + suffix.toUpper();
    }
    return patterns.join(' ');
}

} // namespace PhotoFiles
