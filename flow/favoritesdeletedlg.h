// Asks which saved flow to delete.
#pragma once

#include <QDialog>

class QListWidget;

class FavoritesDeleteDlg : public QDialog
{
    Q_OBJECT

public:
    explicit FavoritesDeleteDlg(QWidget* parent = nullptr);

    // Replaces the list; each name goes to the top, so the list reverses the given order.
    void setFlowNames(const QStringList& names);
    // The current row's name, empty when the list is empty.
    QString selectedName() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QListWidget* list = nullptr;
};
