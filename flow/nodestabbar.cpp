#include "nodestabbar.h"

NodesTabBar::NodesTabBar(QWidget* parent)
    : QTabBar(parent)
{
}

void NodesTabBar::mousePressEvent(QMouseEvent* event)
{
    QTabBar::mousePressEvent(event);
    emit tabClicked();
}

void NodesTabBar::tabInserted(int index)
{
    QTabBar::tabInserted(index);
    emit countChanged(count());
}

void NodesTabBar::tabRemoved(int index)
{
    QTabBar::tabRemoved(index);
    emit countChanged(count());
}
