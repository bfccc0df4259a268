#include "comboslider.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

ComboSlider::ComboSlider(const QString& title, QWidget* parent)
    : QFrame(parent)
    , titleLabel(new QLabel(title, this))
    , slider(new QSlider(Qt::Horizontal, this))
    , spinBox(new QSpinBox(this))
    , unitLabel(new QLabel(this))
{
    titleLabel->setVisible(!title.isEmpty());
    slider->setTickPosition(QSlider::TicksBothSides);
    slider->setTickInterval(20);
    unitLabel->hide();
    slider->installEventFilter(this);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(titleLabel);
    layout->addWidget(slider);
    layout->addWidget(spinBox);
    layout->addWidget(unitLabel);

    // The spin box is the one source of sliderMoved: the slider only feeds it.
    connect(slider, &QSlider::valueChanged, spinBox, &QSpinBox::setValue);
    connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), this,
            &ComboSlider::slotSpinValueChanged);
}

void ComboSlider::setRange(int minimum, int maximum)
{
    slider->setRange(minimum, maximum);
    spinBox->setRange(minimum, maximum);
}

int ComboSlider::minimum() const
{
    return slider->minimum();
}

int ComboSlider::maximum() const
{
    return slider->maximum();
}

void ComboSlider::setValue(int value)
{
    slider->setValue(value);
    spinBox->setValue(value);
}

int ComboSlider::value() const
{
    return slider->value();
}

void ComboSlider::setTickInterval(int interval)
{
    slider->setTickInterval(interval);
}

void ComboSlider::setSingleStep(int step)
{
    slider->setSingleStep(step);
}

void ComboSlider::setUnit(const QString& unit)
{
    unitLabel->setText(unit);
    unitLabel->setVisible(!unit.isEmpty());
}

QString ComboSlider::unit() const
{
    return unitLabel->text();
}

void ComboSlider::slotSpinValueChanged(int value)
{
    const QSignalBlocker blocker(slider);
    slider->setValue(value);
    emit sliderMoved(value);
}

int ComboSlider::tickInterval() const
{
    return slider->tickInterval();
}

int ComboSlider::singleStep() const
{
    return slider->singleStep();
}

void ComboSlider::setSliderMinimumWidth(int width)
{
    slider->setMinimumWidth(width);
}

bool ComboSlider::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == slider && event->type() == QEvent::ShortcutOverride) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right) {
            event->accept();
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}
