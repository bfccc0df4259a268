// The "Original" photo area: takes in the photo list (drop, file dialog or main page), keeps the
// current position and shows the current photo.
#pragma once

#include "photolabel.h"

#include <QList>
#include <QUrl>

class QMimeData;

class CreatorDropArea : public PhotoLabel
{
    Q_OBJECT

public:
    explicit CreatorDropArea(QWidget* parent = nullptr);

    // Only a photo list can be dropped.
    static bool canTake(const QMimeData* data);

    // Takes in a new photo list: folders stand for the photos inside them, the first photo
    // becomes current and is shown. A list that holds no photo at all changes nothing.
    void setPhotos(const QList<QUrl>& urls);
    // Appends photos, folders standing for the photos inside them; the current photo stays, or
    // the first new one becomes current when there was none.
    void addPhotos(const QList<QUrl>& urls);
    QList<QUrl> photos() const { return urls; }
    int currentIndex() const { return index; }
    QString currentPath() const { return path; }

signals:
    // Asks for the current photo to be loaded; always true.
    void dropped(bool loaded);
    void indexChanged(int index);
    void updateItems(const QList<QUrl>& urls);

public slots:
    void slotOpenClicked();
    // Next and previous wrap round. Called directly (not through a signal) while the icon list
    // is shown instead of this area, they leave the loading to the icon list.
    void slotNext();
    void slotPreviuos();
    void slotGotoFirst();
    // The icon list chose the photo, so it is not told back.
    void slotItemClicked(int i);
    // Takes the current photo out of the list; the one after it, or else the new last one,
    // becomes current. Removing the only photo is clearing.
    void slotRemoveCurrent();
    // Back to no photos and the invitation to drop them.
    void slotClear();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    // The list becomes newUrls with newIndex current, shown and loaded when load is set (the
    // current photo is another one).
    void takeList(const QList<QUrl>& newUrls, int newIndex, bool load);
    void showInvitation(bool shown);
    void moveTo(int newIndex);
    void showCurrentPhoto();
    void refreshCounter();
    // After a step asked for by a signal or while this area is the one shown.
    bool stepLoads() const;

    QList<QUrl> urls;
    int index = 0;
    QString path;
    // The photo whose metadata the shared photo context holds.
    QString describedPath;
    QPushButton* openButton = nullptr;
};
