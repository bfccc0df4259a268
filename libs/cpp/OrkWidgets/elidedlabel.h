// A one-line label that cuts its text with an ellipsis where it is narrower than the text.
#pragma once

#include <QLabel>

namespace OrkWidgets {

class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(const QString& text, QWidget* parent = nullptr);

    // Any width down to the ellipsis alone: the layout decides, the label cuts.
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace OrkWidgets
