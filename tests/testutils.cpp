#include "testutils.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QPainter>

namespace TestUtils {

namespace {
QTemporaryDir* sandbox = nullptr;
}

QString makeSandboxHome()
{
    if (!sandbox) {
        sandbox = new QTemporaryDir(QDir::tempPath() + "/pelodine-test-XXXXXX");
        const QString home = sandbox->path();
        const char* subFolders[] = {".config", ".local/share", ".cache", "Pictures", "runtime"};
        for (const char* folder : subFolders)
            QDir(home).mkpath(folder);
        QFile::setPermissions(home + "/runtime", QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                     QFileDevice::ExeOwner);
        qputenv("HOME", home.toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", (home + "/.config").toLocal8Bit());
        qputenv("XDG_DATA_HOME", (home + "/.local/share").toLocal8Bit());
        qputenv("XDG_CACHE_HOME", (home + "/.cache").toLocal8Bit());
        qputenv("XDG_RUNTIME_DIR", (home + "/runtime").toLocal8Bit());
        qputenv("XDG_PICTURES_DIR", (home + "/Pictures").toLocal8Bit());
    }
    return sandbox->path();
}

QString sandboxHome()
{
    return sandbox ? sandbox->path() : QString();
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

QImage halvesPicture(int width, int height)
{
    QImage picture = filledImage(width, height, 0xffff0000);
    QPainter(&picture).fillRect(width / 2, 0, width - width / 2, height, QColor(0, 0, 255));
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
    image.save(path);
    return path;
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

} // namespace TestUtils
