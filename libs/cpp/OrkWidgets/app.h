// The application object: data folder, log, settings, translations and the main-widget hand-over.
#pragma once

#include <QApplication>
#include <QDate>
#include <QStringList>
#include <QVariant>

class QLabel;

namespace OrkWidgets {

class TranslationsManager;

class App : public QApplication
{
    Q_OBJECT

public:
    App(int& argc, char** argv, const QString& organization, const QString& application);
    ~App() override;

    static App* instance();

    void setHomePage(const QString& address) { homePage = address; }
    QString homePageAddress() const { return homePage; }

    // Fixed at construction: true when none of the per-user folders existed yet.
    bool isFirstStart() const { return firstStart; }

    QString language() const;
    TranslationsManager* translations() const { return translationsManager; }

    // Keeps the main widget and creates the hidden "MainWidgetBlender" overlay as its child.
    void setMainWidget(QWidget* widget);
    QWidget* mainWidget() const { return mainWindow; }

    // The help display: slide pictures shown in order, offered once after the first photos.
    void setHelpSlides(const QStringList& slides) { helpSlides = slides; }
    QStringList helpSlideList() const { return helpSlides; }
    bool isHelpDue() const;
    void addUsage(int points);

    // The about box's text: name, version and build date, the date in the language's form.
    QString aboutText() const;

    // The whole text of a file or compiled-in resource as UTF-8; empty when it cannot be read.
    static QString resourceText(const QString& path);

    static double devicePixelRatio();

    static QDate buildDate();
    // Parses the compiler's date form ("Oct  4 2014"); an unknown month gives an invalid date.
    static QDate dateFromBuildString(const QString& buildString);

    // One line of "protocol.log", without the line end.
    static QString logLine(QtMsgType type, const QMessageLogContext& context,
                           const QString& message, const QDateTime& when);

signals:
    void dockClicked();

public slots:
    void slotHelp();
    void slotAbout();

private:
    static void messageHandler(QtMsgType type, const QMessageLogContext& context,
                               const QString& message);

    QString homePage;
    bool firstStart = false;
    TranslationsManager* translationsManager = nullptr;
    QWidget* mainWindow = nullptr;
    QLabel* blender = nullptr;
    QStringList helpSlides;
};

} // namespace OrkWidgets
