#include "outputnaming.h"

#include <QFileInfo>

namespace OutputNaming {

QString baseName(const QString& filePath)
{
    const QString fileName = QFileInfo(filePath).fileName();
    const int dot = fileName.lastIndexOf('.');
    return dot < 0 ? fileName : fileName.left(dot);
}

QString extension(const QString& format)
{
    return format.toLower();
}

QString outputName(const QString& filePath, int index, bool rename, const QString& newName,
                   int numbers, int& oddCounter, int& evenCounter)
{
    if (!rename)
        return baseName(filePath);
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

} // namespace OutputNaming
