#include "flowcommands.h"

#include <utility>

AddNodeCommand::AddNodeCommand(FlowEditor& editor, int position, const QString& name,
                               const QString& description)
    : QUndoCommand(description)
    , editor(editor)
    , position(position)
    , name(name)
{
}

void AddNodeCommand::redo()
{
    // A new node starts at its defaults; later changes of it are steps of their own.
    editor.insertNode(position, name, QString());
}

void AddNodeCommand::undo()
{
    editor.removeNode(position);
}

RemoveNodeCommand::RemoveNodeCommand(FlowEditor& editor, int position, const QString& name,
                                     const QString& parametersText, const QString& description)
    : QUndoCommand(description)
    , editor(editor)
    , position(position)
    , name(name)
    , parametersText(parametersText)
{
}

void RemoveNodeCommand::redo()
{
    editor.removeNode(position);
}

void RemoveNodeCommand::undo()
{
    editor.insertNode(position, name, parametersText);
}

ReplaceFlowCommand::ReplaceFlowCommand(FlowEditor& editor, const QString& replacement,
                                       const QString& description)
    : QUndoCommand(description)
    , editor(editor)
    , before(editor.flowText())
    , replacement(replacement)
{
}

void ReplaceFlowCommand::redo()
{
    editor.replaceFlow(replacement);
    // Loading the flow that is shown, or clearing an empty one, is no step.
    setObsolete(editor.flowText() == before);
}

void ReplaceFlowCommand::undo()
{
    editor.replaceFlow(before);
}

MoveNodeCommand::MoveNodeCommand(FlowEditor& editor, int from, int to, const EditMark& edit,
                                 const QString& description)
    : QUndoCommand(description)
    , editor(editor)
    , from(from)
    , to(to)
    , edit(edit)
{
}

void MoveNodeCommand::redo()
{
    if (!std::exchange(alreadyDone, false))
        editor.moveNode(from, to);
}

void MoveNodeCommand::undo()
{
    editor.moveNode(to, from);
}

bool MoveNodeCommand::mergeWith(const QUndoCommand* other)
{
    const auto* next = static_cast<const MoveNodeCommand*>(other);
    // A drag moves its tab one place at a time; the tab that moved on is the same one.
    if (!next->edit.continues(edit) || next->from != to)
        return false;
    to = next->to;
    setObsolete(from == to);
    return true;
}

ParametersCommand::ParametersCommand(FlowEditor& editor, int position, const QString& before,
                                     const QString& after, const EditMark& edit,
                                     const QString& description)
    : QUndoCommand(description)
    , editor(editor)
    , position(position)
    , before(before)
    , after(after)
    , edit(edit)
{
}

void ParametersCommand::redo()
{
    if (!std::exchange(alreadyDone, false))
        editor.restoreParameters(position, after);
}

void ParametersCommand::undo()
{
    editor.restoreParameters(position, before);
}

bool ParametersCommand::mergeWith(const QUndoCommand* other)
{
    const auto* next = static_cast<const ParametersCommand*>(other);
    if (!next->edit.continues(edit) || next->position != position)
        return false;
    after = next->after;
    // A slider dragged back to where it started leaves no step.
    setObsolete(after == before);
    return true;
}
