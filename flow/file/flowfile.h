// The .flow files in the flows folder and how their text is read; no widgets, so that the
// command-line tool reads flows too.
#pragma once

#include <QDomDocument>
#include <QDomElement>
#include <QMap>
#include <QString>
#include <QStringList>

namespace FlowFile {

// Copies ":/sample.flow" into the flows folder unless a file of that name is already there.
bool installSampleFlow();

// The names of the "*.flow" files in the flows folder, in directory order, hidden ones included.
QStringList flowNames();

// Where the window keeps the current flow for its next start: a hidden file in the flows
// folder whose name no typed flow name gives and that flowNames does not list.
QString keptFlowPath();

// The file name a typed flow name is saved under: ".flow" appended unless it already ends so.
QString flowFileName(const QString& typedName);

// The path of an existing flow file in the flows folder, named with or without ".flow";
// empty if there is none.
QString findFlow(const QString& name);

// The whole file as text, decoded as XML is: by its byte order mark (UTF-8, UTF-16, UTF-32), else
// by the encoding its declaration names, else as UTF-8. False when it cannot be opened.
bool readFlowFile(const QString& path, QString* text);
QString decodedXml(const QByteArray& bytes);

// Parses a flow text; false for text that is not well-formed XML or is nested absurdly deep.
bool parseFlowText(const QString& text, QDomDocument* document);

struct Operation
{
    QString name;
    // The element's first child node when it is an element; null otherwise.
    QDomElement parameters;
};

// The "Operation" children of root by their "index"; unusable indices are dropped and the later
// of two equal ones wins. The root's own name is not checked.
QMap<int, Operation> readOperations(const QDomElement& root);

} // namespace FlowFile
