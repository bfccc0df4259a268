#include "app.h"
#include "commondata.h"
#include "outputnaming.h"
#include "outputsettings.h"
#include "testutils.h"

#include <QSettings>

using OrkWidgets::App;

class TestOutputNaming : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void baseName_data();
    void baseName();
    void extension_data();
    void extension();
    void namesOfARun_data();
    void namesOfARun();
    void writerQuality_data();
    void writerQuality();
    void freshSettingsAreTheDefaults();
    void unreadableNumbersGiveTheDefaults_data();
    void unreadableNumbersGiveTheDefaults();
    void storedSettingsAreRead();
};

void TestOutputNaming::init()
{
    QSettings().clear();
}

void TestOutputNaming::baseName_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    TestUtils::addRow("one extension", "/photos/holiday.jpeg", "holiday");
    TestUtils::addRow("two dots keep the first", "/photos/photo.final.jpg", "photo.final");
    TestUtils::addRow("archive.tar.gz", "archive.tar.gz", "archive.tar");
    TestUtils::addRow("no dot stays whole", "/photos/README", "README");
    TestUtils::addRow("dot in the folder only", "/photos.2024/scan", "scan");
    TestUtils::addRow("leading dot leaves nothing", "/photos/.hidden", "");
    TestUtils::addRow("trailing dot", "/photos/odd.", "odd");
}

void TestOutputNaming::baseName()
{
    QFETCH(QString, path);
    QFETCH(QString, expected);
    QCOMPARE(CommonData::displayNameOf(path), expected);
}

void TestOutputNaming::extension_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("expected");
    TestUtils::addRow("JPEG is jpeg, not jpg", "JPEG", "jpeg");
    TestUtils::addRow("PNG", "PNG", "png");
    TestUtils::addRow("BMP", "BMP", "bmp");
    TestUtils::addRow("TIFF", "TIFF", "tiff");
    TestUtils::addRow("PPM", "PPM", "ppm");
    TestUtils::addRow("XPM", "XPM", "xpm");
}

void TestOutputNaming::extension()
{
    QFETCH(QString, format);
    QFETCH(QString, expected);
    QCOMPARE(OutputNaming::extension(format), expected);
}

// Three photos named in one run, then two more in a second run with the same counters.
void TestOutputNaming::namesOfARun_data()
{
    QTest::addColumn<bool>("rename");
    QTest::addColumn<QString>("newName");
    QTest::addColumn<int>("numbers");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<int>("oddAfter");
    QTest::addColumn<int>("evenAfter");
    QTest::newRow("rename off keeps the names")
        << false << "NewName" << 1 << QStringList{"a", "b.x", "c", "a", "b.x"} << 1 << 2;
    QTest::newRow("all counts the position, again from 0")
        << true << "NewName" << 0
        << QStringList{"NewName0", "NewName1", "NewName2", "NewName0", "NewName1"} << 1 << 2;
    QTest::newRow("odd continues in the second run")
        << true << "NewName" << 1
        << QStringList{"NewName1", "NewName3", "NewName5", "NewName7", "NewName9"} << 11 << 2;
    QTest::newRow("even continues in the second run")
        << true << "Shot" << 2 << QStringList{"Shot2", "Shot4", "Shot6", "Shot8", "Shot10"} << 1
        << 12;
    QTest::newRow("unknown scheme counts as even")
        << true << "Shot" << 7 << QStringList{"Shot2", "Shot4", "Shot6", "Shot8", "Shot10"} << 1
        << 12;
    QTest::newRow("empty new name leaves the numbers")
        << true << "" << 0 << QStringList{"0", "1", "2", "0", "1"} << 1 << 2;
}

void TestOutputNaming::namesOfARun()
{
    QFETCH(bool, rename);
    QFETCH(QString, newName);
    QFETCH(int, numbers);
    QFETCH(QStringList, expected);
    QFETCH(int, oddAfter);
    QFETCH(int, evenAfter);
    const QStringList firstRun{"/in/a.png", "/in/b.x.png", "/in/c.jpg"};
    const QStringList secondRun{"/in/a.png", "/in/b.x.png"};
    int oddCounter = 1;
    int evenCounter = 2;
    QStringList names;
    for (const QStringList& run : {firstRun, secondRun}) {
        for (int i = 0; i < run.size(); ++i)
            names << OutputNaming::outputName(run.at(i), i, rename, newName, numbers, oddCounter,
                                              evenCounter);
    }
    QCOMPARE(names, expected);
    QCOMPARE(oddCounter, oddAfter);
    QCOMPARE(evenCounter, evenAfter);
}

void TestOutputNaming::writerQuality_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("expected");
    QTest::newRow("JPEG gets the stored quality") << "JPEG" << 73;
    QTest::newRow("PNG gets the default") << "PNG" << -1;
    QTest::newRow("TIFF gets the default") << "TIFF" << -1;
    QTest::newRow("jpeg in lower case is not JPEG") << "jpeg" << -1;
}

void TestOutputNaming::writerQuality()
{
    QFETCH(QString, format);
    QFETCH(int, expected);
    OutputSettings settings;
    settings.format = format;
    settings.quality = 73;
    QCOMPARE(settings.writerQuality(), expected);
}

void TestOutputNaming::freshSettingsAreTheDefaults()
{
    const OutputSettings settings = OutputSettings::load();
    QCOMPARE(settings.openLocation, true);
    QCOMPARE(settings.format, QString("JPEG"));
    QCOMPARE(settings.quality, 90);
    QCOMPARE(settings.rename, false);
    QCOMPARE(settings.newName, QString("NewName"));
    QCOMPARE(settings.numbers, 0);
    QCOMPARE(settings.writerQuality(), 90);
}

void TestOutputNaming::unreadableNumbersGiveTheDefaults_data()
{
    QTest::addColumn<QString>("stored");
    QTest::newRow("text") << "high";
    QTest::newRow("empty") << "";
}

void TestOutputNaming::unreadableNumbersGiveTheDefaults()
{
    QFETCH(QString, stored);
    App::writeSetting("KeyQuality", stored);
    App::writeSetting("KeyNumbers", stored);
    const OutputSettings settings = OutputSettings::load();
    QCOMPARE(settings.quality, 90);
    QCOMPARE(settings.numbers, 0);
}

void TestOutputNaming::storedSettingsAreRead()
{
    App::writeSetting("KeyOpenLocation", false);
    App::writeSetting("KeyFormat", "TIFF");
    App::writeSetting("KeyQuality", 42);
    App::writeSetting("KeyRename", true);
    App::writeSetting("KeyNewName", "Trip");
    App::writeSetting("KeyNumbers", 2);
    const OutputSettings settings = OutputSettings::load();
    QCOMPARE(settings.openLocation, false);
    QCOMPARE(settings.format, QString("TIFF"));
    QCOMPARE(settings.quality, 42);
    QCOMPARE(settings.rename, true);
    QCOMPARE(settings.newName, QString("Trip"));
    QCOMPARE(settings.numbers, 2);
    QCOMPARE(settings.writerQuality(), -1);
}

PELODINE_TEST_MAIN(TestOutputNaming)
#include "tst_outputnaming.moc"
