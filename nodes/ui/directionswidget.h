// The 3 x 3 position picker: one checkable button per placement cell, one checked at a time.
#pragma once

#include "direction.h"

#include <QFrame>
#include <QVector>

class QGroupBox;
class QPushButton;

class DirectionsWidget : public QFrame
{
    Q_OBJECT

public:
    explicit DirectionsWidget(QWidget* parent = nullptr);

    Direction direction() const { return current; }
    // Checks the cell's button (and only it) without emitting directionChanged.
    void setDirection(Direction direction);

signals:
    void directionChanged(Direction direction);

private slots:
    void slotClicked();

private:
    QVector<QPushButton*> buttons;
    QGroupBox* box = nullptr;
    Direction current = BottomRight;
};
