#include "commondata.h"

#include "itemsmodel.h"

#include <QFileInfo>

CommonData* CommonData::instance()
{
    static CommonData* data = new CommonData;
    return data;
}

ItemsModel* CommonData::itemsModel()
{
    if (!model)
        model = new ItemsModel;
    return model;
}

QString CommonData::displayNameOf(const QString& fileName)
{
    const QString name = QFileInfo(fileName).fileName();
    const int dot = name.lastIndexOf('.');
    return dot >= 0 ? name.left(dot) : name;
}
