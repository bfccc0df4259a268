#include "batchdialog.h"

#include "appdata.h"
#include "batchthread.h"
#include "batchworker.h"
#include "outputsettings.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

// Without the customize hint Qt would add a system menu and the window manager a close
// button: the run is ended through Stop only.
BatchDialog::BatchDialog(QWidget* parent)
    : QDialog(parent,
              Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint)
    , worker(new BatchWorker)
{
    thread = new BatchThread(worker, this);
    worker->moveToThread(thread);

    setWindowTitle(QCoreApplication::applicationName() + tr(" Batch Process"));
    setMinimumWidth(500);

    previewLabel = new QLabel;
    previewLabel->setObjectName("PreviewLabel");
    previewLabel->setMinimumSize(400, 400);
    previewLabel->setAlignment(Qt::AlignCenter);
    infoLabel = new QLabel;
    detailsLabel = new QLabel;
    detailsLabel->setObjectName("BatchDetailsLabel");
    detailsLabel->setAlignment(Qt::AlignCenter);
    progressBar = new QProgressBar;
    progressBar->setRange(0, 100);
    progressBar->setMaximumHeight(32);
    pauseButton = new QPushButton(tr("Pause"));
    pauseButton->setObjectName("BatchPauseButton");
    pauseButton->setCheckable(true);
    stopButton = new QPushButton(tr("Stop"));
    stopButton->setObjectName("BatchStopButton");

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(pauseButton);
    buttons->addWidget(stopButton);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(previewLabel);
    layout->addWidget(infoLabel);
    layout->addWidget(detailsLabel);
    layout->addWidget(progressBar);
    layout->addLayout(buttons);

    connect(worker, &BatchWorker::updateInfo, this, &BatchDialog::slotUpdateInfo);
    connect(worker, &BatchWorker::progressDetails, this, &BatchDialog::slotProgressDetails);
    connect(worker, &BatchWorker::finished, this, &BatchDialog::slotAccept);
    connect(pauseButton, &QPushButton::clicked, this, &BatchDialog::slotPause);
    connect(stopButton, &QPushButton::clicked, this, &BatchDialog::slotStop);
    connect(this, &QDialog::rejected, this, &BatchDialog::slotStop);
    // A stop that comes before the worker has begun ends the thread without a finished();
    // the dialog must close all the same. After a run the dialog is already closed.
    connect(thread, &QThread::finished, this, [this] {
        if (isVisible() && !thread->isRunning())
            accept();
    });
}

BatchDialog::~BatchDialog()
{
    worker->requestStop();
    thread->quit();
    thread->wait();
    delete worker;
}

void BatchDialog::startBatch(const BatchOperations& operations, const QList<QUrl>& files,
                             const QHash<QString, QString>& inputFolders)
{
    thread->wait();
    const OutputSettings settings = OutputSettings::load();
    // A folder of the user's choosing takes the results itself, without a time-stamped one.
    destination = settings.saveInto.isEmpty()
                      ? OrkTools::AppData::outputBaseFolder() +
                            QDateTime::currentDateTime().toString("yyyy-MM-dd_hh-mm-ss") + "/"
                      : QDir(settings.saveInto).absolutePath() + "/";
    QDir().mkpath(destination);
    worker->prepare(settings, destination, files, operations, inputFolders);
    thread->start(QThread::InheritPriority);
}

void BatchDialog::slotPause()
{
    const bool pause = pauseButton->isChecked();
    pauseButton->setText(pause ? tr("Resume") : tr("Pause"));
    worker->setPaused(pause);
}

void BatchDialog::slotStop()
{
    worker->requestStop();
    thread->quit();
}

void BatchDialog::slotProgressChanged(int value)
{
    Q_UNUSED(value)
}

void BatchDialog::slotAccept()
{
    accept();
    if (OutputSettings::load().openLocation)
        QDesktopServices::openUrl(QUrl::fromLocalFile(destination));
    thread->quit();
}

void BatchDialog::slotUpdateInfo(const QImage& image, int nCur, int nCount)
{
    infoLabel->clear();
    preview = image;
    // Queued behind the results already waiting, so that only the last of them is scaled.
    if (!previewPending) {
        previewPending = true;
        QMetaObject::invokeMethod(this, &BatchDialog::showPreview, Qt::QueuedConnection);
    }
    progressBar->setValue(nCount > 0 ? nCur * 100 / nCount : 0);
    infoLabel->setText(
        QString("<CENTER><H2>%1 %2 %3</H2></CENTER>").arg(nCur + 1).arg(tr("of")).arg(nCount));
}

void BatchDialog::slotProgressDetails(const QString& fileName, const QString& timeLeft)
{
    detailsLabel->setText(fileName + "\n" + timeLeft);
}

void BatchDialog::showPreview()
{
    previewPending = false;
    if (preview.isNull())
        return;
    previewLabel->setPixmap(QPixmap::fromImage(
        preview.scaled(previewLabel->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    preview = QImage();
}

void BatchDialog::showEvent(QShowEvent* event)
{
    resetView();
    QDialog::showEvent(event);
}

void BatchDialog::resetView()
{
    pauseButton->setChecked(false);
    pauseButton->setText(tr("Pause"));
    progressBar->setValue(0);
    previewLabel->clear();
    preview = QImage();
    detailsLabel->clear();
    infoLabel->setText(tr("<CENTER><H1>Please, wait...</H1></CENTER>"));
}
