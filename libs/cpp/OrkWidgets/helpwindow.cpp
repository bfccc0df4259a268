#include "helpwindow.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
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
    // Whole slides, reduced only when the screen is smaller: a window sized by its contents
    // would otherwise be held to two thirds of the screen and cut the slide.
    QPixmap slide(slides.at(current));
    const QScreen* screen = this->screen();
    const QSize room = screen ? screen->availableSize() * 0.85 : slide.size();
    if (slide.width() > room.width() || slide.height() > room.height())
        slide = slide.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture->setMinimumSize(slide.size().expandedTo(QSize(640, 480)));
    picture->setPixmap(slide);
    counter->setText(tr("%1 of %2").arg(current + 1).arg(slides.size()));
    previousButton->setEnabled(current > 0);
    nextButton->setEnabled(current < slides.size() - 1);
}

} // namespace OrkWidgets
