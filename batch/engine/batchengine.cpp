#include "batchengine.h"

#include "operationcatalogue.h"
#include "outputnaming.h"
#include "photofiles.h"
#include "threadmessages.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>
#include <QtConcurrent>

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

} // namespace

BatchEngine::BatchEngine(const QStringList& sources, const BatchOperations& operations,
                         const OutputSettings& settings, const QString& destination)
    : sources(sources)
    , settings(settings)
    , destination(destination)
    , extension("." + OutputNaming::extension(settings.format))
    , operations(operations)
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
    const QString target = destination +
                           OutputNaming::outputName(sources.at(index), index, settings.rename,
                                                    settings.newName, settings.numbers, odd, even) +
                           extension;
    const WriteResult written = write(photo.image, target);
    return {std::move(photo.image), target, written.error};
}

BatchEngine::Photo BatchEngine::process(int index)
{
    if (index < 0 || index >= sources.size())
        return {{}, tr("no photo at position %1").arg(index + 1)};
    Photo photo;
    if (index == readAheadIndex)
        photo = readAhead.result();
    else
        photo = load(sources.at(index));
    readAheadIndex = index + 1;
    readAhead = readAheadIndex < sources.size()
                    ? QtConcurrent::run(&readerPool, &BatchEngine::load, sources.at(readAheadIndex))
                    : QFuture<Photo>();
    if (photo.image.isNull())
        return photo;
    return apply(std::move(photo.image), operations);
}

BatchEngine::WriteResult BatchEngine::write(const QImage& image, const QString& path) const
{
    const QStringList forms = pathForms(path);
    for (const QString& form : forms) {
        if (sourcePaths.contains(form))
            return {false, tr("cannot write: it would replace a source photo")};
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {false, tr("cannot write: %1").arg(file.errorString())};
    QImageWriter writer(&file, settings.format.toLatin1());
    writer.setQuality(settings.writerQuality());
    if (!writer.write(image)) {
        file.cancelWriting();
        return {false, tr("cannot write: %1").arg(writer.errorString())};
    }
    if (!file.commit())
        return {false, tr("cannot write: %1").arg(file.errorString())};
    return {true, {}};
}

BatchEngine::Photo BatchEngine::load(const QString& path)
{
    const ThreadMessages decoder;
    QImage image = PhotoFiles::read(path);
    if (!decoder.messages().isEmpty())
        return {{}, tr("damaged: %1").arg(decoder.messages().constFirst().trimmed())};
    if (image.isNull()) {
        return {{},
                QFileInfo(path).isFile() ? tr("unreadable: not a photo this program can read")
                                         : tr("unreadable: no such file")};
    }
    return {std::move(image).convertToFormat(QImage::Format_ARGB32), {}};
}

BatchEngine::Photo BatchEngine::apply(QImage image, const BatchOperations& operations)
{
    for (const auto& operation : operations) {
        image = applyOperation(operation.first, image, operation.second);
        if (image.isNull())
            return {{}, tr("the operation \"%1\" left no image").arg(operation.first)};
    }
    return {image, {}};
}
