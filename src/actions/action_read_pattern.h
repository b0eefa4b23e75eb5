#pragma once

#include "actions/edit_actions.h"

namespace Glyphor {

struct ActionReadPatternArgs
{
    QString path;
};

// Enables the characters that a pattern file lists, in addition to those that are enabled. It
// creates none.
class ActionReadPattern final : public ActionWithArgs<ActionReadPatternArgs>,
                                public CharStateInterface
{
public:
    explicit ActionReadPattern(Session& session) : ActionWithArgs(session, ActionType::ReadPattern)
    {}

    // Reads the file; false where there is none.
    bool Execute() override;
    void UndoOnce() override { CurrentFont()->SetEnabledCodes(previousCodes_); }
    void RedoOnce() override;
    [[nodiscard]] LogEntry Log() const override
    {
        return LogEntry(MessageFor(), {LoggedPath(Args().path)});
    }
    void ApplyTo(CodeSet& codes) const override { codes |= pattern_; }

private:
    CodeSet pattern_;
    CodeSet previousCodes_; // that were enabled, for undo
};

} // namespace Glyphor
