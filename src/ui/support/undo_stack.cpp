#include "ui/support/undo_stack.h"

#include <QAction>

#include <utility>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

QString StatusTip(const QString& tip, const QString& lastAction)
{
    return lastAction.isEmpty() ? tip : tip + u": %1"_s.arg(lastAction);
}

// A command keeps its own tip until there is more to say.
void Introduce(QAction* command, bool isEnabled, const QString& tip)
{
    if (command == nullptr)
        return;
    command->setEnabled(isEnabled);
    if (command->statusTip().isEmpty())
        command->setStatusTip(tip);
}

} // namespace

UndoAction::UndoAction(std::shared_ptr<Action> action)
    : QUndoCommand(action->LogText()), action_(std::move(action))
{}

void UndoAction::undo()
{
    action_->Undo();
    setObsolete(leavesWithUndo_);
}

void UndoAction::redo()
{
    action_->Redo();
}

UndoStack::UndoStack()
{
    for (const auto signal : {&QUndoStack::undoTextChanged, &QUndoStack::redoTextChanged})
        connect(this, signal, this, &UndoStack::UpdateCommands);
    for (const auto signal : {&QUndoStack::canUndoChanged, &QUndoStack::canRedoChanged})
        connect(this, signal, this, &UndoStack::UpdateCommands);
    connect(this, &QUndoStack::indexChanged, this,
            [this] { hasUndone_ = hasUndone_ || canRedo(); });
}

// The base class still signals while it goes, when there are no commands left to update.
UndoStack::~UndoStack()
{
    disconnect(this, nullptr, this, nullptr);
}

void UndoStack::Push(const std::shared_ptr<Action>& action)
{
    if (action->IsUndoable()) {
        // The whole history would be looked through for every one of many actions.
        if (std::exchange(hasUndone_, false))
            DropUndone();
        QUndoStack::push(new UndoAction(action));
    } else {
        action->Redo();
    }
    Keep(action);
}

void UndoStack::TakeBack()
{
    // The stack hands out its commands as constant, but these are ours.
    if (auto* const last = const_cast<UndoAction*>( // NOLINT(*-const-cast)
            dynamic_cast<const UndoAction*>(command(index() - 1))))
        last->LeaveWithUndo();
    undo();
    DropUndone();
}

void UndoStack::Clear()
{
    QUndoStack::clear();
    ActionStack::Clear();
}

// Several actions that are undone as one have a text of the window's.
QString UndoStack::ShownText(int index) const
{
    const QUndoCommand* const done = command(index);
    if (done == nullptr)
        return {};
    const auto* const single = dynamic_cast<const UndoAction*>(done);
    return single != nullptr ? single->ShownText() : done->text();
}

void UndoStack::AddUndoCommand(QAction* command)
{
    undoCommands_.append(command);
    Introduce(command, canUndo(), StatusTip(tr("Undo last action"), ShownUndoText()));
}

void UndoStack::AddRedoCommand(QAction* command)
{
    redoCommands_.append(command);
    Introduce(command, canRedo(), StatusTip(tr("Redo last action"), ShownRedoText()));
}

// Most runs have no commands, and nobody to read the tips.
void UndoStack::UpdateCommands()
{
    if (undoCommands_.isEmpty() && redoCommands_.isEmpty())
        return;
    const auto update = [](const QList<QPointer<QAction>>& commands, bool isEnabled,
                           const QString& tip) {
        for (const QPointer<QAction>& command : commands) {
            if (command == nullptr)
                continue;
            command->setEnabled(isEnabled);
            command->setStatusTip(tip);
        }
    };
    update(undoCommands_, canUndo(), StatusTip(tr("Undo last action"), ShownUndoText()));
    update(redoCommands_, canRedo(), StatusTip(tr("Redo last action"), ShownRedoText()));
}

} // namespace Glyphor
