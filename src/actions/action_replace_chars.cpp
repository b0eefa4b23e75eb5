#include "actions/action_replace_chars.h"

#include "actions/session.h"

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
    swap_.SetHasKerning(font->HasKerning() || swap_.HasKerning());
    if (swap_.ChangesKerning(*font))
        kerningState_ = CurrentSession().NewKerningState();
    return !swap_.IsEmpty() || enabled != font->EnabledCodes();
}

CodeSet ActionReplaceChars::AffectedCodes() const
{
    CodeSet codes = swap_.Codes();
    codes |= enabling_;
    return codes;
}

void ActionReplaceChars::RedoOnce()
{
    swap_.SwapWith(*CurrentFont());
    if (!kerningState_)
        return;
    const int before = CurrentSession().KerningState();
    CurrentSession().SetKerningState(*kerningState_);
    kerningState_ = before;
}

LogEntry ActionReplaceChars::Log() const
{
    const CodeSet codes = AffectedCodes();
    const std::vector<CodeRange> runs = RunsOf(codes);
    const LogEntry entry(text_, arguments_);
    return runs.empty() ? entry : entry.About(RangePrefix(runs.front().first, runs.back().last));
}

} // namespace Glyphor
