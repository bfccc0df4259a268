#include "batchworker.h"

#include "batchengine.h"
#include "outputnaming.h"
#include "outputsettings.h"

#include <QThread>

namespace {

const int pausePollMs = 500;

} // namespace

BatchWorker::BatchWorker(QObject* parent)
    : QObject(parent)
{
}

void BatchWorker::prepare(const OutputSettings& settings, const QString& destinationFolder,
                          const QList<QUrl>& photos, const BatchOperations& flowOperations)
{
    format = settings.format;
    quality = settings.writerQuality();
    rename = settings.rename;
    newName = settings.newName;
    numbers = settings.numbers;
    destination = destinationFolder;
    files = photos;
    operations = flowOperations;
}

void BatchWorker::slotDoWork()
{
    stopRequested = false;
    paused = false;
    QStringList paths;
    for (const QUrl& file : qAsConst(files))
        paths << file.toLocalFile();
    BatchEngine engine(paths, operations, format, quality);
    const QString extension = "." + OutputNaming::extension(format);
    const int count = paths.size();
    for (int i = 0; i < count; ++i) {
        waitWhilePaused();
        if (stopRequested)
            break;
        const BatchEngine::Photo photo = engine.process(i);
        if (photo.image.isNull()) {
            qWarning().noquote() << "Batch: skipped" << paths.at(i) << "-" << photo.error;
            continue;
        }
        emit updateInfo(photo.image, i, count);
        const QString name = OutputNaming::outputName(paths.at(i), i, rename, newName, numbers,
                                                      oddCounter, evenCounter);
        const QString target = destination + name + extension;
        const BatchEngine::WriteResult result = engine.write(photo.image, target);
        if (!result.written)
            qWarning().noquote() << "Batch: cannot write" << target << "-" << result.error;
    }
    emit finished();
}

// A stop also ends the wait, within one polling interval.
void BatchWorker::waitWhilePaused() const
{
    while (paused && !stopRequested)
        QThread::msleep(pausePollMs);
}
