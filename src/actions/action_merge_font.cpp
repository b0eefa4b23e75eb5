#include "actions/action_merge_font.h"

#include "actions/font_files.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "model/code_text.h"
#include "model/row_shift.h"
#include "render/glyph_collector.h"

#include <cstdlib>
#include <vector>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void RefuseMerge(const QString& reason)
{
    throw CriticalException(Engine::tr("Font merging not possible!"), reason);
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
QString OtherMetricsText(const FontMetrics& own, const FontMetrics& other)
{
    return Engine::tr("The current font is %1 pixels high with its baseline at %2, the other one "
                      "%3 with its baseline at %4: their characters do not stand on one line.")
        .arg(QString::number(own.height), QString::number(own.baseline),
             QString::number(other.height), QString::number(other.baseline));
}

void TellOfMoved(bool isCell, const InkOverflow& rows, const std::vector<quint16>& codes)
{
    if (codes.empty())
        return;
    const QString text =
        isCell ? Engine::tr("Characters cut on the baseline of the current font: %1 (%2). They "
                            "lose up to %3 rows of ink at the top and %4 at the bottom.")
               : Engine::tr("Characters that leave the current font's line on its baseline: %1 "
                            "(%2), by up to %3 rows above it and %4 below it.");
    CurrentInterface().warning(Engine::tr("Font merging"),
                               text.arg(QString::number(codes.size()), FirstCodes(codes),
                                        QString::number(rows.above), QString::number(rows.below)));
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
    const int shift = ShiftFor(font->Metrics(), other->Metrics());

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
    CopyCharacters(*other, incoming, shift);
    CodeSet enabled = font->EnabledCodes();
    enabled |= incoming;
    swap_.SetEnabledCodes(enabled);
    hasKerning_ = font->HasKerning() || other->HasKerning();
    return true;
}

// By how many rows the other font's characters go down.
int ActionMergeFont::ShiftFor(const FontMetrics& own, const FontMetrics& other) const
{
    const int shift = own.baseline - other.baseline;
    if (Args().alignment == MergeAlignment::Baseline)
        return shift;
    if (own.height == other.height && shift == 0)
        return 0;
    const QString title = Engine::tr("Font merging");
    const QString text = OtherMetricsText(own, other);
    if (shift == 0 || Args().alignment) {
        CurrentInterface().warning(title, text);
        return 0;
    }
    const Answer answer = CurrentInterface().Ask(
        title,
        text + u'\n' + Engine::tr("Put the other font's characters on the current baseline?"));
    if (answer == Answer::Nobody)
        CurrentInterface().warning(
            title, text + u' ' +
                       Engine::tr("The baselines are %1 pixels apart; -align baseline puts the "
                                  "merged characters on that of the current font.")
                           .arg(std::abs(shift)));
    return answer == Answer::Yes ? shift : 0;
}

void ActionMergeFont::CopyCharacters(const Font& other, const CodeSet& codes, int shift)
{
    const Font& font = *CurrentFont();
    InkOverflow most;
    std::vector<quint16> beyond;
    for (const quint16 code : codes) {
        auto copy = CopyOf(*other.FindChar(code), font.Metrics());
        const bool isAligned = shift != 0 || Args().alignment == MergeAlignment::Baseline;
        const auto rows = isAligned ? ShiftRows(*copy, shift) : InkOverflow();
        if (!rows)
            RefuseMerge(Engine::tr("On the baseline of the current font the character 0x%1 would "
                                   "need an offset below -128 or more than 255 rows.")
                            .arg(Hex4Text(code)));
        if (rows->IsAny()) {
            beyond.push_back(code);
            most.Add(*rows);
        }
        swap_.Put(code, std::move(copy));
    }
    TellOfMoved(IsLegacyFormat(font.Metrics().format), most, beyond);
}

void ActionMergeFont::Swap()
{
    Font& font = *CurrentFont();
    swap_.SwapWith(font);
    const bool hadKerning = font.HasKerning();
    font.SetHasKerning(hasKerning_);
    hasKerning_ = hadKerning;
}

} // namespace Glyphor
