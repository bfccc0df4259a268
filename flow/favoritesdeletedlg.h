// Asks which saved flow to delete.
#pragma once

#include <QDialog>

class QListWidget;
class QPushButton;

class FavoritesDeleteDlg : public QDialog
{
    Q_OBJECT

public:
    explicit FavoritesDeleteDlg(QWidget* parent = nullptr);

    // Replaces the list; each name goes to the top, so the list reverses the given order.
    void setFlowNames(const QStringList& names);
    // The selected name; empty while none is selected, as when the dialog opens.
    QString selectedName() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QListWidget* list = nullptr;
    QPushButton* deleteButton = nullptr;
};
