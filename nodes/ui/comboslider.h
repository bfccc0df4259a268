// A labelled horizontal slider coupled with a spin box and an optional unit text.
#pragma once

#include <QFrame>

class QLabel;
class QSlider;
class QSpinBox;

class ComboSlider : public QFrame
{
    Q_OBJECT

public:
    // An empty title hides the title label; the nodes give the caption in their form layout.
    explicit ComboSlider(const QString& title = {}, QWidget* parent = nullptr);

    void setRange(int minimum, int maximum);
    int minimum() const;
    int maximum() const;
    void setValue(int value);
    int value() const;
    void setTickInterval(int interval);
    int tickInterval() const;
    void setSingleStep(int step);
    int singleStep() const;
    // An empty unit hides the unit label.
    void setUnit(const QString& unit);
    QString unit() const;
    // However long the captions of a language, the slider keeps this much room to be dragged.
    void setSliderMinimumWidth(int width);

protected:
    // A focused slider keeps its arrow keys where the window uses them as shortcuts.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // Once for every change of the value, whether from the slider, the spin box or a call.
    void sliderMoved(int value);

private slots:
    void slotSpinValueChanged(int value);

private:
    QLabel* titleLabel = nullptr;
    QSlider* slider = nullptr;
    QSpinBox* spinBox = nullptr;
    QLabel* unitLabel = nullptr;
};
