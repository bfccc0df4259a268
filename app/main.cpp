// Pelodine's entry: the application object, the single-instance guard, the main page
// and the drop window that the user sees first.
#include "app.h"
#include "dropwidget.h"
#include "flowfile.h"
#include "mainpage.h"
#include "singleappcheck.h"

#include <QFile>
#include <QFileInfo>
#include <QTimer>

namespace {

QString readResourceText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll());
}

// The existing files among the program's arguments, as absolute paths.
QStringList fileArguments(const QStringList& arguments)
{
    QStringList files;
    for (int i = 1; i < arguments.size(); ++i) {
        const QFileInfo info(arguments.at(i));
        if (info.exists())
            files << info.absoluteFilePath();
    }
    return files;
}

QList<QUrl> urlsFromMessage(const QString& message)
{
    QList<QUrl> urls;
    const QStringList lines = message.split('\n', Qt::SkipEmptyParts);
    for (const QString& line : lines)
        urls << QUrl::fromLocalFile(line);
    return urls;
}

QStringList helpSlides(const QString& language)
{
    QStringList slides;
    for (int i = 1; i <= 11; ++i)
        slides << QString(":/help/%1/slide%2.png").arg(language).arg(i);
    return slides;
}

} // namespace

int main(int argc, char* argv[])
{
    auto* app = new OrkWidgets::App(argc, argv, "Qubrast", "Pelodine");

    // A second instance hands its files to the first and leaves; when nobody answers, the
    // segment is a crashed instance's leftover and this process takes over.
    auto* guard = new OrkTools::SingleAppCheck(OrkTools::SingleAppCheck::userKey("Pelodine"), app);
    const QStringList files = fileArguments(QCoreApplication::arguments());
    if (guard->isRunning()) {
        if (guard->sendMessage(files.join('\n') + '\n')) {
            delete app;
            return 0;
        }
        guard->takeOver();
    }

    app->setHomePage("https://example.org/pelodine");
    app->setApplicationVersion("1.0");
    app->setOrganizationDomain("example.org");
    // Lets the desktop match our windows to the installed launcher.
    QGuiApplication::setDesktopFileName("org.qubrast.Pelodine");
    app->setStyleSheet(readResourceText(":/stylesheet.qss"));

    if (app->isFirstStart())
        FlowFile::installSampleFlow();

    auto* mainPage = new MainPage;
    QObject::connect(app, &OrkWidgets::App::dockClicked, mainPage, &QWidget::showNormal);

    QString language = app->language();
    if (language != "en" && language != "de" && language != "ru")
        language = "en";
    app->setHelpSlides(helpSlides(language));

    mainPage->setWindowTitle(QCoreApplication::applicationName());
    auto* dropWidget = new OrkWidgets::DropWidget;
    dropWidget->resize(400, 400);
    dropWidget->show();
    QObject::connect(dropWidget, &OrkWidgets::DropWidget::dropped, mainPage,
                     &MainPage::slotFilesDropped);
    QObject::connect(dropWidget, &OrkWidgets::DropWidget::dropped, dropWidget, &QWidget::hide);

    app->setMainWidget(mainPage);

    // Files from "Open with" or from a second instance open the main page; a second start
    // without files only brings the visible window to the front.
    const auto takeFiles = [mainPage, dropWidget](const QList<QUrl>& urls) {
        QWidget* front = dropWidget->isVisible() ? static_cast<QWidget*>(dropWidget) : mainPage;
        if (!urls.isEmpty()) {
            dropWidget->hide();
            mainPage->slotFilesDropped(urls);
            front = mainPage;
        }
        front->raise();
        front->activateWindow();
    };
    QObject::connect(guard, &OrkTools::SingleAppCheck::messageReceived, mainPage,
                     [takeFiles](const QString& message) { takeFiles(urlsFromMessage(message)); });
    if (!files.isEmpty())
        QTimer::singleShot(0, mainPage, [takeFiles, files] {
            takeFiles(urlsFromMessage(files.join('\n')));
        });

    const int result = app->exec();

    delete dropWidget;
    delete mainPage;
    delete app;
    return result;
}
