#include "batchengine.h"

#include "colorprofiles.h"
#include "imageproperties.h"
#include "jpegrows.h"
#include "operationcatalogue.h"
#include "operations.h"
#include "outputnaming.h"
#include "photofiles.h"
#include "rowshrinker.h"
#include "threadmessages.h"

#include <QBuffer>
#include <QColorSpace>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>
#include <QThread>
#include <QThreadPool>
#include <QtConcurrent>

#include <algorithm>
#include <cerrno>
#include <deque>
#include <functional>
#include <numeric>
#include <optional>
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
    if (!image.hasAlphaChannel())
        return image;
    // Both 32-bit formats with alpha keep it in the word's top byte, so they are looked at as
    // they are; an opaque photo then costs no copy.
    const bool alphaWords = image.format() == QImage::Format_ARGB32 ||
                            image.format() == QImage::Format_ARGB32_Premultiplied;
    const QImage words = alphaWords ? image : image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < words.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(words.constScanLine(y));
        if (std::all_of(row, row + words.width(), [](QRgb pixel) { return qAlpha(pixel) == 255; }))
            continue;
        QImage result(words.size(), QImage::Format_RGB32);
        result.setColorSpace(image.colorSpace());
        result.fill(background);
        QPainter(&result).drawImage(0, 0, image.convertToFormat(QImage::Format_ARGB32));
        return result;
    }
    return image;
}

const int pausePollMs = 500;

// Sets the reader to decode at the smallest of 1/8, 1/4 and 1/2 of size (as stored) that is
// at least as large as what shrinksTo makes of the upright photo, and returns that; an empty
// size, and the reader left as it is, when even half would be too small.
QSize shrunkDecoding(QImageReader& reader, const QSize& size,
                     const std::function<QSize(const QSize&)>& shrinksTo)
{
    const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    const QSize upright = turned ? size.transposed() : size;
    const QSize target = shrinksTo(upright);
    if (target.isEmpty())
        return {};
    for (const int factor : {8, 4, 2}) {
        const QSize reduced(upright.width() / factor, upright.height() / factor);
        if (reduced.width() >= target.width() && reduced.height() >= target.height()) {
            reader.setScaledSize(turned ? reduced.transposed() : reduced);
            return target;
        }
    }
    return {};
}

// A grey photo as ARGB32 words in memory from buffers, as Qt's conversion gives it (pixels and
// the image's other properties), without the fresh memory as large that the conversion takes.
QImage greyToWords(const QImage& grey, ImageBuffers& buffers)
{
    QImage words = buffers.take(grey.size(), QImage::Format_ARGB32);
    if (words.isNull())
        return words;
    for (int y = 0; y < grey.height(); ++y) {
        const uchar* from = grey.constScanLine(y);
        auto* to = reinterpret_cast<QRgb*>(words.scanLine(y));
        std::transform(from, from + grey.width(), to, [](uchar g) { return qRgb(g, g, g); });
    }
    OrkGraphX::copyProperties(grey, words);
    return words;
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

// The photo as ARGB32 words. RGB32 words are 0xffRRGGBB already: naming them ARGB32 is the
// conversion, without a pass over the pixels (or, for memory the image does not own, a copy).
QImage asWords(QImage image, ImageBuffers* buffers)
{
    if (image.format() == QImage::Format_RGB32 && image.reinterpretAsFormat(QImage::Format_ARGB32))
        return image;
    if (image.format() == QImage::Format_Grayscale8 && buffers) {
        QImage words = greyToWords(image, *buffers);
        if (!words.isNull())
            return words;
    }
    return std::move(image).convertToFormat(QImage::Format_ARGB32);
}

QString tooLarge(const QSize& size)
{
    return BatchEngine::tr("too large: %1 x %2").arg(size.width()).arg(size.height());
}

// Why decoding failed, in the decoder's words when it said any; empty when a photo came out
// and nothing was said.
QString decodingError(const ThreadMessages& decoder, bool decoded)
{
    if (!decoder.messages().isEmpty())
        return BatchEngine::tr("damaged: %1").arg(decoder.messages().constFirst().trimmed());
    return decoded ? QString() : BatchEngine::tr("unreadable: not a photo this program can read");
}

// How a photo is stored: its size, and how it is turned upright.
struct Stored
{
    QSize size;
    QImageIOHandler::Transformations turn;
};

// The JPEG decoded a row at a time and shrunk to target as the rows come, word for word as the
// whole photo, turned upright (and converted to sRGB when asked), would be shrunk. Nothing when
// this photo is left to Qt's reader: a JPEG of other colours or of another size than the one
// told, or no memory for the result.
std::optional<BatchEngine::Photo> shrunkWhileRead(const QString& path, const Stored& stored,
                                                  const QSize& target,
                                                  const PhotoDecoding& decoding)
{
    using OrkGraphX::RowShrinker;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) ||
        !RowShrinker::shrinks(RowShrinker::upright(stored.size, stored.turn), target))
        return std::nullopt;
    JpegRows rows(file);
    {
        // Qt's reader has said what it had to say of the header already.
        const ThreadMessages header;
        if (!rows.readHeader() || rows.size() != stored.size)
            return std::nullopt;
    }
    QImage image = decoding.buffers
                       ? decoding.buffers->take(target, QImage::Format_ARGB32_Premultiplied)
                       : QImage(target, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return std::nullopt;
    rows.describe(image);
    const ColorProfiles::SrgbConversion conversion(decoding.toSrgb ? image.colorSpace().iccProfile()
                                                                   : QByteArray());
    if (decoding.toSrgb)
        image.setColorSpace(QColorSpace::SRgb);
    const ThreadMessages decoder;
    std::vector<QRgb> row(size_t(stored.size.width()));
    RowShrinker shrinker(stored.size, stored.turn, image);
    bool whole = rows.start();
    for (int y = 0; whole && y < stored.size.height(); ++y) {
        whole = rows.readRow(row.data());
        if (!whole)
            break;
        if (conversion.converts())
            conversion.convertRow(row.data(), stored.size.width());
        shrinker.addRow(row.data());
    }
    whole = whole && rows.finish();
    const QString error = decodingError(decoder, whole);
    if (!error.isEmpty())
        return BatchEngine::Photo{{}, error};
    return BatchEngine::Photo{std::move(image), {}, {}, target};
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
    nameAll();
}

void BatchEngine::setCounters(int oddNext, int evenNext)
{
    odd = oddNext;
    even = evenNext;
    nameAll();
}

void BatchEngine::setInputFolders(const QHash<QString, QString>& folderOfSource)
{
    inputFolders = folderOfSource;
    nameAll();
}

void BatchEngine::nameAll()
{
    names.clear();
    targets.clear();
    targetErrors.clear();
    QSet<QString> given;
    for (int index = 0; index < sources.size(); ++index) {
        int oddNumber = odd + 2 * index;
        int evenNumber = even + 2 * index;
        const QString name =
            OutputNaming::outputName(sources.at(index), index, settings.rename, settings.newName,
                                     settings.numbers, oddNumber, evenNumber);
        names << name;
        QString error;
        const QString folder = destination + subfolderOf(sources.at(index), error);
        QString target;
        if (OutputNaming::staysInFolder(name) && error.isEmpty()) {
            target = folder + name + extension;
            for (int copy = 2; isTaken(target, given); ++copy)
                target = folder + name + QString(" (%1)").arg(copy) + extension;
            given.insert(target);
        }
        targets << target;
        targetErrors << error;
    }
}

QString BatchEngine::subfolderOf(const QString& source, QString& error) const
{
    const QString root = inputFolders.value(source);
    if (!settings.keepFolders || root.isEmpty())
        return {};
    const QString relative = QDir(root).relativeFilePath(QFileInfo(source).absolutePath());
    if (relative == ".")
        return {};
    if (relative == ".." || relative.startsWith("../") || QDir::isAbsolutePath(relative)) {
        error = tr("cannot write: the photo is not inside %1").arg(root);
        return {};
    }
    return relative + "/";
}

bool BatchEngine::makeSubfolder(const QString& subfolder, QString& error) const
{
    QString folder = destination;
    const QStringList parts = subfolder.split('/', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        folder += part;
        const QByteArray native = QFile::encodeName(folder);
        // A folder that is there already stays as it is; a link is not gone through.
        mkdir(native.constData(), 0777);
        struct stat info = {};
        if (lstat(native.constData(), &info) != 0 || !S_ISDIR(info.st_mode)) {
            error = S_ISLNK(info.st_mode) ? tr("cannot write: %1 is a link").arg(folder)
                                          : tr("cannot create the folder %1").arg(folder);
            return false;
        }
        folder += "/";
    }
    return true;
}

bool BatchEngine::isTaken(const QString& target, const QSet<QString>& given) const
{
    if (given.contains(target))
        return options.keepEveryResult;
    const QFileInfo info(target);
    return options.besideExisting && (info.exists() || info.isSymLink());
}

void BatchEngine::run(const Listener& listener)
{
    QVector<int> every(sources.size());
    std::iota(every.begin(), every.end(), 0);
    run(listener, every);
}

void BatchEngine::run(const Listener& listener, const QVector<int>& order)
{
    const int jobs = qMax(1, options.jobs);
    QThreadPool helpers;
    helpers.setMaxThreadCount(jobs);
    const std::shared_ptr<ImageBuffers> buffers = ImageBuffers::create(jobs + 1);
    struct UnderWay
    {
        int index;
        PhotoMetadata metadata;
        QFuture<Photo> photo;
    };
    std::deque<UnderWay> underWay;
    int next = 0;
    int reached = 0;
    bool stopping = false;
    const auto startMore = [&] {
        while (!stopping && next < order.size() && int(underWay.size()) < jobs) {
            const Next go = listener.next();
            stopping = go == Next::Stop;
            if (go != Next::Go)
                return;
            const int index = order.at(next++);
            reached = qMax(reached, index + 1);
            // Exiv2 keeps to the thread that drives the run: on a helper thread its thread-local
            // state outlived the thread, which leak checkers cannot walk.
            const PhotoMetadata metadata = PhotoMetadata::read(sources.at(index));
            const PhotoContext described =
                metadata.describe(sources.at(index), index, sources.size());
            underWay.push_back(
                {index, metadata, QtConcurrent::run(&helpers, [this, index, buffers, described] {
                     // Encoded where it was made, so that the thread writing in order is free
                     // for the file work; the metadata goes in there, where Exiv2 is kept.
                     Photo photo = readAndApply(index, *buffers, described);
                     if (!photo.image.isNull() && !searchesQuality())
                         photo.encodedPixels =
                             encodedPixels(asFormatTakesIt(photo.image), settings.writerQuality());
                     return photo;
                 })});
        }
    };
    for (;;) {
        startMore();
        if (underWay.empty()) {
            if (stopping || next == order.size())
                break;
            QThread::msleep(pausePollMs);
            continue;
        }
        const int index = underWay.front().index;
        Photo photo = underWay.front().photo.result();
        photo.metadata = underWay.front().metadata;
        underWay.pop_front();
        // The helper that read this photo starts the next one while it is written.
        startMore();
        listener.finished(index, writeOut(index, std::move(photo)));
    }
    setCounters(odd + 2 * reached, even + 2 * reached);
}

BatchEngine::Photo BatchEngine::readAndApply(int index, ImageBuffers& buffers,
                                             const PhotoContext& photoContext) const
{
    PhotoDecoding decoding{&buffers};
    decoding.toSrgb = settings.convertToSrgb;
    const bool shrinksFirst =
        !operations.isEmpty() && operations.first().name == QLatin1String(RSZOperation::Name);
    if (shrinksFirst)
        decoding.shrinksTo = operations.first().resultSize;
    decoding.fast = options.fastReading;
    Photo photo = load(sources.at(index), options.pixelBudget, decoding);
    if (photo.image.isNull())
        return photo;
    // The operations make new images without the profile; the result is in the source's colours.
    const QColorSpace colorSpace = photo.image.colorSpace();
    const auto inSourceColours = [&colorSpace](Photo result) {
        result.image.setColorSpace(colorSpace);
        return result;
    };
    if (photo.shrinkTo.isEmpty())
        return inSourceColours(
            apply(std::move(photo.image), operations, options.pixelBudget, photoContext));
    // The reduced photo is brought to the size the first operation gives the whole photo.
    RSZValues exactSize;
    exactSize.mode = 2;
    exactSize.width = photo.shrinkTo.width();
    exactSize.height = photo.shrinkTo.height();
    QVector<PreparedOperation> finishing = operations;
    finishing.first().apply = [exactSize](QImage image, const PhotoContext&) {
        return RSZOperation::run(std::move(image), exactSize);
    };
    finishing.first().resultSize = [target = photo.shrinkTo](const QSize&) { return target; };
    return inSourceColours(
        apply(std::move(photo.image), finishing, options.pixelBudget, photoContext));
}

BatchEngine::Result BatchEngine::writeOut(int index, Photo photo)
{
    if (photo.image.isNull())
        return {{}, {}, photo.error};
    const QString& target = targets.at(index);
    if (!targetErrors.at(index).isEmpty())
        return {{}, {}, targetErrors.at(index)};
    QString error;
    if (!target.isEmpty() &&
        !makeSubfolder(target.mid(destination.size()).section('/', 0, -2), error))
        return {{}, {}, error};
    if (target.isEmpty())
        return {
            {},
            {},
            tr("cannot write: the name \"%1\" would leave the output folder").arg(names.at(index))};
    const WriteResult written = write(photo.image, target, photo.metadata, photo.encodedPixels);
    return {std::move(photo.image), target, written.error, written.note};
}

bool BatchEngine::searchesQuality() const
{
    return settings.maxKilobytes > 0 && OutputSettings::takesSizeBudget(settings.format);
}

QImage BatchEngine::asFormatTakesIt(const QImage& image) const
{
    return settings.keepsTransparency() ? image : laidOn(image, settings.background);
}

QByteArray BatchEngine::encodedPixels(const QImage& written, int quality) const
{
    QByteArray encoded;
    QBuffer buffer(&encoded);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, settings.format.toLatin1());
    writer.setQuality(quality);
    return writer.write(written) ? encoded : QByteArray();
}

BatchEngine::WriteResult BatchEngine::write(const QImage& image, const QString& path,
                                            const PhotoMetadata& metadata,
                                            const QByteArray& encodedBefore)
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
    // Laid on the background once, however many qualities the budget tries.
    const QImage written = encodedBefore.isEmpty() ? asFormatTakesIt(image) : QImage();
    const auto encode = [&](int quality) {
        const QByteArray pixels =
            encodedBefore.isEmpty() ? encodedPixels(written, quality) : encodedBefore;
        return pixels.isEmpty() ? QByteArray()
                                : metadata.embedInto(pixels, image.size(), settings,
                                                     image.colorSpace().iccProfile());
    };
    // A photo that fits its budget not even at quality 1 is written at 1 and said so.
    const qint64 budget = qint64(settings.maxKilobytes) * 1024;
    QByteArray bytes;
    QString note;
    if (searchesQuality()) {
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

BatchEngine::Photo BatchEngine::load(const QString& path, qint64 pixelBudget,
                                     const PhotoDecoding& decoding)
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
    const bool jpeg = reader.format() == "jpeg";
    if (decoding.shrinksTo && jpeg && !decoding.fast) {
        const QImageIOHandler::Transformations turn = reader.transformation();
        const QSize target = decoding.shrinksTo(OrkGraphX::RowShrinker::upright(size, turn));
        std::optional<Photo> shrunk = shrunkWhileRead(path, {size, turn}, target, decoding);
        if (shrunk)
            return std::move(*shrunk);
    }
    const QSize shrinkTo = decoding.shrinksTo && decoding.fast && jpeg
                               ? shrunkDecoding(reader, size, decoding.shrinksTo)
                               : QSize();
    const QSize decodedSize = shrinkTo.isEmpty() ? size : reader.scaledSize();
    // Decoded into the memory offered when the reader makes a 32-bit image of that very size.
    QImage image =
        decoding.buffers ? decoding.buffers->take(decodedSize, reader.imageFormat()) : QImage();
    const ThreadMessages decoder;
    if (!reader.read(&image))
        image = QImage();
    const QString error = decodingError(decoder, !image.isNull());
    if (!error.isEmpty())
        return {{}, error};
    if (qint64(image.width()) * image.height() > pixelBudget)
        return {{}, tooLarge(image.size())};
    image = asWords(std::move(image), decoding.buffers);
    if (reader.transformation() != QImageIOHandler::TransformationNone)
        image = upright(image, reader.transformation());
    if (decoding.toSrgb)
        image = ColorProfiles::toSrgb(image, image.colorSpace().iccProfile());
    return {std::move(image), {}, {}, shrinkTo};
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
