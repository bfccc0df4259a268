#include "photoactions.h"

#include "appdata.h"
#include "creator.h"
#include "creatordroparea.h"
#include "photofiles.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStandardPaths>

namespace {
const char* const keyLastPhotoFolder = "KeyLastPhotoFolder";
} // namespace

PhotoActions::PhotoActions(Creator* photoSide, QWidget* dialogParent)
    : QObject(dialogParent)
    , photoSide(photoSide)
    , dialogParent(dialogParent)
    , addPhotosAction(newAction(tr("&Add Photos…"), QKeySequence(Qt::CTRL + Qt::Key_O)))
    , addFolderAction(newAction(tr("Add &Folder…"), {}))
    , removePhotoAction(newAction(tr("&Remove Photo"), QKeySequence(Qt::Key_Delete)))
    , clearPhotosAction(newAction(tr("&Clear Photos"), {}))
    , nextPhotoAction(newAction(tr("Next Photo"), QKeySequence(Qt::Key_Right)))
    , previousPhotoAction(newAction(tr("Previous Photo"), QKeySequence(Qt::Key_Left)))
{
    CreatorDropArea* area = photoSide->dropArea();
    connect(addPhotosAction, &QAction::triggered, this, &PhotoActions::slotAddPhotos);
    connect(addFolderAction, &QAction::triggered, this, &PhotoActions::slotAddFolder);
    connect(removePhotoAction, &QAction::triggered, area, &CreatorDropArea::slotRemoveCurrent);
    connect(clearPhotosAction, &QAction::triggered, area, &CreatorDropArea::slotClear);
    connect(nextPhotoAction, &QAction::triggered, photoSide, &Creator::slotNext);
    connect(previousPhotoAction, &QAction::triggered, photoSide, &Creator::slotPrevious);
    connect(area, &CreatorDropArea::updateItems, this, &PhotoActions::slotListChanged);
    slotListChanged(area->photos());
}

QAction* PhotoActions::newAction(const QString& text, const QKeySequence& shortcut)
{
    auto* action = new QAction(text, this);
    action->setShortcut(shortcut);
    return action;
}

QString PhotoActions::startFolder()
{
    const QString last = OrkTools::AppData::readSetting(keyLastPhotoFolder).toString();
    // A folder gone since, on a removed card for example, leaves the pictures folder.
    return !last.isEmpty() && QFileInfo(last).isDir()
               ? last
               : QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
}

void PhotoActions::slotAddPhotos()
{
    QFileDialog dialog(dialogParent, tr("Add Photos"), startFolder(),
                       tr("Photos (%1);;All Files (*)").arg(PhotoFiles::namePatterns()));
    dialog.setFileMode(QFileDialog::ExistingFiles);
    // Camera RAW alone brings some forty suffixes: the filter shows its name only.
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    QList<QUrl> chosen;
    const QStringList files = dialog.selectedFiles();
    for (const QString& file : files)
        chosen << QUrl::fromLocalFile(file);
    OrkTools::AppData::writeSetting(keyLastPhotoFolder, QFileInfo(files.first()).absolutePath());
    photoSide->dropArea()->addPhotos(chosen);
}

void PhotoActions::slotAddFolder()
{
    QFileDialog dialog(dialogParent, tr("Add Folder"), startFolder());
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    const QString folder = dialog.selectedFiles().constFirst();
    OrkTools::AppData::writeSetting(keyLastPhotoFolder, folder);
    CreatorDropArea* area = photoSide->dropArea();
    const int before = area->photos().size();
    area->addPhotos({QUrl::fromLocalFile(folder)});
    // Dropped, such a folder only opens the page; asked for by name, it deserves an answer.
    if (area->photos().size() == before)
        QMessageBox::warning(
            dialogParent, tr("Warning"),
            tr("There are no photos in the folder %1.").arg(QDir::toNativeSeparators(folder)),
            QMessageBox::Ok);
}

void PhotoActions::slotListChanged(const QList<QUrl>& urls)
{
    removePhotoAction->setEnabled(!urls.isEmpty());
    clearPhotosAction->setEnabled(!urls.isEmpty());
    nextPhotoAction->setEnabled(urls.size() > 1);
    previousPhotoAction->setEnabled(urls.size() > 1);
}
