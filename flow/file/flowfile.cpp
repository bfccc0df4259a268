#include "flowfile.h"

#include "appdata.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>
#include <QXmlStreamReader>

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

} // namespace

bool installSampleFlow()
{
    return OrkTools::AppData::copyFile(":/sample.flow", OrkTools::AppData::flowsFolder(),
                                       "sample.flow");
}

QStringList flowNames()
{
    // Hidden included: an empty name is saved as ".flow".
    return QDir(OrkTools::AppData::flowsFolder())
        .entryList({"*.flow"}, QDir::Files | QDir::Hidden | QDir::CaseSensitive, QDir::Unsorted);
}

QString keptFlowPath()
{
    return OrkTools::AppData::flowsFolder() + ".current.flow.kept";
}

QString flowFileName(const QString& typedName)
{
    return typedName.endsWith(".flow") ? typedName : typedName + ".flow";
}

QString findFlow(const QString& name)
{
    const QString path = OrkTools::AppData::flowsFolder() + flowFileName(name);
    return !name.isEmpty() && QFileInfo(path).isFile() ? path : QString();
}

bool readFlowFile(const QString& path, QString* text)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    *text = decodedXml(file.readAll());
    return true;
}

QString decodedXml(const QByteArray& bytes)
{
    // A byte order mark decides; then the declaration's encoding; else UTF-8, as XML says.
    if (QTextCodec* marked = QTextCodec::codecForUtfText(bytes, nullptr))
        return marked->toUnicode(bytes);
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd() && reader.readNext() != QXmlStreamReader::StartDocument) {
        if (reader.tokenType() != QXmlStreamReader::NoToken)
            break;
    }
    const QString declared = reader.documentEncoding().toString();
    if (QTextCodec* codec =
            declared.isEmpty() ? nullptr : QTextCodec::codecForName(declared.toLatin1()))
        return codec->toUnicode(bytes);
    return QString::fromUtf8(bytes);
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

} // namespace FlowFile
