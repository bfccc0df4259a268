#include "photofixtures.h"

#include "testutils.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>

namespace PhotoFixtures {

QByteArray jpegWithOrientation(const QImage& image, quint16 orientation)
{
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 95);

    // A big-endian TIFF block with one IFD entry: tag 0x0112 (orientation), type SHORT, count 1.
    const char tiff[] = {'M',
                         'M',
                         0,
                         42,
                         0,
                         0,
                         0,
                         8, // header, IFD at 8
                         0,
                         1, // one entry
                         0x01,
                         0x12,
                         0,
                         3,
                         0,
                         0,
                         0,
                         1, // orientation, SHORT, 1
                         char(orientation >> 8),
                         char(orientation & 0xff),
                         0,
                         0,
                         0,
                         0,
                         0,
                         0}; // no further IFD
    QByteArray payload = QByteArray("Exif\0\0", 6) + QByteArray(tiff, sizeof tiff);
    const int length = payload.size() + 2;
    const QByteArray segment =
        QByteArray("\xff\xe1", 2) + char(length >> 8) + char(length & 0xff) + payload;
    // After the start-of-image marker and Qt's JFIF segment.
    const int jfifLength = (uchar(jpeg.at(4)) << 8) | uchar(jpeg.at(5));
    jpeg.insert(4 + jfifLength, segment);
    return jpeg;
}

QString writeFile(const QString& path, const QByteArray& data)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(data);
    return path;
}

QString writePng(const QString& path, int width, int height, QRgb argb)
{
    QDir().mkpath(QFileInfo(path).path());
    TestUtils::filledImage(width, height, argb).save(path, "PNG");
    return path;
}

QImage halvesPicture(int width, int height)
{
    QImage picture = TestUtils::filledImage(width, height, 0xffff0000);
    QPainter painter(&picture);
    painter.fillRect(width / 2, 0, width - width / 2, height, QColor(0, 0, 255));
    return picture;
}

} // namespace PhotoFixtures
