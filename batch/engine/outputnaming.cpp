#include "outputnaming.h"

#include "commondata.h"

namespace OutputNaming {

QString extension(const QString& format, bool shortForm)
{
    if (shortForm && format == QLatin1String("JPEG"))
        return QStringLiteral("jpg");
    if (shortForm && format == QLatin1String("TIFF"))
        return QStringLiteral("tif");
    return format.toLower();
}

QString outputName(const QString& filePath, int index, bool rename, const QString& newName,
                   int numbers, int& oddCounter, int& evenCounter)
{
    if (!rename)
        return CommonData::displayNameOf(filePath);
    int number = index;
    if (numbers == 1) {
        number = oddCounter;
        oddCounter += 2;
    } else if (numbers != 0) {
        number = evenCounter;
        evenCounter += 2;
    }
    return newName + QString::number(number);
}

bool staysInFolder(const QString& name)
{
    return !name.contains('/') && name != QLatin1String(".") && name != QLatin1String("..");
}

} // namespace OutputNaming
