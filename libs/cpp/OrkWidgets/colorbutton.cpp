#include "colorbutton.h"

#include <QColorDialog>
#include <QPainter>
#include <QPixmap>

namespace OrkWidgets {

ColorButton::ColorButton(const QColor& color, QWidget* parent)
    : QPushButton(parent)
    , currentColor(color)
{
    setObjectName("ColorButton");
    setIconSize(QSize(24, 14));
    updateSwatch();
    connect(this, &QPushButton::clicked, this, &ColorButton::slotChooseColor);
}

void ColorButton::setColor(const QColor& color)
{
    if (color == currentColor)
        return;
    currentColor = color;
    updateSwatch();
    emit colorChanged(currentColor);
}

void ColorButton::slotChooseColor()
{
    QColorDialog dialog(currentColor, this);
    dialog.setOption(QColorDialog::ShowAlphaChannel, false);
    if (dialog.exec() == QDialog::Accepted)
        setColor(dialog.selectedColor());
}

void ColorButton::updateSwatch()
{
    // The swatch is an icon rather than a style sheet, so that the program's style sheet
    // for push buttons still applies to the button itself.
    QPixmap swatch(iconSize());
    swatch.fill(currentColor);
    QPainter painter(&swatch);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
    painter.end();
    setIcon(swatch);
    setToolTip(currentColor.name());
}

} // namespace OrkWidgets
