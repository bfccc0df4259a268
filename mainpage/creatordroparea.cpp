#include "creatordroparea.h"

#include "commondata.h"
#include "photofiles.h"
#include "photometadata.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>

CreatorDropArea::CreatorDropArea(QWidget* parent)
    : PhotoLabel(parent)
{
    setObjectName("DropArea");
    setFixedSize(360, 360);
    setAcceptDrops(true);

    openButton = new QPushButton(QIcon(":/openfiles.png"), tr("Click to open the photos"), this);
    openButton->setObjectName("PushButton");
    openButton->setFixedHeight(32);
    column->addWidget(openButton);
    showInvitation(true);

    connect(openButton, &QPushButton::clicked, this, &CreatorDropArea::slotOpenClicked);
    connect(nextButton, &QPushButton::clicked, this, &CreatorDropArea::slotNext);
    connect(previousButton, &QPushButton::clicked, this, &CreatorDropArea::slotPreviuos);
}

bool CreatorDropArea::canTake(const QMimeData* data)
{
    return data->hasFormat("text/uri-list");
}

void CreatorDropArea::setPhotos(const QList<QUrl>& newUrls)
{
    QHash<QString, QString> foundIn;
    const QList<QUrl> expanded = PhotoFiles::expandFolders(newUrls, &foundIn);
    if (expanded.isEmpty())
        return;
    CommonData::instance()->inputFolders = foundIn;
    takeList(expanded, 0, true);
}

void CreatorDropArea::addPhotos(const QList<QUrl>& newUrls)
{
    QHash<QString, QString> foundIn;
    const QList<QUrl> expanded = PhotoFiles::expandFolders(newUrls, &foundIn);
    if (expanded.isEmpty())
        return;
    QHash<QString, QString>& inputFolders = CommonData::instance()->inputFolders;
    for (const QUrl& url : expanded)
        inputFolders.remove(url.toLocalFile());
    inputFolders.insert(foundIn);
    takeList(urls + expanded, index, urls.isEmpty());
}

void CreatorDropArea::slotRemoveCurrent()
{
    if (urls.isEmpty())
        return;
    QList<QUrl> rest = urls;
    rest.removeAt(index);
    takeList(rest, qMin(index, rest.size() - 1), true);
}

void CreatorDropArea::slotClear()
{
    if (!urls.isEmpty())
        takeList({}, 0, true);
}

void CreatorDropArea::takeList(const QList<QUrl>& newUrls, int newIndex, bool load)
{
    urls = newUrls;
    index = qMax(newIndex, 0);
    path = urls.isEmpty() ? QString() : urls.at(index).toLocalFile();
    showInvitation(urls.isEmpty());
    // Before the photo is handed on, so that the flow's run sees its position and count.
    refreshCounter();
    // An empty path shows no picture and hands on a null photo: the result side empties too.
    if (load) {
        showCurrentPhoto();
        emit dropped(true);
    }
    emit updateItems(urls);
}

void CreatorDropArea::showInvitation(bool shown)
{
    openButton->setVisible(shown);
    setBackground(shown ? QPixmap(":/droparea.png") : QPixmap());
    setText(shown ? tr("<H2>Drop the photos here</H2>") : QString());
}

void CreatorDropArea::slotOpenClicked()
{
    const QStringList files = QFileDialog::getOpenFileNames(this, tr("Open the photos"));
    if (files.isEmpty())
        return;
    QList<QUrl> chosen;
    for (const QString& file : files)
        chosen << QUrl::fromLocalFile(file);
    setPhotos(chosen);
}

bool CreatorDropArea::stepLoads() const
{
    return sender() != nullptr || !isHidden();
}

void CreatorDropArea::slotNext()
{
    if (urls.isEmpty())
        return;
    moveTo(index + 1 < urls.size() ? index + 1 : 0);
    if (stepLoads())
        emit dropped(true);
    emit indexChanged(index);
}

void CreatorDropArea::slotPreviuos()
{
    if (urls.isEmpty())
        return;
    moveTo(index > 0 ? index - 1 : urls.size() - 1);
    if (stepLoads())
        emit dropped(true);
    emit indexChanged(index);
}

void CreatorDropArea::slotGotoFirst()
{
    if (urls.isEmpty())
        return;
    moveTo(0);
    emit dropped(true);
    emit indexChanged(0);
}

void CreatorDropArea::slotItemClicked(int i)
{
    if (i < 0 || i >= urls.size())
        return;
    moveTo(i);
    emit dropped(true);
}

void CreatorDropArea::moveTo(int newIndex)
{
    index = newIndex;
    path = urls.at(index).toLocalFile();
    refreshCounter();
    showCurrentPhoto();
}

void CreatorDropArea::showCurrentPhoto()
{
    const QSize box(qRound(width() * 2.0), qRound(height() * 2.0));
    setPicture(QPixmap::fromImage(PhotoFiles::readFitted(path, box)));
}

void CreatorDropArea::refreshCounter()
{
    infoLabel->setText("<CENTER>" + positionText(index, urls.size()) + "</CENTER>");
    CommonData* data = CommonData::instance();
    data->photoCount = urls.size();
    data->currentIndex = index;
    data->displayName = CommonData::displayNameOf(path);
    // Read once per photo, not at every run of the flow.
    if (path != describedPath) {
        describedPath = path;
        data->photo = path.isEmpty() ? PhotoContext() : PhotoMetadata::read(path).describe(path);
    }
    data->photo.number = index + 1;
    data->photo.count = urls.size();
}

void CreatorDropArea::dragEnterEvent(QDragEnterEvent* event)
{
    if (canTake(event->mimeData()))
        event->acceptProposedAction();
}

void CreatorDropArea::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    setPhotos(event->mimeData()->urls());
}

void CreatorDropArea::enterEvent(QEvent* event)
{
    PhotoLabel::enterEvent(event);
    if (urls.size() > 1)
        setStepControlsVisible(true);
}

void CreatorDropArea::leaveEvent(QEvent* event)
{
    PhotoLabel::leaveEvent(event);
    setStepControlsVisible(false);
}
