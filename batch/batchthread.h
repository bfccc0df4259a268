// The thread of a batch run: starts the worker shortly after its event loop is up.
#pragma once

#include <QThread>

class BatchWorker;

class BatchThread : public QThread
{
    Q_OBJECT

public:
    // worker must have been moved to this thread.
    explicit BatchThread(BatchWorker* worker, QObject* parent = nullptr);

protected:
    void run() override;

private:
    BatchWorker* worker = nullptr;
};
