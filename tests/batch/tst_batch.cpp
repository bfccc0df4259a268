// A batch run from the window (engine, worker, dialog) and from pelodine-batch.
#include "app.h"
#include "appdata.h"
#include "batchdialog.h"
#include "batchengine.h"
#include "batchthread.h"
#include "batchworker.h"
#include "flowfile.h"
#include "flowoperations.h"
#include "outputsettings.h"
#include "testutils.h"

#include <QBuffer>
#include <QColorSpace>
#include <QDateTime>
#include <QImageWriter>
#include <QRandomGenerator>
#include <QSettings>
#include <QSignalSpy>

#include <exiv2/exiv2.hpp>

#include <memory>

using OrkWidgets::App;
using TestUtils::readFile;

namespace {

const QString active = "<Parameters><Active>yes</Active></Parameters>";

// A text watermark, then an Invert: listed in the other order, so the indices must decide.
const char watermarkFlow[] =
    "<OperationsFlow><Operation name=\"Invert\" index=\"1\"><Parameters><Active>yes</Active>"
    "</Parameters></Operation><Operation name=\"Watermark\" index=\"0\"><Parameters>"
    "<Active>yes</Active><Size>20</Size><Text>Watermark</Text><Position>BottomRight</Position>"
    "<Font>DejaVu Sans</Font></Parameters></Operation></OperationsFlow>";

// A 40 x 30 PNG of one colour at folder + "/" + fileName, whatever the name's extension.
QString writePhoto(const QString& folder, const QString& fileName, QRgb colour)
{
    QDir().mkpath(QFileInfo(folder + "/" + fileName).path());
    TestUtils::filledImage(40, 30, colour).save(folder + "/" + fileName, "PNG");
    return folder + "/" + fileName;
}

QList<QUrl> urls(const QStringList& paths)
{
    QList<QUrl> list;
    for (const QString& path : paths)
        list << QUrl::fromLocalFile(path);
    return list;
}

// The file names in folder, sorted, separated by spaces.
QString fileNames(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name).join(' ');
}

void store(const QString& settings)
{
    QSettings().clear();
    for (const auto& [key, value] : TestUtils::keyValues(settings))
        if (!key.isEmpty())
            OrkTools::AppData::writeSetting(key, value);
}

using TestUtils::Outcome;

Outcome runCommand(const QStringList& arguments)
{
    return TestUtils::run(PELODINE_BATCH_PATH, arguments);
}

// A 40 x 30 Adobe RGB JPEG as a camera writes it (Orientation 6: shown 30 wide, 40 high), with
// a thumbnail, GPS and a city, an IPTC keyword and an XMP subject.
QString writeCameraPhoto(const QString& path, uint16_t orientation)
{
    QImage image = TestUtils::filledImage(40, 30, 0xff4080c0);
    image.setColorSpace(QColorSpace::AdobeRgb);
    image.save(path, "JPEG");
    auto photo = Exiv2::ImageFactory::open(path.toStdString());
    photo->readMetadata();
    Exiv2::ExifData& exif = photo->exifData();
    for (const auto& [key, value] : TestUtils::keyValues(
             "Exif.Image.Make=Camera|Exif.Image.Model=M1|Exif.Image.Artist=Ann|"
             "Exif.Image.Copyright=(c) Ann|Exif.Photo.DateTimeOriginal=2024:05:01 10:00:00|"
             "Exif.GPSInfo.GPSLatitudeRef=N"))
        exif[key.toStdString()] = value.toStdString();
    exif["Exif.Image.Orientation"] = orientation;
    exif["Exif.Image.ImageWidth"] = uint32_t(40);
    exif["Exif.Image.ImageLength"] = uint32_t(30);
    exif["Exif.Photo.PixelXDimension"] = uint32_t(40);
    exif["Exif.Photo.PixelYDimension"] = uint32_t(30);
    exif["Exif.GPSInfo.GPSLatitude"] = Exiv2::URationalValue(Exiv2::URational(48, 1));
    QByteArray thumbnail;
    QBuffer buffer(&thumbnail);
    buffer.open(QIODevice::WriteOnly);
    TestUtils::filledImage(8, 6, 0xff000000).save(&buffer, "JPEG");
    Exiv2::ExifThumb(exif).setJpegThumbnail(reinterpret_cast<const Exiv2::byte*>(thumbnail.data()),
                                            thumbnail.size());
    photo->iptcData()["Iptc.Application2.Keywords"] = "beach";
    photo->xmpData()["Xmp.dc.subject"] = "sea";
    photo->xmpData()["Xmp.photoshop.City"] = "Rovinj";
    photo->writeMetadata();
    return path;
}

// Every EXIF, IPTC and XMP key of the file with its value as text; none when Exiv2 cannot
// read the file.
QMap<QString, QString> metadataOf(const QString& path)
{
    QMap<QString, QString> found;
    const auto collect = [&found](const auto& data) {
        for (const auto& datum : data)
            found[QString::fromStdString(datum.key())] = QString::fromStdString(datum.toString());
    };
    try {
        auto image = Exiv2::ImageFactory::open(path.toStdString());
        image->readMetadata();
        collect(image->exifData());
        collect(image->iptcData());
        collect(image->xmpData());
    } catch (const Exiv2::AnyError&) {
    }
    return found;
}

} // namespace

class TestBatch : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void outputFiles_data();
    void outputFiles();
    void engine();
    void stopWhilePaused();
    void stopBeforeTheStartStillCloses();
    void usage_data();
    void usage();
    void sameFilesAsTheWindow_data();
    void sameFilesAsTheWindow();
    void sampleFlowIntoATimeStampedFolder();
    void failuresAreNamedWithTheirReason();
    void metadataTravels_data();
    void metadataTravels();

private:
    // photo0.png and photo1.png in the in folder, sub/photo2.png below it, and a text file;
    // the photos' paths in name order.
    QStringList writePhotos();

    std::unique_ptr<QTemporaryDir> root;
    QString in;
    QString out;
};

void TestBatch::init()
{
    QSettings().clear();
    QDir(OrkTools::AppData::outputBaseFolder()).removeRecursively();
    root = std::make_unique<QTemporaryDir>();
    in = root->path() + "/in";
    out = root->path() + "/out/";
    QDir().mkpath(out);
}

QStringList TestBatch::writePhotos()
{
    // Written last first, so that the directory order does not give the name order by luck.
    const QString photo2 = writePhoto(in + "/sub", "photo2.png", 0xff3060c0);
    const QString photo1 = writePhoto(in, "photo1.png", 0xffc06030);
    TestUtils::writeFile(in + "/notes.txt", "not a photo");
    return {writePhoto(in, "photo0.png", 0xff30c060), photo1, photo2};
}

void TestBatch::outputFiles_data()
{
    QTest::addColumn<QString>("sources");
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("numbers");
    QTest::addColumn<int>("runs");
    QTest::addColumn<QString>("files");
    // "!" marks a file that is no photo; numbers -1 keeps the names.
    TestUtils::addRow("names kept", "a.png b.jpg.png c.png", "PNG", -1, 1, "a.png b.jpg.png c.png");
    // The last extension is replaced by the format's name in lower case: "jpeg", not "jpg".
    TestUtils::addRow("JPEG", "p.final.jpg z.tar.gz scan", "JPEG", -1, 1,
                      "p.final.jpeg scan.jpeg z.tar.jpeg");
    TestUtils::addRow("unreadable skipped", "a.png !b.png c.png", "PNG", -1, 1, "a.png c.png");
    TestUtils::addRow("same name, one file", "one/p.png two/p.png", "PNG", -1, 1, "p.png");
    TestUtils::addRow("all restarts", "x.png y.png", "PNG", 0, 2, "NewName0.png NewName1.png");
    TestUtils::addRow("odd goes on", "x.png y.png", "PNG", 1, 2,
                      "NewName1.png NewName3.png NewName5.png NewName7.png");
    TestUtils::addRow("even goes on", "x.png y.png", "PNG", 2, 2,
                      "NewName2.png NewName4.png NewName6.png NewName8.png");
    TestUtils::addRow("unknown scheme is even", "x.png", "PNG", 7, 1, "NewName2.png");
}

// One worker, run once or twice over the same photos into one folder.
void TestBatch::outputFiles()
{
    QFETCH(QString, sources);
    QFETCH(QString, format);
    QFETCH(int, numbers);
    QFETCH(int, runs);
    QFETCH(QString, files);
    QStringList paths;
    for (const QString& name : sources.split(' ')) {
        paths << (name.startsWith('!') ? TestUtils::writeFile(in + "/" + name.mid(1), "no photo")
                                       : writePhoto(in, name, 0xff102030));
    }
    OutputSettings settings;
    settings.format = format;
    settings.rename = numbers >= 0;
    settings.numbers = numbers;
    BatchWorker worker;
    QSignalSpy finished(&worker, &BatchWorker::finished);
    for (int run = 0; run < runs; ++run) {
        worker.prepare(settings, out, urls(paths), {});
        worker.slotDoWork();
    }
    QCOMPARE(fileNames(out), files);
    QCOMPARE(finished.count(), runs);
}

// Binarization at 128 then Grayscale: (16, 224, 48) -> (0, 255, 0) -> 255 / 3 = 85; the other
// way round would give grey 96 and then black. An unknown name is passed over.
void TestBatch::engine()
{
    const QString threshold = "<Parameters><Active>yes</Active><Threshold>128</Threshold>"
                              "</Parameters>";
    const BatchEngine::Photo grey = BatchEngine::apply(
        TestUtils::filledImage(16, 8, 0xff10e030),
        BatchEngine::prepare(
            {{"Binarization", threshold}, {"Sharpen", active}, {"Grayscale", active}}),
        1000);
    QCOMPARE_IMAGES(grey.image, TestUtils::filledImage(16, 8, 0xff555555));

    // An operation that leaves no image ends the photo there, and says which one it was.
    const QString crop = "<Parameters><Active>yes</Active><Top>60</Top><Bottom>60</Bottom>"
                         "</Parameters>";
    const BatchEngine::Photo gone =
        BatchEngine::apply(TestUtils::filledImage(16, 8, 0xff000000),
                           BatchEngine::prepare({{"Crop", crop}, {"Invert", active}}), 1000);
    QVERIFY(gone.image.isNull());
    QVERIFY2(gone.error.contains("\"Crop\""), qPrintable(gone.error));
    // A 200 % frame on 16 x 8 adds 32 on each side: 80 x 72 is 5760 pixels, refused unmade
    // under a budget of 5000.
    const QString frame = "<Parameters><Active>yes</Active><Width>200</Width></Parameters>";
    QCOMPARE(BatchEngine::apply(TestUtils::filledImage(16, 8, 0xff000000),
                                BatchEngine::prepare({{"Frame", frame}}), 5000)
                 .error,
             QString("too large: 80 x 72"));

    // JPEG at the quality asked for. A write that fails leaves no file, whole or partial.
    const QString source = writePhoto(in, "a.png", 0xff802050);
    const QImage image = TestUtils::filledImage(40, 30, 0xff802050);
    QBuffer jpeg;
    jpeg.open(QIODevice::WriteOnly);
    QImageWriter writer(&jpeg, "jpeg");
    writer.setQuality(90);
    QVERIFY(writer.write(image));
    OutputSettings settings;
    settings.quality = 90;
    QVERIFY(BatchEngine({source}, {}, settings, out, {}).write(image, out + "a.jpeg").written);
    QCOMPARE(readFile(out + "a.jpeg"), jpeg.data());
    settings.format = "NoSuchFormat";
    QVERIFY(!BatchEngine({source}, {}, settings, out, {}).write(image, out + "x.png").written);
    QCOMPARE(fileNames(out), QString("a.jpeg"));
}

// The first photo's progress pauses the run; a stop then ends the pause and the run.
void TestBatch::stopWhilePaused()
{
    QStringList photos;
    for (int i = 0; i < 5; ++i)
        photos << writePhoto(in, QString("p%1.png").arg(i), 0xff203040);
    auto* worker = new BatchWorker;
    BatchThread thread(worker);
    worker->moveToThread(&thread);
    connect(
        worker, &BatchWorker::updateInfo, worker, [worker] { worker->setPaused(true); },
        Qt::DirectConnection);
    // The run's end quits the thread, so that a run that never ends fails the wait.
    connect(worker, &BatchWorker::finished, &thread, &QThread::quit, Qt::DirectConnection);
    worker->prepare(OutputSettings(), out, urls(photos), {});
    thread.start();
    QTRY_VERIFY(QFile::exists(out + "p0.jpeg"));
    worker->requestStop();
    QVERIFY(thread.wait(5000));
    delete worker;
    QCOMPARE(fileNames(out), QString("p0.jpeg"));
}

// Escape at once, most likely within the start delay: begun or not, the run ends and the
// dialog closes.
void TestBatch::stopBeforeTheStartStillCloses()
{
    BatchDialog dialog;
    dialog.startBatch({}, urls({writePhoto(in, "a.png", 0xff000000)}));
    dialog.open();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QTRY_VERIFY(!dialog.isVisible());
}

void TestBatch::usage_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    // PHOTO, EMPTY and BROKEN stand for a photo, an empty folder and a flow file that is no XML.
    // "+" stands for the line that points to --help after a mistake in the command line.
    TestUtils::addRow("help", "--help", 0, "--numbers <all|odd|even>");
    TestUtils::addRow("unknown option", "--renmae S PHOTO", 2, "Unknown option 'renmae'.+");
    TestUtils::addRow("no value", "PHOTO --format", 2, "Missing value after '--format'.+");
    TestUtils::addRow("rename twice over", "--rename S --no-rename PHOTO", 2,
                      "--rename and --no-rename exclude each other+");
    TestUtils::addRow("unknown format", "--format GIF PHOTO", 2, "unknown format GIF+");
    TestUtils::addRow("quality 101", "--quality 101 PHOTO", 2, "the quality must be 1 to 100+");
    TestUtils::addRow("quality in words", "--quality high PHOTO", 2,
                      "the quality must be 1 to 100+");
    TestUtils::addRow("unknown numbers", "--numbers prime PHOTO", 2,
                      "the numbers must be all, odd or even+");
    TestUtils::addRow("unknown metadata", "--metadata none PHOTO", 2,
                      "the metadata must be keep, strip-location or strip+");
    TestUtils::addRow("no photos", "--format PNG", 2, "no photos given+");
    TestUtils::addRow("folder without photos", "EMPTY", 2, "no photos in the folders given");
    TestUtils::addRow("missing flow", "--flow /no/x.flow PHOTO", 2,
                      "no flow file or flow named /no/x.flow");
    TestUtils::addRow("broken flow", "--flow BROKEN PHOTO", 2,
                      "BROKEN is not a flow: it is not well-formed XML");
    TestUtils::addRow("output under a file", "--output PHOTO/sub PHOTO", 2,
                      "cannot create the folder PHOTO/sub/");
}

void TestBatch::usage()
{
    QFETCH(QString, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    const QString photo = writePhoto(in, "a.png", 0xff000000);
    QDir().mkpath(root->path() + "/empty/sub");
    const QString broken = TestUtils::writeFile(in + "/broken.flow", "<OperationsFlow><Op");
    for (QString* text : {&arguments, &message}) {
        text->replace("PHOTO", photo).replace("EMPTY", root->path() + "/empty");
        text->replace("BROKEN", broken);
    }
    const Outcome outcome = runCommand(arguments.split(' '));
    QCOMPARE(outcome.exitCode, exitCode);
    if (exitCode == 0) {
        QVERIFY2(outcome.out.contains(message), qPrintable(outcome.out));
    } else {
        message.replace("+", "\nsee pelodine-batch --help");
        QCOMPARE(outcome.err, "pelodine-batch: " + message + "\n");
    }
    QVERIFY(!QDir(OrkTools::AppData::outputBaseFolder()).exists());
}

void TestBatch::sameFilesAsTheWindow_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("files");
    const QString window = "--use-window-settings";
    for (const QString format : {"JPEG", "PNG", "BMP", "TIFF", "PPM", "XPM"}) {
        const QString stored = "KeyFormat=" + format;
        TestUtils::addRow(qPrintable(format + " stored"), stored, window, stored,
                          QString("photo0.%1 photo1.%1 photo2.%1").arg(format.toLower()));
    }
    // Without the option the tool's defaults hold, whatever the window has stored.
    const QString renamePng = "KeyRename=true|KeyNewName=S|KeyFormat=PNG|KeyQuality=30";
    TestUtils::addRow("stored not asked for", renamePng, "", "",
                      "photo0.jpeg photo1.jpeg photo2.jpeg");
    TestUtils::addRow("no-rename over stored", renamePng, window + " --no-rename", "KeyFormat=PNG",
                      "photo0.png photo1.png photo2.png");
    TestUtils::addRow("flow by name", "", "--flow job", "", "photo0.jpeg photo1.jpeg photo2.jpeg");
    TestUtils::addRow("flow by file name", "", "--flow job.flow", "",
                      "photo0.jpeg photo1.jpeg photo2.jpeg");
    TestUtils::addRow("renamed even, stored", "KeyRename=true|KeyNewName=S|KeyNumbers=2", window,
                      "KeyRename=true|KeyNewName=S|KeyNumbers=2", "S2.jpeg S4.jpeg S6.jpeg");
    TestUtils::addRow("options over stored", "KeyFormat=BMP|KeyQuality=80",
                      window + " --format jpeg --quality 30 --rename S --numbers odd",
                      "KeyQuality=30|KeyRename=true|KeyNewName=S|KeyNumbers=1",
                      "S1.jpeg S3.jpeg S5.jpeg");
    TestUtils::addRow("numbers all", "", "--rename S --numbers all", "KeyRename=true|KeyNewName=S",
                      "S0.jpeg S1.jpeg S2.jpeg");
}

// The window's batch with the window settings, and pelodine-batch with the options over the
// stored settings or the defaults, write the same bytes for one flow and the same photos.
void TestBatch::sameFilesAsTheWindow()
{
    QFETCH(QString, stored);
    QFETCH(QString, options);
    QFETCH(QString, window);
    QFETCH(QString, files);
    const QStringList photos = writePhotos();
    const QString flow =
        TestUtils::writeFile(OrkTools::AppData::flowsFolder() + "job.flow", watermarkFlow);
    store(window);
    BatchWorker worker;
    const QString windowFolder = root->path() + "/window/";
    QDir().mkpath(windowFolder);
    worker.prepare(OutputSettings::load(), windowFolder, urls(photos),
                   batchOperationsFromFlow(watermarkFlow));
    worker.slotDoWork();

    store(stored);
    QStringList arguments = options.split(' ', Qt::SkipEmptyParts);
    if (!options.contains("--flow"))
        arguments << "--flow" << flow;
    QCOMPARE(runCommand(arguments + QStringList{"--output", out, in}).exitCode, 0);
    QCOMPARE(fileNames(out), files);
    QCOMPARE(fileNames(windowFolder), files);
    for (const QString& name : files.split(' '))
        QVERIFY2(readFile(out + name) == readFile(windowFolder + name), qPrintable(name));
    const QImage first(out + files.section(' ', 0, 0));
    QVERIFY(first.pixel(5, 5) != QImage(photos.at(0)).pixel(5, 5));
}

void TestBatch::sampleFlowIntoATimeStampedFolder()
{
    const QStringList photos = writePhotos();
    const Outcome outcome = runCommand({in});
    QCOMPARE(outcome.exitCode, 0);

    const QStringList folders =
        QDir(OrkTools::AppData::outputBaseFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QCOMPARE(folders.size(), 1);
    QVERIFY2(QDateTime::fromString(folders.first(), "yyyy-MM-dd_hh-mm-ss").isValid(),
             qPrintable(folders.first()));
    const QString folder = OrkTools::AppData::outputBaseFolder() + folders.first() + "/";
    QCOMPARE(fileNames(folder), QString("photo0.jpeg photo1.jpeg photo2.jpeg"));
    const QStringList expected{"1 of 3: " + photos.at(0), "2 of 3: " + photos.at(1),
                               "3 of 3: " + photos.at(2), "3 of 3 photos written into " + folder};
    QCOMPARE(outcome.err.split('\n', Qt::SkipEmptyParts), expected);
}

// Quiet, only the failures are printed, each with its reason; the exit code says some failed.
// A source photo is never written over, also not through a linked folder. A JPEG cut in half
// fails with libjpeg's own words, which reach the terminal nowhere else.
void TestBatch::failuresAreNamedWithTheirReason()
{
    // Noise, so that half the file ends inside the picture data, past the tables.
    QImage noise(64, 48, QImage::Format_RGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < noise.height(); ++y)
        random.fillRange(reinterpret_cast<quint32*>(noise.scanLine(y)), noise.width());
    const QByteArray jpeg = TestUtils::jpegWithOrientation(noise, 1);
    const QStringList photos{writePhoto(in, "keep.png", 0xff102030),
                             writePhoto(in, "other.jpg", 0xff102030),
                             TestUtils::writeFile(in + "/b.png", "no photo"), in + "/missing.png",
                             TestUtils::writeFile(in + "/cut.jpg", jpeg.left(jpeg.size() / 2))};
    const QByteArray before = readFile(photos.at(0));
    QVERIFY(QFile::link(in, root->path() + "/linked"));
    const Outcome outcome = runCommand(
        QStringList{"--format", "PNG", "--output", root->path() + "/linked", "--quiet"} + photos);
    QCOMPARE(outcome.exitCode, 1);
    QCOMPARE(outcome.out, QString());
    const QStringList expected{
        "4 photo(s) failed:",
        "  " + photos.at(0) + ": cannot write: it would replace a source photo",
        "  " + photos.at(2) + ": unreadable: not a photo this program can read",
        "  " + photos.at(3) + ": unreadable: no such file",
        "  " + photos.at(4) + ": damaged: Corrupt JPEG data: premature end of data segment"};
    QCOMPARE(outcome.err.split('\n', Qt::SkipEmptyParts), expected);
    QCOMPARE(readFile(photos.at(0)), before);
    QCOMPARE(fileNames(in), QString("b.png cut.jpg keep.png other.jpg other.png"));
}

void TestBatch::metadataTravels_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("expected");
    // The turned 40 x 30 source is written upright: 30 x 40.
    const QString kept = "Exif.Image.Make=Camera|Exif.Image.Model=M1|Exif.Image.Artist=Ann|"
                         "Exif.Image.Copyright=(c) Ann|Exif.Photo.DateTimeOriginal=2024:05:01 "
                         "10:00:00|Iptc.Application2.Keywords=beach|Xmp.dc.subject=sea|"
                         "Exif.Image.Orientation=1|Exif.Photo.PixelXDimension=30|"
                         "Exif.Photo.PixelYDimension=40|Exif.Image.ImageWidth=30|"
                         "Exif.Image.ImageLength=40|";
    const QString location = "Exif.GPSInfo.GPSLatitudeRef=N|Exif.GPSInfo.GPSLatitude=48/1|"
                             "Xmp.photoshop.City=Rovinj";
    const QString noLocation = "Exif.GPSInfo.GPSLatitudeRef=|Exif.GPSInfo.GPSLatitude=|"
                               "Exif.Image.GPSTag=|Xmp.photoshop.City=";
    const QString author = "Exif.Image.Artist=Bo|Exif.Image.Copyright=(c) Bo|Xmp.dc.creator=Bo|"
                           "Xmp.dc.rights=lang=\"x-default\" (c) Bo|Iptc.Application2.Byline=Bo|"
                           "Iptc.Application2.Copyright=(c) Bo";
    // An empty value: the key is absent. "nothing": no metadata at all.
    for (const QString format : {"JPEG", "PNG", "TIFF"})
        TestUtils::addRow(qPrintable(format + " keep"), format, "", kept + location);
    TestUtils::addRow("remove location", "PNG", "--metadata strip-location", kept + noLocation);
    TestUtils::addRow("remove all", "JPEG", "--metadata strip", "nothing");
    TestUtils::addRow("author over kept", "TIFF", "--artist Bo --copyright (c)_Bo",
                      author + "|Exif.Image.Make=Camera|" + location);
    TestUtils::addRow("author only", "JPEG", "--metadata strip --artist Bo --copyright (c)_Bo",
                      author + "|Exif.Image.Make=|Xmp.dc.subject=|" + noLocation);
    // XPM carries no metadata; the photo is written all the same.
    TestUtils::addRow("format without metadata", "XPM", "", "nothing");
}

// Through pelodine-batch; the source stays as it was, the result keeps its colour profile and
// never carries the source's thumbnail.
void TestBatch::metadataTravels()
{
    QFETCH(QString, format);
    QFETCH(QString, options);
    QFETCH(QString, expected);
    const QString source = writeCameraPhoto(in + ".jpg", 6);
    const QByteArray before = readFile(source);
    QStringList arguments = options.split(' ', Qt::SkipEmptyParts).replaceInStrings("_", " ");
    arguments << "--format" << format << "--output" << out << source;
    QCOMPARE(runCommand(arguments).exitCode, 0);

    const QString result = out + "in." + format.toLower();
    QCOMPARE(QImage(result).size(), QSize(30, 40));
    const QMap<QString, QString> found = metadataOf(result);
    if (expected == "nothing")
        QCOMPARE(found, (QMap<QString, QString>()));
    else
        for (const auto& [key, value] : TestUtils::keyValues(expected))
            QCOMPARE(key + "=" + found.value(key), key + "=" + value);
    QVERIFY(found.keys().filter("Exif.Thumbnail.").isEmpty());
    QCOMPARE(readFile(source), before);

    // An upright photo keeps its colour profile past the metadata.
    const QString upright = writeCameraPhoto(root->path() + "/up.jpg", 1);
    QCOMPARE(runCommand(arguments.replaceInStrings(source, upright)).exitCode, 0);
    if (format != "XPM")
        QCOMPARE(QImage(out + "up." + format.toLower()).colorSpace().primaries(),
                 QColorSpace::Primaries::AdobeRgb);
}

PELODINE_TEST_MAIN(TestBatch)
#include "tst_batch.moc"
