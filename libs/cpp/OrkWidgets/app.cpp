#include "app.h"

#include "appdata.h"
#include "helpwindow.h"
#include "translationsmanager.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QTextStream>
#include <QtDebug>

#include <cstdlib>

namespace OrkWidgets {

namespace {
const char* const keyHelpShown = "KeyHelpShown";
const char* const keyUsage = "KeyUsage";
} // namespace

App::App(int& argc, char** argv, const QString& organization, const QString& application)
    : QApplication(argc, argv)
{
    setOrganizationName(organization);
    setApplicationName(application);
    firstStart = true;
    const QStringList folders = OrkTools::AppData::userFolders();
    for (const QString& folder : folders) {
        if (QDir(folder).exists()) {
            firstStart = false;
            break;
        }
    }
    qInstallMessageHandler(&App::messageHandler);
    translationsManager = new TranslationsManager(this);
}

App::~App()
{
    qInstallMessageHandler(nullptr);
}

App* App::instance()
{
    return qobject_cast<App*>(QCoreApplication::instance());
}

QString App::language() const
{
    return translationsManager->language();
}

void App::setMainWidget(QWidget* widget)
{
    mainWindow = widget;
    blender = new QLabel(widget);
    blender->setObjectName("MainWidgetBlender");
    blender->hide();
}

bool App::isHelpDue() const
{
    return !helpSlides.isEmpty() && !OrkTools::AppData::readSetting(keyHelpShown, false).toBool();
}

void App::addUsage(int points)
{
    OrkTools::AppData::writeSetting(keyUsage,
                                    OrkTools::AppData::readSetting(keyUsage, 0).toInt() + points);
}

void App::slotHelp()
{
    if (helpSlides.isEmpty())
        return;
    OrkTools::AppData::writeSetting(keyHelpShown, true);
    auto* window = new HelpWindow(helpSlides, mainWindow);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
}

QString App::aboutText() const
{
    const QString date = QLocale(language()).toString(buildDate(), QLocale::LongFormat);
    return tr("<H2>%1</H2><p>Version %2</p><p>Built on %3</p>")
        .arg(applicationName(), applicationVersion(), date);
}

void App::slotAbout()
{
    QMessageBox::about(mainWindow, tr("About %1").arg(applicationName()), aboutText());
}

QString App::resourceText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll());
}

double App::devicePixelRatio()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->devicePixelRatio() : 1.0;
}

QDate App::buildDate()
{
    return dateFromBuildString(QStringLiteral(__DATE__));
}

QDate App::dateFromBuildString(const QString& buildString)
{
    static const char* const months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    QString text = buildString.simplified().replace(' ', '/');
    for (int i = 0; i < 12; ++i)
        text.replace(QLatin1String(months[i]), QString::number(i + 1));
    qDebug() << "&&&BUILD:" << text;
    const QDate date = QDate::fromString(text, "M/d/yyyy");
    qDebug() << "&&&DATE:" << date;
    return date;
}

QString App::logLine(QtMsgType type, const QMessageLogContext& context, const QString& message,
                     const QDateTime& when)
{
    const char* level = " Debug: ";
    switch (type) {
    case QtDebugMsg:
        level = " Debug: ";
        break;
    case QtInfoMsg:
        level = " Info: ";
        break;
    case QtWarningMsg:
        level = " Warning: ";
        break;
    case QtCriticalMsg:
        level = " Critical: ";
        break;
    case QtFatalMsg:
        level = " Fatal: ";
        break;
    }
    return when.toString("dd.MM.yy-hh:mm") + QLatin1String(level) + message + ", " +
           QString::fromUtf8(context.file);
}

void App::messageHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    QFile file(OrkTools::AppData::dataFolder() + "protocol.log");
    if (file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
        QTextStream stream(&file);
        stream << logLine(type, context, message, QDateTime::currentDateTime()) << '\n';
    }
    file.close();
    if (type == QtFatalMsg)
        std::abort();
}

} // namespace OrkWidgets
