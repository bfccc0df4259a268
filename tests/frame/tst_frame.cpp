// The program's frame: log, build date, language, first start, the drop window, and the guard
// through which a second instance hands its files to the first.
#include "app.h"
#include "appdata.h"
#include "dropwidget.h"
#include "flowfile.h"
#include "singleappcheck.h"
#include "testutils.h"
#include "translationsmanager.h"

#include <QDir>
#include <QDropEvent>
#include <QLocalServer>
#include <QMimeData>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QUuid>

#include <unistd.h>

using OrkTools::SingleAppCheck;
using OrkWidgets::App;
using TestUtils::addRow;

namespace {

// This program again, in one of the child modes of main().
QProcess* startChild(const QStringList& arguments, const QString& home = QDir::homePath())
{
    auto* child = new QProcess(qApp);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home);
    child->setProcessEnvironment(environment);
    child->start(QCoreApplication::applicationFilePath(), arguments);
    return child;
}

QString outputOf(const QStringList& arguments, const QString& home = QDir::homePath())
{
    QProcess* child = startChild(arguments, home);
    child->waitForFinished(30000);
    return child->exitStatus() == QProcess::CrashExit ? "crashed" : child->readAll().trimmed();
}

} // namespace

class TestFrame : public QObject
{
    Q_OBJECT

private slots:
    // The log line: date and time, level, message, source file.
    void fatalWritesItsLineThenAborts()
    {
        QCOMPARE(outputOf({"--fatal-child"}), QString("crashed"));
        const QString log = TestUtils::readFile(QDir::homePath() + "/Pelodine/protocol.log");
        QVERIFY2(log.contains(QRegularExpression("^\\d\\d\\.\\d\\d\\.\\d\\d-\\d\\d:\\d\\d Fatal: "
                                                 "the end is near, .*tst_frame\\.cpp$",
                                                 QRegularExpression::MultilineOption)),
                 qPrintable(log));
    }

    void buildDate()
    {
        // The compiler pads a single-digit day with a second blank.
        QCOMPARE(App::dateFromBuildString("Oct  4 2014"), QDate(2014, 10, 4));
        QCOMPARE(App::dateFromBuildString("Dec 31 1999"), QDate(1999, 12, 31));
        QCOMPARE(App::dateFromBuildString("Foo  4 2014"), QDate());
    }

    // zh_TW is unknown. A substring test in the order de, ru, ...: a locale merely containing
    // "de" is German.
    void languageForLocale()
    {
        for (const auto& [locale, language] :
             TestUtils::keyValues("pt_BR=pt|zh_CN=zh_CN|zh_TW=en|rude=de"))
            QCOMPARE(OrkWidgets::TranslationsManager::languageForLocale(locale), language);
    }

    void sampleFlowCopiedOnceAndNeverOverwritten()
    {
        const QString copy = OrkTools::AppData::flowsFolder() + "sample.flow";
        QFile::remove(copy);
        QVERIFY(FlowFile::installSampleFlow());
        QCOMPARE(TestUtils::readFile(copy), TestUtils::readFile(":/sample.flow"));
        TestUtils::writeFile(copy, "<OperationsFlow/>\n");
        QVERIFY(FlowFile::installSampleFlow());
        QCOMPARE(TestUtils::readFile(copy), QByteArray("<OperationsFlow/>\n"));
    }

    void firstStartCreatesTheDataFolder()
    {
        QTemporaryDir home;
        QCOMPARE(outputOf({"--first-start-child"}, home.path()), QString("first"));
        QVERIFY(QFile::exists(home.path() + "/Pelodine/Flows/sample.flow"));
        QCOMPARE(outputOf({"--first-start-child"}, home.path()), QString("again"));
        QCOMPARE(OrkTools::AppData::outputBaseFolder(),
                 TestUtils::sandboxHome() + "/Pictures/Qubrast/Pelodine/");
    }

    void dropWindowHandsOnUriListsInOrder()
    {
        OrkWidgets::DropWidget widget;
        QSignalSpy dropped(&widget, &OrkWidgets::DropWidget::dropped);
        QMimeData text;
        text.setText("/p/a.jpg");
        QDragEnterEvent refused(QPoint(10, 10), Qt::CopyAction, &text, Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &refused);
        QVERIFY(!refused.isAccepted());
        const QList<QUrl> urls = {QUrl::fromLocalFile("/p/b.jpg"), QUrl::fromLocalFile("/p/a.jpg")};
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &drop);
        QCOMPARE(dropped.count(), 1);
        QCOMPARE(dropped.first().first().value<QList<QUrl>>(), urls);
    }

    void secondInstanceHandsOverItsMessage_data()
    {
        QTest::addColumn<QString>("message");
        addRow("one path", "/home/user/a.jpg\n");
        addRow("non-ASCII path", QString::fromUtf8("/home/юзер/Фото ß.jpg\n"));
        addRow("two thousand paths", QString("/home/user/photos/holiday.jpg\n").repeated(2000));
    }

    // A second guard of the same key sees the first running; a second process hands it the
    // message, which only the second can send.
    void secondInstanceHandsOverItsMessage()
    {
        QFETCH(QString, message);
        const QString key = QUuid::createUuid().toString(QUuid::Id128);
        SingleAppCheck first(key);
        QVERIFY(!first.isRunning() && !first.sendMessage("nobody to send to"));
        QVERIFY(SingleAppCheck(key).isRunning());
        QSignalSpy received(&first, &SingleAppCheck::messageReceived);
        QProcess* second = startChild({"--send", key, message});
        QVERIFY(received.wait(10000));
        QCOMPARE(received.first().first().toString(), message);
        QVERIFY(second->state() == QProcess::NotRunning || second->waitForFinished(10000));
        QCOMPARE(second->exitCode(), 0);
    }

    // The guard meets only its own user: in a folder others can enter it runs alone, and it
    // hands nothing to a socket of another user's at its place.
    void guardMeetsOnlyItsOwnUser()
    {
        const QString key = QUuid::createUuid().toString(QUuid::Id128);
        const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
        const QString open = TestUtils::sandboxHome() + "/open";
        QDir().mkpath(open);
        QFile::setPermissions(open, QFile::permissions(open) | QFileDevice::ReadOther |
                                        QFileDevice::ExeOther);
        qputenv("XDG_RUNTIME_DIR", open.toLocal8Bit());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no private folder"));
        const bool alone = !SingleAppCheck(key).isRunning() && !SingleAppCheck(key).isRunning();
        qputenv("XDG_RUNTIME_DIR", runtime);
        QVERIFY(alone);

        SingleAppCheck first(key);
        const QString path = QString::fromLocal8Bit(runtime) + "/" + key;
        QLocalServer::removeServer(path);
        QLocalServer stranger;
        QVERIFY(stranger.listen(path));
        if (chown(QFile::encodeName(path).constData(), 65534, 65534) != 0)
            QSKIP("only root can hand the socket to another user");
        QVERIFY(SingleAppCheck(key).isRunning() && !SingleAppCheck(key).sendMessage("x\n"));
        QVERIFY(!stranger.hasPendingConnections());
    }

    void segmentOfAKilledInstanceIsTakenOver()
    {
        const QString key = QUuid::createUuid().toString(QUuid::Id128);
        QProcess* killed = startChild({"--hold", key});
        QVERIFY(killed->waitForReadyRead(10000));
        killed->kill(); // SIGKILL: the segment stays behind
        QVERIFY(killed->waitForFinished(10000));
        SingleAppCheck next(key);
        QVERIFY(next.isRunning() && !next.sendMessage("anyone?"));
        QVERIFY(next.takeOver());
        QSignalSpy received(&next, &SingleAppCheck::messageReceived);
        SingleAppCheck later(key);
        QVERIFY(later.isRunning() && later.sendMessage("/tmp/x.png\n"));
        QVERIFY(received.wait(5000));
    }
};

int main(int argc, char* argv[])
{
    const QByteArray mode = argc > 1 ? QByteArray(argv[1]) : QByteArray();
    if (mode == "--hold" || mode == "--send") {
        QCoreApplication app(argc, argv);
        SingleAppCheck guard(app.arguments().value(2));
        if (mode == "--send")
            return guard.isRunning() && guard.sendMessage(app.arguments().value(3)) ? 0 : 1;
        printf("holding\n");
        fflush(stdout);
        return app.exec();
    }
    if (mode == "--fatal-child" || mode == "--first-start-child") {
        App app(argc, argv, "Qubrast", "Pelodine");
        if (mode == "--fatal-child")
            qFatal("the end is near");
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
