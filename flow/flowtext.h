// A flow of nodes as the text of a .flow file, and back: the flow panel's side of flow files.
#pragma once

#include <QMap>
#include <QString>

#include <functional>

class BaseNode;

// Position (0..n-1, no gaps, the running order) to node.
using Flow = QMap<int, BaseNode*>;

namespace FlowText {

// The text of a flow: root "OperationsFlow", one "Operation" (name, then index) per node holding
// the node's "Parameters", indentation 1, LF line ends, no XML declaration.
QString flowText(const Flow& flow);

// Writes flowText to path through a temporary file, so the target is never half-written.
bool writeFlow(const QString& path, const Flow& flow);

// For each operation of text in index order: create(name) makes the node (nullptr skips the
// operation), which then reads its parameters. False, and nothing created, for unparsable text.
bool createNodes(const QString& text, const std::function<BaseNode*(const QString&)>& create);

} // namespace FlowText
