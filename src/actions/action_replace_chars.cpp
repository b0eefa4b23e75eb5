#include "actions/action_replace_chars.h"

#include <algorithm>

namespace Glyphor {

ActionReplaceChars::ActionReplaceChars(Session& session, const char* text,
                                       const QStringList& arguments)
    : Action(session, ActionType::None), text_(text), arguments_(arguments)
{}

Character& ActionReplaceChars::Change(quint16 code)
{
    if (Character* const made = swap_.Find(code))
        return *made;
    const Font& font = *CurrentFont();
    const Character* const own = font.FindChar(code);
    std::unique_ptr<Character> character =
        own != nullptr ? CopyOf(*own, font.Metrics()) : std::make_unique<Character>(font.Metrics());
    if (own == nullptr)
        character->bitmap->Clear();
    Character& result = *character;
    swap_.Put(code, std::move(character));
    return result;
}

void ActionReplaceChars::Put(quint16 code, std::unique_ptr<Character> character)
{
    swap_.Put(code, std::move(character));
}

void ActionReplaceChars::PutEnabled(quint16 code, std::unique_ptr<Character> character)
{
    Put(code, std::move(character));
    enabling_.Set(code, true);
}

// Characters may bring kerning to a font that had none.
bool ActionReplaceChars::Execute()
{
    SetRepeat(1);
    const Font* const font = CurrentFont();
    if (font == nullptr)
        return false;
    swap_.DropEqual(*font);
    CodeSet enabled = font->EnabledCodes();
    for (const quint16 code : swap_.Codes()) {
        if (swap_.Find(code) == nullptr || font->FindChar(code) == nullptr)
            enabled.Set(code, swap_.Find(code) != nullptr);
    }
    enabled |= enabling_;
    swap_.SetEnabledCodes(enabled);
    hasKerning_ = font->HasKerning() || std::ranges::any_of(swap_.Codes(), [this](quint16 code) {
                      const Character* const character = swap_.Find(code);
                      return character != nullptr && !character->kerning.empty();
                  });
    return !swap_.IsEmpty() || enabled != font->EnabledCodes();
}

void ActionReplaceChars::Swap()
{
    Font& font = *CurrentFont();
    swap_.SwapWith(font);
    const bool hadKerning = font.HasKerning();
    font.SetHasKerning(hasKerning_);
    hasKerning_ = hadKerning;
}

CodeSet ActionReplaceChars::AffectedCodes() const
{
    CodeSet codes = swap_.Codes();
    codes |= enabling_;
    return codes;
}

LogEntry ActionReplaceChars::Log() const
{
    const CodeSet codes = AffectedCodes();
    const std::vector<CodeRange> runs = RunsOf(codes);
    const LogEntry entry(text_, arguments_);
    return runs.empty() ? entry : entry.About(RangePrefix(runs.front().first, runs.back().last));
}

} // namespace Glyphor
