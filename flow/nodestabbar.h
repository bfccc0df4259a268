// The tab bar of the flow: one tab per node, reporting every press and every count change.
#pragma once

#include <QTabBar>

class NodesTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit NodesTabBar(QWidget* parent = nullptr);

signals:
    // After every mouse press, also one that starts a drag or lands on the current tab.
    void tabClicked();
    // After every insertion and removal, with the new tab count.
    void countChanged(int count);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;
};
