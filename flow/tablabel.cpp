#include "tablabel.h"

#include "previewbubble.h"

#include <QPushButton>
#include <QStyle>

namespace {
const int buttonSize = 20;
}

TabLabel::TabLabel(QWidget* parent)
    : QLabel(parent)
    , previewButton(new QPushButton(this))
{
    setAlignment(Qt::AlignCenter);
    previewButton->setObjectName("ThumbnailPreviewButton");
    previewButton->setFlat(true);
    previewButton->setFixedSize(buttonSize, buttonSize);
    previewButton->setIcon(style()->standardIcon(QStyle::SP_TitleBarMaxButton));
    previewButton->setToolTip(tr("Enlarge the preview"));
    previewButton->hide();
    connect(previewButton, &QPushButton::clicked, this, &TabLabel::slotShowPreview);
}

void TabLabel::setPreview(const QPixmap& preview)
{
    fullPreview = preview;
    showThumbnail();
}

void TabLabel::slotShowPreview()
{
    if (fullPreview.isNull())
        return;
    auto* bubble = new PreviewBubble(fullPreview, QRect(mapToGlobal(QPoint(0, 0)), size()), this);
    bubble->show();
}

void TabLabel::enterEvent(QEvent* event)
{
    QLabel::enterEvent(event);
    previewButton->setVisible(!fullPreview.isNull());
}

void TabLabel::leaveEvent(QEvent* event)
{
    QLabel::leaveEvent(event);
    previewButton->hide();
}

void TabLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    previewButton->move(width() - buttonSize, height() - buttonSize);
    showThumbnail();
}

void TabLabel::showThumbnail()
{
    if (fullPreview.isNull()) {
        clear();
        return;
    }
    setPixmap(fullPreview.scaled(size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}
