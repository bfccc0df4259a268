// Hostile and unlucky input through pelodine-batch: each case makes its small files in the
// sandbox, runs the tool and checks the files, the message and the exit status.
#include "appdata.h"
#include "batchengine.h"
#include "flowfile.h"
#include "testutils.h"

#include <QDir>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using TestUtils::fileNames;
using TestUtils::Outcome;

quint32 crc32(const QByteArray& data)
{
    quint32 crc = 0xffffffff;
    for (const char byte : data) {
        crc ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 1 ? 0xedb88320 ^ (crc >> 1) : crc >> 1;
    }
    return ~crc;
}

QByteArray bigEndian(quint32 value)
{
    return QByteArray(1, char(value >> 24)) + char(value >> 16) + char(value >> 8) + char(value);
}

// A PNG header claiming width x height, with nothing behind it.
QByteArray pngClaiming(quint32 width, quint32 height)
{
    const QByteArray header =
        "IHDR" + bigEndian(width) + bigEndian(height) + QByteArray("\x08\x06\0\0\0", 5);
    return QByteArray("\x89PNG\r\n\x1a\n", 8) + bigEndian(13) + header + bigEndian(crc32(header)) +
           bigEndian(0) + "IDAT" + bigEndian(crc32("IDAT"));
}

// A real JPEG whose frame header says width x height.
QByteArray jpegClaiming(quint16 width, quint16 height)
{
    QByteArray jpeg = TestUtils::jpegWithOrientation(TestUtils::filledImage(8, 8, 0xff808080), 1);
    const int frame = jpeg.indexOf("\xff\xc0");
    jpeg.replace(frame + 5, 4, bigEndian((quint32(height) << 16) | width));
    return jpeg;
}

// A flow of the operation elements.
QByteArray flowOf(const QString& operations)
{
    return ("<OperationsFlow>" + operations + "</OperationsFlow>").toUtf8();
}

} // namespace

class TestHostile : public QObject
{
    Q_OBJECT

    QTemporaryDir root{TestUtils::sandboxHome() + "/tmp/hostile-XXXXXX"};
    QString in = root.filePath("in");
    QString out = root.filePath("out");

    Outcome run(const QStringList& arguments)
    {
        return TestUtils::run(PELODINE_BATCH_PATH, arguments);
    }
    // A 24 x 16 photo of one colour in the in folder.
    QString photo(const QString& name)
    {
        return TestUtils::writeImage(in + "/" + name, TestUtils::filledImage(24, 16, 0xff336699));
    }

private slots:
    void init()
    {
        QDir(in).removeRecursively();
        QDir(out).removeRecursively();
        QDir().mkpath(out);
    }

    // Nothing is written through a link, and a file from before stays unless asked for.
    void whatIsNotOursStays()
    {
        const QString notes = TestUtils::writeFile(root.filePath("notes.txt"), "mine");
        QVERIFY(QFile::link(notes, out + "/good.jpeg"));
        TestUtils::writeFile(out + "/old.jpeg", "from before");
        const QStringList photos{photo("good.png"), photo("old.png")};
        Outcome outcome = run(QStringList{"--output", out, "--quiet"} + photos);
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.err.contains(": cannot write: good.jpeg is a link") &&
                     outcome.err.contains(": cannot write: old.jpeg already exists"),
                 qPrintable(outcome.err));
        QCOMPARE(TestUtils::readFile(notes), QByteArray("mine"));
        QCOMPARE(TestUtils::readFile(out + "/old.jpeg"), QByteArray("from before"));
        outcome = run(QStringList{"--output", out, "--overwrite", "--quiet"} + photos);
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY(QImage(out + "/old.jpeg").size() == QSize(24, 16));
        QCOMPARE(TestUtils::readFile(notes), QByteArray("mine"));
    }

    // Photos that map to one name all survive, and the summary counts what was written.
    void sameNamesAllSurvive()
    {
        const QString twice = photo("IMG.png");
        const QStringList photos{twice, twice, photo("b/IMG.png"), photo("pic.png"),
                                 photo("pic.jpg")};
        const Outcome outcome = run(QStringList{"--output", out} + photos);
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(fileNames(out),
                 QString("IMG (2).jpeg IMG (3).jpeg IMG.jpeg pic (2).jpeg pic.jpeg"));
        QVERIFY(outcome.err.contains("5 of 5 photos written into " + out + "/"));
    }

    // Runs that start in one second get a folder each; names cannot leave the folder.
    void foldersAreTheRunsOwn()
    {
        const QDateTime start(QDate(2026, 11, 23), QTime(12, 0, 1));
        const QString base = root.filePath("runs/");
        QStringList made;
        for (int run = 0; run < 3; ++run)
            made << BatchEngine::createRunFolder(base, start, true);
        QCOMPARE(made, (QStringList{base + "2026-11-23_12-00-01/", base + "2026-11-23_12-00-01-2/",
                                    base + "2026-11-23_12-00-01-3/"}));
        QCOMPARE(BatchEngine::createRunFolder(base, start, false), made.first());

        const Outcome outcome = run({"--output", out, "--rename", "../../escape", photo("a.png")});
        QCOMPARE(outcome.exitCode, 2);
        QVERIFY2(outcome.err.contains("see pelodine-batch --help"), qPrintable(outcome.err));
        QCOMPARE(fileNames(out), QString());
        QVERIFY(!QFile::exists(QDir::cleanPath(out + "/../../escape0.jpeg")));
    }

    // Sizes are read before decoding; a flow cannot grow a photo past the budget.
    void tooLargeIsRefusedUnmade()
    {
        const QStringList photos{TestUtils::writeFile(in + "/wide.png", pngClaiming(50000, 50000)),
                                 TestUtils::writeFile(in + "/tiny.jpg", jpegClaiming(65500, 65500)),
                                 photo("small.png")};
        QString frames;
        for (int i = 0; i < 200; ++i)
            frames += QString(R"(<Operation name="Frame" index="%1"><Parameters><Active>yes)"
                              "</Active><Width>200</Width></Parameters></Operation>")
                          .arg(i);
        const QString flow = TestUtils::writeFile(root.filePath("frames.flow"), flowOf(frames));
        const Outcome outcome =
            run(QStringList{"--output", out, "--quiet", "--flow", flow} + photos);
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.err.contains("wide.png: too large: 50000 x 50000") &&
                     outcome.err.contains("tiny.jpg: too large: 65500 x 65500") &&
                     outcome.err.contains(QRegularExpression("small.png: too large: \\d+ x \\d+")),
                 qPrintable(outcome.err));
        const Outcome budget = run({"--output", out, "--max-megapixels", "0", photo("a.png")});
        QCOMPARE(budget.exitCode, 2);
    }

    // Quiet, only the failures are printed, each with its true reason: only regular files are
    // read, SVG is no photo, a JPEG cut in half fails in libjpeg's own words (which reach the
    // terminal nowhere else), and a source photo is never written over, also not through a link.
    void failuresSayWhy()
    {
        QDir().mkpath(in);
        QVERIFY(mkfifo(QFile::encodeName(in + "/fifo.jpg").constData(), 0600) == 0);
        // Noise, so that half the file ends inside the picture data, past the tables.
        QImage noise(64, 48, QImage::Format_RGB32);
        QRandomGenerator random(7);
        for (int y = 0; y < noise.height(); ++y)
            random.fillRange(reinterpret_cast<quint32*>(noise.scanLine(y)), noise.width());
        const QByteArray jpeg = TestUtils::jpegWithOrientation(noise, 1);
        const QStringList photos{
            photo("keep.jpeg"), in + "/fifo.jpg", "/dev/zero", in + "/gone.png",
            TestUtils::writeFile(in + "/drawing.svg",
                                 "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'/>"),
            TestUtils::writeFile(in + "/b.png", "no photo"),
            TestUtils::writeFile(in + "/cut.jpg", jpeg.left(jpeg.size() / 2)),
            TestUtils::writeFile(in + "/page.eps", "%!PS-Adobe-3.0 EPSF-3.0\n"),
            // A HEIF file type box and nothing after it: no image to tell a size.
            TestUtils::writeFile(in + "/box.heic",
                                 QByteArray::fromHex("0000001c6674797068656963000000006d696631"
                                                     "686569636d696166")),
            photo("locked.png")};
        const QByteArray kept = TestUtils::readFile(photos.at(0));
        QFile::setPermissions(photos.last(), {});
        QVERIFY(QFile::link(in, root.filePath("linked")));
        const Outcome outcome =
            run(QStringList{"--output", root.filePath("linked"), "--quiet"} + photos);
        QCOMPARE(outcome.exitCode, 1);
        QCOMPARE(outcome.out, QString());
        QStringList expected{
            "",
            "  " + photos.at(0) + ": cannot write: it would replace a source photo",
            "  " + photos.at(1) + ": unreadable: not a regular file",
            "  /dev/zero: unreadable: not a regular file",
            "  " + photos.at(3) + ": unreadable: no such file",
            "  " + photos.at(4) + ": unreadable: a drawing (SVG), not a photo",
            "  " + photos.at(5) + ": unreadable: not a photo this program can read",
            "  " + photos.at(6) + ": damaged: Corrupt JPEG data: premature end of data segment",
            "  " + photos.at(7) + ": unreadable: a drawing (EPS), not a photo",
            "  " + photos.at(8) + ": unreadable: its size cannot be read"};
        // Root reads what nobody may read.
        if (getuid() != 0)
            expected << "  " + photos.at(9) + ": unreadable: permission denied";
        expected[0] = QString("%1 photo(s) failed:").arg(expected.size() - 1);
        QCOMPARE(outcome.err.split('\n', Qt::SkipEmptyParts), expected);
        QCOMPARE(TestUtils::readFile(photos.at(0)), kept);
        QCOMPARE(
            fileNames(in),
            QString("b.png box.heic cut.jpg drawing.svg fifo.jpg keep.jpeg %1locked.png page.eps")
                .arg(getuid() != 0 ? "" : "locked.jpeg "));
    }

    // A flow in another encoding is read; one the tool had to change runs only when asked.
    void flowsAreReadHonestly()
    {
        // A logo claiming 20000 x 20000 is not decoded, and said so.
        const QString logo = "data:image/png;base64," + pngClaiming(20000, 20000).toBase64();
        const QString text = "<OperationsFlow><Operation name=\"Watermrk\" index=\"0\"/>"
                             "<Operation name=\"Invert\" index=\"1\"><Parameters>"
                             "<Active>yes</Active></Parameters></Operation>"
                             "<Operation name=\"Watermark\" index=\"2\"><Parameters>"
                             "<Active>no</Active><ImageData>" +
                             logo + "</ImageData></Parameters></Operation></OperationsFlow>";
        const QString utf16 = TestUtils::writeFile(
            root.filePath("utf16.flow"),
            QByteArray("\xff\xfe", 2) +
                QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2));
        const QStringList arguments{"--output", out, "--flow", utf16, photo("a.png")};
        Outcome outcome = run(arguments);
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.err.contains("\"Watermrk\" is not an operation: left out") &&
                     outcome.err.contains("Watermark: the ImageData cannot be read") &&
                     outcome.err.contains("--lenient"),
                 qPrintable(outcome.err));
        const QByteArray latin1 = "<?xml version='1.0' encoding='ISO-8859-1'?><a>Gr\xfc\xdf"
                                  "e</a>";
        QCOMPARE(FlowFile::decodedXml(latin1).right(9), QString::fromUtf8("Grüße</a>"));
        QCOMPARE(fileNames(out), QString());
        outcome = run(arguments + QStringList{"--lenient"});
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(QImage(out + "/a.jpeg").pixel(4, 4) & 0xf0f0f0, 0xc09060u);
    }

    // An SVG logo that names a local picture is drawn without it.
    void svgLogoReadsNoLocalFile()
    {
        TestUtils::filledImage(8, 8, 0xffff0000).save(root.filePath("red.png"));
        const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' "
                               "xmlns:xlink='http://www.w3.org/1999/xlink' width='8' height='8'>"
                               "<image width='8' height='8' xlink:href='" +
                               root.filePath("red.png").toUtf8() + "'/></svg>";
        const QString flow = TestUtils::writeFile(
            root.filePath("logo.flow"),
            flowOf("<Operation name=\"Watermark\" index=\"0\"><Parameters><Active>yes</Active>"
                   "<Mode>1</Mode><Expand>yes</Expand><Transparency>0</Transparency>"
                   "<ImageData>data:image/svg+xml;base64," +
                   svg.toBase64() +
                   "</ImageData><ImageName>a.svg</ImageName></Parameters>"
                   "</Operation>"));
        QCOMPARE(run({"--output", out, "--format", "PNG", "--flow", flow, photo("a.png")}).exitCode,
                 0);
        QCOMPARE(QImage(out + "/a.png").pixel(12, 8), 0xff336699u);
    }

    // A full disk fails the photo with its reason and leaves no part of a file.
    void diskFull()
    {
        QDir().mkpath(out + "/small");
        if (getuid() != 0 || mount("tmpfs", QFile::encodeName(out + "/small").constData(), "tmpfs",
                                   0, "size=16k") != 0)
            QSKIP("mounting a small file system needs root");
        // As a BMP far larger than the file system.
        const QString big =
            TestUtils::writeImage(in + "/big.png", TestUtils::filledImage(400, 300, 0xff336699));
        const Outcome outcome =
            run({"--output", out + "/small", "--format", "BMP", "--quiet", big});
        const QString left = fileNames(out + "/small");
        umount(QFile::encodeName(out + "/small").constData());
        QVERIFY2(outcome.err.contains("big.png: cannot write: disk full"), qPrintable(outcome.err));
        QCOMPARE(left, QString());
    }
};

PELODINE_TEST_MAIN(TestHostile)
#include "tst_hostile.moc"
