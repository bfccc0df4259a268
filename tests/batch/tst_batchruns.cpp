// pelodine-batch runs split up: photos worked on at once, a run resumed, a list shared out in
// shards, fast reading; each against one plain run of the same photos.
#include "batchengine.h"
#include "outputsettings.h"
#include "testutils.h"

#include <QBuffer>
#include <QColorSpace>
#include <QDir>
#include <QImageReader>
#include <QImageWriter>

#include <cmath>

using TestUtils::addColumns;
using TestUtils::addRow;
using TestUtils::fetch;
using TestUtils::fileNames;
using TestUtils::readFile;

namespace {

// A photo with smooth colours and some fine detail, different for each seed.
QImage photoLike(int width, int height, int seed)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double texture = std::sin((x + seed * 13) / 3.0) * std::cos(y / 4.0);
            image.setPixel(x, y,
                           qRgb((x * 255 / width + seed * 40) % 256, y * 255 / height,
                                int(128 + 60 * texture)));
        }
    }
    return image;
}

// Over the red, green and blue of two images of one size; infinite for equal ones.
double psnr(QImage a, QImage b)
{
    a = a.convertToFormat(QImage::Format_RGB888);
    b = b.convertToFormat(QImage::Format_RGB888);
    double squares = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int i = 0; i < a.width() * 3; ++i)
            squares += std::pow(a.constScanLine(y)[i] - b.constScanLine(y)[i], 2);
    }
    return 10 * std::log10(255.0 * 255.0 * 3 * a.width() * a.height() / squares);
}

} // namespace

class TestBatchRuns : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        root = std::make_unique<QTemporaryDir>();
        photos.clear();
        // c.png is no photo; sub/a.png has the name of a.png.
        for (const QString name : {"a.png", "b.jpg", "!c.png", "sub/a.png", "d.png", "e.jpg"}) {
            const QString path = root->filePath("in/" + QString(name).remove('!'));
            photos << (name.startsWith('!')
                           ? TestUtils::writeFile(path, "no photo")
                           : TestUtils::writeImage(path, photoLike(48, 36, photos.size())));
        }
    }

    void splitRuns_data()
    {
        // Runs into one folder, each with the options and its own, against one run alone.
        addColumns<QString, QString, QString>("options", "runs", "files");
        // The numbers follow the photo's position: the third, which fails, leaves a gap.
        addRow("PNG names kept", "--format PNG", "--jobs 2", "a (2).png a.png b.png d.png e.png");
        addRow("JPEG all", "--rename S --numbers all", "--jobs 2",
               "S0.jpeg S1.jpeg S3.jpeg S4.jpeg S5.jpeg");
        addRow("BMP odd", "--format BMP --rename S --numbers odd", "--jobs 2",
               "S1.bmp S11.bmp S3.bmp S7.bmp S9.bmp");
        addRow("TIFF even", "--format TIFF --rename S --numbers even", "--jobs 2",
               "S10.tiff S12.tiff S2.tiff S4.tiff S8.tiff");
        addRow("PPM odd", "--format PPM --rename S --numbers odd", "--jobs 2",
               "S1.ppm S11.ppm S3.ppm S7.ppm S9.ppm");
        addRow("XPM all", "--format XPM --rename S --numbers all", "--jobs 2",
               "S0.xpm S1.xpm S3.xpm S4.xpm S5.xpm");
        addRow("shards", "--format PNG --rename S --numbers odd", "--shard 1/2|--shard 0/2",
               "S1.png S11.png S3.png S7.png S9.png");
    }

    // The sample flow (a text watermark among others) run split up writes the very files of
    // one run one photo at a time.
    void splitRuns()
    {
        auto [options, runs, files] = fetch<QString, QString, QString>("options", "runs", "files");
        const QString whole = root->filePath("whole");
        const QString split = root->filePath("split");
        run(options + " --jobs 1 --output " + whole);
        for (const QString& part : runs.split('|'))
            run(options + " " + part + " --output " + split);
        QCOMPARE(fileNames(whole), files);
        QCOMPARE(fileNames(split), files);
        for (const QString& name : files.split(' '))
            QVERIFY2(readFile(whole + "/" + name) == readFile(split + "/" + name),
                     qPrintable(name));
    }

    // A run stopped after three photos started, then resumed: the results already there are not
    // written again, the rest as one whole run writes them.
    void resumeAfterStop()
    {
        const QString flow = TestUtils::writeFile(root->filePath("none.flow"), "<OperationsFlow/>");
        const QString whole = root->filePath("whole") + "/";
        const QString half = root->filePath("half") + "/";
        run("--flow " + flow + " --output " + whole);
        BatchEngine::Options options{true, false};
        options.jobs = 2;
        QDir().mkpath(half);
        int started = 0;
        BatchEngine(photos, {}, OutputSettings(), half, options)
            .run({[&] { return ++started > 3 ? BatchEngine::Next::Stop : BatchEngine::Next::Go; },
                  [](int, const BatchEngine::Result&) {}});
        QCOMPARE(fileNames(half), QString("a.jpeg b.jpeg"));
        TestUtils::writeFile(half + "a.jpeg", "kept");
        const QString said = run("--flow " + flow + " --resume --output " + half).err;
        QVERIFY2(said.contains("2 photo(s) skipped: their results are already in " + half) &&
                     said.contains("3 of 4 photos written"),
                 qPrintable(said));
        QCOMPARE(fileNames(half), fileNames(whole));
        QCOMPARE(readFile(half + "a.jpeg"), QByteArray("kept"));
        for (const QString& name : fileNames(whole).remove("a.jpeg").split(' ', Qt::SkipEmptyParts))
            QVERIFY2(readFile(half + name) == readFile(whole + name), qPrintable(name));
    }

    void fastReading_data()
    {
        addColumns<QString, int, bool>("resize", "orientation", "reduced");
        addRow("half", "<Mode>0</Mode><Width>50</Width><Height>50</Height>", 1, true);
        addRow("a fifth", "<Mode>0</Mode><Width>20</Width><Height>20</Height>", 1, true);
        addRow("box, turned", "<Mode>1</Mode><Width>100</Width><Height>100</Height>", 6, true);
        addRow("not half", "<Mode>0</Mode><Width>60</Width><Height>50</Height>", 1, false);
    }

    // A flow that shrinks a JPEG to half or less gives, read fast, results of the exact sizes
    // that differ from the exact ones by little; one that shrinks less reads as usual.
    void fastReading()
    {
        auto [resize, orientation, reduced] =
            fetch<QString, int, bool>("resize", "orientation", "reduced");
        const QString big = TestUtils::writeFile(
            root->filePath("in/big.jpg"),
            TestUtils::jpegWithOrientation(photoLike(800, 600, 3), quint16(orientation)));
        const QString flow = TestUtils::writeFile(
            root->filePath("resize.flow"),
            "<OperationsFlow><Operation name=\"Resize\" index=\"0\"><Parameters><Active>yes"
            "</Active>" +
                resize.toUtf8() + "</Parameters></Operation></OperationsFlow>");
        run("--flow " + flow + " --format PNG --output " + root->filePath("exact"), {big});
        run("--flow " + flow + " --format PNG --fast --output " + root->filePath("fast"), {big});
        const QImage exact(root->filePath("exact/big.png"));
        const QImage fast(root->filePath("fast/big.png"));
        QCOMPARE(fast.size(), exact.size());
        QCOMPARE(fast == exact, !reduced);
        const double decibels = psnr(fast, exact);
        qInfo("PSNR %s: %.1f dB", QTest::currentDataTag(), decibels);
        QVERIFY2(decibels > 30, qPrintable(QString::number(decibels)));
    }

    void shrinkWhileReading_data()
    {
        addColumns<QByteArray, QSize>("jpeg", "target");
        QImage described = photoLike(301, 203, 5);
        described.setColorSpace(QColorSpace::AdobeRgb);
        described.setText("Author", "Someone  with  spaces");
        described.setText("Note", "two\nlines");
        described.setDotsPerMeterX(11811);
        described.setDotsPerMeterY(5906);
        addRow("profile, texts, resolution", encoded(described, false), QSize(150, 101));
        addRow("grey",
               encoded(photoLike(97, 64, 1).convertToFormat(QImage::Format_Grayscale8), false),
               QSize(31, 20));
        addRow("progressive", encoded(photoLike(120, 90, 2), true), QSize(119, 1));
        addRow("turned a quarter", TestUtils::jpegWithOrientation(photoLike(80, 60, 3), 6),
               QSize(20, 41));
        addRow("mirrored", TestUtils::jpegWithOrientation(photoLike(81, 61, 6), 2), QSize(27, 30));
    }

    // Converted to sRGB row by row, a photo shrunk while read is the one converted whole, then
    // shrunk, and says sRGB.
    void shrinkWhileReadingInSrgb()
    {
        QImage adobe = photoLike(160, 90, 7);
        adobe.setColorSpace(QColorSpace::AdobeRgb);
        const QString path =
            TestUtils::writeFile(root->filePath("in/adobe.jpg"), encoded(adobe, false));
        PhotoDecoding decoding;
        decoding.toSrgb = true;
        const QImage whole = BatchEngine::load(path, 1 << 30, decoding).image;
        QVERIFY(whole.pixel(5, 5) != QImage(path).pixel(5, 5));
        decoding.shrinksTo = [](const QSize&) { return QSize(53, 30); };
        const QImage shrunk = BatchEngine::load(path, 1 << 30, decoding).image;
        QCOMPARE_IMAGES(shrunk,
                        whole.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                            .scaled(53, 30, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        QCOMPARE(shrunk.colorSpace(), QColorSpace(QColorSpace::SRgb));
    }

    // A JPEG shrunk while it is read is what Qt's reader and Qt's smooth scaling of the whole
    // photo give: pixels, resolution, texts and colour profile.
    void shrinkWhileReading()
    {
        auto [jpeg, target] = fetch<QByteArray, QSize>("jpeg", "target");
        const QString path = TestUtils::writeFile(root->filePath("in/photo.jpg"), jpeg);
        QImageReader reader(path);
        reader.setAutoTransform(true);
        QImage expected = reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
        expected = expected.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        PhotoDecoding decoding;
        decoding.shrinksTo = [target = target](const QSize&) { return target; };
        const BatchEngine::Photo photo = BatchEngine::load(path, 1 << 30, decoding);
        QCOMPARE(photo.error, QString());
        QCOMPARE(photo.shrinkTo, target);
        QImage shrunk = photo.image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QCOMPARE_IMAGES(shrunk, expected);
        QCOMPARE(shrunk.dotsPerMeterX(), expected.dotsPerMeterX());
        QCOMPARE(shrunk.dotsPerMeterY(), expected.dotsPerMeterY());
        QCOMPARE(shrunk.colorSpace(), expected.colorSpace());
        for (const QString& key : expected.textKeys())
            QCOMPARE(shrunk.text(key), expected.text(key));
        QCOMPARE(shrunk.textKeys(), expected.textKeys());
    }

    void shrinkWhileReadingDamaged_data()
    {
        addColumns<QByteArray>("jpeg");
        const QByteArray baseline = encoded(photoLike(160, 120, 4), false);
        addRow("cut off halfway", baseline.left(baseline.size() / 2));
        // Decoding a progressive photo starts by reading all of it: the complaint comes then.
        QByteArray progressive = encoded(photoLike(160, 120, 4), true);
        progressive.replace(progressive.size() * 7 / 10, 64, QByteArray(64, 0x55));
        addRow("progressive, scans overwritten", progressive);
    }

    // A damaged photo is reported in the decoder's words, whichever way it is read.
    void shrinkWhileReadingDamaged()
    {
        auto [jpeg] = fetch<QByteArray>("jpeg");
        const QString path = TestUtils::writeFile(root->filePath("in/damaged.jpg"), jpeg);
        PhotoDecoding decoding;
        decoding.shrinksTo = [](const QSize&) { return QSize(80, 60); };
        const QString said = "damaged: Corrupt JPEG data: premature end of data segment";
        QCOMPARE(BatchEngine::load(path, 1 << 30, decoding).error, said);
        QCOMPARE(BatchEngine::load(path, 1 << 30).error, said);
    }

private:
    static QByteArray encoded(const QImage& image, bool progressive)
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, "jpeg");
        writer.setProgressiveScanWrite(progressive);
        writer.write(image);
        return bytes;
    }

    // pelodine-batch with the arguments, on the sources or else the photos.
    TestUtils::Outcome run(const QString& arguments, const QStringList& sources = {}) const
    {
        return TestUtils::run(PELODINE_BATCH_PATH,
                              arguments.split(' ') + (sources.isEmpty() ? photos : sources));
    }

    std::unique_ptr<QTemporaryDir> root;
    QStringList photos;
};

PELODINE_TEST_MAIN(TestBatchRuns)
#include "tst_batchruns.moc"
