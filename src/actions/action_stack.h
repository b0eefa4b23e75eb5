#pragma once

#include "actions/action.h"

#include <QStringList>

#include <limits>
#include <memory>
#include <vector>

namespace Glyphor {

// The actions done to a font, oldest first: its history. Front ends that undo derive from it.
class ActionStack
{
public:
    ActionStack() = default;
    ActionStack(const ActionStack&) = delete;
    ActionStack& operator=(const ActionStack&) = delete;
    virtual ~ActionStack() = default;

    // Applies an executed action and takes it into the history.
    virtual void Push(const std::shared_ptr<Action>& action);

    // Forgets the history.
    virtual void Clear();

    // Whether the font is as it was when it was last saved, or opened.
    [[nodiscard]] virtual bool IsAsSaved() const { return isClean_; }
    virtual void MarkSaved() { isClean_ = true; }

    // The line of every applied action, repeated for each of its elementary steps. Where there are
    // more than `most`, not much more than those come.
    [[nodiscard]] QStringList
    LogLines(qsizetype most = std::numeric_limits<qsizetype>::max()) const;

protected:
    // Takes an action that was applied.
    void Keep(const std::shared_ptr<Action>& action) { actions_.push_back(action); }

    // Releases the actions that are undone.
    void DropUndone();

private:
    std::vector<std::shared_ptr<Action>> actions_;
    bool isClean_ = true;
};

} // namespace Glyphor
