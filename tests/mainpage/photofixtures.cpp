#include "photofixtures.h"

#include "testutils.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>

namespace PhotoFixtures {

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
