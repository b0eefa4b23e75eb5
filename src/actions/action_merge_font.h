#pragma once

#include "actions/action.h"
#include "actions/action_open_font.h"
#include "actions/character_swap.h"
#include "app/user_interface.h"
#include "model/font.h"

#include <optional>

namespace Glyphor {

// What the other font's characters stand on: the rows that they have, or the baseline of the font.
enum class MergeAlignment { Rows, Baseline };

struct ActionMergeFontArgs
{
    ActionOpenFontArgs source;
    std::optional<MergeMode> mode;                // asked for where it is needed and not told
    std::optional<MergeAlignment> alignment = {}; // likewise; where nobody answers, by rows
};

// Adds the enabled characters of another font to the font of the session, whose own metrics stay.
class ActionMergeFont final : public ActionWithArgs<ActionMergeFontArgs>
{
public:
    explicit ActionMergeFont(Session& session) : ActionWithArgs(session, ActionType::MergeFont) {}

    // False where the user gave no answer.
    bool Execute() override;
    void UndoOnce() override { Swap(); }
    void RedoOnce() override { Swap(); }
    [[nodiscard]] CodeSet AffectedCodes() const override { return swap_.Codes(); }
    [[nodiscard]] LogEntry Log() const override
    {
        return LogEntry(MessageFor(), {LoggedPath(Args().source.path)});
    }

private:
    [[nodiscard]] int ShiftFor(const FontMetrics& own, const FontMetrics& other) const;
    void CopyCharacters(const Font& other, const CodeSet& codes, int shift);
    void Swap();

    CharacterSwap swap_;
    bool hasKerning_ = false; // of either font
};

} // namespace Glyphor
