#include "favoritesdeletedlg.h"

#include "flatbutton.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

FavoritesDeleteDlg::FavoritesDeleteDlg(QWidget* parent)
    : QDialog(parent)
    , list(new QListWidget(this))
{
    setObjectName("Dialog");
    setWindowTitle(tr("Delete the flow"));
    setMinimumSize(400, 300);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    QPushButton* cancelButton = OrkWidgets::newFlatButton("PushButton", this, tr("&Cancel"));
    QPushButton* deleteButton = OrkWidgets::newFlatButton("DeleteButton", this, tr("&Delete"));
    cancelButton->setFixedHeight(32);
    deleteButton->setFixedHeight(32);
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(deleteButton, &QPushButton::clicked, this, &QDialog::accept);

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
    const QListWidgetItem* item = list->currentItem();
    return item ? item->text() : QString();
}

void FavoritesDeleteDlg::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (list->count() > 0)
        list->setCurrentRow(0);
    list->setFocus();
}
