// The main window: photos on the left, the result on the right, options and flow below.
#pragma once

#include <QFrame>
#include <QList>
#include <QUrl>

class MainPage : public QFrame
{
    Q_OBJECT

public:
    explicit MainPage(QWidget* parent = nullptr);

public slots:
    void slotFilesDropped(const QList<QUrl>& urls);
};
