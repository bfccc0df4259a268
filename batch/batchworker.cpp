#include "batchworker.h"

#include "batchengine.h"
#include "outputsettings.h"
#include "runclock.h"

#include <QFileInfo>

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
                       {false, ownFolder, settings.pixelBudget(), settings.jobCount(),
                        settings.fastReading, !ownFolder});
    engine.setInputFolders(folders);
    engine.setCounters(oddCounter, evenCounter);
    const int count = paths.size();
    RunClock clock(count);
    const auto next = [this] {
        if (stopRequested)
            return BatchEngine::Next::Stop;
        return paused ? BatchEngine::Next::Pause : BatchEngine::Next::Go;
    };
    const auto report = [&](int index, const BatchEngine::Result& result) {
        clock.photoFinished();
        if (!result.image.isNull())
            emit updateInfo(result.image, clock.finished() - 1, count);
        emit progressDetails(QFileInfo(paths.at(index)).fileName(), clock.timeLeftText());
        if (!result.note.isEmpty())
            qWarning().noquote() << "Batch:" << paths.at(index) << "-" << result.note;
        if (!result.written())
            qWarning().noquote() << "Batch: not written:" << paths.at(index) << "-" << result.error;
        emit photoDone(paths.at(index), result.error);
    };
    engine.run({next, report});
    oddCounter = engine.oddCounter();
    evenCounter = engine.evenCounter();
    emit finished();
}
