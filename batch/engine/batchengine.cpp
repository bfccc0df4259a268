#include "batchengine.h"

#include "colorprofiles.h"
#include "operationcatalogue.h"
#include "outputnaming.h"
#include "photofiles.h"
#include "threadmessages.h"

#include <QBuffer>
#include <QColorSpace>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>
#include <QtConcurrent>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <sys/stat.h>
#include <sys/types.h>

namespace {

// The path made absolute and the file it resolves to, so that neither a link nor a ".."
// slips past the comparison with the sources.
QStringList pathForms(const QString& path)
{
    const QFileInfo info(path);
    QStringList forms{QDir::cleanPath(info.absoluteFilePath())};
    const QString canonical = info.canonicalFilePath();
    if (!canonical.isEmpty())
        forms << canonical;
    return forms;
}

// The image laid on the colour where it is not opaque, so that a format without transparency
// shows the background chosen rather than whatever colour the clear pixels hold.
QImage laidOn(const QImage& image, const QColor& background)
{
    const QImage words = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < words.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(words.constScanLine(y));
        if (std::all_of(row, row + words.width(), [](QRgb pixel) { return qAlpha(pixel) == 255; }))
            continue;
        QImage result(words.size(), QImage::Format_RGB32);
        result.setColorSpace(image.colorSpace());
        result.fill(background);
        QPainter(&result).drawImage(0, 0, words);
        return result;
    }
    return image;
}

// Qt's own turn drops the colour space, so the photo is turned here and keeps its profile.
QImage upright(const QImage& image, QImageIOHandler::Transformations turn)
{
    QImage turned = image.mirrored(turn & QImageIOHandler::TransformationMirror,
                                   turn & QImageIOHandler::TransformationFlip);
    if (turn & QImageIOHandler::TransformationRotate90)
        turned = turned.transformed(QTransform().rotate(90));
    turned.setColorSpace(image.colorSpace());
    return turned;
}

QString tooLarge(const QSize& size)
{
    return BatchEngine::tr("too large: %1 x %2").arg(size.width()).arg(size.height());
}

QString leftNoImage(const QString& operation)
{
    return BatchEngine::tr("the operation \"%1\" left no image").arg(operation);
}

// The reason a file could not be written, in the user's terms where there is one.
QString writeError(const QFileDevice& file)
{
    const QString reason = file.errorString();
    if (reason == qt_error_string(ENOSPC))
        return BatchEngine::tr("cannot write: disk full");
    if (file.error() == QFileDevice::PermissionsError || reason == qt_error_string(EACCES))
        return BatchEngine::tr("cannot write: permission denied");
    return BatchEngine::tr("cannot write: %1").arg(reason);
}

// A short write (the disk filling up) sets no error; writing the rest gives the reason.
bool writeAll(QFileDevice& file, const QByteArray& bytes)
{
    for (qint64 done = 0, wrote = 0; done < bytes.size(); done += wrote) {
        wrote = file.write(bytes.constData() + done, bytes.size() - done);
        if (wrote <= 0)
            return false;
    }
    return true;
}

// The encoding at the highest quality up to best whose size is at most budget bytes, searched
// by bisection: seven encodes at most for a best up to 127. When none fits, fits is false and the
// encoding at quality 1 comes back; an encoder failure gives empty bytes.
QByteArray highestQualityWithin(qint64 budget, int best,
                                const std::function<QByteArray(int)>& encode, bool& fits)
{
    QByteArray fitting;
    QByteArray smallest;
    for (int low = 1, high = best; low <= high;) {
        const int middle = (low + high) / 2;
        const QByteArray tried = encode(middle);
        if (!tried.isEmpty() && tried.size() <= budget) {
            fitting = tried;
            low = middle + 1;
        } else {
            smallest = tried;
            high = middle - 1;
        }
    }
    fits = !fitting.isEmpty();
    return fits ? fitting : smallest;
}

} // namespace

BatchEngine::BatchEngine(const QStringList& sources, const BatchOperations& operations,
                         const OutputSettings& settings, const QString& destination,
                         const Options& options)
    : sources(sources)
    , settings(settings)
    , destination(destination)
    , extension("." + settings.extension())
    , options(options)
    , operations(prepare(operations))
{
    for (const QString& source : sources) {
        const QStringList forms = pathForms(source);
        for (const QString& form : forms)
            sourcePaths.insert(form);
    }
    readerPool.setMaxThreadCount(1);
}

BatchEngine::~BatchEngine()
{
    readAhead.waitForFinished();
}

void BatchEngine::setCounters(int oddNext, int evenNext)
{
    odd = oddNext;
    even = evenNext;
}

BatchEngine::Result BatchEngine::step(int index)
{
    Photo photo = process(index);
    if (photo.image.isNull())
        return {{}, {}, photo.error};
    const QString name = OutputNaming::outputName(sources.at(index), index, settings.rename,
                                                  settings.newName, settings.numbers, odd, even);
    if (!OutputNaming::staysInFolder(name))
        return {
            {}, {}, tr("cannot write: the name \"%1\" would leave the output folder").arg(name)};
    QString error;
    const QString folder = targetFolder(sources.at(index), error);
    if (folder.isEmpty())
        return {{}, {}, error};
    QString target = folder + name + extension;
    for (int copy = 2; isTaken(target); ++copy)
        target = folder + name + QString(" (%1)").arg(copy) + extension;
    const WriteResult written = write(photo.image, target, photo.metadata);
    return {std::move(photo.image), target, written.error, written.note};
}

void BatchEngine::setInputFolders(const QHash<QString, QString>& folderOfSource)
{
    inputFolders = folderOfSource;
}

QString BatchEngine::targetFolder(const QString& source, QString& error) const
{
    const QString root = inputFolders.value(source);
    if (!settings.keepFolders || root.isEmpty())
        return destination;
    const QString relative = QDir(root).relativeFilePath(QFileInfo(source).absolutePath());
    if (relative == ".")
        return destination;
    if (relative == ".." || relative.startsWith("../") || QDir::isAbsolutePath(relative)) {
        error = tr("cannot write: the photo is not inside %1").arg(root);
        return {};
    }
    QString folder = destination;
    const QStringList parts = relative.split('/');
    for (const QString& part : parts) {
        folder += part;
        const QByteArray native = QFile::encodeName(folder);
        // A folder that is there already stays as it is; a link is not gone through.
        mkdir(native.constData(), 0777);
        struct stat info = {};
        if (lstat(native.constData(), &info) != 0 || !S_ISDIR(info.st_mode)) {
            error = S_ISLNK(info.st_mode) ? tr("cannot write: %1 is a link").arg(folder)
                                          : tr("cannot create the folder %1").arg(folder);
            return {};
        }
        folder += "/";
    }
    return folder;
}

bool BatchEngine::isTaken(const QString& target) const
{
    if (writtenPaths.contains(target))
        return options.keepEveryResult;
    const QFileInfo info(target);
    return options.besideExisting && (info.exists() || info.isSymLink());
}

BatchEngine::Photo BatchEngine::process(int index)
{
    if (index < 0 || index >= sources.size())
        return {{}, tr("no photo at position %1").arg(index + 1)};
    Photo photo;
    if (index == readAheadIndex)
        photo = readAhead.result();
    else
        photo = load(sources.at(index), options.pixelBudget, settings.convertToSrgb);
    readAheadIndex = index + 1;
    readAhead = readAheadIndex < sources.size()
                    ? QtConcurrent::run(&readerPool, &BatchEngine::load, sources.at(readAheadIndex),
                                        options.pixelBudget, settings.convertToSrgb)
                    : QFuture<Photo>();
    if (photo.image.isNull())
        return photo;
    // Exiv2 keeps to the thread that drives the run: on the reader thread its thread-local
    // state outlived the thread, which leak checkers cannot walk.
    const PhotoMetadata metadata = PhotoMetadata::read(sources.at(index));
    // The operations make new images without the profile; the result is in the source's colours.
    const QColorSpace colorSpace = photo.image.colorSpace();
    Photo result = apply(std::move(photo.image), operations, options.pixelBudget,
                         metadata.describe(sources.at(index), index, sources.size()));
    result.image.setColorSpace(colorSpace);
    result.metadata = metadata;
    return result;
}

BatchEngine::WriteResult BatchEngine::write(const QImage& image, const QString& path,
                                            const PhotoMetadata& metadata)
{
    const QStringList forms = pathForms(path);
    for (const QString& form : forms) {
        if (sourcePaths.contains(form))
            return {false, tr("cannot write: it would replace a source photo")};
    }
    const QString fileName = QFileInfo(path).fileName();
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    struct stat info = {};
    if (lstat(QFile::encodeName(path).constData(), &info) == 0) {
        if (S_ISLNK(info.st_mode))
            return {false, tr("cannot write: %1 is a link").arg(fileName)};
        if (!S_ISREG(info.st_mode))
            return {false, tr("cannot write: %1 is not a regular file").arg(fileName)};
        if (!options.replaceExisting && !writtenPaths.contains(absolute))
            return {false, tr("cannot write: %1 already exists").arg(fileName)};
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {false, writeError(file)};
    // Encoded in memory first: the metadata goes into the bytes before any reach the file.
    const QImage written =
        settings.keepsTransparency() ? image : laidOn(image, settings.background);
    const auto encode = [&](int quality) {
        QByteArray encoded;
        QBuffer buffer(&encoded);
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, settings.format.toLatin1());
        writer.setQuality(quality);
        return writer.write(written) ? metadata.embedInto(encoded, image.size(), settings,
                                                          image.colorSpace().iccProfile())
                                     : QByteArray();
    };
    // A photo that fits its budget not even at quality 1 is written at 1 and said so.
    const qint64 budget = qint64(settings.maxKilobytes) * 1024;
    QByteArray bytes;
    QString note;
    if (budget > 0 && OutputSettings::takesSizeBudget(settings.format)) {
        bool fits = false;
        bytes = highestQualityWithin(budget, settings.quality, encode, fits);
        if (!fits)
            note = tr("larger than %1 KB even at quality 1").arg(settings.maxKilobytes);
    } else {
        bytes = encode(settings.writerQuality());
    }
    if (bytes.isEmpty()) {
        file.cancelWriting();
        return {false, tr("cannot write: the %1 writer failed").arg(settings.format)};
    }
    if (!writeAll(file, bytes)) {
        const WriteResult failed{false, writeError(file)};
        file.cancelWriting();
        return failed;
    }
    // A failed write (a full disk) gives its reason at commit, which then leaves no file.
    if (!file.commit())
        return {false, writeError(file)};
    writtenPaths.insert(absolute);
    return {true, {}, note};
}

BatchEngine::Photo BatchEngine::load(const QString& path, qint64 pixelBudget, bool toSrgb)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {{}, tr("unreadable: no such file")};
    // A FIFO or a device would block the run or never end.
    if (!info.isFile())
        return {{}, tr("unreadable: not a regular file")};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        // Qt reports a refused open as an open error, in the system's words.
        return {{},
                file.errorString() == qt_error_string(EACCES)
                    ? tr("unreadable: permission denied")
                    : tr("unreadable: %1").arg(file.errorString())};
    }
    QImageReader reader(&file);
    if (PhotoFiles::isDrawing(reader.format()))
        return {{},
                tr("unreadable: a drawing (%1), not a photo")
                    .arg(QString::fromLatin1(reader.format().toUpper()))};
    const QSize size = PhotoFiles::storedSize(reader);
    // A reader that tells sizes but finds none (a RAW or HEIF file it cannot parse) would
    // decode blind.
    if (!size.isValid() && reader.supportsOption(QImageIOHandler::Size))
        return {{}, tr("unreadable: its size cannot be read")};
    if (size.isValid() && qint64(size.width()) * size.height() > pixelBudget)
        return {{}, tooLarge(size)};
    const ThreadMessages decoder;
    QImage image = reader.read();
    if (!decoder.messages().isEmpty())
        return {{}, tr("damaged: %1").arg(decoder.messages().constFirst().trimmed())};
    if (image.isNull())
        return {{}, tr("unreadable: not a photo this program can read")};
    if (qint64(image.width()) * image.height() > pixelBudget)
        return {{}, tooLarge(image.size())};
    image =
        upright(std::move(image).convertToFormat(QImage::Format_ARGB32), reader.transformation());
    if (toSrgb)
        image = ColorProfiles::toSrgb(image, image.colorSpace().iccProfile());
    return {std::move(image), {}};
}

QString BatchEngine::createRunFolder(const QString& base, const QDateTime& start, bool exclusive)
{
    const QString name = base + start.toString("yyyy-MM-dd_hh-mm-ss");
    if (!QDir().mkpath(base))
        return {};
    if (!exclusive)
        return QDir().mkpath(name) ? name + "/" : QString();
    // mkdir fails on a folder that exists: the name is this run's alone.
    for (int copy = 1; copy < 1000; ++copy) {
        const QString folder = copy == 1 ? name : name + "-" + QString::number(copy);
        if (mkdir(QFile::encodeName(folder).constData(), 0777) == 0)
            return folder + "/";
        if (errno != EEXIST)
            return {};
    }
    return {};
}

BatchEngine::Photo BatchEngine::apply(QImage image, const QVector<PreparedOperation>& operations,
                                      qint64 pixelBudget, const PhotoContext& photo)
{
    for (const PreparedOperation& operation : operations) {
        const QSize next = operation.resultSize(image.size());
        if (qint64(next.width()) * next.height() > pixelBudget)
            return {{}, tooLarge(next)};
        image = operation.apply(std::move(image), photo);
        if (image.isNull())
            return {{}, leftNoImage(operation.name)};
    }
    return {image, {}};
}

QVector<PreparedOperation> BatchEngine::prepare(const BatchOperations& operations, bool forPreview)
{
    QVector<PreparedOperation> prepared;
    for (const auto& operation : operations)
        prepared << prepareOperation(operation.first, operation.second, forPreview);
    return prepared;
}

QSize BatchEngine::resultSize(QSize size, const QVector<PreparedOperation>& operations,
                              qint64 pixelBudget, QString* error)
{
    for (const PreparedOperation& operation : operations) {
        size = operation.resultSize(size);
        if (size.isEmpty() || qint64(size.width()) * size.height() > pixelBudget) {
            *error = size.isEmpty() ? leftNoImage(operation.name) : tooLarge(size);
            return {};
        }
    }
    return size;
}
