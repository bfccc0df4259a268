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
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>

#include <exiv2/exiv2.hpp>

#include <memory>

using OrkWidgets::App;
using TestUtils::addColumns;
using TestUtils::addRow;
using TestUtils::fetch;
using TestUtils::fileNames;
using TestUtils::Outcome;
using TestUtils::readFile;

namespace {

// A text watermark, then an Invert: listed in the other order, so the indices must decide.
const char watermarkFlow[] =
    "<OperationsFlow><Operation name=\"Invert\" index=\"1\"><Parameters><Active>yes</Active>"
    "</Parameters></Operation><Operation name=\"Watermark\" index=\"0\"><Parameters>"
    "<Active>yes</Active><Size>20</Size><Text>Watermark</Text><Position>BottomRight</Position>"
    "<Font>DejaVu Sans</Font></Parameters></Operation></OperationsFlow>";

QList<QUrl> urls(const QStringList& paths)
{
    QList<QUrl> list;
    for (const QString& path : paths)
        list << QUrl::fromLocalFile(path);
    return list;
}

void store(const QString& settings)
{
    QSettings().clear();
    for (const auto& [key, value] : TestUtils::keyValues(settings))
        if (!key.isEmpty())
            OrkTools::AppData::writeSetting(key, value);
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
    void init()
    {
        QSettings().clear();
        QDir(OrkTools::AppData::outputBaseFolder()).removeRecursively();
        root = std::make_unique<QTemporaryDir>();
        in = root->path() + "/in";
        out = root->path() + "/out/";
        QDir().mkpath(out);
    }

    void outputFiles_data()
    {
        addColumns<QString, QString, int, int, QString>("sources", "format", "numbers", "runs",
                                                        "files");
        // "!" marks a file that is no photo; numbers -1 keeps the names.
        addRow("names kept", "a.png b.jpg.png c.png", "PNG", -1, 1, "a.png b.jpg.png c.png");
        // The last extension is replaced by the format's name in lower case: "jpeg", not "jpg".
        addRow("JPEG", "p.final.jpg z.tar.gz scan", "JPEG", -1, 1,
               "p.final.jpeg scan.jpeg z.tar.jpeg");
        addRow("extension in any case", "IMG_1.JPG odd. photos.2024/scan", "PNG", -1, 1,
               "IMG_1.png odd.png scan.png");
        addRow("leading dot leaves nothing", ".hidden", "PNG", -1, 1, ".png");
        addRow("unreadable skipped", "a.png !b.png c.png", "PNG", -1, 1, "a.png c.png");
        addRow("same name, one file", "one/p.png two/p.png", "PNG", -1, 1, "p.png");
        addRow("all restarts", "x.png y.png", "PNG", 0, 2, "NewName0.png NewName1.png");
        addRow("odd goes on", "x.png y.png", "PNG", 1, 2,
               "NewName1.png NewName3.png NewName5.png NewName7.png");
        addRow("even goes on", "x.png y.png", "PNG", 2, 2,
               "NewName2.png NewName4.png NewName6.png NewName8.png");
        addRow("unknown scheme is even", "x.png", "PNG", 7, 1, "NewName2.png");
    }

    // One worker, run once or twice over the same photos into one folder.
    void outputFiles()
    {
        auto [sources, format, numbers, runs, files] = fetch<QString, QString, int, int, QString>(
            "sources", "format", "numbers", "runs", "files");
        QStringList paths;
        for (const QString& name : sources.split(' ')) {
            paths << (name.startsWith('!')
                          ? TestUtils::writeFile(in + "/" + name.mid(1), "no photo")
                          : photo(name));
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
    void engine()
    {
        // Each "name=parameter elements" active, on a photo of (16, 224, 48).
        const auto apply = [](const QString& operations, qint64 budget = 1000) {
            BatchOperations list;
            for (const auto& [name, keys] : TestUtils::keyValues(operations))
                list.append({name, "<Parameters><Active>yes</Active>" + keys + "</Parameters>"});
            return BatchEngine::apply(TestUtils::filledImage(16, 8, 0xff10e030),
                                      BatchEngine::prepare(list), budget);
        };
        QCOMPARE_IMAGES(apply("Binarization=<Threshold>128</Threshold>|Sharpen=|Grayscale=").image,
                        TestUtils::filledImage(16, 8, 0xff555555));
        // An operation that leaves no image ends the photo there, and says which one it was.
        const BatchEngine::Photo gone = apply("Crop=<Top>60</Top><Bottom>60</Bottom>|Invert=");
        QVERIFY(gone.image.isNull());
        QVERIFY2(gone.error.contains("\"Crop\""), qPrintable(gone.error));
        // A 200 % frame on 16 x 8 adds 32 on each side: 80 x 72 is 5760 pixels, refused unmade
        // under a budget of 5000.
        QCOMPARE(apply("Frame=<Width>200</Width>", 5000).error, QString("too large: 80 x 72"));

        // JPEG at the quality asked for. A write that fails leaves no file, whole or partial.
        const QString source = photo("a.png", 0xff802050);
        const QImage image = TestUtils::filledImage(40, 30, 0xff802050);
        QBuffer jpeg;
        jpeg.open(QIODevice::WriteOnly);
        QVERIFY(image.save(&jpeg, "JPEG", 90));
        OutputSettings settings;
        settings.quality = 90;
        QVERIFY(BatchEngine({source}, {}, settings, out, {}).write(image, out + "a.jpeg").written);
        QCOMPARE(readFile(out + "a.jpeg"), jpeg.data());
        settings.format = "NoSuchFormat";
        QVERIFY(!BatchEngine({source}, {}, settings, out, {}).write(image, out + "x.png").written);
        QCOMPARE(fileNames(out), QString("a.jpeg"));
    }

    // Two photos at once: the first photo's progress pauses the run while the next two are under
    // way. They are finished and written, nothing more is started; a stop ends the pause and
    // the run.
    void pauseAndStopWithPhotosInFlight()
    {
        QStringList photos;
        for (int i = 0; i < 6; ++i)
            photos << photo(QString("p%1.png").arg(i));
        auto* worker = new BatchWorker;
        BatchThread thread(worker);
        worker->moveToThread(&thread);
        connect(
            worker, &BatchWorker::updateInfo, worker, [worker] { worker->setPaused(true); },
            Qt::DirectConnection);
        // The run's end quits the thread, so that a run that never ends fails the wait.
        connect(worker, &BatchWorker::finished, &thread, &QThread::quit, Qt::DirectConnection);
        OutputSettings settings;
        settings.jobs = 2;
        worker->prepare(settings, out, urls(photos), {});
        thread.start();
        QTRY_COMPARE(fileNames(out), QString("p0.jpeg p1.jpeg p2.jpeg"));
        // Longer than the pause's polling.
        QTest::qWait(700);
        worker->requestStop();
        QVERIFY(thread.wait(5000));
        delete worker;
        QCOMPARE(fileNames(out), QString("p0.jpeg p1.jpeg p2.jpeg"));
    }

    // Escape at once, most likely within the start delay: begun or not, the run ends and the
    // dialog closes.
    void stopBeforeTheStartStillCloses()
    {
        BatchDialog dialog;
        dialog.startBatch({}, urls({photo("a.png")}));
        dialog.open();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QTRY_VERIFY(!dialog.isVisible());
    }

    void usage_data()
    {
        addColumns<QString, int, QString>("arguments", "exitCode", "message");
        // PHOTO, EMPTY and BROKEN stand for a photo, an empty folder and a flow file that is no
        // XML; "+" for the line that points to --help after a mistake in the command line.
        addRow("help", "--help", 0, "--numbers <all|odd|even>");
        addRow("unknown option", "--renmae S PHOTO", 2, "Unknown option 'renmae'.+");
        addRow("no value", "PHOTO --format", 2, "Missing value after '--format'.+");
        addRow("rename twice over", "--rename S --no-rename PHOTO", 2,
               "--rename and --no-rename exclude each other+");
        addRow("unknown format", "--format GIF PHOTO", 2, "unknown format GIF+");
        addRow("quality 101", "--quality 101 PHOTO", 2, "the quality must be 1 to 100+");
        addRow("quality in words", "--quality high PHOTO", 2, "the quality must be 1 to 100+");
        addRow("unknown numbers", "--numbers prime PHOTO", 2,
               "the numbers must be all, odd or even+");
        addRow("no jobs", "--jobs 0 PHOTO", 2, "the jobs must be a whole number from 1 to 64+");
        addRow("shard past its count", "--shard 2/2 PHOTO", 2,
               "the shard must be K/N with N at least 1 and K from 0 to N-1+");
        addRow("resume without output", "--resume PHOTO", 2,
               "--resume needs the --output folder to resume in+");
        addRow("unknown metadata", "--metadata none PHOTO", 2,
               "the metadata must be keep, strip-location or strip+");
        addRow("no photos", "--format PNG", 2, "no photos given+");
        addRow("folder without photos", "EMPTY", 2, "no photos in the folders given");
        addRow("missing flow", "--flow /no/x.flow PHOTO", 2,
               "no flow file or flow named /no/x.flow");
        addRow("broken flow", "--flow BROKEN PHOTO", 2,
               "BROKEN is not a flow: it is not well-formed XML");
        addRow("output under a file", "--output PHOTO/sub PHOTO", 2,
               "cannot create the folder PHOTO/sub/");
    }

    void usage()
    {
        auto [arguments, exitCode, message] =
            fetch<QString, int, QString>("arguments", "exitCode", "message");
        QDir().mkpath(root->path() + "/empty/sub");
        const QString broken = TestUtils::writeFile(in + "/broken.flow", "<OperationsFlow><Op");
        for (QString* text : {&arguments, &message})
            text->replace("PHOTO", photo("a.png"))
                .replace("EMPTY", root->path() + "/empty")
                .replace("BROKEN", broken);
        const Outcome outcome = run(arguments.split(' '));
        QCOMPARE(outcome.exitCode, exitCode);
        if (exitCode == 0) {
            QVERIFY2(outcome.out.contains(message), qPrintable(outcome.out));
        } else {
            message.replace("+", "\nsee pelodine-batch --help");
            QCOMPARE(outcome.err, "pelodine-batch: " + message + "\n");
        }
        QVERIFY(!QDir(OrkTools::AppData::outputBaseFolder()).exists());
    }

    void sameFilesAsTheWindow_data()
    {
        addColumns<QString, QString, QString, QString>("stored", "options", "window", "files");
        const QString window = "--use-window-settings";
        for (const QString format : {"JPEG", "PNG", "BMP", "TIFF", "PPM", "XPM"}) {
            const QString stored = "KeyFormat=" + format;
            addRow(qPrintable(format + " stored"), stored, window, stored,
                   QString("photo0.%1 photo1.%1 photo2.%1").arg(format.toLower()));
        }
        // Without the option the tool's defaults hold, whatever the window has stored.
        const QString renamePng = "KeyRename=true|KeyNewName=S|KeyFormat=PNG|KeyQuality=30";
        const QString jpegs = "photo0.jpeg photo1.jpeg photo2.jpeg";
        addRow("stored not asked for", renamePng, "", "", jpegs);
        addRow("no-rename over stored", renamePng, window + " --no-rename", "KeyFormat=PNG",
               "photo0.png photo1.png photo2.png");
        addRow("flow by name", "", "--flow job", "", jpegs);
        addRow("flow by file name", "", "--flow job.flow", "", jpegs);
        addRow("renamed even, stored", "KeyRename=true|KeyNewName=S|KeyNumbers=2", window,
               "KeyRename=true|KeyNewName=S|KeyNumbers=2", "S2.jpeg S4.jpeg S6.jpeg");
        addRow("options over stored", "KeyFormat=BMP|KeyQuality=80",
               window + " --format jpeg --quality 30 --rename S --numbers odd",
               "KeyQuality=30|KeyRename=true|KeyNewName=S|KeyNumbers=1", "S1.jpeg S3.jpeg S5.jpeg");
        addRow("numbers all", "", "--rename S --numbers all", "KeyRename=true|KeyNewName=S",
               "S0.jpeg S1.jpeg S2.jpeg");
    }

    // The window's batch with the window settings, and pelodine-batch with the options over the
    // stored settings or the defaults, write the same bytes for one flow and the same photos.
    void sameFilesAsTheWindow()
    {
        auto [stored, options, window, files] =
            fetch<QString, QString, QString, QString>("stored", "options", "window", "files");
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
        QCOMPARE(run(arguments + QStringList{"--output", out, in}).exitCode, 0);
        QCOMPARE(fileNames(out), files);
        QCOMPARE(fileNames(windowFolder), files);
        for (const QString& name : files.split(' '))
            QVERIFY2(readFile(out + name) == readFile(windowFolder + name), qPrintable(name));
        const QImage first(out + files.section(' ', 0, 0));
        QVERIFY(first.pixel(5, 5) != QImage(photos.at(0)).pixel(5, 5));
    }

    void sampleFlowIntoATimeStampedFolder()
    {
        const QStringList photos = writePhotos();
        const Outcome outcome = run({in});
        QCOMPARE(outcome.exitCode, 0);

        const QStringList folders = QDir(OrkTools::AppData::outputBaseFolder())
                                        .entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QCOMPARE(folders.size(), 1);
        QVERIFY2(QDateTime::fromString(folders.first(), "yyyy-MM-dd_hh-mm-ss").isValid(),
                 qPrintable(folders.first()));
        const QString folder = OrkTools::AppData::outputBaseFolder() + folders.first() + "/";
        QCOMPARE(fileNames(folder), QString("photo0.jpeg photo1.jpeg photo2.jpeg"));
        // A line per photo finished, with the time the rest takes at the pace so far.
        const QStringList lines = outcome.err.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 4);
        for (int i = 0; i < 3; ++i) {
            const QRegularExpression line(
                QString("^%1 of 3: %2 \\(\\d+ s left, \\d+\\.\\d photos/s\\)$")
                    .arg(i + 1)
                    .arg(QRegularExpression::escape(photos.at(i))));
            QVERIFY2(line.match(lines.at(i)).hasMatch(), qPrintable(lines.at(i)));
        }
        QCOMPARE(lines.last(), "3 of 3 photos written into " + folder);
    }

    // A stored number that cannot be read gives the default: quality 90, numbers all.
    void unreadableSettings()
    {
        store("KeyQuality=high|KeyNumbers=");
        const OutputSettings settings = OutputSettings::load();
        QCOMPARE(
            QString("%1 %2 %3").arg(settings.quality).arg(settings.numbers).arg(settings.format),
            QString("90 0 JPEG"));
    }

    void metadataTravels_data()
    {
        addColumns<QString, QString, QString>("format", "options", "expected");
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
        const QString author =
            "Exif.Image.Artist=Bo|Exif.Image.Copyright=(c) Bo|Xmp.dc.creator=Bo|"
            "Xmp.dc.rights=lang=\"x-default\" (c) Bo|Iptc.Application2.Byline=Bo|"
            "Iptc.Application2.Copyright=(c) Bo";
        // An empty value: the key is absent. "nothing": no metadata at all.
        for (const QString format : {"JPEG", "PNG", "TIFF"})
            addRow(qPrintable(format + " keep"), format, "", kept + location);
        addRow("remove location", "PNG", "--metadata strip-location", kept + noLocation);
        addRow("remove all", "JPEG", "--metadata strip", "nothing");
        addRow("author over kept", "TIFF", "--artist Bo --copyright (c)_Bo",
               author + "|Exif.Image.Make=Camera|" + location);
        addRow("author only", "JPEG", "--metadata strip --artist Bo --copyright (c)_Bo",
               author + "|Exif.Image.Make=|Xmp.dc.subject=|" + noLocation);
        // XPM carries no metadata; the photo is written all the same.
        addRow("format without metadata", "XPM", "", "nothing");
    }

    // Through pelodine-batch; the source stays as it was, the result keeps its colour profile
    // and never carries the source's thumbnail.
    void metadataTravels()
    {
        auto [format, options, expected] =
            fetch<QString, QString, QString>("format", "options", "expected");
        QDir().mkpath(in);
        const QString source = writeCameraPhoto(in + "/in.jpg", 6);
        const QByteArray before = readFile(source);
        QStringList arguments = options.split(' ', Qt::SkipEmptyParts).replaceInStrings("_", " ");
        arguments << "--format" << format << "--output" << out << source;
        QCOMPARE(run(arguments).exitCode, 0);

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
        const QString upright = writeCameraPhoto(in + "/up.jpg", 1);
        QCOMPARE(run(arguments.replaceInStrings(source, upright)).exitCode, 0);
        if (format != "XPM")
            QCOMPARE(QImage(out + "up." + format.toLower()).colorSpace().primaries(),
                     QColorSpace::Primaries::AdobeRgb);
    }

    // Formats without transparency lay a clear photo on the background (white unless chosen);
    // the others keep it clear. The short extensions are "jpg" and "tif".
    void transparencyAndExtensions_data()
    {
        addColumns<QString, QString, uint>("arguments", "file", "pixel");
        addRow("JPEG on white", "", "a.jpeg", 0xfff0f0f0u);
        addRow("JPEG on red, short", "--background #ff0000 --extension short", "a.jpg",
               0xfff00000u);
        addRow("PPM on black", "--format PPM --background black", "a.ppm", 0xff000000u);
        addRow("PNG stays clear", "--format PNG --extension short", "a.png", 0x00000000u);
        addRow("TIFF short", "--format TIFF --extension short", "a.tif", 0x00000000u);
    }

    void transparencyAndExtensions()
    {
        auto [arguments, file, pixel] = fetch<QString, QString, uint>("arguments", "file", "pixel");
        const QString clear = TestUtils::writeImage(in + "/a.png", TestUtils::filledImage(8, 8, 0));
        const QString none = TestUtils::writeFile(in + "/none.flow", "<OperationsFlow/>");
        QCOMPARE(run(arguments.split(' ', Qt::SkipEmptyParts) +
                     QStringList{"--flow", none, "--output", out, clear})
                     .exitCode,
                 0);
        QCOMPARE(fileNames(out), file);
        QCOMPARE(QImage(out + file).pixel(4, 4) & 0xfff0f0f0, pixel);
    }

    // A 12-megapixel photo under a 200 KB budget: the file fits and wastes at most a tenth of
    // it; a budget nothing fits is met at quality 1 and said so.
    void sizeBudget()
    {
        QImage photo(4000, 3000, QImage::Format_RGB32);
        QRandomGenerator random(12);
        for (int y = 0; y < photo.height(); ++y) {
            auto* row = reinterpret_cast<QRgb*>(photo.scanLine(y));
            for (int x = 0; x < photo.width(); ++x)
                row[x] = qRgb(x / 16, y / 12, (x + y) / 28 + int(random.bounded(24)));
        }
        const QString source = TestUtils::writeImage(in + "/big.png", photo);
        const QString none = TestUtils::writeFile(in + "/none.flow", "<OperationsFlow/>");
        const QStringList arguments{"--flow", none, "--output", out, source};
        QCOMPARE(run(QStringList{"--max-kb", "200"} + arguments).exitCode, 0);
        const qint64 size = QFileInfo(out + "big.jpeg").size();
        QVERIFY2(size <= 200 * 1024 && size >= 180 * 1024, qPrintable(QString::number(size)));
        const Outcome tiny = run(QStringList{"--max-kb", "1", "--overwrite"} + arguments);
        QCOMPARE(tiny.exitCode, 0);
        QVERIFY2(tiny.err.contains("big.png: larger than 1 KB even at quality 1"),
                 qPrintable(tiny.err));
    }

private:
    Outcome run(const QStringList& arguments)
    {
        return TestUtils::run(PELODINE_BATCH_PATH, arguments);
    }

    // A 40 x 30 photo of one colour in the in folder.
    QString photo(const QString& name, QRgb colour = 0xff203040)
    {
        return TestUtils::writeImage(in + "/" + name, TestUtils::filledImage(40, 30, colour));
    }

    // photo0.png and photo1.png in the in folder, sub/photo2.png below it, and a text file;
    // the photos' paths in name order.
    QStringList writePhotos()
    {
        // Written last first, so that the directory order does not give the name order by luck.
        const QString photo2 = photo("sub/photo2.png", 0xff3060c0);
        const QString photo1 = photo("photo1.png", 0xffc06030);
        TestUtils::writeFile(in + "/notes.txt", "not a photo");
        return {photo("photo0.png", 0xff30c060), photo1, photo2};
    }

    std::unique_ptr<QTemporaryDir> root;
    QString in;
    QString out;
};

PELODINE_TEST_MAIN(TestBatch)
#include "tst_batch.moc"
