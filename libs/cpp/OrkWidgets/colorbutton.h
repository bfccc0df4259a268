// A push button that shows a colour as a swatch and lets the user pick another one.
#pragma once

#include <QColor>
#include <QPushButton>

namespace OrkWidgets {

class ColorButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ColorButton(const QColor& color = Qt::black, QWidget* parent = nullptr);

    QColor color() const { return currentColor; }
    // Shows the colour; emits colorChanged when it differs from the current one.
    void setColor(const QColor& color);

signals:
    void colorChanged(const QColor& color);

private:
    // Opens the colour dialog on the current colour; an accepted choice becomes the colour.
    void slotChooseColor();
    void updateSwatch();

    QColor currentColor;
};

} // namespace OrkWidgets
