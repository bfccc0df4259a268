// What a batch run applies to each photo: (node display name, parameter text) of the active nodes.
#pragma once

#include <QList>
#include <QPair>
#include <QString>

using BatchOperations = QList<QPair<QString, QString>>;
