#pragma once

#include "actions/action_stack.h"

#include <QList>
#include <QPointer>
#include <QUndoStack>

class QAction;

namespace Glyphor {

// Moves one action between applied and undone. Never merged with another one.
class UndoAction final : public QUndoCommand
{
public:
    explicit UndoAction(std::shared_ptr<Action> action);

    void undo() override;
    void redo() override;
    [[nodiscard]] int id() const override { return int(action_->Type()); }

    // As its text, in the language of the window.
    [[nodiscard]] QString ShownText() const { return action_->Log().Translated(); }

    // With the next undo it leaves the stack.
    void LeaveWithUndo() { leavesWithUndo_ = true; }

private:
    std::shared_ptr<Action> action_;
    bool leavesWithUndo_ = false;
};

// The history of a font together with what of it can be undone and redone. Keeps the commands that
// trigger undo and redo enabled and described as their effect at the time.
class UndoStack final : public QUndoStack, public ActionStack
{
    Q_OBJECT

public:
    UndoStack();
    ~UndoStack() override;

    // What was undone is dropped.
    void Push(const std::shared_ptr<Action>& action) override;
    void Clear() override;

    // Undoes the last action, which then never was.
    void TakeBack();

    [[nodiscard]] bool IsAsSaved() const override { return isClean(); }
    void MarkSaved() override { setClean(); }

    // What undo and redo would do now, in the language of the window; empty for nothing.
    [[nodiscard]] QString ShownUndoText() const
    {
        return canUndo() ? ShownText(index() - 1) : QString();
    }
    [[nodiscard]] QString ShownRedoText() const
    {
        return canRedo() ? ShownText(index()) : QString();
    }

    // The commands stay their owner's.
    void AddUndoCommand(QAction* command);
    void AddRedoCommand(QAction* command);

    // What an action does, by its place from 0 on, in the language of the window; empty for none.
    [[nodiscard]] QString ShownText(int index) const;

private:
    void UpdateCommands();

    bool hasUndone_ = false; // actions that a new one drops
    QList<QPointer<QAction>> undoCommands_;
    QList<QPointer<QAction>> redoCommands_;
};

} // namespace Glyphor
