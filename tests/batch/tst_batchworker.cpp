#include "batchengine.h"
#include "batchfixtures.h"
#include "batchthread.h"
#include "batchworker.h"
#include "flowfile.h"
#include "outputsettings.h"
#include "testutils.h"

#include <QDir>
#include <QSignalSpy>

#include <atomic>
#include <memory>

using namespace BatchFixtures;

class TestBatchWorker : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void threePhotosKeepTheirNames();
    void renamingAcrossTwoRuns_data();
    void renamingAcrossTwoRuns();
    void laterPhotoWithTheSameNameWins();
    void stopWhilePausedSkipsTheRest();
    void inactiveFlowConvertsOnly();
    void outputFileName_data();
    void outputFileName();
    void unreadablePhotoInTheMiddleIsSkipped();
    void operationsRunInFlowOrder();
    void emptiedImageGoesNoFurther();
    void photoIsReadUpright();
    void photoIsReadAsArgb32();
    void sourcePhotoIsNeverReplaced();
    void writeFailureIsReported();

private:
    // Runs the worker once, on this thread, over the photos into the run's folder.
    void runWorker(BatchWorker& worker, const QStringList& photos, const QString& format,
                   const BatchOperations& operations = {});

    QString inFolder;
    QString outFolder;
    std::unique_ptr<QTemporaryDir> root;
    OutputSettings settings;
};

void TestBatchWorker::init()
{
    root = std::make_unique<QTemporaryDir>();
    inFolder = root->path() + "/in";
    outFolder = root->path() + "/out/";
    QDir().mkpath(outFolder);
    settings = OutputSettings();
}

void TestBatchWorker::runWorker(BatchWorker& worker, const QStringList& photos,
                                const QString& format, const BatchOperations& operations)
{
    settings.format = format;
    worker.prepare(settings, outFolder, urls(photos), operations);
    worker.slotDoWork();
}

void TestBatchWorker::threePhotosKeepTheirNames()
{
    const QStringList photos{writePhoto(inFolder, "a.png", 0xff102030),
                             writePhoto(inFolder, "b.jpg.png", 0xff405060),
                             writePhoto(inFolder, "c.png", 0xff708090)};
    BatchWorker worker;
    QSignalSpy updates(&worker, &BatchWorker::updateInfo);
    QSignalSpy finished(&worker, &BatchWorker::finished);
    runWorker(worker, photos, "PNG");

    QCOMPARE(fileNames(outFolder), (QStringList{"a.png", "b.jpg.png", "c.png"}));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(updates.count(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(updates.at(i).at(1).toInt(), i);
        QCOMPARE(updates.at(i).at(2).toInt(), 3);
    }
    QCOMPARE_IMAGES(QImage(outFolder + "c.png"), TestUtils::filledImage(16, 8, 0xff708090));
}

void TestBatchWorker::renamingAcrossTwoRuns_data()
{
    QTest::addColumn<int>("numbers");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("all restarts at 0") << 0 << QStringList{"NewName0.png", "NewName1.png"};
    QTest::newRow("odd goes on with 5")
        << 1 << QStringList{"NewName1.png", "NewName3.png", "NewName5.png", "NewName7.png"};
    QTest::newRow("even goes on with 6")
        << 2 << QStringList{"NewName2.png", "NewName4.png", "NewName6.png", "NewName8.png"};
}

// Two photos, then the same two again with the same worker, into one folder.
void TestBatchWorker::renamingAcrossTwoRuns()
{
    QFETCH(int, numbers);
    QFETCH(QStringList, expected);
    const QStringList photos{writePhoto(inFolder, "x.png", 0xff000000),
                             writePhoto(inFolder, "y.png", 0xffffffff)};
    settings.rename = true;
    settings.numbers = numbers;
    BatchWorker worker;
    runWorker(worker, photos, "PNG");
    runWorker(worker, photos, "PNG");
    QCOMPARE(fileNames(outFolder), expected);
}

void TestBatchWorker::laterPhotoWithTheSameNameWins()
{
    const QStringList photos{writePhoto(inFolder + "/one", "photo.png", 0xffff0000),
                             writePhoto(inFolder + "/two", "photo.png", 0xff0000ff)};
    BatchWorker worker;
    runWorker(worker, photos, "PNG");
    QCOMPARE(fileNames(outFolder), QStringList{"photo.png"});
    QCOMPARE_IMAGES(QImage(outFolder + "photo.png"), TestUtils::filledImage(16, 8, 0xff0000ff));
}

// The first photo's progress pauses the run; a stop then ends the pause wait and the run.
void TestBatchWorker::stopWhilePausedSkipsTheRest()
{
    QStringList photos;
    for (int i = 0; i < 5; ++i)
        photos << writePhoto(inFolder, QString("p%1.png").arg(i), 0xff203040);
    auto* worker = new BatchWorker;
    BatchThread thread(worker);
    worker->moveToThread(&thread);
    connect(
        worker, &BatchWorker::updateInfo, worker,
        [worker](const QImage&, int nCur, int) {
            if (nCur == 0)
                worker->setPaused(true);
        },
        Qt::DirectConnection);
    std::atomic<int> finishedCount{0};
    connect(
        worker, &BatchWorker::finished, worker, [&finishedCount] { ++finishedCount; },
        Qt::DirectConnection);
    settings.format = "PNG";
    worker->prepare(settings, outFolder, urls(photos), {});
    thread.start();

    QTRY_VERIFY(QFile::exists(outFolder + "p0.png"));
    worker->requestStop();
    QTRY_COMPARE_WITH_TIMEOUT(finishedCount.load(), 1, 1000);
    thread.quit();
    QVERIFY(thread.wait(5000));
    delete worker;
    QCOMPARE(fileNames(outFolder), QStringList{"p0.png"});
}

void TestBatchWorker::inactiveFlowConvertsOnly()
{
    const QString flow = "<OperationsFlow>\n"
                         " <Operation name=\"Invert\" index=\"0\">\n"
                         "  <Parameters>\n"
                         "   <Active>no</Active>\n"
                         "  </Parameters>\n"
                         " </Operation>\n"
                         "</OperationsFlow>\n";
    bool ok = false;
    const BatchOperations operations = FlowFile::operationsFromText(flow, &ok);
    QVERIFY(ok);
    QVERIFY(operations.isEmpty());
    BatchWorker worker;
    runWorker(worker, {writePhoto(inFolder, "still.png", 0xff336699)}, "BMP", operations);
    QCOMPARE(fileNames(outFolder), QStringList{"still.bmp"});
    QCOMPARE_IMAGES(QImage(outFolder + "still.bmp"), TestUtils::filledImage(16, 8, 0xff336699));
}

void TestBatchWorker::outputFileName_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("expected");
    TestUtils::addRow("photo.final.jpg", "photo.final.jpg", "PNG", "photo.final.png");
    TestUtils::addRow("archive.tar.gz", "archive.tar.gz", "TIFF", "archive.tar.tiff");
    TestUtils::addRow("holiday.jpeg as PNG", "holiday.jpeg", "PNG", "holiday.png");
    TestUtils::addRow("JPEG gives jpeg", "shot.png", "JPEG", "shot.jpeg");
    TestUtils::addRow("no extension", "scan", "PPM", "scan.ppm");
}

// The sources hold PNG data whatever their names say; the reader goes by the contents.
void TestBatchWorker::outputFileName()
{
    QFETCH(QString, source);
    QFETCH(QString, format);
    QFETCH(QString, expected);
    BatchWorker worker;
    runWorker(worker, {writePhoto(inFolder, source, 0xff808080)}, format);
    QCOMPARE(fileNames(outFolder), QStringList{expected});
}

void TestBatchWorker::unreadablePhotoInTheMiddleIsSkipped()
{
    const QStringList photos{writePhoto(inFolder, "a.png", 0xff111111),
                             writeNonsense(inFolder, "b.png"),
                             writePhoto(inFolder, "c.png", 0xff333333)};
    BatchWorker worker;
    QSignalSpy updates(&worker, &BatchWorker::updateInfo);
    QSignalSpy finished(&worker, &BatchWorker::finished);
    runWorker(worker, photos, "PNG");
    QCOMPARE(fileNames(outFolder), (QStringList{"a.png", "c.png"}));
    QCOMPARE(updates.count(), 2);
    QCOMPARE(updates.at(1).at(1).toInt(), 2);
    QCOMPARE(finished.count(), 1);
}

// Binarization at 128 then Grayscale: (16, 224, 48) -> (0, 255, 0) -> 255 / 3 = 85.
// The other way round would give grey 96 and then black. An unknown name is passed over.
void TestBatchWorker::operationsRunInFlowOrder()
{
    const BatchOperations operations{
        {"Binarization",
         "<Parameters>\n <Active>yes</Active>\n <Threshold>128</Threshold>\n</Parameters>\n"},
        operation("Sharpen").first(),
        operation("Grayscale").first()};
    BatchWorker worker;
    runWorker(worker, {writePhoto(inFolder, "g.png", 0xff10e030)}, "PNG", operations);
    QCOMPARE_IMAGES(QImage(outFolder + "g.png"), TestUtils::filledImage(16, 8, 0xff555555));
}

void TestBatchWorker::emptiedImageGoesNoFurther()
{
    const BatchOperations operations{
        {"Crop", "<Parameters>\n <Active>yes</Active>\n <Top>60</Top>\n <Bottom>60</Bottom>\n"
                 "</Parameters>\n"},
        operation("Invert").first()};
    const BatchEngine::Photo photo =
        BatchEngine::apply(TestUtils::filledImage(16, 8, 0xff000000), operations);
    QVERIFY(photo.image.isNull());
    QVERIFY2(photo.error.contains("\"Crop\""), qPrintable(photo.error));

    BatchWorker worker;
    runWorker(worker, {writePhoto(inFolder, "gone.png", 0xff000000)}, "PNG", operations);
    QVERIFY(fileNames(outFolder).isEmpty());
}

// A JPEG with an EXIF orientation of 6 (turn right to view): red left half, blue right half
// as stored; upright the red half is on top.
void TestBatchWorker::photoIsReadUpright()
{
    QImage stored(32, 16, QImage::Format_RGB32);
    stored.fill(0xff0000ff);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x)
            stored.setPixel(x, y, 0xffff0000);
    }
    const QString path = inFolder + "/turned.jpg";
    QDir().mkpath(inFolder);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(TestUtils::jpegWithOrientation(stored, 6));
    file.close();

    const BatchEngine::Photo photo = BatchEngine::load(path);
    QCOMPARE(photo.image.size(), QSize(16, 32));
    const QRgb top = photo.image.pixel(8, 4);
    const QRgb bottom = photo.image.pixel(8, 28);
    QVERIFY2(qRed(top) > 200 && qBlue(top) < 60, qPrintable(QString::number(top, 16)));
    QVERIFY2(qBlue(bottom) > 200 && qRed(bottom) < 60, qPrintable(QString::number(bottom, 16)));
}

void TestBatchWorker::photoIsReadAsArgb32()
{
    QImage indexed(4, 4, QImage::Format_Indexed8);
    indexed.setColorTable({0xff00ff00});
    indexed.fill(0);
    QDir().mkpath(inFolder);
    QVERIFY(indexed.save(inFolder + "/palette.png"));
    const BatchEngine::Photo photo = BatchEngine::load(inFolder + "/palette.png");
    QCOMPARE(photo.image.format(), QImage::Format_ARGB32);
    QCOMPARE_IMAGES(photo.image, TestUtils::filledImage(4, 4, 0xff00ff00));
    QVERIFY(photo.error.isEmpty());

    const BatchEngine::Photo missing = BatchEngine::load(inFolder + "/missing.png");
    QVERIFY(missing.image.isNull());
    QVERIFY(missing.error.startsWith("unreadable"));
}

void TestBatchWorker::sourcePhotoIsNeverReplaced()
{
    const QString source = writePhoto(inFolder, "keep.png", 0xff123456);
    const QByteArray before = fileBytes(source);
    BatchEngine engine({source}, operation("Invert"), "PNG", -1);
    const BatchEngine::Photo photo = engine.process(0);
    const QStringList sameFile{source, inFolder + "/../in/keep.png"};
    for (const QString& target : sameFile) {
        const BatchEngine::WriteResult result = engine.write(photo.image, target);
        QVERIFY(!result.written);
        QVERIFY2(result.error.contains("source photo"), qPrintable(result.error));
    }
    QCOMPARE(fileBytes(source), before);
    QVERIFY(engine.write(photo.image, inFolder + "/other.png").written);
}

void TestBatchWorker::writeFailureIsReported()
{
    const QString source = writePhoto(inFolder, "a.png", 0xff123456);
    BatchEngine engine({source}, {}, "PNG", -1);
    const BatchEngine::Photo photo = engine.process(0);
    const BatchEngine::WriteResult result =
        engine.write(photo.image, root->path() + "/no/such/folder/a.png");
    QVERIFY(!result.written);
    QVERIFY2(result.error.startsWith("cannot write"), qPrintable(result.error));
}

PELODINE_TEST_MAIN(TestBatchWorker)
#include "tst_batchworker.moc"
