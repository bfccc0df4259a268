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
                          const QList<QUrl>& photos, const BatchOperations& flowOperations)
{
    settings = outputSettings;
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
    // The window's batch replaces same-named results, as it always has.
    BatchEngine engine(
        paths, operations, settings, destination,
        {false, true, settings.pixelBudget(), settings.jobCount(), settings.fastReading});
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
    };
    engine.run({next, report});
    oddCounter = engine.oddCounter();
    evenCounter = engine.evenCounter();
    emit finished();
}
