// The flow's results for the photo grid, so that a watermark cut off on one photo among
// hundreds shows before the run: each photo's preview working copy run through the flow on a
// thread of its own and fitted into a thumbnail, again a moment after the flow changes. The
// window never waits for it.
#pragma once

#include "batchoperations.h"
#include "textmacros.h"

#include <QCache>
#include <QImage>
#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <functional>
#include <memory>

class ItemsModel;

class ResultThumbnails : public QObject
{
    Q_OBJECT

public:
    // flowOperations gives the flow as a batch runs it; it is asked when a refresh is due.
    ResultThumbnails(ItemsModel* model, std::function<BatchOperations()> flowOperations,
                     QObject* parent = nullptr);
    // Drops the photos not begun and waits for the one in hand.
    ~ResultThumbnails() override;

    // While inactive nothing is run; becoming active runs every photo.
    void setActive(bool active);

public slots:
    // The flow or a node's parameters may have changed: the flow is looked at again a moment
    // later, and the photos run again if it differs.
    void slotFlowTouched();

private:
    // A photo reduced as the preview reduces it, and what a watermark may name of it.
    struct WorkingCopy
    {
        QImage image;
        PhotoContext photo;
    };
    // One photo's result in the making, from the pool back to this thread.
    struct Outcome;

    void refresh(bool force);
    void deliver(const Outcome& outcome);

    ItemsModel* model;
    std::function<BatchOperations()> flowOperations;
    BatchOperations operations;
    bool active = false;
    QTimer settle;
    // The working copies of the photos by path, so that a flow change runs only the flow.
    QCache<QString, WorkingCopy> workingCopies;
    // Raised by every refresh; a photo of an earlier one is dropped.
    std::shared_ptr<std::atomic<int>> generation;
    QThreadPool pool;
};
