// A label that shows a picture and reports a left-button click on it.
#pragma once

#include <QLabel>

namespace OrkWidgets {

class ClickableImageLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ClickableImageLabel(QWidget* parent = nullptr);

signals:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    // A click is a press and a release of the left button, both on the label.
    bool pressed = false;
};

} // namespace OrkWidgets
