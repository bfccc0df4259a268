#include "app.h"
#include "flowfile.h"
#include "testutils.h"
#include "translationsmanager.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QTranslator>

using OrkWidgets::App;
using OrkWidgets::TranslationsManager;

class TestFrame : public QObject
{
    Q_OBJECT

private slots:
    void logLine_data();
    void logLine();
    void fatalWritesLineThenAborts();
    void buildDate_data();
    void buildDate();
    void languageForLocale_data();
    void languageForLocale();
    void arabicIsRightToLeft();
    void englishInstallsNoTranslator();
    void sampleFlowCopiedOnceAndNeverOverwritten();
    void firstStartFlag();
    void settingsStayInTheSandbox();
    void outputBaseFolder();
};

void TestFrame::logLine_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("expected");
    QTest::newRow("debug") << int(QtDebugMsg) << "04.10.14-09:05 Debug: hello, src/a.cpp";
    QTest::newRow("warning") << int(QtWarningMsg) << "04.10.14-09:05 Warning: hello, src/a.cpp";
    QTest::newRow("critical") << int(QtCriticalMsg) << "04.10.14-09:05 Critical: hello, src/a.cpp";
    QTest::newRow("fatal") << int(QtFatalMsg) << "04.10.14-09:05 Fatal: hello, src/a.cpp";
}

void TestFrame::logLine()
{
    QFETCH(int, type);
    QFETCH(QString, expected);
    const QMessageLogContext context("src/a.cpp", 12, "void f()", "default");
    const QDateTime when(QDate(2014, 10, 4), QTime(9, 5, 33));
    QCOMPARE(App::logLine(QtMsgType(type), context, "hello", when), expected);
}

void TestFrame::fatalWritesLineThenAborts()
{
    const QString log = QDir::homePath() + "/Pelodine/protocol.log";
    QFile::remove(log);
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--fatal-child"});
    QVERIFY(child.waitForFinished(30000));
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    QFile file(log);
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    const QString text = QString::fromUtf8(file.readAll());
    QVERIFY2(text.contains(QRegularExpression(
                 "^\\d\\d\\.\\d\\d\\.\\d\\d-\\d\\d:\\d\\d Fatal: the end is near, .*tst_frame\\.cpp\\n",
                 QRegularExpression::MultilineOption)),
             qPrintable(text));
}

void TestFrame::buildDate_data()
{
    QTest::addColumn<QString>("buildString");
    QTest::addColumn<QDate>("expected");
    QTest::newRow("two-blank single-digit day") << "Oct  4 2014" << QDate(2014, 10, 4);
    QTest::newRow("two-digit day") << "Oct 24 2014" << QDate(2014, 10, 24);
    QTest::newRow("January") << "Jan 31 2020" << QDate(2020, 1, 31);
    QTest::newRow("December") << "Dec  1 1999" << QDate(1999, 12, 1);
    QTest::newRow("unknown month") << "Foo  4 2014" << QDate();
}

void TestFrame::buildDate()
{
    QFETCH(QString, buildString);
    QFETCH(QDate, expected);
    QCOMPARE(App::dateFromBuildString(buildString), expected);
}

void TestFrame::languageForLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("expected");
    QTest::newRow("pt_BR") << "pt_BR" << "pt";
    QTest::newRow("ar_EG") << "ar_EG" << "ar";
    QTest::newRow("de_DE") << "de_DE" << "de";
    QTest::newRow("ru_RU") << "ru_RU" << "ru";
    QTest::newRow("zh_CN") << "zh_CN" << "zh_CN";
    QTest::newRow("zh_TW is unknown") << "zh_TW" << "en";
    QTest::newRow("unknown") << "xx_YY" << "en";
    QTest::newRow("case-sensitive") << "DE" << "en";
    // The substring test looks for "de" first, so a locale that merely contains it wins German.
    QTest::newRow("first code in order wins") << "rude" << "de";
}

void TestFrame::languageForLocale()
{
    QFETCH(QString, locale);
    QFETCH(QString, expected);
    QCOMPARE(TranslationsManager::languageForLocale(locale), expected);
}

void TestFrame::arabicIsRightToLeft()
{
    TranslationsManager manager;
    manager.setLanguage("ar");
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    QCOMPARE(App::readSetting("Language").toString(), QString("ar"));
    manager.setLanguage("en");
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

void TestFrame::englishInstallsNoTranslator()
{
    App::writeSetting("Language", "xx_YY");
    TranslationsManager manager;
    QCOMPARE(manager.language(), QString("en"));
    QCOMPARE(manager.installedCount(), 0);
    QCOMPARE(App::readSetting("Language").toString(), QString("en"));
}

void TestFrame::sampleFlowCopiedOnceAndNeverOverwritten()
{
    const QString target = FlowFile::flowsFolder() + "sample.flow";
    QFile::remove(target);
    QVERIFY(FlowFile::installSampleFlow());

    QFile resource(":/sample.flow");
    QVERIFY(resource.open(QIODevice::ReadOnly));
    QFile copy(target);
    QVERIFY(copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), resource.readAll());
    copy.close();

    QVERIFY(copy.open(QIODevice::WriteOnly | QIODevice::Truncate));
    copy.write("<OperationsFlow/>\n");
    copy.close();
    QVERIFY(FlowFile::installSampleFlow());
    QVERIFY(copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), QByteArray("<OperationsFlow/>\n"));
}

void TestFrame::firstStartFlag()
{
    // Each child gets a home of its own; the first start creates the data folder.
    QTemporaryDir home;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("HOME", home.path());
    const auto runChild = [&env] {
        QProcess child;
        child.setProcessEnvironment(env);
        child.start(QCoreApplication::applicationFilePath(), {"--first-start-child"});
        child.waitForFinished(30000);
        return QString::fromUtf8(child.readAllStandardOutput()).trimmed();
    };
    QCOMPARE(runChild(), QString("first"));
    QVERIFY(QDir(home.path() + "/Pelodine").exists());
    QVERIFY(QFile::exists(home.path() + "/Pelodine/Flows/sample.flow"));
    QCOMPARE(runChild(), QString("again"));
}

void TestFrame::settingsStayInTheSandbox()
{
    App::writeSetting("KeyProbe", 42);
    QSettings settings("Qubrast", "Pelodine");
    QVERIFY2(settings.fileName().startsWith(TestUtils::sandboxHome()),
             qPrintable(settings.fileName()));
    QCOMPARE(App::readSetting("KeyProbe").toInt(), 42);
    QCOMPARE(App::readSetting("KeyMissing", "fallback").toString(), QString("fallback"));
}

void TestFrame::outputBaseFolder()
{
    const QString folder = App::outputBaseFolder();
    QVERIFY2(folder.startsWith(TestUtils::sandboxHome()), qPrintable(folder));
    QVERIFY(folder.endsWith("/Qubrast/Pelodine/"));
}

int main(int argc, char* argv[])
{
    const QByteArray mode = argc > 1 ? QByteArray(argv[1]) : QByteArray();
    if (mode == "--fatal-child") {
        App app(argc, argv, "Qubrast", "Pelodine");
        qFatal("the end is near");
    }
    if (mode == "--first-start-child") {
        App app(argc, argv, "Qubrast", "Pelodine");
        if (app.isFirstStart())
            FlowFile::installSampleFlow();
        printf("%s\n", app.isFirstStart() ? "first" : "again");
        return 0;
    }
    TestUtils::makeSandboxHome();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    App app(argc, argv, "Qubrast", "Pelodine");
    TestFrame test;
    return QTest::qExec(&test, 1, argv);
}

#include "tst_frame.moc"
