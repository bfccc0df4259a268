#include "singleappcheck.h"
#include "testutils.h"

#include <QProcess>
#include <QSignalSpy>
#include <QUuid>

using OrkTools::SingleAppCheck;

class TestSingleAppCheck : public QObject
{
    Q_OBJECT

private slots:
    void firstInstanceIsNotRunning();
    void secondSeesRunningAndReachesFirst_data();
    void secondSeesRunningAndReachesFirst();
    void firstInstanceCannotSend();
    void leftOverSegmentDoesNotBlock();
    void secondProcessHandsOverItsMessage();
    void keyIsPerUser();

private:
    static QString freshKey() { return "pelodine-test-" + QUuid::createUuid().toString(QUuid::Id128); }
};

void TestSingleAppCheck::firstInstanceIsNotRunning()
{
    SingleAppCheck first(freshKey());
    QVERIFY(!first.isRunning());
}

void TestSingleAppCheck::secondSeesRunningAndReachesFirst_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("one path") << "/home/user/a.jpg\n";
    QTest::newRow("non-ASCII path") << QString::fromUtf8("/home/юзер/Фото ß.jpg\n");
    QString many;
    for (int i = 0; i < 2000; ++i)
        many += QString("/home/user/photos/holiday-%1.jpg\n").arg(i);
    QTest::newRow("two thousand paths") << many;
}

void TestSingleAppCheck::secondSeesRunningAndReachesFirst()
{
    QFETCH(QString, message);
    const QString key = freshKey();
    SingleAppCheck first(key);
    QSignalSpy received(&first, &SingleAppCheck::messageReceived);
    SingleAppCheck second(key);
    QVERIFY(second.isRunning());
    QVERIFY(second.sendMessage(message));
    QVERIFY(received.wait(5000));
    QCOMPARE(received.first().first().toString(), message);
}

void TestSingleAppCheck::firstInstanceCannotSend()
{
    SingleAppCheck first(freshKey());
    QVERIFY(!first.sendMessage("hello"));
}

void TestSingleAppCheck::leftOverSegmentDoesNotBlock()
{
    const QString key = freshKey();
    QProcess crashed;
    crashed.start(QCoreApplication::applicationFilePath(), {"--hold", key});
    QVERIFY(crashed.waitForReadyRead(10000));
    QCOMPARE(crashed.readLine().trimmed(), QByteArray("holding"));
    crashed.kill();
    QVERIFY(crashed.waitForFinished(10000));

    SingleAppCheck next(key);
    QVERIFY(next.isRunning()); // the dead instance's segment is still there
    QVERIFY(!next.sendMessage("anyone?"));
    QVERIFY(next.takeOver());
    QVERIFY(!next.isRunning());

    QSignalSpy received(&next, &SingleAppCheck::messageReceived);
    SingleAppCheck later(key);
    QVERIFY(later.isRunning());
    QVERIFY(later.sendMessage("/tmp/x.png\n"));
    QVERIFY(received.wait(5000));
}

void TestSingleAppCheck::secondProcessHandsOverItsMessage()
{
    const QString key = freshKey();
    SingleAppCheck first(key);
    QSignalSpy received(&first, &SingleAppCheck::messageReceived);
    QProcess second;
    second.start(QCoreApplication::applicationFilePath(), {"--send", key, "/photos/b.jpg\n"});
    QVERIFY(received.wait(10000));
    QCOMPARE(received.first().first().toString(), QString("/photos/b.jpg\n"));
    // The child may already have ended while we waited for its message.
    QVERIFY(second.state() == QProcess::NotRunning || second.waitForFinished(10000));
    QCOMPARE(second.exitStatus(), QProcess::NormalExit);
    QCOMPARE(second.exitCode(), 0);
}

void TestSingleAppCheck::keyIsPerUser()
{
    const QString key = SingleAppCheck::userKey("Pelodine");
    QVERIFY(key.startsWith("Pelodine-"));
    QVERIFY(key.length() > QString("Pelodine-").length());
}

int main(int argc, char* argv[])
{
    TestUtils::makeSandboxHome();
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() >= 3 && args.at(1) == "--hold") {
        SingleAppCheck guard(args.at(2));
        printf("holding\n");
        fflush(stdout);
        return app.exec();
    }
    if (args.size() >= 4 && args.at(1) == "--send") {
        SingleAppCheck guard(args.at(2));
        return guard.isRunning() && guard.sendMessage(args.at(3)) ? 0 : 1;
    }
    TestSingleAppCheck test;
    return QTest::qExec(&test, 1, argv);
}

#include "tst_singleappcheck.moc"
