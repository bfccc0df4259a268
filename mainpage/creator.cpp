#include "creator.h"

#include "appdata.h"
#include "commondata.h"
#include "creatordroparea.h"
#include "creatoriconsview.h"
#include "flatbutton.h"
#include "itemsmodel.h"
#include "nodesoptionspanel.h"
#include "photofiles.h"
#include "representor.h"
#include "resultthumbnails.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
const char showResultsKey[] = "KeyIconListResults";
} // namespace

Creator::Creator(NodesOptionsPanel* optionsPanel, QWidget* parent)
    : QWidget(parent)
    , optionsPanel(optionsPanel)
{
    setAcceptDrops(true);
    setFixedWidth(360);

    area = new CreatorDropArea(this);
    icons = new CreatorIconsView(this);
    icons->setFixedSize(area->size());
    icons->hide();

    connect(area, &CreatorDropArea::updateItems, icons, &CreatorIconsView::slotUpdateItems);
    connect(area, &CreatorDropArea::indexChanged, icons, &CreatorIconsView::slotSetCurrentIndex);
    connect(area, &CreatorDropArea::dropped, this, &Creator::slotDropped);
    connect(area, &CreatorDropArea::updateItems, this, &Creator::slotListChanged);
    connect(icons, &CreatorIconsView::itemClicked, area, &CreatorDropArea::slotItemClicked);
    connect(optionsPanel, &NodesOptionsPanel::imageChanged, this, &Creator::imageChanged);
    connect(optionsPanel, &NodesOptionsPanel::realPreview, this, &Creator::realPreview);

    auto* title = new QLabel(tr("<H2><CENTER>Original</CENTER></H2>"), this);
    iconViewButton = OrkWidgets::newToggleButton("IconViewButton", this,
                                                 tr("Switch between the photo and the icon list"));
    iconViewButton->setChecked(true);
    connect(iconViewButton, &QPushButton::clicked, this, &Creator::slotShowModeChanged);
    resultsViewButton = OrkWidgets::newToggleButton("ResultsViewButton", this,
                                                    tr("Show the photos as the flow makes them"));
    resultsViewButton->hide();
    connect(resultsViewButton, &QPushButton::clicked, this, &Creator::slotShowResultsChanged);
    resultThumbnails = new ResultThumbnails(
        CommonData::instance()->itemsModel(),
        [optionsPanel] { return Representor::batchOperations(optionsPanel->flow()); }, this);
    // Every run of the preview follows a change of the flow, its parameters or the photo.
    connect(optionsPanel, &NodesOptionsPanel::imageChanged, resultThumbnails,
            &ResultThumbnails::slotFlowTouched);

    auto* header = new QHBoxLayout;
    header->setContentsMargins(0, 0, 0, 0);
    header->setSpacing(0);
    header->addWidget(title, 1);
    header->addWidget(resultsViewButton);
    header->addWidget(iconViewButton);

    // No side margins: the 360 wide area fills the 360 wide side exactly.
    auto* body = new QVBoxLayout(this);
    body->setContentsMargins(0, 3, 0, 3);
    body->setSpacing(0);
    body->addLayout(header);
    body->addWidget(area);
    body->addWidget(icons);
    body->addStretch(1);

    const bool showResults = OrkTools::AppData::readSetting(showResultsKey, false).toBool();
    resultsViewButton->setChecked(showResults);
    CommonData::instance()->itemsModel()->setShowResults(showResults);
}

void Creator::slotDropped(bool loaded)
{
    Q_UNUSED(loaded)
    const QString path = area->currentPath();
    QImage photo = PhotoFiles::read(path);
    photo.setDevicePixelRatio(1.0);
    area->setCaption(PhotoLabel::captionText(QFileInfo(path).fileName(), photo.size()));
    optionsPanel->setImage(photo);
    emit formatChanged(QString::fromLatin1(QImageReader::imageFormat(path)));
}

void Creator::slotShowModeChanged(bool checked)
{
    area->setVisible(checked);
    icons->setVisible(!checked);
    resultsViewButton->setVisible(!checked);
    // Results are made only while they can be seen.
    resultThumbnails->setActive(!checked && resultsViewButton->isChecked());
}

void Creator::slotShowResultsChanged(bool checked)
{
    OrkTools::AppData::writeSetting(showResultsKey, checked);
    CommonData::instance()->itemsModel()->setShowResults(checked);
    resultThumbnails->setActive(checked && !icons->isHidden());
}

void Creator::slotNext()
{
    area->slotNext();
}

void Creator::slotPrevious()
{
    area->slotPreviuos();
}

void Creator::slotGotoFirst()
{
    area->slotGotoFirst();
}

void Creator::slotListChanged(const QList<QUrl>& urls)
{
    if (urls.isEmpty()) {
        iconViewButton->setChecked(true);
        slotShowModeChanged(true);
    }
}

void Creator::dragEnterEvent(QDragEnterEvent* event)
{
    if (CreatorDropArea::canTake(event->mimeData()))
        event->acceptProposedAction();
}

void Creator::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    area->setPhotos(event->mimeData()->urls());
}
