#include "app.h"
#include "commondata.h"
#include "outputsettings.h"
#include "testutils.h"

#include <QSettings>

namespace {

QString describe(const OutputSettings& settings)
{
    return QString("open=%1|format=%2|quality=%3|rename=%4|name=%5|numbers=%6|writer=%7")
        .arg(settings.openLocation)
        .arg(settings.format)
        .arg(settings.quality)
        .arg(settings.rename)
        .arg(settings.newName)
        .arg(settings.numbers)
        .arg(settings.writerQuality());
}

const char defaults[] = "open=1|format=JPEG|quality=90|rename=0|name=NewName|numbers=0|writer=90";

} // namespace

class TestOutputNaming : public QObject
{
    Q_OBJECT

private slots:
    void init() { QSettings().clear(); }
    void displayName_data();
    void displayName();
    void storedSettings_data();
    void storedSettings();
};

void TestOutputNaming::displayName_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    TestUtils::addRow("one extension", "/photos/holiday.jpeg", "holiday");
    TestUtils::addRow("two dots keep the first", "/photos/photo.final.jpg", "photo.final");
    TestUtils::addRow("upper-case extension", "/photos/IMG_0001.JPG", "IMG_0001");
    TestUtils::addRow("no dot stays whole", "/photos/README", "README");
    TestUtils::addRow("dot in the folder only", "/photos.2024/scan", "scan");
    TestUtils::addRow("leading dot leaves nothing", "/photos/.hidden", "");
    TestUtils::addRow("trailing dot", "/photos/odd.", "odd");
}

void TestOutputNaming::displayName()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    QCOMPARE(CommonData::displayNameOf(path), name);
}

void TestOutputNaming::storedSettings_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("settings");
    TestUtils::addRow("nothing stored", "", defaults);
    TestUtils::addRow("unreadable values",
                      "KeyOpenLocation=x|KeyQuality=high|KeyNumbers=", defaults);
}

void TestOutputNaming::storedSettings()
{
    QFETCH(QString, stored);
    QFETCH(QString, settings);
    for (const auto& [key, value] : TestUtils::keyValues(stored)) {
        if (!key.isEmpty())
            OrkWidgets::App::writeSetting(key, value);
    }
    QCOMPARE(describe(OutputSettings::load()), settings);
}

PELODINE_TEST_MAIN(TestOutputNaming)
#include "tst_outputnaming.moc"
