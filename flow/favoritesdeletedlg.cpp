#include "favoritesdeletedlg.h"

#include "flatbutton.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

FavoritesDeleteDlg::FavoritesDeleteDlg(QWidget* parent)
    : QDialog(parent)
    , list(new QListWidget(this))
    , deleteButton(OrkWidgets::newFlatButton("DeleteButton", this, tr("&Delete")))
{
    setObjectName("Dialog");
    setWindowTitle(tr("Delete the flow"));
    setMinimumSize(400, 300);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    QPushButton* cancelButton = OrkWidgets::newFlatButton("PushButton", this, tr("&Cancel"));
    cancelButton->setFixedHeight(32);
    deleteButton->setFixedHeight(32);
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(deleteButton, &QPushButton::clicked, this, &QDialog::accept);
    // Deleting needs a choice: nothing is chosen for the user.
    connect(list, &QListWidget::itemSelectionChanged, this,
            [this] { deleteButton->setEnabled(!list->selectedItems().isEmpty()); });

    setTabOrder(cancelButton, deleteButton);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cancelButton);
    buttons->addWidget(deleteButton);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list);
    layout->addLayout(buttons);
}

void FavoritesDeleteDlg::setFlowNames(const QStringList& names)
{
    list->clear();
    for (const QString& name : names)
        list->insertItem(0, name);
}

QString FavoritesDeleteDlg::selectedName() const
{
    const QList<QListWidgetItem*> selected = list->selectedItems();
    return selected.isEmpty() ? QString() : selected.constFirst()->text();
}

void FavoritesDeleteDlg::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    list->clearSelection();
    deleteButton->setEnabled(false);
    list->setFocus();
}
