#include "resultthumbnails.h"

#include "batchengine.h"
#include "itemsmodel.h"
#include "outputsettings.h"
#include "previewcopy.h"

#include <QtConcurrent>

namespace {

// A slider drag settles before the photos run again.
const int settleMs = 400;
// The working copies kept, in kilobytes: some three hundred photos of 4:3.
const int workingCopiesKb = 96 * 1024;

int costOf(const QImage& image)
{
    return int(image.sizeInBytes() / 1024) + 1;
}

} // namespace

struct ResultThumbnails::Outcome
{
    int row = 0;
    QString path;
    WorkingCopy workingCopy;
    QImage thumbnail;
};

ResultThumbnails::ResultThumbnails(ItemsModel* model,
                                   std::function<BatchOperations()> flowOperations, QObject* parent)
    : QObject(parent)
    , model(model)
    , flowOperations(std::move(flowOperations))
    , workingCopies(workingCopiesKb)
    , generation(std::make_shared<std::atomic<int>>(0))
{
    // One thread: the preview's kernels keep the other core.
    pool.setMaxThreadCount(1);
    settle.setSingleShot(true);
    settle.setInterval(settleMs);
    connect(&settle, &QTimer::timeout, this, [this] { refresh(false); });
    connect(model, &QAbstractItemModel::modelReset, this, [this] { refresh(true); });
}

ResultThumbnails::~ResultThumbnails()
{
    ++*generation;
    pool.clear();
    pool.waitForDone();
}

void ResultThumbnails::setActive(bool on)
{
    active = on;
    if (active) {
        refresh(true);
    } else {
        ++*generation;
        pool.clear();
    }
}

void ResultThumbnails::slotFlowTouched()
{
    if (active)
        settle.start();
}

void ResultThumbnails::refresh(bool force)
{
    if (!active)
        return;
    const BatchOperations current = flowOperations();
    if (!force && current == operations)
        return;
    operations = current;
    const int run = ++*generation;
    pool.clear();
    const QVector<PreparedOperation> prepared = BatchEngine::prepare(operations, true);
    const qint64 pixelBudget = OutputSettings::load().pixelBudget();
    const QList<QUrl> photos = model->photos();
    for (int row = 0; row < photos.size(); ++row) {
        const QString path = photos.at(row).toLocalFile();
        const WorkingCopy* cached = workingCopies.object(path);
        Outcome outcome{row, path, cached ? *cached : WorkingCopy(), {}};
        QtConcurrent::run(&pool, [this, outcome, prepared, pixelBudget, run, count = photos.size(),
                                  current = generation]() mutable {
            if (*current != run)
                return;
            WorkingCopy& copy = outcome.workingCopy;
            if (copy.image.isNull()) {
                copy.image =
                    PreviewCopy::reduced(BatchEngine::load(outcome.path, pixelBudget).image);
                copy.photo = PhotoMetadata::read(outcome.path).describe(outcome.path);
            }
            if (!copy.image.isNull()) {
                // A watermark naming the photo's details shows them as the run will.
                PhotoContext photo = copy.photo;
                photo.number = outcome.row + 1;
                photo.count = count;
                const QImage result =
                    BatchEngine::apply(copy.image, prepared, pixelBudget, photo).image;
                outcome.thumbnail = ItemsModel::fitIntoThumbnail(result, ItemsModel::resultSide);
            }
            QMetaObject::invokeMethod(
                this,
                [this, outcome, run, current] {
                    if (*current == run)
                        deliver(outcome);
                },
                Qt::QueuedConnection);
        });
    }
}

void ResultThumbnails::deliver(const Outcome& outcome)
{
    const WorkingCopy& copy = outcome.workingCopy;
    if (!copy.image.isNull() && !workingCopies.contains(outcome.path))
        workingCopies.insert(outcome.path, new WorkingCopy(copy), costOf(copy.image));
    model->setResultThumbnail(outcome.row, outcome.thumbnail);
}
