#include "imagelabel.h"

#include "animatedlabel.h"

#include <QGridLayout>

namespace OrkWidgets {

ImageLabel::ImageLabel(const QString& fileName, QWidget* parent)
    : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
    setPixmap(QPixmap(fileName));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
}

AnimatedLabel* ImageLabel::addAnimation(const QString& fileName, QSize size,
                                        Qt::Alignment alignment)
{
    auto* animated = new AnimatedLabel(fileName, this);
    animated->setFixedSize(size);
    static_cast<QGridLayout*>(layout())->addWidget(animated, 0, 0, alignment);
    return animated;
}

void ImageLabel::addOverlay(QLayout* overlay, Qt::Alignment alignment)
{
    static_cast<QGridLayout*>(layout())->addLayout(overlay, 0, 0, alignment);
}

} // namespace OrkWidgets
