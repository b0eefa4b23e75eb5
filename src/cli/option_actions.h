#pragma once

#include "actions/action.h"
#include "cli/run_options.h"

#include <memory>

namespace Glyphor {

// What an option runs: an action, or else a kind that the front ends handle themselves.
struct OptionAction
{
    OptionId option;
    ActionType request;

    // The action with its arguments, which come from this use of the option and from those that
    // say how fonts are opened; null where there is nothing to do. No function for a kind
    // without an action.
    std::shared_ptr<Action> (*make)(const OptionOccurrence&, const RunOptions&, Session&) = nullptr;
};

// Null for an option that runs nothing of its own.
[[nodiscard]] const OptionAction* ActionOf(OptionId option);

} // namespace Glyphor
