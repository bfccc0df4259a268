#include "flowoperations.h"

#include "flowfile.h"
#include "operationcatalogue.h"

#include <QCoreApplication>

BatchOperations batchOperationsFromFlow(const QString& flowText, bool* ok, QStringList* dropped)
{
    BatchOperations operations;
    QDomDocument document;
    const bool parsed = FlowFile::parseFlowText(flowText, &document);
    if (ok)
        *ok = parsed;
    if (!parsed)
        return operations;
    const QMap<int, FlowFile::Operation> steps =
        FlowFile::readOperations(document.documentElement());
    for (const FlowFile::Operation& step : steps) {
        bool active = false;
        QString parametersText;
        QStringList unread;
        if (!readOperation(step.name, step.parameters, &active, &parametersText, &unread)) {
            if (dropped)
                *dropped << QCoreApplication::translate("BatchOperations",
                                                        "\"%1\" is not an operation: left out")
                                .arg(step.name);
            continue;
        }
        if (dropped) {
            for (const QString& key : qAsConst(unread))
                *dropped << QCoreApplication::translate("BatchOperations",
                                                        "%1: the %2 cannot be read: left as it was")
                                .arg(step.name, key);
        }
        if (active)
            operations.append({step.name, parametersText});
    }
    return operations;
}
