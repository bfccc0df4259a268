#include "directionswidget.h"

#include "flatbutton.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>

DirectionsWidget::DirectionsWidget(QWidget* parent, Picking picking)
    : QFrame(parent)
    , box(new QGroupBox(this))
    , picking(picking)
{
    qRegisterMetaType<Direction>("Direction");
    box->setFixedSize(58, 58);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(1, 1, 1, 1);
    grid->setSpacing(0);
    for (int cell = TopLeft; cell <= BottomRight; ++cell) {
        QPushButton* button = OrkWidgets::newToggleButton("DirectionButton", box);
        button->setFixedSize(16, 16);
        button->setToolTip(
            QCoreApplication::translate("Direction", directionName(cell).toLatin1().constData()));
        grid->addWidget(button, cell / 3, cell % 3);
        connect(button, &QPushButton::clicked, this, &DirectionsWidget::slotClicked);
        buttons.append(button);
    }
    if (picking == OneCell)
        buttons.at(current)->setChecked(true);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
}

void DirectionsWidget::setDirection(Direction direction)
{
    for (int cell = TopLeft; cell <= BottomRight; ++cell)
        buttons.at(cell)->setChecked(cell == direction);
    current = direction;
}

int DirectionsWidget::cells() const
{
    int ticked = 0;
    for (int cell = TopLeft; cell <= BottomRight; ++cell) {
        if (buttons.at(cell)->isChecked())
            ticked |= 1 << cell;
    }
    return ticked;
}

void DirectionsWidget::setCells(int cells)
{
    for (int cell = TopLeft; cell <= BottomRight; ++cell)
        buttons.at(cell)->setChecked(cells & (1 << cell));
}

void DirectionsWidget::slotClicked()
{
    // A checkable button has toggled itself already.
    if (picking == SeveralCells) {
        emit cellsChanged(cells());
        return;
    }
    for (QPushButton* button : qAsConst(buttons))
        button->setChecked(false);
    if (auto* clicked = qobject_cast<QPushButton*>(sender()))
        clicked->setChecked(true);
    for (int cell = TopLeft; cell <= BottomRight; ++cell) {
        if (buttons.at(cell)->isChecked()) {
            current = Direction(cell);
            break;
        }
    }
    emit directionChanged(current);
}
