#pragma once

#include "actions/action.h"
#include "app/file_system.h"
#include "model/font.h"

#include <QStringList>

#include <optional>

namespace Glyphor {

struct ActionRestoreFontArgs
{
    std::unique_ptr<Font> font;
    QString path;
    std::optional<FileStamp> stamp; // see Session
    QStringList log;                // of the font's history
};

// Makes a font with unsaved changes, kept from a session that was lost, the font of this one. In
// the log its history goes on as if nothing had happened.
class ActionRestoreFont final : public ActionWithArgs<ActionRestoreFontArgs>
{
public:
    explicit ActionRestoreFont(Session& session) : ActionWithArgs(session, ActionType::RestoreFont)
    {}

    bool Execute() override { return Args().font != nullptr; }
    void UndoOnce() override {}
    void RedoOnce() override;
    [[nodiscard]] LogEntry Log() const override;
    [[nodiscard]] QStringList LogLines() const override { return Args().log; }
    [[nodiscard]] bool IsUndoable() const override { return false; }
};

} // namespace Glyphor
