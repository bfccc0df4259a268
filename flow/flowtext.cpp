#include "flowtext.h"

#include "basenode.h"
#include "flowfile.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QSaveFile>

namespace FlowText {

namespace {

// The DOM keeps attributes in a hash, so it prints "name" and "index" in either order;
// the file format wants "name" first.
QString withNameBeforeIndex(const QString& text)
{
    static const QRegularExpression swapped(R"(^ <Operation (index="[^"]*") (name="[^"]*")>$)",
                                            QRegularExpression::MultilineOption);
    return QString(text).replace(swapped, R"( <Operation \2 \1>)");
}

} // namespace

QString flowText(const Flow& flow)
{
    QDomDocument document{QString()};
    QDomElement root = document.createElement("OperationsFlow");
    document.appendChild(root);
    int index = 0;
    for (BaseNode* node : flow) {
        QDomElement operation = document.createElement("Operation");
        operation.setAttribute("name", node->name());
        operation.setAttribute("index", QString::number(index++));
        operation.appendChild(node->writeParameters(document));
        root.appendChild(operation);
    }
    return withNameBeforeIndex(document.toString(1));
}

bool writeFlow(const QString& path, const Flow& flow)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(flowText(flow).toUtf8());
    return file.commit();
}

bool createNodes(const QString& text, const std::function<BaseNode*(const QString&)>& create)
{
    QDomDocument document;
    if (!FlowFile::parseFlowText(text, &document))
        return false;
    const QMap<int, FlowFile::Operation> operations =
        FlowFile::readOperations(document.documentElement());
    for (const FlowFile::Operation& operation : operations) {
        BaseNode* node = create(operation.name);
        // Without a parameters element the node keeps its defaults.
        if (node && !operation.parameters.isNull())
            node->readParameters(operation.parameters);
    }
    return true;
}

} // namespace FlowText
