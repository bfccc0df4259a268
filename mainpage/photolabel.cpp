#include "photolabel.h"

#include "flatbutton.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QPushButton* makeStepButton(const char* objectName, const QString& toolTip, QWidget* parent)
{
    QPushButton* button = OrkWidgets::newFlatButton(objectName, parent, QString(), toolTip);
    button->setFixedSize(32, 48);
    button->hide();
    return button;
}

void drawFitted(QPainter& painter, const QPixmap& pixmap, const QRect& area)
{
    if (pixmap.isNull())
        return;
    QRect target(QPoint(), pixmap.size().scaled(area.size(), Qt::KeepAspectRatio));
    target.moveCenter(area.center());
    painter.drawPixmap(target, pixmap);
}

} // namespace

PhotoLabel::PhotoLabel(QWidget* parent)
    : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
    previousButton = makeStepButton("PreviousImageButton", tr("Previous photo"), this);
    nextButton = makeStepButton("NextImageButton", tr("Next photo"), this);
    infoLabel = new QLabel(this);
    infoLabel->setAlignment(Qt::AlignCenter);
    infoLabel->hide();
    captionLabel = new QLabel(this);
    captionLabel->setObjectName("PhotoCaption");
    captionLabel->setAlignment(Qt::AlignCenter);
    captionLabel->setTextFormat(Qt::PlainText);
    captionLabel->hide();

    column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->addStretch(1);
    column->addWidget(infoLabel);
    column->addWidget(captionLabel, 0, Qt::AlignHCenter);

    auto* row = new QHBoxLayout(this);
    row->addWidget(previousButton);
    row->addStretch(1);
    row->addLayout(column);
    row->addStretch(1);
    row->addWidget(nextButton);
}

QString PhotoLabel::positionText(int index, int count)
{
    return tr("<H1>%1 of %2</H1>").arg(index + 1).arg(count);
}

void PhotoLabel::setCaption(const QString& caption)
{
    captionLabel->setText(caption);
    captionLabel->setHidden(caption.isEmpty());
}

QString PhotoLabel::caption() const
{
    return captionLabel->text();
}

QString PhotoLabel::captionText(const QString& fileName, const QSize& size)
{
    const QString pixels =
        size.isEmpty() ? QString() : QString("%1 × %2").arg(size.width()).arg(size.height());
    if (fileName.isEmpty() || pixels.isEmpty())
        return fileName + pixels;
    return fileName + " · " + pixels;
}

void PhotoLabel::setPicture(const QPixmap& picture)
{
    shownPicture = picture;
    update();
}

void PhotoLabel::setBackground(const QPixmap& background)
{
    backgroundPicture = background;
    update();
}

void PhotoLabel::setStepControlsVisible(bool visible)
{
    previousButton->setVisible(visible);
    nextButton->setVisible(visible);
    infoLabel->setVisible(visible);
}

void PhotoLabel::paintEvent(QPaintEvent* event)
{
    // The background lies under the label's text, the photo over the label's frame.
    if (shownPicture.isNull()) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        drawFitted(painter, backgroundPicture, contentsRect());
    }
    QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    drawFitted(painter, shownPicture, contentsRect());
}
