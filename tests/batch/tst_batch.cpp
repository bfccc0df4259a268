// A batch run from the window (engine, worker, dialog) and from pelodine-batch.
#include "app.h"
#include "appdata.h"
#include "batchdialog.h"
#include "batchengine.h"
#include "batchthread.h"
#include "batchworker.h"
#include "contactsheet.h"
#include "flowfile.h"
#include "flowoperations.h"
#include "outputsettings.h"
#include "photofiles.h"
#include "testutils.h"

#include <QBuffer>
#include <QColorSpace>
#include <QDateTime>
#include <QDirIterator>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>

#include <exiv2/exiv2.hpp>

#include <cmath>
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

// The files below folder by their paths relative to it, in name order.
QString treeOf(const QString& folder)
{
    QStringList names;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        names << QDir(folder).relativeFilePath(files.next());
    names.sort();
    return names.join(' ');
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

// A 40 x 30 JPEG at path carrying the EXIF texts of "key=value|key=value".
QString writeTaggedPhoto(const QString& path, const QString& tags)
{
    TestUtils::writeImage(path, TestUtils::filledImage(40, 30, 0xff4080c0));
    auto photo = Exiv2::ImageFactory::open(path.toStdString());
    photo->readMetadata();
    for (const auto& [key, value] : TestUtils::keyValues(tags))
        photo->exifData()[key.toStdString()] = value.toStdString();
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

// Gradients under noise in all three channels, so that each quality gives another file size.
QImage texturedPhoto(int width, int height)
{
    QImage photo(width, height, QImage::Format_RGB32);
    QRandomGenerator random(12);
    for (int y = 0; y < height; ++y) {
        auto* row = reinterpret_cast<QRgb*>(photo.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const int noise = int(random.bounded(64));
            row[x] = qRgb(x / 2 + noise, y + noise / 2, (x + y) / 3 + 64 - noise);
        }
    }
    return photo;
}

// A linear DNG as a raw converter writes it, by hand: 16-bit RGB samples, red on the left half
// and blue on the right, after the TIFF header and one IFD whose eight entries (tag, type 1 byte,
// 3 short or 4 long, count, value) all hold their value in place: width, height, bits a sample,
// linear raw, where the pixels start, samples a pixel, how many bytes they are, DNG 1.4.0.0.
QByteArray tinyDng(int width, int height)
{
    QByteArray dng;
    QDataStream out(&dng, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0x4949) << quint16(42) << quint32(8) << quint16(8);
    const int entries[][4] = {{256, 4, 1, width},
                              {257, 4, 1, height},
                              {258, 3, 1, 16},
                              {262, 3, 1, 34892},
                              {273, 4, 1, 8 + 2 + 8 * 12 + 4},
                              {277, 3, 1, 3},
                              {279, 4, 1, width * height * 6},
                              {50706, 1, 4, 0x0401}};
    for (const auto& entry : entries)
        out << quint16(entry[0]) << quint16(entry[1]) << quint32(entry[2]) << quint32(entry[3]);
    out << quint32(0);
    for (int i = 0; i < width * height; ++i) {
        const bool left = i % width < width / 2;
        out << quint16(left ? 50000 : 3000) << quint16(3000) << quint16(left ? 3000 : 50000);
    }
    return dng;
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
        // Without the window's settings the tool keeps the folder's tree, and so does the window
        // when asked to.
        const QString jpegs = "photo0.jpeg photo1.jpeg sub/photo2.jpeg";
        addRow("stored not asked for", renamePng, "", "KeyKeepFolders=true", jpegs);
        addRow("no-rename over stored", renamePng, window + " --no-rename", "KeyFormat=PNG",
               "photo0.png photo1.png photo2.png");
        addRow("flow by name", "", "--flow job", "KeyKeepFolders=true", jpegs);
        addRow("flow by file name", "", "--flow job.flow", "KeyKeepFolders=true", jpegs);
        addRow("renamed even, stored", "KeyRename=true|KeyNewName=S|KeyNumbers=2", window,
               "KeyRename=true|KeyNewName=S|KeyNumbers=2", "S2.jpeg S4.jpeg S6.jpeg");
        addRow("options over stored", "KeyFormat=BMP|KeyQuality=80",
               window + " --format jpeg --quality 30 --rename S --numbers odd",
               "KeyQuality=30|KeyRename=true|KeyNewName=S|KeyNumbers=1", "S1.jpeg S3.jpeg S5.jpeg");
        addRow("numbers all", "", "--rename S --numbers all",
               "KeyRename=true|KeyNewName=S|KeyKeepFolders=true", "S0.jpeg S1.jpeg sub/S2.jpeg");
        addRow("flat", "", "--no-keep-folders", "", "photo0.jpeg photo1.jpeg photo2.jpeg");
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
        QHash<QString, QString> foundIn;
        PhotoFiles::expandFolders(urls({in}), &foundIn);
        worker.prepare(OutputSettings::load(), windowFolder, urls(photos),
                       batchOperationsFromFlow(watermarkFlow), foundIn);
        worker.slotDoWork();

        store(stored);
        QStringList arguments = options.split(' ', Qt::SkipEmptyParts);
        if (!options.contains("--flow"))
            arguments << "--flow" << flow;
        QCOMPARE(run(arguments + QStringList{"--output", out, in}).exitCode, 0);
        QCOMPARE(treeOf(out), files);
        QCOMPARE(treeOf(windowFolder), files);
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
        QCOMPARE(treeOf(folder), QString("photo0.jpeg photo1.jpeg sub/photo2.jpeg"));
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
        // WebP has no place for IPTC.
        addRow("WEBP keep", "WEBP", "",
               QString(kept).replace("Keywords=beach", "Keywords=") + location);
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

        // The photo keeps its colour profile past the turn, the flow and the metadata, upright
        // or not.
        const QString upright = writeCameraPhoto(in + "/up.jpg", 1);
        QCOMPARE(run(arguments.replaceInStrings(source, upright)).exitCode, 0);
        for (const QString& written : {result, out + "up." + format.toLower()}) {
            if (format != "XPM")
                QCOMPARE(QImage(written).colorSpace().primaries(),
                         QColorSpace::Primaries::AdobeRgb);
        }
    }

    // Adobe RGB (1998) to sRGB by the published matrices: the gamma 563/256 undone, to XYZ (D65),
    // to linear sRGB, clipped, through the sRGB curve. Pure red lies outside sRGB and stays
    // (255, 0, 0); (100, 150, 200) becomes (66, 151, 203). A profile that cannot be read leaves
    // the pixels as they are, taken as sRGB.
    void convertToSrgb()
    {
        const double adobeToXyz[3][3] = {{0.5767309, 0.1855540, 0.1881852},
                                         {0.2973769, 0.6273491, 0.0752741},
                                         {0.0270343, 0.0706872, 0.9911085}};
        const double xyzToSrgb[3][3] = {{3.2404542, -1.5371385, -0.4985314},
                                        {-0.9692660, 1.8760108, 0.0415560},
                                        {0.0556434, -0.2040259, 1.0572252}};
        // Channel i (0 red, 1 green, 2 blue) of the Adobe RGB colour in sRGB, 0 to 255.
        const auto channel = [&](QRgb adobe, int i) {
            double srgb = 0;
            for (int j = 0; j < 3; ++j) {
                for (int k = 0; k < 3; ++k)
                    srgb += xyzToSrgb[i][j] * adobeToXyz[j][k] *
                            std::pow((adobe >> (16 - 8 * k) & 0xff) / 255.0, 563.0 / 256);
            }
            srgb = qBound(0.0, srgb, 1.0);
            return 255 *
                   (srgb <= 0.0031308 ? 12.92 * srgb : 1.055 * std::pow(srgb, 1 / 2.4) - 0.055);
        };
        QImage adobe = TestUtils::filledImage(2, 1, qRgb(255, 0, 0));
        adobe.setPixel(1, 0, qRgb(100, 150, 200));
        adobe.setColorSpace(QColorSpace::AdobeRgb);
        TestUtils::writeImage(in + "/adobe.png", adobe);
        adobe.setColorSpace(QColorSpace::fromIccProfile("acspbroken profile"));
        adobe.save(in + "/broken.jpg", "JPEG", 100);
        const QString none = TestUtils::writeFile(in + "/none.flow", "<OperationsFlow/>");
        QCOMPARE(run({"--srgb", "--format", "PNG", "--flow", none, "--output", out, in}).exitCode,
                 0);

        const QImage converted(out + "adobe.png");
        QCOMPARE(converted.colorSpace(), QColorSpace(QColorSpace::SRgb));
        for (int x = 0; x < 2; ++x) {
            const QRgb pixel = converted.pixel(x, 0);
            for (int i = 0; i < 3; ++i)
                QVERIFY2(qAbs(int(pixel >> (16 - 8 * i) & 0xff) - channel(adobe.pixel(x, 0), i)) <=
                             2,
                         qPrintable(QString::number(pixel, 16)));
        }
        const QImage kept(out + "broken.png");
        QCOMPARE(kept.colorSpace(), QColorSpace(QColorSpace::SRgb));
        QCOMPARE(kept.pixel(1, 0), QImage(in + "/broken.jpg").pixel(1, 0));
    }

    // A profile Qt cannot read (here one that claims CMYK) still travels into a TIFF.
    void unreadableProfileTravels()
    {
        QByteArray profile = QColorSpace(QColorSpace::AdobeRgb).iccProfile();
        profile.replace(16, 4, "CMYK");
        QImage image = TestUtils::filledImage(4, 2, 0xffc86432);
        image.setColorSpace(QColorSpace::fromIccProfile(profile));
        const QString source = TestUtils::writeImage(in + "/cmyk.jpg", image);
        QCOMPARE(run({"--format", "TIFF", "--output", out, source}).exitCode, 0);
        QCOMPARE(QImage(out + "cmyk.tiff").colorSpace().iccProfile(), profile);
    }

    // A subfolder of the output folder that is a link is not gone through.
    void keepFoldersNotThroughALink()
    {
        const QString subPhoto = writePhotos().at(2);
        const QString none = TestUtils::writeFile(root->path() + "/none.flow", "<OperationsFlow/>");
        QDir().mkpath(root->path() + "/elsewhere");
        QVERIFY(QFile::link(root->path() + "/elsewhere", out + "sub"));
        const Outcome outcome = run({"--flow", none, "--output", out, in});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.err.contains(subPhoto + ": cannot write: " + out + "sub is a link"),
                 qPrintable(outcome.err));
        QCOMPARE(treeOf(root->path() + "/elsewhere"), QString());
    }

    // The window's chosen folder takes the results without a time-stamped folder; a file there
    // that the run did not write stays, and the result goes beside it.
    void saveIntoTheChosenFolder()
    {
        const QString earlier = TestUtils::writeFile(out + "photo0.png", "kept");
        store("KeyOpenLocation=false|KeyFormat=PNG|KeyKeepFolders=true|KeySaveInto=" + out);
        writePhotos();
        QHash<QString, QString> foundIn;
        const QList<QUrl> photos = PhotoFiles::expandFolders(urls({in}), &foundIn);
        BatchDialog dialog;
        dialog.startBatch({}, photos, foundIn);
        dialog.open();
        QTRY_VERIFY_WITH_TIMEOUT(!dialog.isVisible(), 20000);
        QCOMPARE(dialog.destinationFolder(), out);
        QCOMPARE(treeOf(out), QString("photo0 (2).png photo0.png photo1.png sub/photo2.png"));
        QCOMPARE(readFile(earlier), QByteArray("kept"));
        QVERIFY(!QDir(OrkTools::AppData::outputBaseFolder()).exists());
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
        // At the usual 90 the file would be far larger: the budget is met well below it.
        QBuffer usual;
        usual.open(QIODevice::WriteOnly);
        QVERIFY(photo.save(&usual, "JPEG", 90) && usual.size() > 2 * 200 * 1024);
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

    // Resize to 50 % then a quarter turn. The sheet runs the preview's working copy: 720 x 540
    // fits into 360 x 270 and comes out 135 x 180; the label names the full run's 270 x 360. A
    // photo no wider than 360 is its own working copy: 40 x 30 is labelled 15 x 20.
    void contactSheet()
    {
        const QString flow = TestUtils::writeFile(
            in + "/turn.flow",
            "<OperationsFlow><Operation name=\"Resize\" index=\"0\"><Parameters><Active>yes"
            "</Active><Mode>0</Mode><Width>50</Width><Height>50</Height></Parameters></Operation>"
            "<Operation name=\"Rotate\" index=\"1\"><Parameters><Active>yes</Active><Angle>90"
            "</Angle></Parameters></Operation></OperationsFlow>");
        const QStringList photos{
            TestUtils::writeImage(in + "/wide.png", TestUtils::filledImage(720, 540, 0xff203040)),
            photo("small.png"), TestUtils::writeFile(in + "/broken.png", "no photo")};
        ContactSheet sheet(photos.size(), batchOperationsFromFlow(readFile(flow)), 1'000'000);
        QCOMPARE(sheet.run(photos.at(0)).result.size(), QSize(135, 180));
        sheet.addAll(photos);
        const QString reason = BatchEngine::load(photos.at(2), 1'000'000).error;
        QCOMPARE(sheet.labels(), (QStringList{"wide.png\n270 × 360", "small.png\n15 × 20",
                                              "broken.png\n" + reason}));
        QCOMPARE(sheet.columns(), 2);

        // From the command line: the sheet and nothing else; the failed photo makes it exit 1.
        const Outcome outcome = run({"--flow", flow, "--contact-sheet", out + "sheet.png", in});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.err.contains("broken.png: " + reason), qPrintable(outcome.err));
        QCOMPARE(fileNames(out), QString("sheet.png"));
        QVERIFY(!QDir(OrkTools::AppData::outputBaseFolder()).exists());
        QCOMPARE(QImage(out + "sheet.png").size(), sheet.image().size());
    }

    void newFormats_data()
    {
        addColumns<QString, QString>("format", "file");
        addRow("WEBP", "WEBP", "p.webp");
        addRow("AVIF", "avif", "p.avif");
        addRow("JXL", "JXL", "p.jxl");
        addRow("HEIC", "HEIC", "p.heic");
    }

    // Written at the quality asked for (less gives a smaller file) and read back whole at the
    // photo's odd size; where a size budget applies, the file meets it from below.
    void newFormats()
    {
        auto [format, file] = fetch<QString, QString>("format", "file");
        const QString source = TestUtils::writeImage(in + "/p.png", texturedPhoto(255, 191));
        const QString none = TestUtils::writeFile(in + "/none.flow", "<OperationsFlow/>");
        const auto sizeWith = [&](const QStringList& options) {
            const QStringList arguments{"--format", format,     "--overwrite", "--flow",
                                        none,       "--output", out,           source};
            const bool read = run(options + arguments).exitCode == 0 &&
                              QImage(out + file).size() == QSize(255, 191);
            return read ? QFileInfo(out + file).size() : -1;
        };
        const qint64 high = sizeWith({"--quality", "90"});
        const qint64 low = sizeWith({"--quality", "20"});
        QVERIFY2(low > 0 && low < high, qPrintable(QString("%1 %2").arg(low).arg(high)));
        if (file != "p.heic") {
            const qint64 fitted = sizeWith({"--max-kb", "6"});
            QVERIFY2(fitted > 3 * 1024 && fitted <= 6 * 1024, qPrintable(QString::number(fitted)));
        }
        QCOMPARE(fileNames(out), file);
    }

    void newReaders_data()
    {
        addColumns<QString, QByteArray>("file", "bytes");
        addRow("camera RAW", "p.dng", tinyDng(64, 48));
        // No bytes: the picture written by Qt's writer for the suffix.
        addRow("HEIC", "p.heic", QByteArray());
        addRow("AVIF", "p.avif", QByteArray());
        addRow("JPEG XL", "p.jxl", QByteArray());
    }

    // Read through the engine at their size and the right way round (red left, blue right);
    // the size comes from the header, so the pixel budget is met before decoding.
    void newReaders()
    {
        auto [file, bytes] = fetch<QString, QByteArray>("file", "bytes");
        const QString path =
            bytes.isEmpty()
                ? TestUtils::writeImage(in + "/" + file, TestUtils::halvesPicture(64, 48))
                : TestUtils::writeFile(in + "/" + file, bytes);
        const BatchEngine::Photo photo = BatchEngine::load(path, 64 * 48);
        QCOMPARE(photo.error, QString());
        QCOMPARE(photo.image.size(), QSize(64, 48));
        const QRgb left = photo.image.pixel(2, 24);
        const QRgb right = photo.image.pixel(61, 24);
        QVERIFY(qRed(left) > 2 * qBlue(left) && qBlue(right) > 2 * qRed(right));
        QCOMPARE(BatchEngine::load(path, 64 * 48 - 1).error, QString("too large: 64 x 48"));
    }

    void textMacros_data()
    {
        addColumns<QString, QString>("text", "expanded");
        addRow("no braces", "Watermark \u00a9 2024", "Watermark \u00a9 2024");
        addRow("dates", "{date}|{year}|{date:d.M.yy h:mm}|{date:}",
               "2024-05-01|2024|1.5.24 9:07|2024-05-01");
        addRow("position", "{n} of {count}", "3 of 12");
        addRow("doubled braces", "{{name}} }}{{ {{{n}}}", "{name} }{ {3}");
        addRow("not macros", "{Name} {unknown} { n} {n {} } {", "{Name} {unknown} { n} {n {} } {");
    }

    // The dates and positions of a photo described by hand (the other macros below).
    void textMacros()
    {
        auto [text, expanded] = fetch<QString, QString>("text", "expanded");
        const PhotoContext photo{
            "", "", QDateTime(QDate(2024, 5, 1), QTime(9, 7, 30)), "", "", "", "", 3, 12};
        QCOMPARE(TextMacros::expand(text, photo), expanded);
    }

    // What a photo says of itself: its EXIF, else nothing but its file and the file's time.
    void photoDetails()
    {
        const QString all = "{name}|{file}|{date:yyyy-MM-dd HH:mm:ss}|{camera}|{lens}|{artist}|"
                            "{copyright}";
        const auto details = [&all](const QString& path) {
            return TextMacros::expand(all, PhotoMetadata::read(path).describe(path));
        };
        const QString canon = writeTaggedPhoto(
            in + "/IMG_1.jpg", "Exif.Image.Make=Canon|Exif.Image.Model=Canon EOS R5|"
                               "Exif.Photo.LensModel=RF50mm F1.8|Exif.Image.Artist=Ann|"
                               "Exif.Image.Copyright=(c) Ann|"
                               "Exif.Photo.DateTimeOriginal=2024:05:01 10:20:30");
        QCOMPARE(
            details(canon),
            QString("IMG_1|IMG_1.jpg|2024-05-01 10:20:30|Canon EOS R5|RF50mm F1.8|Ann|(c) Ann"));
        // The make said once, also where the model repeats only its first word; nothing else.
        QCOMPARE(details(writeTaggedPhoto(in + "/n.jpg", "Exif.Image.Make=NIKON CORPORATION|"
                                                         "Exif.Image.Model=NIKON D750"))
                     .section('|', 3),
                 QString("NIKON D750|||"));
        QCOMPARE(details(writeTaggedPhoto(in + "/s.jpg",
                                          "Exif.Image.Make=SONY|Exif.Image.Model=ILCE-7M3"))
                     .section('|', 3, 3),
                 QString("SONY ILCE-7M3"));
        const QString plain = photo("plain.png");
        QFile file(plain);
        QVERIFY(file.open(QIODevice::ReadWrite) &&
                file.setFileTime(QDateTime(QDate(2021, 3, 4), QTime(5, 6, 7)),
                                 QFileDevice::FileModificationTime));
        QCOMPARE(details(plain), QString("plain|plain.png|2021-03-04 05:06:07||||"));
    }

    // A batch draws each photo's own text: what the same watermark draws with the text
    // written out by hand.
    void macrosPerPhoto()
    {
        const QString keys = "<Size>80</Size><Position>Middle</Position><Font>DejaVu Sans</Font>"
                             "<Transparency>0</Transparency>";
        const auto watermark = [&keys](const QString& text) {
            return "<Parameters><Active>yes</Active><Text>" + text + "</Text>" + keys +
                   "</Parameters>";
        };
        const QStringList sources = {photo("a.png"), photo("b.png"), photo("c.png")};
        BatchEngine engine(sources, {{"Watermark", watermark("{n}/{count} {file}")}}, {}, out, {});
        QVector<QImage> drawn;
        engine.run({[] { return BatchEngine::Next::Go; },
                    [&drawn](int, const BatchEngine::Result& result) { drawn << result.image; }});
        QCOMPARE(drawn.size(), 3);
        const char* texts[] = {"1/3 a.png", "2/3 b.png", "3/3 c.png"};
        for (int i = 0; i < 3; ++i)
            QCOMPARE_IMAGES(drawn.at(i),
                            applyOperation("Watermark", TestUtils::filledImage(40, 30, 0xff203040),
                                           watermark(texts[i])));
        QVERIFY(drawn.at(0) != drawn.at(1) && drawn.at(1) != drawn.at(2));
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
