// Every file pelodine-batch writes for the flows in golden/ is compared, by its SHA-256, with
// the files an earlier build wrote. Reading flows and running nodes may be reorganised freely;
// the bytes written must not move. PELODINE_GOLDEN_RECORD=FILE writes the list anew.
#include "testutils.h"

#include <QCryptographicHash>
#include <QDir>
#include <QRegularExpression>

class TestBatchGolden : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void outputsAreUnchanged_data();
    void outputsAreUnchanged();
    void cleanupTestCase();

private:
    QTemporaryDir work;
    QStringList photos;
    QStringList recorded;
    QStringList expected;
};

void TestBatchGolden::initTestCase()
{
    // Opaque, transparent and EXIF-turned photos, small and fixed.
    QImage opaque(64, 48, QImage::Format_RGB32);
    QImage clear(48, 64, QImage::Format_ARGB32);
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            if (y < 48)
                opaque.setPixel(x, y, qRgb(x * 4, y * 5, (x * y) % 256));
            if (x < 48)
                clear.setPixel(x, y, qRgba(200 - x * 3, y * 4, 90, (x + y) * 2));
        }
    }
    photos << work.filePath("opaque.png") << work.filePath("clear.png")
           << work.filePath("turned.jpg");
    QVERIFY(opaque.save(photos.at(0)) && clear.save(photos.at(1)));
    QFile turned(photos.at(2));
    QVERIFY(turned.open(QIODevice::WriteOnly));
    turned.write(TestUtils::jpegWithOrientation(opaque.scaled(40, 30), 6));
    turned.close();

    QFile list(QFINDTESTDATA("golden/expected.txt"));
    if (list.open(QIODevice::ReadOnly))
        expected = QString::fromUtf8(list.readAll()).split('\n', Qt::SkipEmptyParts);
}

void TestBatchGolden::outputsAreUnchanged_data()
{
    QTest::addColumn<QString>("flow");
    QTest::addColumn<QStringList>("options");
    for (const char* format : {"JPEG", "PNG", "BMP", "TIFF", "PPM", "XPM"})
        TestUtils::addRow(format, QString("every-node"), QStringList{"--format", format});
    for (const char* flow : {"missing-keys", "clamped", "resize-mode0", "resize-mode1",
                             "resize-mode2", "resize-order"})
        TestUtils::addRow(flow, QString(flow), QStringList{"--format", "PNG"});
    TestUtils::addRow(
        "JPEG 70 odd names", QString("every-node"),
        QStringList{"--format", "JPEG", "--quality", "70", "--rename", "Trip", "--numbers", "odd"});
    TestUtils::addRow("PNG even names", QString("every-node"),
                      QStringList{"--format", "PNG", "--rename", "Set", "--numbers", "even"});
}

void TestBatchGolden::outputsAreUnchanged()
{
    QFETCH(QString, flow);
    QFETCH(QStringList, options);
    const QString row = QTest::currentDataTag();
    const QString folder = work.filePath(row);
    const TestUtils::Outcome batch = TestUtils::run(
        PELODINE_BATCH_PATH, QStringList{"--flow", QFINDTESTDATA("golden/" + flow + ".flow"),
                                         "--output", folder, "--quiet", "--lenient"} +
                                 options + photos);

    // A photo the flow leaves empty fails, and that too must not change.
    QStringList lines{row + "/ exit " + QString::number(batch.exitCode)};
    const QStringList files = QDir(folder).entryList(QDir::Files, QDir::Name);
    for (const QString& name : files) {
        QFile file(folder + "/" + name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        lines << row + "/" + name + " " +
                     QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256).toHex();
    }
    recorded << lines;
    if (qEnvironmentVariableIsEmpty("PELODINE_GOLDEN_RECORD")) {
        const QStringList before =
            expected.filter(QRegularExpression("^" + QRegularExpression::escape(row) + "/"));
        QCOMPARE(lines, before);
    }
}

void TestBatchGolden::cleanupTestCase()
{
    const QString record = qEnvironmentVariable("PELODINE_GOLDEN_RECORD");
    QFile file(record);
    if (!record.isEmpty() && file.open(QIODevice::WriteOnly))
        file.write((recorded.join('\n') + '\n').toUtf8());
}

PELODINE_TEST_MAIN(TestBatchGolden)
#include "tst_batchgolden.moc"
