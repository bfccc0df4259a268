// The progress window of a batch run: the latest result, the count, Pause/Resume and Stop.
#pragma once

#include "batchoperations.h"

#include <QDialog>
#include <QHash>
#include <QImage>
#include <QList>
#include <QUrl>

class BatchThread;
class BatchWorker;
class QLabel;
class QProgressBar;
class QPushButton;

class BatchDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BatchDialog(QWidget* parent = nullptr);
    // Stops a run that is still going and waits for its thread.
    ~BatchDialog() override;

    // Reads the output settings, creates the destination (the folder chosen to save into, or
    // else a time-stamped one under the output base folder), hands everything to the worker
    // and starts the thread. The caller then shows the dialog (exec()).
    // inputFolders: the folder given as input that a photo was found in, by the photo's path.
    void startBatch(const BatchOperations& operations, const QList<QUrl>& files,
                    const QHash<QString, QString>& inputFolders = {});

    // The folder of the current run, ending in "/".
    QString destinationFolder() const { return destination; }
    // For listeners to the run's photos and its end.
    BatchWorker* batchWorker() const { return worker; }

signals:
    void start();
    void paused();

public slots:
    void slotPause();
    void slotStop();
    // Kept for callers that report progress; the bar follows slotUpdateInfo.
    void slotProgressChanged(int value);
    void slotAccept();
    void slotUpdateInfo(const QImage& image, int nCur, int nCount);
    // Below the count: the photo just finished and the time the run still takes.
    void slotProgressDetails(const QString& fileName, const QString& timeLeft);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void resetView();
    // The latest result scaled into the preview; results that came faster are passed over.
    void showPreview();

    BatchWorker* worker = nullptr;
    BatchThread* thread = nullptr;
    QString destination;
    QLabel* previewLabel = nullptr;
    QLabel* infoLabel = nullptr;
    QLabel* detailsLabel = nullptr;
    QImage preview;
    bool previewPending = false;
    QProgressBar* progressBar = nullptr;
    QPushButton* pauseButton = nullptr;
    QPushButton* stopButton = nullptr;
};
