// Pelodine's entry: the application object, the single-instance guard, the main page
// and the drop window that the user sees first.
#include "app.h"
#include "dropwidget.h"
#include "flowfile.h"
#include "flowpanel.h"
#include "mainpage.h"
#include "pelodineconfig.h"
#include "singleappcheck.h"
#include "startup.h"

#include <QTextStream>
#include <QTimer>

int main(int argc, char* argv[])
{
    // Answered before the application object exists, which would need a display.
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const QString reply = Startup::commandLineReply(arguments);
    if (!reply.isEmpty()) {
        QTextStream(stdout) << reply;
        return 0;
    }

    auto* app = new OrkWidgets::App(argc, argv, "Qubrast", "Pelodine");

    // A second instance hands its files to the first and leaves; when nobody answers, the
    // segment is a crashed instance's leftover and this process takes over.
    auto* guard = new OrkTools::SingleAppCheck(OrkTools::SingleAppCheck::userKey("Pelodine"), app);
    const QStringList files = Startup::fileArguments(QCoreApplication::arguments());
    if (guard->isRunning()) {
        if (guard->sendMessage(files.join('\n') + '\n')) {
            delete app;
            return 0;
        }
        guard->takeOver();
    }

    app->setHomePage("https://example.org/pelodine");
    app->setApplicationVersion(PELODINE_VERSION);
    app->setOrganizationDomain("example.org");
    // Lets the desktop match our windows to the installed launcher.
    QGuiApplication::setDesktopFileName("org.qubrast.Pelodine");
    app->setStyleSheet(OrkWidgets::App::resourceText(":/stylesheet.qss"));

    if (app->isFirstStart())
        FlowFile::installSampleFlow();

    auto* mainPage = new MainPage;
    // A flow given as an argument is loaded later and replaces this one.
    mainPage->flowPanel()->restoreKeptFlow();
    QObject::connect(app, &OrkWidgets::App::dockClicked, mainPage, &QWidget::showNormal);

    // The slides of the current language; languages without slides of their own get English.
    app->setHelpSlides(Startup::helpSlides(app->language()));

    mainPage->setWindowTitle(QCoreApplication::applicationName());
    auto* dropWidget = new OrkWidgets::DropWidget;
    dropWidget->resize(400, 400);
    dropWidget->show();
    QObject::connect(dropWidget, &OrkWidgets::DropWidget::dropped, mainPage,
                     &MainPage::slotFilesDropped);
    QObject::connect(dropWidget, &OrkWidgets::DropWidget::dropped, dropWidget, &QWidget::hide);

    app->setMainWidget(mainPage);

    // Photos and flows from "Open with" or from a second instance open the main page; a second
    // start without files only brings the visible window to the front.
    const auto takeFiles = [mainPage, dropWidget](const QString& lines) {
        QWidget* front = dropWidget->isVisible() ? static_cast<QWidget*>(dropWidget) : mainPage;
        if (Startup::openPaths(mainPage, lines)) {
            dropWidget->hide();
            front = mainPage;
        }
        front->raise();
        front->activateWindow();
    };
    QObject::connect(guard, &OrkTools::SingleAppCheck::messageReceived, mainPage, takeFiles);
    if (!files.isEmpty())
        QTimer::singleShot(0, mainPage, [takeFiles, files] { takeFiles(files.join('\n')); });

    const int result = app->exec();

    delete dropWidget;
    delete mainPage;
    delete app;
    return result;
}
