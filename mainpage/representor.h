// The result side of the main page: the "Result" heading, the small view, the large view and
// the start of a batch run.
#pragma once

#include "batchoperations.h"
#include "runsummarybar.h"

#include <QFrame>
#include <QImage>
#include <QMap>

class BaseNode;
class BatchDialog;
class ImagePreview;
class ImageViewDialog;
class NodesOptionsPanel;

class Representor : public QFrame
{
    Q_OBJECT

public:
    Representor(NodesOptionsPanel* optionsPanel, QWidget* parent = nullptr);

    // (name, parameter text) of each active node, in position order.
    static BatchOperations batchOperations(const QMap<int, BaseNode*>& flow);

    ImagePreview* preview() const { return imagePreview; }
    ImageViewDialog* viewDialog() const { return imageViewDialog; }

signals:
    void next();
    void previous();
    // The large view wants the flow run on the full-size photo.
    void realSizeRequired();
    void gotoFirst();
    // A batch run has ended, after its last photo or a stop.
    void batchFinished(const RunSummary& summary);

public slots:
    void slotSetImage(const QImage& image);
    // The result side has no use for the photo's format.
    void slotSetFormat(const QString& format);
    // Nor for the notice that a new photo has been run.
    void slotRealPreview();
    // Opens the large view modally; full-size runs while it is open.
    void slotPreview();
    void slotRunBatchClicked();
    void slotNext();

private:
    NodesOptionsPanel* optionsPanel = nullptr;
    // Kept for the Representor's whole life, so the odd and even numbering goes on across runs.
    BatchDialog* batchDialog = nullptr;
    ImagePreview* imagePreview = nullptr;
    ImageViewDialog* imageViewDialog = nullptr;
    RunSummary lastRun;
};
