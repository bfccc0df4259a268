#include "dropwidget.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>

namespace OrkWidgets {

DropWidget::DropWidget(QWidget* parent)
    : QWidget(parent)
{
    setObjectName("DropWidget");
    setAcceptDrops(true);
    setWindowTitle(QCoreApplication::applicationName());

    picture = new QLabel(this);
    picture->setObjectName("DropWidgetPicture");
    picture->setAlignment(Qt::AlignCenter);
    picture->setPixmap(QPixmap(":/droparea.png"));

    caption = new QLabel(tr("<H2>Drop the photos here</H2>"), this);
    caption->setObjectName("DropWidgetCaption");
    caption->setAlignment(Qt::AlignCenter);

    openButton = new QPushButton(QIcon(":/openfiles.png"), tr("Click to open the photos"), this);
    openButton->setObjectName("PushButton");
    openButton->setFixedHeight(32);
    connect(openButton, &QPushButton::clicked, this, &DropWidget::slotOpenClicked);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(8);
    layout->addStretch(1);
    layout->addWidget(picture);
    layout->addWidget(caption);
    layout->addWidget(openButton, 0, Qt::AlignHCenter);
    layout->addStretch(1);
}

void DropWidget::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasFormat("text/uri-list"))
        event->acceptProposedAction();
}

void DropWidget::dropEvent(QDropEvent* event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    event->acceptProposedAction();
    emit dropped(urls);
}

void DropWidget::slotOpenClicked()
{
    const QStringList files = QFileDialog::getOpenFileNames(this, tr("Open the photos"));
    if (files.isEmpty())
        return;
    QList<QUrl> urls;
    for (const QString& file : files)
        urls << QUrl::fromLocalFile(file);
    emit dropped(urls);
}

} // namespace OrkWidgets
