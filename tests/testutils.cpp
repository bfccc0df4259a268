#include "testutils.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QProcess>

#include <memory>

namespace TestUtils {

namespace {
// Child processes of a test find the sandbox here and share it; only the process that made it
// removes it, at exit, with everything the test and its children left in it.
const char sandboxVariable[] = "PELODINE_TEST_SANDBOX";
std::unique_ptr<QTemporaryDir> ownSandbox;
QString sandbox;
} // namespace

QString makeSandboxHome()
{
    if (!sandbox.isEmpty())
        return sandbox;
    sandbox = qEnvironmentVariable(sandboxVariable);
    if (sandbox.isEmpty()) {
        ownSandbox = std::make_unique<QTemporaryDir>(QDir::tempPath() + "/pelodine-test-XXXXXX");
        sandbox = ownSandbox->path();
        qputenv(sandboxVariable, sandbox.toLocal8Bit());
        for (const char* folder :
             {".config", ".local/share", ".cache", "Pictures", "runtime", "tmp"})
            QDir(sandbox).mkpath(folder);
        QFile::setPermissions(sandbox + "/runtime", QFileDevice::ReadOwner |
                                                        QFileDevice::WriteOwner |
                                                        QFileDevice::ExeOwner);
    }
    qputenv("HOME", sandbox.toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", (sandbox + "/.config").toLocal8Bit());
    qputenv("XDG_DATA_HOME", (sandbox + "/.local/share").toLocal8Bit());
    qputenv("XDG_CACHE_HOME", (sandbox + "/.cache").toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", (sandbox + "/runtime").toLocal8Bit());
    qputenv("XDG_PICTURES_DIR", (sandbox + "/Pictures").toLocal8Bit());
    // Temporary files of the test, its children and Qt's own go into the sandbox too.
    qputenv("TMPDIR", (sandbox + "/tmp").toLocal8Bit());
    return sandbox;
}

QString sandboxHome()
{
    return sandbox;
}

QString imageDifference(const QImage& actual, const QImage& expected)
{
    if (actual.size() != expected.size())
        return QString("size %1x%2 != %3x%4")
            .arg(actual.width())
            .arg(actual.height())
            .arg(expected.width())
            .arg(expected.height());
    const QImage a = actual.depth() == 32 ? actual : actual.convertToFormat(QImage::Format_ARGB32);
    const QImage e =
        expected.depth() == 32 ? expected : expected.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < a.height(); ++y) {
        const auto* rowA = reinterpret_cast<const QRgb*>(a.constScanLine(y));
        const auto* rowE = reinterpret_cast<const QRgb*>(e.constScanLine(y));
        for (int x = 0; x < a.width(); ++x) {
            if (rowA[x] != rowE[x])
                return QString("pixel (%1,%2): #%3 != #%4")
                    .arg(x)
                    .arg(y)
                    .arg(rowA[x], 8, 16, QLatin1Char('0'))
                    .arg(rowE[x], 8, 16, QLatin1Char('0'));
        }
    }
    return QString();
}

QImage filledImage(int width, int height, QRgb argb)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(argb);
    return image;
}

QImage halvesPicture(int width, int height, QRgb left, QRgb right)
{
    QImage picture = filledImage(width, height, left);
    QPainter(&picture).fillRect(width / 2, 0, width - width / 2, height, QColor(right));
    return picture;
}

QString writeFile(const QString& path, const QByteArray& data)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(data);
    return path;
}

QString writeImage(const QString& path, const QImage& image)
{
    QDir().mkpath(QFileInfo(path).path());
    if (!image.save(path))
        image.save(path, "PNG");
    return path;
}

QString fileNames(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name).join(' ');
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray jpegWithOrientation(const QImage& image, quint16 orientation)
{
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 95);

    // A big-endian TIFF block: header with the IFD at 8, one entry (tag 0x0112 orientation,
    // type SHORT, count 1, the value padded to four bytes), no further IFD.
    const QByteArray tiff = QByteArray::fromHex("4d4d002a00000008"
                                                "0001"
                                                "0112000300000001") +
                            char(orientation >> 8) + char(orientation & 0xff) + QByteArray(6, '\0');
    const QByteArray payload = QByteArray("Exif\0\0", 6) + tiff;
    const int length = payload.size() + 2;
    const QByteArray segment =
        QByteArray("\xff\xe1", 2) + char(length >> 8) + char(length & 0xff) + payload;
    // After the start-of-image marker and Qt's JFIF segment.
    const int jfifLength = (uchar(jpeg.at(4)) << 8) | uchar(jpeg.at(5));
    jpeg.insert(4 + jfifLength, segment);
    return jpeg;
}

QVector<QPair<QString, QString>> keyValues(const QString& text)
{
    QVector<QPair<QString, QString>> pairs;
    const QStringList items = text.split('|');
    for (const QString& item : items)
        pairs.append({item.section('=', 0, 0), item.section('=', 1)});
    return pairs;
}

Outcome run(const QString& program, const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR"})
        environment.remove(name);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(120000))
        return {};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

} // namespace TestUtils
