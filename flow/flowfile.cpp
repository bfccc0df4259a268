#include "flowfile.h"

#include "app.h"
#include "basenode.h"
#include "nodecatalogue.h"

#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>
#include <QXmlStreamReader>

#include <memory>

namespace FlowFile {

namespace {

// Far deeper than any flow; the DOM frees and prints its tree recursively, so a hostile
// nesting depth would otherwise exhaust the stack.
const int maximumDepth = 256;

bool isShallowWellFormedXml(const QString& text)
{
    QXmlStreamReader reader(text);
    int depth = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement && ++depth > maximumDepth)
            return false;
        if (token == QXmlStreamReader::EndElement)
            --depth;
    }
    return !reader.hasError();
}

// The DOM keeps attributes in a hash, so it prints "name" and "index" in either order;
// the file format wants "name" first.
QString withNameBeforeIndex(const QString& text)
{
    static const QRegularExpression swapped(R"(^ <Operation (index="[^"]*") (name="[^"]*")>$)",
                                            QRegularExpression::MultilineOption);
    return QString(text).replace(swapped, R"( <Operation \2 \1>)");
}

} // namespace

QString flowsFolder()
{
    const QString folder =
        QDir::homePath() + "/" + QCoreApplication::applicationName() + "/" + "Flows/";
    QDir().mkpath(folder);
    return folder;
}

bool installSampleFlow()
{
    return OrkWidgets::App::copyFile(":/sample.flow", flowsFolder(), "sample.flow");
}

QStringList flowNames()
{
    // Hidden included: an empty name is saved as ".flow".
    return QDir(flowsFolder())
        .entryList({"*.flow"}, QDir::Files | QDir::Hidden | QDir::CaseSensitive, QDir::Unsorted);
}

QString flowFileName(const QString& typedName)
{
    return typedName.endsWith(".flow") ? typedName : typedName + ".flow";
}

QString findFlow(const QString& name)
{
    const QString path = flowsFolder() + flowFileName(name);
    return !name.isEmpty() && QFileInfo(path).isFile() ? path : QString();
}

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

bool readFlowFile(const QString& path, QString* text)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    *text = QString::fromUtf8(file.readAll());
    return true;
}

bool parseFlowText(const QString& text, QDomDocument* document)
{
    return isShallowWellFormedXml(text) && document->setContent(text);
}

QMap<int, Operation> readOperations(const QDomElement& root)
{
    QMap<int, Operation> operations;
    for (QDomNode child = root.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QDomElement element = child.toElement();
        if (element.isNull() || element.tagName() != "Operation")
            continue;
        bool ok = false;
        const int index = element.attribute("index").toInt(&ok, 10);
        if (ok)
            operations.insert(index, {element.attribute("name"), element.firstChild().toElement()});
    }
    return operations;
}

bool createNodes(const QString& text, const std::function<BaseNode*(const QString&)>& create)
{
    QDomDocument document;
    if (!parseFlowText(text, &document))
        return false;
    const QMap<int, Operation> operations = readOperations(document.documentElement());
    for (const Operation& operation : operations) {
        BaseNode* node = create(operation.name);
        // Without a parameters element the node keeps its defaults.
        if (node && !operation.parameters.isNull())
            node->readParameters(operation.parameters);
    }
    return true;
}

BatchOperations operationsFromText(const QString& text, bool* ok)
{
    BatchOperations operations;
    std::vector<std::unique_ptr<BaseNode>> nodes;
    const bool parsed = createNodes(text, [&nodes](const QString& name) {
        nodes.emplace_back(createNodeByName(name));
        return nodes.back().get();
    });
    for (const auto& node : nodes) {
        if (node && node->isActive())
            operations.append({node->name(), node->parametersText()});
    }
    if (ok)
        *ok = parsed;
    return operations;
}

} // namespace FlowFile
