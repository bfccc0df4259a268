// Where the time of a batch run goes, photo by photo: reading, conversion, each operation,
// encoding and writing, as medians; then the engine's own run over the same photos. First, what
// keeping the metadata costs a 12-megapixel JPEG, what encoding one costs in JPEG, WebP and
// AVIF, and what converting one to sRGB costs.
//   bench_batch [PHOTO_FOLDER] [FLOW_FILE] [FORMAT] [QUALITY]
//   (defaults: /tmp/pelodine-corpus/photos, Resize 50 % and a text Watermark, JPEG, 90)
#include "batchengine.h"
#include "benchsupport.h"
#include "colorprofiles.h"
#include "commondata.h"
#include "flowfile.h"
#include "flowoperations.h"
#include "operationcatalogue.h"
#include "outputsettings.h"
#include "photofiles.h"
#include "photometadata.h"

#include <QBuffer>
#include <QColorSpace>
#include <QDir>
#include <QGuiApplication>
#include <QImageWriter>
#include <QMap>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>

#include <numeric>

namespace {

// The peer benchmark's job: half the size, then white "Watermark" on a black box.
const char defaultFlow[] = "<OperationsFlow>\n"
                           " <Operation name=\"Resize\" index=\"0\">\n"
                           "  <Parameters>\n"
                           "   <Active>yes</Active>\n"
                           "   <Mode>0</Mode>\n"
                           "   <Width>50</Width>\n"
                           "   <Height>50</Height>\n"
                           "  </Parameters>\n"
                           " </Operation>\n"
                           " <Operation name=\"Watermark\" index=\"1\">\n"
                           "  <Parameters>\n"
                           "   <Active>yes</Active>\n"
                           "   <Mode>0</Mode>\n"
                           "   <Size>40</Size>\n"
                           "   <Text>Watermark</Text>\n"
                           "   <Position>BottomRight</Position>\n"
                           "   <Transparency>25</Transparency>\n"
                           "   <Color>#ffffff</Color>\n"
                           "   <Background>#000000</Background>\n"
                           "   <BackgroundEnabled>yes</BackgroundEnabled>\n"
                           "   <Font>DejaVu Sans</Font>\n"
                           "  </Parameters>\n"
                           " </Operation>\n"
                           "</OperationsFlow>\n";

double sum(const QVector<double>& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0);
}

} // namespace

using namespace BenchSupport;

namespace {

// Reading the metadata and writing it into the encoded result, against the whole photo (read,
// flow, encode, write with its metadata), as medians over a 12-megapixel JPEG that carries
// EXIF, IPTC and XMP.
void metadataCost(const BatchOperations& operations, QTextStream& out)
{
    QTemporaryDir folder;
    const QString source = folder.filePath("camera.jpeg");
    const QImage picture = photoLikeImage(4000, 3000, 1);
    QBuffer encoded;
    encoded.open(QIODevice::WriteOnly);
    picture.save(&encoded, "JPEG", 90);
    OutputSettings author;
    author.artist = "Ann";
    author.copyright = "(c) Ann";
    QFile file(source);
    file.open(QIODevice::WriteOnly);
    file.write(PhotoMetadata().embedInto(encoded.data(), picture.size(), author));
    file.close();

    const OutputSettings settings;
    BatchEngine engine({source}, operations, settings, folder.path() + "/", {});
    const QVector<PreparedOperation> prepared = BatchEngine::prepare(operations);
    QVector<double> metadata;
    QVector<double> whole;
    for (int run = 0; run < 7; ++run) {
        BatchEngine::Photo photo;
        whole << milliseconds([&] {
            photo = BatchEngine::load(source, settings.pixelBudget());
            const PhotoMetadata kept = photo.metadata;
            photo = BatchEngine::apply(std::move(photo.image), prepared, settings.pixelBudget());
            engine.write(photo.image, folder.filePath("result.jpeg"), kept);
        });
        QBuffer result;
        result.open(QIODevice::WriteOnly);
        photo.image.save(&result, "JPEG", settings.quality);
        metadata << milliseconds([&] {
            PhotoMetadata::read(source).embedInto(result.data(), photo.image.size(), settings);
        });
    }
    out << "keeping metadata, 12-megapixel JPEG: " << QString::number(median(metadata), 'f', 1)
        << " ms of " << QString::number(median(whole), 'f', 1) << " ms per photo ("
        << QString::number(100 * median(metadata) / median(whole), 'f', 1) << " %)\n\n"
        << Qt::flush;
}

// Encoding a 12-megapixel photo at quality 90 in JPEG and in the newer WebP and AVIF, as medians,
// with the size of the file each gives.
void encodeTimes(QTextStream& out)
{
    const QImage picture = photoLikeImage(4000, 3000, 2);
    for (const char* format : {"JPEG", "WEBP", "AVIF"}) {
        QVector<double> times;
        qint64 bytes = 0;
        for (int run = 0; run < 5; ++run) {
            QBuffer encoded;
            encoded.open(QIODevice::WriteOnly);
            times << milliseconds([&] {
                QImageWriter writer(&encoded, format);
                writer.setQuality(90);
                writer.write(picture);
            });
            bytes = encoded.size();
        }
        out << "encoding a 12-megapixel photo as " << format
            << " 90: " << QString::number(median(times), 'f', 0) << " ms, " << bytes / 1024
            << " KB\n";
    }
    out << "\n" << Qt::flush;
}

// Converting a 12-megapixel Adobe RGB photo to sRGB (Little CMS, rows in bands over the pool),
// as a median.
void srgbCost(QTextStream& out)
{
    QImage picture = photoLikeImage(4000, 3000, 1);
    picture.setColorSpace(QColorSpace::AdobeRgb);
    const QByteArray profile = picture.colorSpace().iccProfile();
    QVector<double> times;
    for (int run = 0; run < 7; ++run)
        times << milliseconds([&] { ColorProfiles::toSrgb(picture, profile); });
    out << "converting to sRGB, 12-megapixel Adobe RGB photo: "
        << QString::number(median(times), 'f', 1) << " ms on " << QThread::idealThreadCount()
        << " threads\n\n"
        << Qt::flush;
}

} // namespace

int main(int argc, char* argv[])
{
    useOffscreenUnlessPlatformSet();
    QGuiApplication app(argc, argv);
    QGuiApplication::setOrganizationName("Qubrast");
    QGuiApplication::setApplicationName("Pelodine");
    QTextStream out(stdout);

    const QStringList arguments = QCoreApplication::arguments();
    const QString folder = arguments.value(1, "/tmp/pelodine-corpus/photos");
    QString flow = defaultFlow;
    if (arguments.size() > 2 && !FlowFile::readFlowFile(arguments.at(2), &flow)) {
        out << "cannot read " << arguments.at(2) << Qt::endl;
        return 1;
    }
    const QString format = arguments.value(3, "JPEG");
    const int quality = arguments.value(4, "90").toInt();
    const BatchOperations operations = batchOperationsFromFlow(flow);
    metadataCost(operations, out);
    encodeTimes(out);
    srgbCost(out);

    QStringList photos;
    const QList<QUrl> found = PhotoFiles::expandFolders({QUrl::fromLocalFile(folder)});
    for (const QUrl& url : found)
        photos << url.toLocalFile();
    if (photos.isEmpty()) {
        out << "no photos in " << folder << Qt::endl;
        return 1;
    }
    QTemporaryDir target;

    // One step after the other on this thread, as a run without reading ahead would go.
    QStringList steps{"read (decode, EXIF orientation)", "convert to ARGB32"};
    for (const auto& operation : operations)
        steps << "operation " + operation.first;
    steps << "encode " + format << "write file";
    QMap<QString, QVector<double>> times;
    for (const QString& photo : photos) {
        QImage image;
        int step = 0;
        times[steps.at(step++)] << milliseconds([&] { image = PhotoFiles::read(photo); });
        times[steps.at(step++)] << milliseconds(
            [&] { image = std::move(image).convertToFormat(QImage::Format_ARGB32); });
        for (const auto& operation : operations)
            times[steps.at(step++)] << milliseconds(
                [&] { image = applyOperation(operation.first, image, operation.second); });
        QBuffer encoded;
        times[steps.at(step++)] << milliseconds([&] {
            encoded.open(QIODevice::WriteOnly);
            QImageWriter writer(&encoded, format.toLatin1());
            writer.setQuality(quality);
            writer.write(image);
        });
        times[steps.at(step++)] << milliseconds([&] {
            QSaveFile file(target.path() + "/" + CommonData::displayNameOf(photo));
            file.open(QIODevice::WriteOnly);
            file.write(encoded.data());
            file.commit();
        });
    }
    double total = 0;
    for (const QString& step : steps)
        total += sum(times.value(step));
    out << photos.size() << " photos from " << folder << ", " << format << " " << quality << "\n\n";
    out << "| step | median ms | mean ms | share |\n|---|---:|---:|---:|\n";
    for (const QString& step : steps) {
        const QVector<double>& values = times.value(step);
        out << "| " << step << " | " << QString::number(median(values), 'f', 1) << " | "
            << QString::number(sum(values) / values.size(), 'f', 1) << " | "
            << QString::number(100 * sum(values) / total, 'f', 0) << " % |\n";
    }
    out << "| one after the other | | " << QString::number(total / photos.size(), 'f', 1) << " | "
        << QString::number(1000 * photos.size() / total, 'f', 2) << " photos/s |\n\n";

    // The engine as the batch runs it: photos read and run on helper threads while the one
    // before them is written, with one helper and with one per core.
    for (const int jobs : {1, QThread::idealThreadCount()}) {
        const double engineMs = milliseconds([&] {
            OutputSettings settings;
            settings.format = format;
            settings.quality = quality;
            BatchEngine::Options options;
            options.jobs = jobs;
            BatchEngine engine(photos, operations, settings, target.path() + "/", options);
            engine.run(
                {[] { return BatchEngine::Next::Go; }, [](int, const BatchEngine::Result&) {}});
        });
        out << "engine run, " << jobs << " job(s): " << QString::number(engineMs / 1000, 'f', 2)
            << " s, " << QString::number(1000 * photos.size() / engineMs, 'f', 2) << " photos/s"
            << Qt::endl;
    }
    return 0;
}
