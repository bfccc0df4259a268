// The translations (complete, in step with the sources, compiled in and taking effect), the
// language, help and about menus, the watermark's sliders in Russian, what the program
// prints for --help and --version, and what it opens from its arguments or from a second
// instance: photos to the photo side, ".flow" files to the flow panel.
#include "app.h"
#include "basenode.h"
#include "commondata.h"
#include "dropwidget.h"
#include "flowpanel.h"
#include "mainpage.h"
#include "nodecatalogue.h"
#include "nodesoptionspanel.h"
#include "photolabel.h"
#include "startup.h"
#include "testutils.h"
#include "translationsmanager.h"

#include <QDir>
#include <QDomDocument>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSlider>

#include <algorithm>

using OrkWidgets::App;
using TestUtils::addRow;

namespace {

// "context|source" of every message of a .ts file, with its translations.
QMap<QString, QStringList> tsTexts(const QString& path)
{
    QDomDocument document;
    document.setContent(TestUtils::readFile(path));
    QMap<QString, QStringList> texts;
    const QDomNodeList messages = document.elementsByTagName("message");
    for (int i = 0; i < messages.size(); ++i) {
        const QDomElement message = messages.at(i).toElement();
        const QDomElement translation = message.firstChildElement("translation");
        QStringList& forms = texts[message.parentNode().firstChildElement("name").text() + "|" +
                                   message.firstChildElement("source").text()];
        for (QDomElement f = translation.firstChildElement("numerusform"); !f.isNull();
             f = f.nextSiblingElement("numerusform"))
            forms << f.text();
        if (forms.isEmpty())
            forms << translation.text();
        if (translation.hasAttribute("type")) // unfinished, obsolete, vanished
            forms << QString();
    }
    return texts;
}

// The placeholders and the markup tags of a text, sorted: a translation keeps them all.
QStringList fixedParts(const QString& text)
{
    QStringList found;
    for (auto it = QRegularExpression("%[0-9n]|<[^<>]*>").globalMatch(text); it.hasNext();)
        found << it.next().captured().toUpper();
    found.sort();
    return found;
}

QMenu* menuTitled(const MainPage& page, const QString& title)
{
    const QList<QAction*> entries = page.findChild<QMenuBar*>("MenuBar")->actions();
    for (QAction* entry : entries) {
        if (entry->text() == title)
            return entry->menu();
    }
    return nullptr;
}

} // namespace

class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { App::instance()->translations()->setLanguage("en"); }

    void tsFile_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("folders");
        addRow("Pelodine_de", "Pelodine_de", PELODINE_APP_TEXT_DIRS);
        addRow("Pelodine_ru", "Pelodine_ru", PELODINE_APP_TEXT_DIRS);
        addRow("libs_de", "libs_de", PELODINE_LIBS_TEXT_DIRS);
        addRow("libs_ru", "libs_ru", PELODINE_LIBS_TEXT_DIRS);
    }

    // Every text translated, keeping its placeholders and tags, and a fresh scan of the
    // sources finding exactly the texts of the committed file.
    void tsFile()
    {
        QFETCH(QString, name);
        QFETCH(QString, folders);
        const QMap<QString, QStringList> texts = tsTexts(PELODINE_TS_DIR "/" + name + ".ts");
        QVERIFY(texts.size() > 10);
        for (auto it = texts.begin(); it != texts.end(); ++it)
            for (const QString& text : it.value()) {
                const QString source = it.key().section('|', 1);
                QVERIFY2(!text.trimmed().isEmpty() || source.trimmed().isEmpty(),
                         qPrintable(source));
                QCOMPARE(fixedParts(text), fixedParts(source));
            }
        QTemporaryDir scratch;
        QProcess lupdate;
        lupdate.setWorkingDirectory(PELODINE_SOURCE_ROOT);
        lupdate.start(PELODINE_LUPDATE, QStringList{"-silent", "-no-obsolete"} +
                                            folders.split(',') +
                                            QStringList{"-ts", scratch.filePath("fresh.ts")});
        QVERIFY(lupdate.waitForFinished(120000) && lupdate.exitCode() == 0);
        QCOMPARE(tsTexts(scratch.filePath("fresh.ts")).keys(), texts.keys());
    }

    void textsOfEachLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("cancel");
        QTest::addColumn<QString>("node");
        QTest::addColumn<bool>("rightToLeft");
        addRow("de", "de", "<H2>Fotos hierher ziehen</H2>", "Abbrechen", "Größe ändern", false);
        addRow("en after de", "en", "<H2>Drop the photos here</H2>", "Cancel", "Resize", false);
        addRow("ru", "ru", "<H2>Перетащите фото сюда</H2>", "Отмена", "Изменение размера", false);
        addRow("ar has no texts", "ar", "<H2>Drop the photos here</H2>", "Cancel", "Resize", true);
    }

    // The drop window's caption (the libraries' file), Qt's own "Cancel" (the "qt_" file) and a
    // node's name (the program's file, while the name itself stays the key).
    void textsOfEachLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, caption);
        QFETCH(QString, cancel);
        QFETCH(QString, node);
        QFETCH(bool, rightToLeft);
        App::instance()->translations()->setLanguage(language);
        QCOMPARE(OrkWidgets::DropWidget().findChild<QLabel*>("DropWidgetCaption")->text(), caption);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), cancel);
        QCOMPARE(displayNameForNodeName("Resize"), node);
        QCOMPARE(QGuiApplication::isRightToLeft(), rightToLeft);
        QCOMPARE(QSettings().value("Language").toString(), language);
    }

    void choosingALanguage_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("notice");
        addRow("Deutsch", 1, "Die neue Sprache gilt ab dem nächsten Start von Pelodine.");
        addRow("Русский", 2, "Новый язык будет использоваться после следующего запуска Pelodine.");
    }

    // Each language under its own name; the notice comes in the chosen language, while every
    // text made before the next start stays in the running one; a new page checks the choice.
    void choosingALanguage()
    {
        QFETCH(int, row);
        QFETCH(QString, notice);
        MainPage page;
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        // Items taller than the bar would be hidden behind the bar's overflow button.
        const auto* bar = page.findChild<QMenuBar*>("MenuBar");
        for (QAction* action : bar->actions())
            QVERIFY2(bar->rect().contains(bar->actionGeometry(action)), qPrintable(action->text()));
        const QList<QAction*> actions = menuTitled(page, "&Language")->actions();
        QVERIFY(actions.size() == 3 && actions[0]->isChecked() && actions[0]->text() == "English");
        QCOMPARE(actions[row]->text(), QString(QTest::currentDataTag()));
        actions[row]->trigger();
        auto* box = page.findChild<QMessageBox*>("LanguageNotice");
        QCOMPARE(box->text(), notice);
        QCOMPARE(PhotoLabel::positionText(0, 24), QString("<H1>1 of 24</H1>"));
        QCOMPARE(QSettings().value("Language").toString(), actions[row]->data().toString());
        QVERIFY(menuTitled(MainPage(), "&Language")->actions()[row]->isChecked());
        // The icon keeps to its own width, leaving no gap before the text.
        QTRY_VERIFY(box->findChild<QLabel*>("qt_msgbox_label")->x() < 80);
    }

    void helpAndAbout()
    {
        QCOMPARE(Startup::helpSlides("de").last(), QString(":/help/de/slide11.png"));
        QCOMPARE(Startup::helpSlides("ru").last(), QString(":/help/ru/slide11.png"));
        const QStringList slides = Startup::helpSlides("fr"); // no slides of its own
        QCOMPARE(slides.last(), QString(":/help/en/slide11.png"));
        MainPage page;
        App::instance()->setMainWidget(&page);
        App::instance()->setHelpSlides(slides);
        page.show();
        page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        QTest::keyClick(&page, Qt::Key_F1);
        auto* window = page.findChild<QDialog*>("HelpWindow");
        QVERIFY(window && window->isVisible());
        // The whole 1000 x 700 slide shows, at most reduced to the screen: none of it is cut off.
        const auto* picture = window->findChild<QLabel*>("HelpSlide");
        const QSize shown = picture->pixmap(Qt::ReturnByValue).size();
        QVERIFY2(!shown.isEmpty() && qAbs(shown.width() * 700 - shown.height() * 1000) <= 1000,
                 qPrintable(QString("%1x%2").arg(shown.width()).arg(shown.height())));
        QVERIFY(picture->width() >= shown.width() && picture->height() >= shown.height());
        window->close();
        const QString about = App::instance()->aboutText();
        const QString built = QLocale("en").toString(App::buildDate(), QLocale::LongFormat);
        QVERIFY2(about.contains("<H2>Pelodine</H2>") && about.contains("Version 1.0") &&
                     App::buildDate().isValid() && about.contains("Built on " + built),
                 qPrintable(about));
    }

    void openPaths_data()
    {
        QTest::addColumn<QString>("files");
        QTest::addColumn<bool>("opened");
        QTest::addColumn<QString>("nodes");
        QTest::addColumn<int>("photos");
        QTest::addColumn<bool>("dropped"); // a photo on the page before
        addRow("pelodine my.flow", "my.flow", true, "Crop Invert", 0, false);
        // Lines ending in ".flow", in any case, are flows; the others photos.
        addRow("photo and flow", "photo.flow.png my.flow", true, "Crop Invert", 1, false);
        addRow("the last readable flow wins", "my.flow other.FLOW gone.flow", true, "Watermark", 0,
               false);
        addRow("unreadable flow opens nothing", "gone.flow", false, "", 0, false);
        addRow("photos join those there", "photo.flow.png photo.flow.png", true, "", 3, true);
    }

    void openPaths()
    {
        QFETCH(QString, files);
        QFETCH(bool, opened);
        QFETCH(QString, nodes);
        QFETCH(int, photos);
        QFETCH(bool, dropped);
        QTemporaryDir dir;
        const QString flow = TestUtils::writeFile(
            dir.filePath("my.flow"), "<OperationsFlow><Operation name=\"Crop\" index=\"0\"/>"
                                     "<Operation name=\"Invert\" index=\"1\"/></OperationsFlow>");
        TestUtils::writeFile(
            dir.filePath("other.FLOW"),
            "<OperationsFlow><Operation name=\"Watermark\" index=\"0\"/></OperationsFlow>");
        const QString photo = TestUtils::writeImage(dir.filePath("photo.flow.png"),
                                                    TestUtils::filledImage(4, 3, 0xff336699));
        // The program's arguments are the existing files among them, made absolute.
        QDir::setCurrent(dir.path());
        QCOMPARE(Startup::fileArguments({"pelodine", "my.flow", "gone.png", photo}),
                 (QStringList{flow, photo}));
        CommonData::instance()->photoCount = 0;
        MainPage page;
        if (dropped)
            page.slotFilesDropped({QUrl::fromLocalFile(photo)});
        const QString lines = dir.path() + "/" + files.split(' ').join("\n" + dir.path() + "/");
        QCOMPARE(Startup::openPaths(&page, lines + "\n"), opened);
        QStringList names;
        for (const BaseNode* node : page.flowPanel()->flow())
            names << node->name();
        QCOMPARE(names.join(' '), nodes);
        QCOMPARE(page.isVisible(), opened || dropped);
        QCOMPARE(CommonData::instance()->photoCount, photos);
    }

    // Answered without a display, so without a window or the application object.
    void helpAndVersionPrinted()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
            environment.remove(name);
        QProcess pelodine;
        pelodine.setProcessEnvironment(environment);
        QString printed;
        for (const QLatin1String option : {QLatin1String("-v"), QLatin1String("--help")}) {
            pelodine.start(PELODINE_PATH, {"photo.jpg", option});
            QVERIFY(pelodine.waitForFinished(60000) &&
                    pelodine.exitStatus() == QProcess::NormalExit);
            QCOMPARE(pelodine.exitCode(), 0);
            printed += QString::fromLocal8Bit(pelodine.readAllStandardOutput());
        }
        QVERIFY2(printed.startsWith("Pelodine 1.0\nUsage: pelodine ") &&
                     printed.contains("--version"),
                 qPrintable(printed));
    }

    // The longest captions leave the sliders room to be dragged.
    void watermarkSliders()
    {
        App::instance()->translations()->setLanguage("ru");
        MainPage page;
        page.nodesOptionsPanel()->createNode("Watermark");
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        const auto shownSliders = [&page] {
            QList<QSlider*> shown = page.nodesOptionsPanel()->findChildren<QSlider*>();
            shown.erase(std::remove_if(shown.begin(), shown.end(),
                                       [](const QSlider* slider) { return !slider->isVisible(); }),
                        shown.end());
            return shown;
        };
        QCOMPARE(shownSliders().size(), 2);
        for (const QSlider* slider : shownSliders())
            QVERIFY2(slider->width() >= 80, qPrintable(QString::number(slider->width())));
        // The angle, among the further settings, keeps a shorter grip.
        page.nodesOptionsPanel()->findChild<QPushButton*>("WMRMoreButton")->click();
        QCOMPARE(shownSliders().size(), 1);
        QVERIFY2(shownSliders().first()->width() >= 60,
                 qPrintable(QString::number(shownSliders().first()->width())));
    }
};

int main(int argc, char* argv[])
{
    TestUtils::makeSandboxHome();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    App app(argc, argv, "Qubrast", "Pelodine");
    app.setApplicationVersion("1.0");
    app.setStyleSheet(App::resourceText(":/stylesheet.qss"));
    TestLanguages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_languages.moc"
