// The main page's menus: the language choice, stored through the translations manager and
// announced for the next start, the help slides and the about box.
#include "app.h"
#include "mainpage.h"
#include "testutils.h"
#include "translationsmanager.h"

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>

using OrkWidgets::App;

namespace {

QMenu* menuAt(const MainPage& page, int index)
{
    const auto* bar = page.findChild<QMenuBar*>("MenuBar");
    return bar ? bar->actions().value(index)->menu() : nullptr;
}

QStringList languageTexts(const QMenu* menu, QString* checked)
{
    QStringList texts;
    const QList<QAction*> actions = menu->actions();
    for (const QAction* action : actions) {
        texts << action->text();
        if (action->isChecked())
            *checked += action->text();
    }
    return texts;
}

void closeNotices()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (qobject_cast<QMessageBox*>(window))
            window->close();
    }
}

} // namespace

class TestLanguageMenu : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void currentLanguageChecked_data();
    void currentLanguageChecked();
    void choosingStoresAndAnnounces_data();
    void choosingStoresAndAnnounces();
    void menuItemsFitTheBar();
    void helpAndAbout();
};

void TestLanguageMenu::cleanup()
{
    closeNotices();
    App::instance()->translations()->setLanguage("en");
}

void TestLanguageMenu::currentLanguageChecked_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("checked");
    QTest::newRow("en") << "en"
                        << "English";
    QTest::newRow("de") << "de"
                        << "Deutsch";
    QTest::newRow("ru") << "ru"
                        << "Русский";
    QTest::newRow("fr shows in English") << "fr"
                                         << "English";
}

void TestLanguageMenu::currentLanguageChecked()
{
    QFETCH(QString, language);
    QFETCH(QString, checked);
    App::instance()->translations()->setLanguage(language);
    MainPage page;
    const QMenu* menu = menuAt(page, 0);
    QVERIFY(menu);
    QString checkedTexts;
    QCOMPARE(languageTexts(menu, &checkedTexts), (QStringList{"English", "Deutsch", "Русский"}));
    QCOMPARE(checkedTexts, checked);
}

void TestLanguageMenu::choosingStoresAndAnnounces_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("notice");
    QTest::newRow("Deutsch") << 1 << "de"
                             << "Die neue Sprache gilt ab dem nächsten Start von Pelodine.";
    QTest::newRow("Русский")
        << 2 << "ru"
        << "Новый язык будет использоваться после следующего запуска Pelodine.";
}

// The notice comes in the chosen language: the translators are installed at once.
void TestLanguageMenu::choosingStoresAndAnnounces()
{
    QFETCH(int, row);
    QFETCH(QString, stored);
    QFETCH(QString, notice);
    MainPage page;
    page.show();
    QMenu* menu = menuAt(page, 0);
    QVERIFY(menu);
    menu->actions().at(row)->trigger();
    QCOMPARE(QSettings("Qubrast", "Pelodine").value("Language").toString(), stored);
    QCOMPARE(App::instance()->language(), stored);
    QVERIFY(menu->actions().at(row)->isChecked());
    QMessageBox* box = page.findChild<QMessageBox*>("LanguageNotice");
    QVERIFY(box);
    QCOMPARE(box->text(), notice);
}

// Items taller than the bar would be hidden behind the bar's overflow button.
void TestLanguageMenu::menuItemsFitTheBar()
{
    MainPage page;
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    auto* bar = page.findChild<QMenuBar*>("MenuBar");
    QVERIFY(bar);
    QCOMPARE(bar->height(), 45);
    const QList<QAction*> menus = bar->actions();
    QCOMPARE(menus.size(), 2);
    for (QAction* action : menus) {
        const QRect item = bar->actionGeometry(action);
        QVERIFY2(item.isValid() && bar->rect().contains(item), qPrintable(action->text()));
    }
    QCOMPARE(bar->actionAt(bar->actionGeometry(menus.last()).center()), menus.last());
}

void TestLanguageMenu::helpAndAbout()
{
    MainPage page;
    App::instance()->setMainWidget(&page);
    App::instance()->setHelpSlides({":/help/en/slide1.png", ":/help/en/slide2.png"});
    const QMenu* help = menuAt(page, 1);
    QVERIFY(help);
    QCOMPARE(help->actions().size(), 2);
    QCOMPARE(help->actions().at(0)->text(), QString("Show &Help"));
    QCOMPARE(help->actions().at(1)->text(), QString("&About Pelodine"));

    help->actions().at(0)->trigger();
    auto* window = page.findChild<QDialog*>("HelpWindow");
    QVERIFY(window);
    QVERIFY(window->isVisible());
    // The whole slide shows, at most reduced to the screen: none of it is cut off.
    const auto* picture = window->findChild<QLabel*>("HelpSlide");
    QVERIFY(picture);
    const QSize shown = picture->pixmap(Qt::ReturnByValue).size();
    QVERIFY(!shown.isEmpty());
    QVERIFY2(qAbs(shown.width() * 700 - shown.height() * 1000) <= 1000,
             qPrintable(QString("%1x%2").arg(shown.width()).arg(shown.height())));
    QVERIFY(picture->width() >= shown.width() && picture->height() >= shown.height());
    window->close();

    const QString about = App::instance()->aboutText();
    QVERIFY2(about.contains("<H2>Pelodine</H2>"), qPrintable(about));
    QVERIFY2(about.contains("Version 1.0"), qPrintable(about));
    const QString built = QLocale("en").toString(App::buildDate(), QLocale::LongFormat);
    QVERIFY(App::buildDate().isValid());
    QVERIFY2(about.contains("Built on " + built), qPrintable(about));
}

int main(int argc, char* argv[])
{
    TestUtils::makeSandboxHome();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    App app(argc, argv, "Qubrast", "Pelodine");
    app.setApplicationVersion("1.0");
    app.setStyleSheet(App::resourceText(":/stylesheet.qss"));
    TestLanguageMenu test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_languagemenu.moc"
