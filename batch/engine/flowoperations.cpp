#include "flowoperations.h"

#include "flowfile.h"
#include "operationcatalogue.h"

BatchOperations batchOperationsFromFlow(const QString& flowText, bool* ok)
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
        if (readOperation(step.name, step.parameters, &active, &parametersText) && active)
            operations.append({step.name, parametersText});
    }
    return operations;
}
