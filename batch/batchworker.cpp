#include "batchworker.h"

#include "batchengine.h"
#include "outputsettings.h"

#include <QThread>

namespace {

const int pausePollMs = 500;

} // namespace

BatchWorker::BatchWorker(QObject* parent)
    : QObject(parent)
{
}

void BatchWorker::prepare(const OutputSettings& outputSettings, const QString& destinationFolder,
                          const QList<QUrl>& photos, const BatchOperations& flowOperations,
                          const QHash<QString, QString>& inputFolders)
{
    settings = outputSettings;
    destination = destinationFolder;
    files = photos;
    folders = inputFolders;
    operations = flowOperations;
}

void BatchWorker::slotDoWork()
{
    stopRequested = false;
    paused = false;
    QStringList paths;
    for (const QUrl& file : qAsConst(files))
        paths << file.toLocalFile();
    // The window's batch replaces same-named results, as it always has; in a folder of the
    // user's choosing what it finds there stays, and the result takes a free name beside it.
    const bool ownFolder = settings.saveInto.isEmpty();
    BatchEngine engine(paths, operations, settings, destination,
                       {false, ownFolder, settings.pixelBudget(), !ownFolder});
    engine.setInputFolders(folders);
    engine.setCounters(oddCounter, evenCounter);
    const int count = paths.size();
    for (int i = 0; i < count; ++i) {
        waitWhilePaused();
        if (stopRequested)
            break;
        const BatchEngine::Result result = engine.step(i);
        if (!result.image.isNull())
            emit updateInfo(result.image, i, count);
        if (!result.note.isEmpty())
            qWarning().noquote() << "Batch:" << paths.at(i) << "-" << result.note;
        if (!result.written())
            qWarning().noquote() << "Batch: not written:" << paths.at(i) << "-" << result.error;
        emit photoDone(paths.at(i), result.error);
    }
    oddCounter = engine.oddCounter();
    evenCounter = engine.evenCounter();
    emit finished();
}

// A stop also ends the wait, within one polling interval.
void BatchWorker::waitWhilePaused() const
{
    while (paused && !stopRequested)
        QThread::msleep(pausePollMs);
}
