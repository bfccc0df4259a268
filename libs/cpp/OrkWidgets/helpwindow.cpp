#include "helpwindow.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace OrkWidgets {

HelpWindow::HelpWindow(const QStringList& slides, QWidget* parent)
    : QDialog(parent)
    , slides(slides)
{
    setObjectName("HelpWindow");
    setWindowTitle(tr("%1 Help").arg(QCoreApplication::applicationName()));

    picture = new QLabel(this);
    picture->setObjectName("HelpSlide");
    picture->setAlignment(Qt::AlignCenter);
    picture->setMinimumSize(640, 480);

    counter = new QLabel(this);
    counter->setAlignment(Qt::AlignCenter);
    previousButton = new QPushButton(tr("&Previous"), this);
    previousButton->setObjectName("PushButton");
    nextButton = new QPushButton(tr("&Next"), this);
    nextButton->setObjectName("PushButton");
    auto* closeButton = new QPushButton(tr("&Close"), this);
    closeButton->setObjectName("PushButton");

    connect(previousButton, &QPushButton::clicked, this, [this] { showSlide(current - 1); });
    connect(nextButton, &QPushButton::clicked, this, [this] { showSlide(current + 1); });
    connect(closeButton, &QPushButton::clicked, this, &QDialog::accept);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(previousButton);
    buttons->addStretch(1);
    buttons->addWidget(counter);
    buttons->addStretch(1);
    buttons->addWidget(nextButton);
    buttons->addWidget(closeButton);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(picture, 1);
    layout->addLayout(buttons);
    showSlide(0);
}

void HelpWindow::showSlide(int index)
{
    if (slides.isEmpty())
        return;
    current = qBound(0, index, slides.size() - 1);
    picture->setPixmap(QPixmap(slides.at(current)));
    counter->setText(tr("%1 of %2").arg(current + 1).arg(slides.size()));
    previousButton->setEnabled(current > 0);
    nextButton->setEnabled(current < slides.size() - 1);
}

} // namespace OrkWidgets
