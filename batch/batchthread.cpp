#include "batchthread.h"

#include "batchworker.h"

#include <QTimer>

namespace {

const int startDelayMs = 100;

} // namespace

BatchThread::BatchThread(BatchWorker* worker, QObject* parent)
    : QThread(parent)
    , worker(worker)
{
}

// Scheduling the work as an event leaves the loop able to take quit() while the run goes on.
void BatchThread::run()
{
    QTimer::singleShot(startDelayMs, worker, &BatchWorker::slotDoWork);
    exec();
}
