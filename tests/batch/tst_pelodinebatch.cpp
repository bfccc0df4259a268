#include "app.h"
#include "batchfixtures.h"
#include "batchworker.h"
#include "flowfile.h"
#include "outputsettings.h"
#include "testutils.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>

#include <memory>

using namespace BatchFixtures;
using OrkWidgets::App;

namespace {

struct Outcome
{
    int exitCode = -1;
    QString out;
    QString err;
};

// A text watermark, then an Invert: listed in the other order, so the indices must decide.
const char watermarkFlow[] =
    "<OperationsFlow><Operation name=\"Invert\" index=\"1\"><Parameters><Active>yes</Active>"
    "</Parameters></Operation><Operation name=\"Watermark\" index=\"0\"><Parameters>"
    "<Active>yes</Active><Mode>0</Mode><Size>40</Size><Text>Watermark</Text>"
    "<Position>BottomRight</Position><Transparency>25</Transparency><Color>#ffffff</Color>"
    "<Background>#000000</Background><BackgroundEnabled>yes</BackgroundEnabled>"
    "<Font>DejaVu Sans</Font></Parameters></Operation></OperationsFlow>";

} // namespace

class TestPelodineBatch : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void helpDocumentsEveryOption();
    void badUsage_data();
    void badUsage();
    void sampleFlowIntoATimeStampedFolder();
    void quietPrintsNothing();
    void everyFormatMatchesTheWindow_data();
    void everyFormatMatchesTheWindow();
    void renaming_data();
    void renaming();
    void storedSettingsFillIn();
    void failuresAreNamedWithTheirReason();
    void sourcePhotoIsNeverWrittenOver();
    void flowByName_data();
    void flowByName();
    void foldersExpandInNameOrder();
    void needsNoDisplay();

private:
    Outcome run(const QStringList& arguments,
                const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());
    // Three 160 x 100 photos with a colour gradient.
    QStringList gradientPhotos();
    QString writeText(const QString& path, const QString& text);
    // What the window's batch writes for the flow, settings and photos.
    void runWindowWorker(const QString& flow, const OutputSettings& settings,
                         const QStringList& photos, const QString& folder);

    std::unique_ptr<QTemporaryDir> root;
    QString inFolder;
    QString outFolder;
};

void TestPelodineBatch::init()
{
    QSettings().clear();
    QDir(App::outputBaseFolder()).removeRecursively();
    root = std::make_unique<QTemporaryDir>();
    inFolder = root->path() + "/in";
    outFolder = root->path() + "/out/";
}

Outcome TestPelodineBatch::run(const QStringList& arguments, const QProcessEnvironment& environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(PELODINE_BATCH_PATH, arguments);
    if (!process.waitForFinished(120000))
        return {};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

QStringList TestPelodineBatch::gradientPhotos()
{
    QStringList photos;
    for (int i = 0; i < 3; ++i) {
        QImage image(160, 100, QImage::Format_ARGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, qRgb(x, y * 2, 60 * i));
        }
        QDir().mkpath(inFolder);
        photos << inFolder + QString("/photo%1.png").arg(i);
        image.save(photos.last());
    }
    return photos;
}

QString TestPelodineBatch::writeText(const QString& path, const QString& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(text.toUtf8());
    return path;
}

void TestPelodineBatch::runWindowWorker(const QString& flow, const OutputSettings& settings,
                                        const QStringList& photos, const QString& folder)
{
    QDir().mkpath(folder);
    BatchWorker worker;
    worker.prepare(settings, folder, urls(photos), FlowFile::operationsFromText(flow));
    worker.slotDoWork();
}

void TestPelodineBatch::helpDocumentsEveryOption()
{
    const Outcome outcome = run({"--help"});
    QCOMPARE(outcome.exitCode, 0);
    const QStringList expected{"--flow <FILE|NAME>",
                               "--output <DIR>",
                               "--format <JPEG|PNG|BMP|TIFF|PPM|XPM>",
                               "--quality <1-100>",
                               "--rename <NAME>",
                               "--numbers <all|odd|even>",
                               "--quiet",
                               "PHOTO|FOLDER",
                               "Exit status: 0"};
    for (const QString& text : expected)
        QVERIFY2(outcome.out.contains(text), qPrintable(text + " missing in\n" + outcome.out));
}

void TestPelodineBatch::badUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    QTest::newRow("unknown option")
        << QStringList{"--colour", "red", "PHOTO"} << "Unknown option 'colour'.";
    QTest::newRow("option without its value")
        << QStringList{"PHOTO", "--format"} << "Missing value after '--format'.";
    QTest::newRow("unknown format")
        << QStringList{"--format", "GIF", "PHOTO"} << "unknown format GIF";
    QTest::newRow("quality 0") << QStringList{"--quality", "0", "PHOTO"}
                               << "the quality must be 1 to 100";
    QTest::newRow("quality 101") << QStringList{"--quality", "101", "PHOTO"}
                                 << "the quality must be 1 to 100";
    QTest::newRow("quality in words")
        << QStringList{"--quality", "high", "PHOTO"} << "the quality must be 1 to 100";
    QTest::newRow("unknown numbers")
        << QStringList{"--numbers", "prime", "PHOTO"} << "the numbers must be all, odd or even";
    QTest::newRow("no photos") << QStringList{"--format", "PNG"} << "no photos given";
    QTest::newRow("folder without photos")
        << QStringList{"EMPTY"} << "no photos in the folders given";
    QTest::newRow("missing flow") << QStringList{"--flow", "/nowhere/x.flow", "PHOTO"}
                                  << "no flow file or flow named /nowhere/x.flow";
    QTest::newRow("flow that is not XML")
        << QStringList{"--flow", "NOTXML", "PHOTO"} << "NOTXML is not a flow";
    QTest::newRow("output under a file")
        << QStringList{"--output", "PHOTO/sub", "PHOTO"} << "cannot create the folder PHOTO/sub";
}

// PHOTO, EMPTY and NOTXML stand for a photo, an empty folder and a broken flow file.
void TestPelodineBatch::badUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const QString photo = writePhoto(inFolder, "a.png", 0xff000000);
    const QString empty = root->path() + "/empty";
    QDir().mkpath(empty + "/sub");
    const QString notXml = writeText(root->path() + "/broken.flow", "<OperationsFlow><Op");
    for (QString& argument : arguments)
        argument.replace("PHOTO", photo).replace("EMPTY", empty).replace("NOTXML", notXml);
    reason.replace("PHOTO", photo).replace("NOTXML", notXml);

    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.exitCode, 2);
    QVERIFY2(outcome.err.contains("pelodine-batch: " + reason), qPrintable(outcome.err));
    QVERIFY(!QDir(App::outputBaseFolder()).exists());
}

void TestPelodineBatch::sampleFlowIntoATimeStampedFolder()
{
    const QStringList photos = gradientPhotos();
    const Outcome outcome = run(photos);
    QCOMPARE(outcome.exitCode, 0);

    const QStringList folders =
        QDir(App::outputBaseFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QCOMPARE(folders.size(), 1);
    QVERIFY2(QRegularExpression("^\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d$")
                 .match(folders.first())
                 .hasMatch(),
             qPrintable(folders.first()));
    const QString destination = App::outputBaseFolder() + folders.first() + "/";
    QCOMPARE(fileNames(destination), (QStringList{"photo0.jpeg", "photo1.jpeg", "photo2.jpeg"}));
    const QImage written(destination + "photo1.jpeg");
    QCOMPARE(written.size(), QSize(160, 100));

    QString sample;
    QVERIFY(FlowFile::readFlowFile(":/sample.flow", &sample));
    const QString windowFolder = root->path() + "/window/";
    runWindowWorker(sample, OutputSettings(), photos, windowFolder);
    for (const QString& name : fileNames(destination))
        QVERIFY2(fileBytes(destination + name) == fileBytes(windowFolder + name), qPrintable(name));

    const QStringList lines = outcome.err.split('\n', Qt::SkipEmptyParts);
    const QStringList expected{"1 of 3: " + photos.at(0), "2 of 3: " + photos.at(1),
                               "3 of 3: " + photos.at(2),
                               "3 of 3 photos written into " + destination};
    QCOMPARE(lines, expected);
}

void TestPelodineBatch::quietPrintsNothing()
{
    const Outcome outcome = run({"--quiet", "--output", outFolder, gradientPhotos().first()});
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, QString());
    QCOMPARE(fileNames(outFolder), QStringList{"photo0.jpeg"});
}

void TestPelodineBatch::everyFormatMatchesTheWindow_data()
{
    QTest::addColumn<QString>("format");
    const QStringList formats = OutputSettings::formats();
    for (const QString& format : formats)
        QTest::newRow(qPrintable(format)) << format;
}

// The window's worker and the command line write the same bytes for one flow and settings.
void TestPelodineBatch::everyFormatMatchesTheWindow()
{
    QFETCH(QString, format);
    const QStringList photos = gradientPhotos();
    const QString flow = writeText(root->path() + "/job.flow", watermarkFlow);

    const QString windowFolder = root->path() + "/window/";
    OutputSettings settings;
    settings.format = format;
    runWindowWorker(watermarkFlow, settings, photos, windowFolder);

    const Outcome outcome =
        run({"--flow", flow, "--format", format, "--output", outFolder, photos.at(0), inFolder});
    QCOMPARE(outcome.exitCode, 0);
    const QString extension = "." + format.toLower();
    const QStringList expected{"photo0" + extension, "photo1" + extension, "photo2" + extension};
    QCOMPARE(fileNames(windowFolder), expected);
    QCOMPARE(fileNames(outFolder), expected);
    for (const QString& name : expected) {
        QVERIFY2(fileBytes(outFolder + name) == fileBytes(windowFolder + name), qPrintable(name));
        QCOMPARE(QImage(outFolder + name).size(), QSize(160, 100));
    }
    QVERIFY(QImage(outFolder + expected.first()).pixel(5, 5) != QImage(photos.first()).pixel(5, 5));
}

void TestPelodineBatch::renaming_data()
{
    QTest::addColumn<QString>("numbers");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("all") << "all" << QStringList{"Shot0.png", "Shot1.png", "Shot2.png"};
    QTest::newRow("odd") << "odd" << QStringList{"Shot1.png", "Shot3.png", "Shot5.png"};
    QTest::newRow("even") << "even" << QStringList{"Shot2.png", "Shot4.png", "Shot6.png"};
}

void TestPelodineBatch::renaming()
{
    QFETCH(QString, numbers);
    QFETCH(QStringList, expected);
    gradientPhotos();
    QCOMPARE(run({"--rename", "Shot", "--numbers", numbers, "--format", "PNG", "--output",
                  outFolder, inFolder})
                 .exitCode,
             0);
    QCOMPARE(fileNames(outFolder), expected);
}

void TestPelodineBatch::storedSettingsFillIn()
{
    App::writeSetting("KeyFormat", "BMP");
    App::writeSetting("KeyRename", true);
    App::writeSetting("KeyNewName", "Stored");
    App::writeSetting("KeyNumbers", 2);
    const QStringList photos = gradientPhotos();
    QCOMPARE(run({"--output", outFolder, photos.at(0), photos.at(1)}).exitCode, 0);
    QCOMPARE(fileNames(outFolder), (QStringList{"Stored2.bmp", "Stored4.bmp"}));
}

void TestPelodineBatch::failuresAreNamedWithTheirReason()
{
    const QStringList photos{writePhoto(inFolder, "a.png", 0xff102030),
                             writeNonsense(inFolder, "b.png"), inFolder + "/missing.png"};
    const Outcome outcome =
        run({"--output", outFolder, "--quiet", photos.at(0), photos.at(1), photos.at(2)});
    QCOMPARE(outcome.exitCode, 1);
    QCOMPARE(fileNames(outFolder), QStringList{"a.jpeg"});
    const QStringList expected{"2 photo(s) failed:",
                               "  " + photos.at(1) +
                                   ": unreadable: not a photo this program can read",
                               "  " + photos.at(2) + ": unreadable: no such file"};
    QCOMPARE(outcome.err.split('\n', Qt::SkipEmptyParts), expected);

    const Outcome loud = run({"--output", outFolder, photos.at(1), photos.at(0)});
    QCOMPARE(loud.exitCode, 1);
    QVERIFY2(loud.err.contains("1 of 2 photos written into " + outFolder), qPrintable(loud.err));
    QVERIFY2(loud.err.contains("1 photo(s) failed:"), qPrintable(loud.err));
}

void TestPelodineBatch::sourcePhotoIsNeverWrittenOver()
{
    const QString photo = writePhoto(inFolder, "keep.png", 0xff102030);
    const QString other = writePhoto(inFolder, "other.jpg", 0xff102030);
    const QByteArray before = fileBytes(photo);
    const Outcome outcome = run({"--format", "PNG", "--output", inFolder, photo, other});
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.err.contains(photo + ": cannot write: it would replace a source photo"),
             qPrintable(outcome.err));
    QCOMPARE(fileBytes(photo), before);
    QCOMPARE(fileNames(inFolder), (QStringList{"keep.png", "other.jpg", "other.png"}));
}

void TestPelodineBatch::flowByName_data()
{
    QTest::addColumn<QString>("flow");
    QTest::newRow("name") << "invert";
    QTest::newRow("file name") << "invert.flow";
}

void TestPelodineBatch::flowByName()
{
    QFETCH(QString, flow);
    writeText(FlowFile::flowsFolder() + "invert.flow",
              "<OperationsFlow><Operation name=\"Invert\" index=\"0\"><Parameters>"
              "<Active>yes</Active></Parameters></Operation></OperationsFlow>");
    const QString photo = writePhoto(inFolder, "a.png", 0xff102030);
    QCOMPARE(run({"--flow", flow, "--format", "PNG", "--output", outFolder, photo}).exitCode, 0);
    QCOMPARE_IMAGES(QImage(outFolder + "a.png"), TestUtils::filledImage(16, 8, 0xffefdfcf));
}

void TestPelodineBatch::foldersExpandInNameOrder()
{
    writePhoto(inFolder + "/sub", "c.png", 0xff000000);
    writePhoto(inFolder, "b.png", 0xff000000);
    writePhoto(inFolder, "a.png", 0xff000000);
    writeText(inFolder + "/notes.txt", "not a photo");
    const Outcome outcome = run({"--format", "PNG", "--output", outFolder, inFolder});
    QCOMPARE(outcome.exitCode, 0);
    const QStringList lines = outcome.err.split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.mid(0, 3),
             (QStringList{"1 of 3: " + inFolder + "/a.png", "2 of 3: " + inFolder + "/b.png",
                          "3 of 3: " + inFolder + "/sub/c.png"}));
    QCOMPARE(fileNames(outFolder), (QStringList{"a.png", "b.png", "c.png"}));
}

void TestPelodineBatch::needsNoDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QT_QPA_PLATFORM");
    environment.remove("DISPLAY");
    environment.remove("WAYLAND_DISPLAY");
    const Outcome outcome = run({"--output", outFolder, gradientPhotos().first()}, environment);
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(fileNames(outFolder), QStringList{"photo0.jpeg"});
}

PELODINE_TEST_MAIN(TestPelodineBatch)
#include "tst_pelodinebatch.moc"
