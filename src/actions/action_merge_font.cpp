#include "actions/action_merge_font.h"

#include "actions/font_files.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"

namespace Glyphor {

namespace {

[[noreturn]] void RefuseMerge(const QString& reason)
{
    throw CriticalException(Engine::tr("Font merging not possible!"), reason);
}

// A character refers to the metrics of its font, so that it can't move to another one.
std::unique_ptr<Character> CopyInto(const Font& font, const Character& character)
{
    auto copy = std::make_unique<Character>(font.Metrics());
    copy->info.Set(character.info.Metrics());
    copy->bitmap->ShareData(*character.bitmap);
    copy->kerning = character.kerning;
    return copy;
}

void CheckFonts(const Font& font, const Font& other)
{
    const FontMetrics& own = font.Metrics();
    const FontMetrics& theirs = other.Metrics();
    if (own.format != theirs.format)
        RefuseMerge(Engine::tr("The two fonts do not have the same format!\nThe current font "
                               "with the format \"%1\" "
                               "cannot be merged with the other font of the format \"%2\".")
                        .arg(FormatDisplayName(own.format), FormatDisplayName(theirs.format)));
    if (own.encoding != theirs.encoding)
        RefuseMerge(
            Engine::tr("One of the two fonts is encoded in Unicode and the other one in Shift "
                       "JIS: a code means different characters in them."));
    if (IsLegacyFormat(own.format) && own.height != theirs.height)
        RefuseMerge(Engine::tr("All characters of a font in a legacy format have the font's "
                               "height: the current font "
                               "is %1 pixels high and the other one %2.")
                        .arg(QString::number(own.height), QString::number(theirs.height)));
}

// Characters of a standard font stand on its baseline and may leave its line.
void WarnOfOtherMetrics(const FontMetrics& own, const FontMetrics& other)
{
    if (own.height == other.height && own.baseline == other.baseline)
        return;
    CurrentInterface().warning(
        Engine::tr("Font merging"),
        Engine::tr("The current font is %1 pixels high with its baseline at %2, the other one %3 "
                   "with its baseline at %4: their characters do not stand on one line.")
            .arg(QString::number(own.height), QString::number(own.baseline),
                 QString::number(other.height), QString::number(other.baseline)));
}

} // namespace

bool ActionMergeFont::Execute()
{
    SetRepeat(1);
    const Font* const font = CurrentFont();
    if (font == nullptr)
        RefuseMerge(Engine::tr("There is no font to merge with."));
    const std::unique_ptr<Font> other = ReadFont(Args().source);
    CheckFonts(*font, *other);
    WarnOfOtherMetrics(font->Metrics(), other->Metrics());

    CodeSet incoming = other->SavedCodes();
    CodeSet duplicates = incoming;
    duplicates &= font->SavedCodes(); // what is disabled is not missed
    if (!duplicates.IsEmpty()) {
        const std::optional<MergeMode> mode =
            Args().mode ? Args().mode : CurrentInterface().askMergeMode();
        if (!mode)
            return false;
        if (mode == MergeMode::Keep)
            incoming -= duplicates;
    }
    for (const quint16 code : incoming)
        characters_[code] = CopyInto(*font, *other->FindChar(code));
    enabled_ = font->EnabledCodes();
    enabled_ |= incoming;
    hasKerning_ = font->HasKerning() || other->HasKerning();
    return true;
}

void ActionMergeFont::Swap()
{
    Font& font = *CurrentFont();
    for (auto& [code, character] : characters_) {
        std::unique_ptr<Character> previous = font.RemoveChar(code);
        font.InsertChar(code, std::move(character));
        character = std::move(previous);
    }
    const CodeSet previous = font.EnabledCodes();
    font.SetEnabledCodes(enabled_);
    enabled_ = previous;
    const bool hadKerning = font.HasKerning();
    font.SetHasKerning(hasKerning_);
    hasKerning_ = hadKerning;
}

CodeSet ActionMergeFont::AffectedCodes() const
{
    CodeSet codes;
    for (const auto& [code, character] : characters_)
        codes.Set(code, true);
    return codes;
}

} // namespace Glyphor
