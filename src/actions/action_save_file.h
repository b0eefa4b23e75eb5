#pragma once

#include "actions/action.h"

namespace Glyphor {

struct ActionSaveFileArgs
{
    QString path;
};

// Writes the enabled characters to a file whose kind its name tells, and the log file beside it
// where the settings ask for one.
class ActionSaveFile final : public ActionWithArgs<ActionSaveFileArgs>
{
public:
    // The type is SaveFont or SaveFontAs.
    ActionSaveFile(Session& session, ActionType type) : ActionWithArgs(session, type) {}

    bool Execute() override;
    void UndoOnce() override {}
    void RedoOnce() override;
    [[nodiscard]] QString LogText() const override;
    [[nodiscard]] bool IsUndoable() const override { return false; }

private:
    void WriteLogFile(const QStringList& actionLog) const;
};

} // namespace Glyphor
