#pragma once

#include "actions/action.h"
#include "actions/character_swap.h"

namespace Glyphor {

// Gives codes other characters, made before it runs: what a stroke painted, what was pasted, a
// metric that was typed. Undone as one step, and exactly.
class ActionReplaceChars final : public Action
{
public:
    // The session must have a font, and `text` be one of those that are translated. The log tells
    // the codes in front of it, and the arguments in it.
    ActionReplaceChars(Session& session, const char* text, const QStringList& arguments = {});

    // The character that the code will get: at first a copy of its own, or an empty one, which will
    // be enabled.
    [[nodiscard]] Character& Change(quint16 code);

    // Null removes the character.
    void Put(quint16 code, std::unique_ptr<Character> character);

    // Enables it as well, whether or not there was one that is disabled.
    void PutEnabled(quint16 code, std::unique_ptr<Character> character);

    // False where nothing would change.
    bool Execute() override;
    void UndoOnce() override { RedoOnce(); }
    void RedoOnce() override;
    [[nodiscard]] CodeSet AffectedCodes() const override;
    [[nodiscard]] LogEntry Log() const override;

private:
    const char* text_;
    QStringList arguments_;
    CharacterSwap swap_;
    CodeSet enabling_;
    std::optional<int> kerningState_; // of the session after the next undo or redo, if it changes
};

} // namespace Glyphor
