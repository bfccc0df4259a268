// The icon list of the photo side: every photo as a 48 x 48 thumbnail with its name.
#pragma once

#include <QList>
#include <QListView>
#include <QUrl>

class CreatorIconsView : public QListView
{
    Q_OBJECT

public:
    explicit CreatorIconsView(QWidget* parent = nullptr);

signals:
    // The user chose a photo, or a step changed the photo while this list is the one shown.
    void itemClicked(int row);

public slots:
    void slotUpdateItems(const QList<QUrl>& urls);
    void slotSetCurrentIndex(int row);
    void slotCurrentItem(const QModelIndex& current, const QModelIndex& previous);

private:
    // Set while the list itself moves the current row for a new photo list.
    bool quiet = false;
};
