#pragma once

#include "actions/action.h"

#include <future>
#include <optional>

namespace Glyphor {

class Font;

struct ActionSaveFileArgs
{
    QString path;
    bool writesEmptyKerning = false;  // with a warning, where there are no pairs
    std::optional<QString> name = {}; // that the font gets with it
    int threads = 0;                  // as many as cores
};

// Writes the enabled characters to a file whose kind its name tells, and the log file beside it
// where the settings ask for one; or writes their kerning pairs, or a header with their names.
class ActionSaveFile final : public ActionWithArgs<ActionSaveFileArgs>
{
public:
    // The type is SaveFont, SaveFontAs, SaveKerning for a kerning file as C, or SaveHeader.
    ActionSaveFile(Session& session, ActionType type) : ActionWithArgs(session, type) {}

    bool Execute() override;
    void UndoOnce() override {}
    void RedoOnce() override;
    [[nodiscard]] LogEntry Log() const override;
    [[nodiscard]] bool IsUndoable() const override { return false; }

private:
    // False where the user does not want it.
    [[nodiscard]] bool Write(const Font& font) const;
    [[nodiscard]] bool IsKerning() const;
    [[nodiscard]] bool IsHeader() const { return Type() == ActionType::SaveHeader; }
    [[nodiscard]] std::future<QStringList> LookBesideTheFont() const;
    [[nodiscard]] bool MayReplace(const QStringList& others) const;
    void SaveKerning(const Font& font, const QStringList& actionLog) const;
    void SaveHeader(const Font& font, const QStringList& actionLog) const;
    void WriteLogFile(const QStringList& actionLog) const;
};

} // namespace Glyphor
