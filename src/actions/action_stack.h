#pragma once

#include "actions/action.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace Glyphor {

// The actions done to a font, oldest first: its history.
class ActionStack
{
public:
    ActionStack() = default;
    ActionStack(const ActionStack&) = delete;
    ActionStack& operator=(const ActionStack&) = delete;

    void Push(const std::shared_ptr<Action>& action);
    void Clear();

    // The line of every applied action, repeated for each of its elementary steps.
    [[nodiscard]] QStringList LogLines() const;

protected:
    ~ActionStack() = default;

    // Releases the actions that are undone.
    void DropUndone();

private:
    std::vector<std::shared_ptr<Action>> actions_;
};

} // namespace Glyphor
