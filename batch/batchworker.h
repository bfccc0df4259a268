// The batch run itself: every photo through the flow and into the destination folder.
// Lives on the batch thread; the dialog sets it up before the thread starts.
#pragma once

#include "batchoperations.h"
#include "outputsettings.h"

#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

#include <atomic>

class BatchWorker : public QObject
{
    Q_OBJECT

public:
    explicit BatchWorker(QObject* parent = nullptr);

    // The settings, destination (ending in "/"), photos and operations of the next run.
    // Called before the thread starts; the run only reads them. The odd and even counters
    // are left alone, so a second run continues their numbering.
    // inputFolders: the folder given as input that a photo was found in, by the photo's path.
    void prepare(const OutputSettings& settings, const QString& destinationFolder,
                 const QList<QUrl>& photos, const BatchOperations& flowOperations,
                 const QHash<QString, QString>& inputFolders = {});

    // Written by the interface thread, read between photos; photos under way are finished.
    void setPaused(bool pause) { paused = pause; }
    void requestStop() { stopRequested = true; }

signals:
    void finished();
    // A processed photo once it is written (or failed to be), nCur + 1 photos of nCount being
    // finished then.
    void updateInfo(const QImage& image, int nCur, int nCount);
    // Each photo the run reached: error is empty when its result was written, else the reason.
    void photoDone(const QString& source, const QString& error);
    // The file name of the photo just finished and the time the run still takes ("12 s left").
    void progressDetails(const QString& fileName, const QString& timeLeft);

public slots:
    void slotDoWork();

private:
    OutputSettings settings;
    QString destination = ".";
    int oddCounter = 1;
    int evenCounter = 2;
    QList<QUrl> files;
    QHash<QString, QString> folders;
    BatchOperations operations;
    std::atomic<bool> stopRequested{false};
    std::atomic<bool> paused{false};
};
