#include "mainpage.h"

MainPage::MainPage(QWidget* parent)
    : QFrame(parent)
{
    setObjectName("MainPage");
}

void MainPage::slotFilesDropped(const QList<QUrl>& urls)
{
    Q_UNUSED(urls)
    show();
}
