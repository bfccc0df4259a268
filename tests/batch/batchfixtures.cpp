#include "batchfixtures.h"

#include <QDir>
#include <QFile>

#include "testutils.h"

namespace BatchFixtures {

QString writePhoto(const QString& folder, const QString& fileName, QRgb colour)
{
    QDir().mkpath(folder);
    const QString path = folder + "/" + fileName;
    TestUtils::filledImage(16, 8, colour).save(path, "PNG");
    return path;
}

QString writeNonsense(const QString& folder, const QString& fileName)
{
    QDir().mkpath(folder);
    const QString path = folder + "/" + fileName;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write("this is not a photo");
    return path;
}

QList<QUrl> urls(const QStringList& paths)
{
    QList<QUrl> list;
    for (const QString& path : paths)
        list << QUrl::fromLocalFile(path);
    return list;
}

QStringList fileNames(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files, QDir::Name);
}

QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

BatchOperations operation(const QString& name)
{
    return {{name, "<Parameters>\n <Active>yes</Active>\n</Parameters>\n"}};
}

} // namespace BatchFixtures
