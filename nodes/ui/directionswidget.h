// The 3 x 3 position picker: one checkable button per placement cell, one checked at a time, or
// as a set of cells, any of them ticked.
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
    enum Picking { OneCell, SeveralCells };

    explicit DirectionsWidget(QWidget* parent = nullptr, Picking picking = OneCell);

    Direction direction() const { return current; }
    // Checks the cell's button (and only it) without emitting directionChanged.
    void setDirection(Direction direction);

    // The ticked cells of a picker of several, bit n for cell n.
    int cells() const;
    // Ticks exactly the cells of the set, without emitting cellsChanged.
    void setCells(int cells);

signals:
    void directionChanged(Direction direction);
    void cellsChanged(int cells);

private slots:
    void slotClicked();

private:
    QVector<QPushButton*> buttons;
    QGroupBox* box = nullptr;
    Direction current = BottomRight;
    Picking picking = OneCell;
};
