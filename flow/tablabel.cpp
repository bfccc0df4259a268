#include "tablabel.h"

#include "flatbutton.h"
#include "previewbubble.h"

#include <QPushButton>
#include <QStyle>

namespace {
const int buttonSize = 20;
}

TabLabel::TabLabel(QWidget* parent)
    : QLabel(parent)
    , previewButton(OrkWidgets::newFlatButton("ThumbnailPreviewButton", this, QString(),
                                              tr("Enlarge the preview")))
{
    setAlignment(Qt::AlignCenter);
    previewButton->setFixedSize(buttonSize, buttonSize);
    previewButton->setIcon(style()->standardIcon(QStyle::SP_TitleBarMaxButton));
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
