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

    // The caption and the button sit inside the drawn frame, below its glyph.
    picture = new QLabel(this);
    picture->setObjectName("DropWidgetPicture");
    picture->setFixedSize(360, 360);
    picture->setPixmap(QPixmap(":/droparea.png"));

    caption = new QLabel(tr("<H2>Drop the photos here</H2>"), picture);
    caption->setObjectName("DropWidgetCaption");
    caption->setAlignment(Qt::AlignCenter);

    openButton = new QPushButton(QIcon(":/openfiles.png"), tr("Click to open the photos"), picture);
    openButton->setObjectName("PushButton");
    openButton->setFixedHeight(32);
    connect(openButton, &QPushButton::clicked, this, &DropWidget::slotOpenClicked);

    auto* inner = new QVBoxLayout(picture);
    inner->setContentsMargins(16, 16, 16, 16);
    inner->setSpacing(12);
    inner->addStretch(4);
    inner->addWidget(caption);
    inner->addWidget(openButton, 0, Qt::AlignHCenter);
    inner->addStretch(1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->addWidget(picture, 0, Qt::AlignCenter);
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
