#include "representor.h"

#include "flatbutton.h"
#include "flowoperations.h"
#include "flowtext.h"

#include "basenode.h"
#include "batchdialog.h"
#include "batchworker.h"
#include "commondata.h"
#include "imagepreview.h"
#include "imageviewdialog.h"
#include "itemsmodel.h"
#include "nodesoptionspanel.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

// 70 % of the screen, centred on it.
QRect largeViewGeometry(const QScreen* screen)
{
    const QRect desktop = screen ? screen->geometry() : QRect(0, 0, 800, 600);
    const QSize size(qRound(desktop.width() * 0.7), qRound(desktop.height() * 0.7));
    return QRect(desktop.left() + (desktop.width() - size.width()) / 2,
                 desktop.top() + (desktop.height() - size.height()) / 2, size.width(),
                 size.height());
}

} // namespace

Representor::Representor(NodesOptionsPanel* optionsPanel, QWidget* parent)
    : QFrame(parent)
    , optionsPanel(optionsPanel)
{
    batchDialog = new BatchDialog(this);
    imagePreview = new ImagePreview(this);
    imageViewDialog = new ImageViewDialog(this);

    connect(imagePreview, &ImagePreview::next, this, &Representor::next);
    connect(imagePreview, &ImagePreview::previous, this, &Representor::previous);
    connect(imageViewDialog, &ImageViewDialog::next, this, &Representor::next);
    connect(imageViewDialog, &ImageViewDialog::previous, this, &Representor::previous);
    // The worker's signals arrive queued, each photo's before the run's end.
    BatchWorker* worker = batchDialog->batchWorker();
    connect(worker, &BatchWorker::photoDone, this,
            [this](const QString& source, const QString& error) { lastRun.add(source, error); });
    connect(worker, &BatchWorker::finished, this, [this] { emit batchFinished(lastRun); });

    auto* title = new QLabel(tr("<H2><CENTER>Result</CENTER></H2>"), this);
    QPushButton* previewButton = OrkWidgets::newFlatButton("PreviewButton", this, QString(),
                                                           tr("Show the result in full size"));
    connect(previewButton, &QPushButton::clicked, this, &Representor::slotPreview);

    auto* header = new QHBoxLayout;
    header->setContentsMargins(0, 0, 0, 0);
    header->setSpacing(0);
    header->addWidget(title, 1);
    header->addWidget(previewButton);

    auto* body = new QVBoxLayout(this);
    body->setContentsMargins(3, 3, 3, 3);
    body->setSpacing(0);
    body->addLayout(header);
    body->addWidget(imagePreview);
    body->addStretch(1);
}

BatchOperations Representor::batchOperations(const QMap<int, BaseNode*>& flow)
{
    return batchOperationsFromFlow(FlowText::flowText(flow));
}

void Representor::slotSetImage(const QImage& image)
{
    imagePreview->setResult(image);
    imageViewDialog->setImage(image);
}

void Representor::slotSetFormat(const QString& format)
{
    Q_UNUSED(format)
}

void Representor::slotRealPreview() {}

void Representor::slotPreview()
{
    CommonData::instance()->previewMode = 0;
    emit realSizeRequired();

    const QRect target = largeViewGeometry(imagePreview->screen());
    const QPoint centre = imagePreview->mapToGlobal(imagePreview->rect().center());
    const QRect start(
        centre, QSize(qRound(imagePreview->width() / 10.0), qRound(imagePreview->height() / 10.0)));
    imageViewDialog->animateOpening(start, target);
    imageViewDialog->setFocus();
    imageViewDialog->exec();

    CommonData::instance()->previewMode = 1;
}

void Representor::slotRunBatchClicked()
{
    const QList<QUrl> photos = CommonData::instance()->itemsModel()->photos();
    // Without photos a run would only leave an empty folder behind.
    if (photos.isEmpty())
        return;
    batchDialog->startBatch(batchOperations(optionsPanel->flow()), photos,
                            CommonData::instance()->inputFolders);
    // A stopped run that was still finishing its photo has ended now; what it reported is
    // told before this run's count begins.
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    lastRun = {batchDialog->destinationFolder(), photos.size(), 0, {}};
    batchDialog->exec();
}

void Representor::slotNext()
{
    emit next();
}
