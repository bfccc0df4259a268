#include "appdata.h"
#include "commondata.h"
#include "outputsettings.h"
#include "testutils.h"

#include <QSettings>

class TestOutputNaming : public QObject
{
    Q_OBJECT

private slots:
    void init() { QSettings().clear(); }
    void displayName_data();
    void displayName();
    void unreadableSettings();
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

// A stored number that cannot be read gives the default: quality 90, numbers all.
void TestOutputNaming::unreadableSettings()
{
    OrkTools::AppData::writeSetting("KeyQuality", "high");
    OrkTools::AppData::writeSetting("KeyNumbers", "");
    const OutputSettings settings = OutputSettings::load();
    QCOMPARE(QString("%1 %2 %3").arg(settings.quality).arg(settings.numbers).arg(settings.format),
             QString("90 0 JPEG"));
}

PELODINE_TEST_MAIN(TestOutputNaming)
#include "tst_outputnaming.moc"
