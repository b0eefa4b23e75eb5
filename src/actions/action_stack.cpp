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

QStringList ActionStack::LogLines(qsizetype most) const
{
    QStringList lines;
    for (const auto& action : actions_) {
        lines += action->LogLines();
        if (lines.size() > most)
            break;
    }
    return lines;
}

} // namespace Glyphor
