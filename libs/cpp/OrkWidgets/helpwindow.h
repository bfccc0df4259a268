// The help display: a window that steps through the help slides.
#pragma once

#include <QDialog>
#include <QStringList>

class QLabel;
class QPushButton;

namespace OrkWidgets {

class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    HelpWindow(const QStringList& slides, QWidget* parent = nullptr);

    int currentSlide() const { return current; }
    void showSlide(int index);

private:
    QStringList slides;
    int current = 0;
    QLabel* picture = nullptr;
    QLabel* counter = nullptr;
    QPushButton* previousButton = nullptr;
    QPushButton* nextButton = nullptr;
};

} // namespace OrkWidgets
