// The commands on the photo list for the menus, the icon list's context menu and the keys: add
// photos or a folder, remove the current photo, clear the list, step through it.
#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

class Creator;
class QAction;
class QWidget;

class PhotoActions : public QObject
{
    Q_OBJECT

public:
    // The dialogs open over dialogParent.
    PhotoActions(Creator* photoSide, QWidget* dialogParent);

    QAction* addPhotos() const { return addPhotosAction; }
    QAction* addFolder() const { return addFolderAction; }
    QAction* removePhoto() const { return removePhotoAction; }
    QAction* clearPhotos() const { return clearPhotosAction; }
    QAction* nextPhoto() const { return nextPhotoAction; }
    QAction* previousPhoto() const { return previousPhotoAction; }

    // Where the dialogs open: the folder photos were last added from while it exists, otherwise
    // the pictures folder.
    static QString startFolder();

public slots:
    void slotAddPhotos();
    void slotAddFolder();

private slots:
    // Removing and clearing need a photo, stepping two.
    void slotListChanged(const QList<QUrl>& urls);

private:
    QAction* newAction(const QString& text, const QKeySequence& shortcut);

    Creator* photoSide = nullptr;
    QWidget* dialogParent = nullptr;
    QAction* addPhotosAction = nullptr;
    QAction* addFolderAction = nullptr;
    QAction* removePhotoAction = nullptr;
    QAction* clearPhotosAction = nullptr;
    QAction* nextPhotoAction = nullptr;
    QAction* previousPhotoAction = nullptr;
};
