// The .flow files: where they live, how a flow is written and read.
#pragma once

#include "batchoperations.h"

#include <QDomElement>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>

class BaseNode;

// Position (0..n-1, no gaps, the running order) to node.
using Flow = QMap<int, BaseNode*>;

namespace FlowFile {

// Home + "/" + application name + "/Flows/", created when missing.
QString flowsFolder();

// Copies ":/sample.flow" into the flows folder unless a file of that name is already there.
bool installSampleFlow();

// The names of the "*.flow" files in the flows folder, in directory order, hidden ones included.
QStringList flowNames();

// The file name a typed flow name is saved under: ".flow" appended unless it already ends so.
QString flowFileName(const QString& typedName);

// The path of an existing flow file in the flows folder, named with or without ".flow";
// empty if there is none.
QString findFlow(const QString& name);

// The text of a flow: root "OperationsFlow", one "Operation" (name, then index) per node holding
// the node's "Parameters", indentation 1, LF line ends, no XML declaration.
QString flowText(const Flow& flow);

// Writes flowText to path through a temporary file, so the target is never half-written.
bool writeFlow(const QString& path, const Flow& flow);

// The whole file as UTF-8 text; false when it cannot be opened.
bool readFlowFile(const QString& path, QString* text);

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

// For each operation of text in index order: create(name) makes the node (nullptr skips the
// operation), which then reads its parameters. False, and nothing created, for unparsable text.
bool createNodes(const QString& text, const std::function<BaseNode*(const QString&)>& create);

// The active nodes of a flow text in flow order as the batch runs them; the nodes are created
// through the catalogue only for the time of the call. ok is false for unparsable text.
BatchOperations operationsFromText(const QString& text, bool* ok = nullptr);

} // namespace FlowFile
