// pelodine-batch runs split up: photos worked on at once, a run resumed, a list shared out in
// shards, fast reading; each against one plain run of the same photos.
#include "batchengine.h"
#include "outputsettings.h"
#include "testutils.h"

#include <QDir>
#include <QtMath>

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

// Over the red, green and blue of two images of one size.
double psnr(const QImage& a, const QImage& b)
{
    double squares = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            for (const int d : {qRed(p) - qRed(q), qGreen(p) - qGreen(q), qBlue(p) - qBlue(q)})
                squares += d * d;
        }
    }
    const double mse = squares / (3.0 * a.width() * a.height());
    return mse == 0 ? INFINITY : 10 * std::log10(255.0 * 255.0 / mse);
}

QString resizeFlow(const QString& parameters)
{
    return "<OperationsFlow><Operation name=\"Resize\" index=\"0\"><Parameters><Active>yes"
           "</Active>" +
           parameters + "</Parameters></Operation></OperationsFlow>";
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

    void sameFilesWhateverTheJobs_data()
    {
        addColumns<QStringList, QString>("options", "files");
        // The numbers follow the photo's position: the third, which fails, leaves a gap.
        addRow("PNG names kept", QStringList{"--format", "PNG"},
               QString("a.png|a (2).png|b.png|d.png|e.png"));
        addRow("JPEG all", QStringList{"--rename", "S", "--numbers", "all"},
               QString("S0.jpeg|S1.jpeg|S3.jpeg|S4.jpeg|S5.jpeg"));
        addRow("BMP odd", QStringList{"--format", "BMP", "--rename", "S", "--numbers", "odd"},
               QString("S1.bmp|S3.bmp|S7.bmp|S9.bmp|S11.bmp"));
        addRow("TIFF even", QStringList{"--format", "TIFF", "--rename", "S", "--numbers", "even"},
               QString("S2.tiff|S4.tiff|S8.tiff|S10.tiff|S12.tiff"));
        addRow("PPM odd", QStringList{"--format", "PPM", "--rename", "S", "--numbers", "odd"},
               QString("S1.ppm|S3.ppm|S7.ppm|S9.ppm|S11.ppm"));
        addRow("XPM all", QStringList{"--format", "XPM", "--rename", "S", "--numbers", "all"},
               QString("S0.xpm|S1.xpm|S3.xpm|S4.xpm|S5.xpm"));
    }

    // The sample flow (a text watermark among others) one photo at a time and two at once.
    void sameFilesWhateverTheJobs()
    {
        auto [options, files] = fetch<QStringList, QString>("options", "files");
        const QString one = root->filePath("one");
        const QString two = root->filePath("two");
        QCOMPARE(run(options + QStringList{"--jobs", "1", "--output", one} + photos).exitCode, 1);
        QCOMPARE(run(options + QStringList{"--jobs", "2", "--output", two} + photos).exitCode, 1);
        QStringList expected = files.split('|');
        expected.sort();
        QCOMPARE(sortedFiles(one), expected);
        QCOMPARE(fileNames(two), fileNames(one));
        for (const QString& name : qAsConst(expected))
            QVERIFY2(readFile(one + "/" + name) == readFile(two + "/" + name), qPrintable(name));
    }

    // A run stopped after three photos started, then resumed: the folder ends as one whole run
    // leaves it, and the results already there are not written again.
    void resumeWritesWhatIsMissing()
    {
        const QString flow = TestUtils::writeFile(root->filePath("none.flow"), "<OperationsFlow/>");
        const QString whole = root->filePath("whole") + "/";
        const QString half = root->filePath("half") + "/";
        QCOMPARE(run(QStringList{"--flow", flow, "--output", whole} + photos).exitCode, 1);
        BatchEngine::Options options;
        options.keepEveryResult = true;
        options.replaceExisting = false;
        options.jobs = 2;
        QDir().mkpath(half);
        BatchEngine stopped(photos, {}, OutputSettings(), half, options);
        int started = 0;
        stopped.run(
            {[&] { return ++started > 3 ? BatchEngine::Next::Stop : BatchEngine::Next::Go; },
             [](int, const BatchEngine::Result&) {}});
        QCOMPARE(fileNames(half), QString("a.jpeg b.jpeg"));
        TestUtils::writeFile(half + "a.jpeg", "kept");

        const TestUtils::Outcome resumed =
            run(QStringList{"--flow", flow, "--output", half, "--resume"} + photos);
        QCOMPARE(resumed.exitCode, 1);
        QVERIFY2(resumed.err.contains("2 photo(s) skipped: their results are already in " + half),
                 qPrintable(resumed.err));
        QVERIFY2(resumed.err.contains("3 of 4 photos written"), qPrintable(resumed.err));
        QCOMPARE(fileNames(half), fileNames(whole));
        QCOMPARE(readFile(half + "a.jpeg"), QByteArray("kept"));
        for (const QString& name : sortedFiles(whole)) {
            if (name != "a.jpeg")
                QVERIFY2(readFile(half + name) == readFile(whole + name), qPrintable(name));
        }
    }

    // Two copies, each with its shard, into one folder: what one run writes, names and numbers
    // taken from the whole list.
    void shardsTogether()
    {
        const QStringList options{"--rename", "S", "--numbers", "odd", "--format", "PNG"};
        const QString whole = root->filePath("whole");
        const QString shared = root->filePath("shared");
        QCOMPARE(run(options + QStringList{"--output", whole} + photos).exitCode, 1);
        QCOMPARE(run(options + QStringList{"--shard", "1/2", "--output", shared} + photos).exitCode,
                 0);
        QCOMPARE(fileNames(shared), QString("S11.png S3.png S7.png"));
        QCOMPARE(run(options + QStringList{"--shard", "0/2", "--output", shared} + photos).exitCode,
                 1);
        QCOMPARE(fileNames(shared), fileNames(whole));
        for (const QString& name : sortedFiles(whole))
            QVERIFY2(readFile(shared + "/" + name) == readFile(whole + "/" + name),
                     qPrintable(name));
    }

    void fastReading_data()
    {
        addColumns<QString, int, bool>("resize", "orientation", "reduced");
        addRow("half", "<Mode>0</Mode><Width>50</Width><Height>50</Height>", 1, true);
        addRow("a fifth", "<Mode>0</Mode><Width>20</Width><Height>20</Height>", 1, true);
        addRow("box, turned photo", "<Mode>1</Mode><Width>100</Width><Height>100</Height>", 6,
               true);
        addRow("not half", "<Mode>0</Mode><Width>60</Width><Height>50</Height>", 1, false);
    }

    // A flow that shrinks a JPEG to half or less gives, read fast, results of the exact
    // sizes that differ from the exact ones by little; one that shrinks less reads as usual.
    void fastReading()
    {
        auto [resize, orientation, reduced] =
            fetch<QString, int, bool>("resize", "orientation", "reduced");
        const QString source = TestUtils::writeFile(
            root->filePath("in/big.jpg"),
            TestUtils::jpegWithOrientation(photoLike(800, 600, 3), quint16(orientation)));
        const QString flow =
            TestUtils::writeFile(root->filePath("resize.flow"), resizeFlow(resize).toUtf8());
        const QStringList common{"--flow", flow, "--format", "PNG", source};
        const QString exact = root->filePath("exact");
        const QString fast = root->filePath("fast");
        QCOMPARE(run(common + QStringList{"--output", exact}).exitCode, 0);
        QCOMPARE(run(common + QStringList{"--output", fast, "--fast"}).exitCode, 0);
        const QImage exactImage(exact + "/big.png");
        const QImage fastImage(fast + "/big.png");
        QCOMPARE(fastImage.size(), exactImage.size());
        if (!reduced) {
            QCOMPARE(readFile(fast + "/big.png"), readFile(exact + "/big.png"));
            return;
        }
        QVERIFY(fastImage != exactImage);
        const double decibels = psnr(fastImage, exactImage);
        qInfo("PSNR %s: %.1f dB", QTest::currentDataTag(), decibels);
        QVERIFY2(decibels > 30, qPrintable(QString::number(decibels)));
    }

private:
    static TestUtils::Outcome run(const QStringList& arguments)
    {
        return TestUtils::run(PELODINE_BATCH_PATH, arguments);
    }

    static QStringList sortedFiles(const QString& folder)
    {
        QStringList names = QDir(folder).entryList(QDir::Files);
        names.sort();
        return names;
    }

    std::unique_ptr<QTemporaryDir> root;
    QStringList photos;
};

PELODINE_TEST_MAIN(TestBatchRuns)
#include "tst_batchruns.moc"
