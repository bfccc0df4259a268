#include "elidedlabel.h"

#include <QPainter>
#include <QStyle>

namespace OrkWidgets {

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance(QStringLiteral("\u2026")),
            QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect area = contentsRect();
    style()->drawItemText(&painter, area, alignment(), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, area.width()),
                          foregroundRole());
}

} // namespace OrkWidgets
