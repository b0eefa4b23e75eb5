#include "actions/action_stack.h"

namespace Glyphor {

void ActionStack::Push(const std::shared_ptr<Action>& action)
{
    action->Redo();
    Keep(action);
    isClean_ = isClean_ && !action->IsUndoable();
}

void ActionStack::Clear()
{
    actions_.clear();
    isClean_ = true;
}

void ActionStack::DropUndone()
{
    std::erase_if(actions_, [](const auto& action) { return action->Applied() == 0; });
}

QStringList ActionStack::LogLines() const
{
    QStringList lines;
    for (const auto& action : actions_) {
        const QString text = action->LogText();
        if (text.isEmpty())
            continue;
        for (int step = 0; step < action->LoggedSteps(); ++step)
            lines.append(text);
    }
    return lines;
}

} // namespace Glyphor
