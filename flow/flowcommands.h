// The undo steps of the flow. They name nodes by position and operation name only: a removed
// node is deleted by the event loop, so a step brings it back by making a new one.
#pragma once

#include <QString>
#include <QUndoCommand>

// What the steps do to the flow; the panel carries it out without recording it as a new step.
class FlowEditor
{
public:
    // A new node of that name at position, made current; it reads parametersText unless empty.
    virtual void insertNode(int position, const QString& name, const QString& parametersText) = 0;
    virtual void removeNode(int position) = 0;
    virtual void moveNode(int from, int to) = 0;
    // The flow text describes; a text that does not parse, the empty one included, clears it.
    virtual void replaceFlow(const QString& text) = 0;
    // The node at position reads parametersText, so that its own text becomes exactly that.
    virtual void restoreParameters(int position, const QString& parametersText) = 0;
    virtual QString flowText() const = 0;

protected:
    ~FlowEditor() = default;
};

// What a change was made to, and in which act of the user: changes of one thing in one act, as
// the moves of one drag or the values a slider passes while it is held, merge into one step. A
// mark without a source never merges.
struct EditMark
{
    const void* source = nullptr;
    int serial = 0;

    bool continues(const EditMark& earlier) const
    {
        return source && source == earlier.source && serial == earlier.serial;
    }
};

class AddNodeCommand : public QUndoCommand
{
public:
    AddNodeCommand(FlowEditor& editor, int position, const QString& name,
                   const QString& description);
    void redo() override;
    void undo() override;

private:
    FlowEditor& editor;
    int position = 0;
    QString name;
};

class RemoveNodeCommand : public QUndoCommand
{
public:
    RemoveNodeCommand(FlowEditor& editor, int position, const QString& name,
                      const QString& parametersText, const QString& description);
    void redo() override;
    void undo() override;

private:
    FlowEditor& editor;
    int position = 0;
    QString name;
    QString parametersText;
};

// Loading a flow and clearing it: the whole flow before and the text that replaced it.
class ReplaceFlowCommand : public QUndoCommand
{
public:
    ReplaceFlowCommand(FlowEditor& editor, const QString& replacement, const QString& description);
    void redo() override;
    void undo() override;

private:
    FlowEditor& editor;
    QString before;
    QString replacement;
};

// A move the tab bar has already made when the step is recorded; one drag is one step.
class MoveNodeCommand : public QUndoCommand
{
public:
    MoveNodeCommand(FlowEditor& editor, int from, int to, const EditMark& edit,
                    const QString& description);
    void redo() override;
    void undo() override;
    int id() const override { return 1; }
    bool mergeWith(const QUndoCommand* other) override;

private:
    FlowEditor& editor;
    int from = 0;
    int to = 0;
    EditMark edit;
    bool alreadyDone = true;
};

// A change the user has already made in a node's controls; a slider drag is one step.
class ParametersCommand : public QUndoCommand
{
public:
    ParametersCommand(FlowEditor& editor, int position, const QString& before, const QString& after,
                      const EditMark& edit, const QString& description);
    void redo() override;
    void undo() override;
    int id() const override { return 2; }
    bool mergeWith(const QUndoCommand* other) override;

private:
    FlowEditor& editor;
    int position = 0;
    QString before;
    QString after;
    EditMark edit;
    bool alreadyDone = true;
};
