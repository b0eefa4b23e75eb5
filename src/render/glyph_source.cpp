#include "render/glyph_source.h"

#include "app/engine_texts.h"
#include "app/progress.h"
#include "model/code_text.h"
#include "model/encoding.h"

#include <QHash>

#include <unordered_set>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr char32_t LastFontCode = 0xFFFF;

bool IsIn(const std::optional<CodeSet>& filter, quint16 code)
{
    return !filter || filter->Test(code);
}

// What has a name or another code than in the face, or stands where nothing but the font says what
// it is.
bool IsLabelled(const CodeMapping& mapping, char32_t faceCode)
{
    constexpr char32_t firstPrivate = 0xE000;
    constexpr char32_t lastPrivate = 0xF8FF;
    const char32_t target = mapping.TargetOf(faceCode);
    return !mapping.name.isEmpty() || target != faceCode ||
           (target >= firstPrivate && target <= lastPrivate);
}

QString LackingText(const CodeMapping& mapping, const std::vector<char32_t>& lacking,
                    const QString& source)
{
    constexpr std::size_t shown = 5;
    QStringList first;
    for (std::size_t index = 0; index < std::min(shown, lacking.size()); ++index)
        first.append(UnicodeNotation(lacking[index]));
    if (lacking.size() > shown)
        first.append(u"..."_s);
    if (mapping.first == mapping.last)
        return Engine::tr("%1 is not in %2").arg(first.front(), source);
    return Engine::tr("%1 of the %2 characters %3 to %4 are not in %5: %6")
        .arg(QString::number(lacking.size()),
             QString::number(uint(mapping.last - mapping.first + 1)),
             UnicodeNotation(mapping.first), UnicodeNotation(mapping.last), source,
             first.join(u", "_s));
}

} // namespace

void GlyphSource::Plan(EncodingType encoding, const std::optional<CodeSet>& filter)
{
    const Encoding& unicode = EncodingFor(EncodingType::Unicode);
    CodeSet visited; // a code that comes up again gives the same glyph again
    int notVisited = CodeSet::Limit;
    face_->WalkAllCodes([&](char32_t faceCode, FT_UInt glyph) {
        const auto low = static_cast<quint16>(faceCode);
        if (faceCode > LastFontCode) {
            beyond_.first = beyond_.count == 0 ? faceCode : beyond_.first;
            beyond_.last = faceCode;
            ++beyond_.count;
        }
        if (visited.Test(low))
            return true;
        visited.Set(low, true);
        --notVisited;
        const auto code = IsIn(filter, low) ? unicode.Converted(encoding, low) : std::nullopt;
        if (code)
            planned_.push_back({low, *code, low == faceCode ? glyph : face_->GlyphIndex(low)});
        return notVisited > 0;
    });
}

void GlyphSource::Plan(const CharacterMap& map, EncodingType encoding,
                       const std::optional<CodeSet>& filter)
{
    for (const CodeMapping& mapping : map)
        PlanMapping(mapping, encoding, filter);
}

void GlyphSource::PlanGiven(const CharacterMap& map, EncodingType encoding,
                            const std::optional<CodeSet>& filter)
{
    for (const CodeMapping& mapping : map)
        PlanMapping(mapping, encoding, mapping.onlyMissing ? filter : std::nullopt);
}

void GlyphSource::PlanMapping(const CodeMapping& mapping, EncodingType encoding,
                              const std::optional<CodeSet>& filter)
{
    const Encoding& unicode = EncodingFor(EncodingType::Unicode);
    std::vector<char32_t> lacking;
    for (char32_t faceCode = mapping.first; faceCode <= mapping.last; ++faceCode) {
        const quint16 target = mapping.TargetOf(faceCode);
        const auto code = IsIn(filter, target) ? unicode.Converted(encoding, target) : std::nullopt;
        if (!code)
            continue;
        const FT_UInt glyph = face_->GlyphIndex(faceCode);
        if (glyph == 0)
            lacking.push_back(faceCode);
        else
            planned_.push_back({faceCode, *code, glyph, true, mapping.onlyMissing,
                                IsLabelled(mapping, faceCode), mapping.name});
    }
    const bool isAll = mapping.first == 0 && mapping.last == LastFontCode;
    if (!lacking.empty() && !mapping.onlyMissing && !isAll)
        lacking_.append(LackingText(mapping, lacking, name_));
}

void GlyphSource::StandOn(int baseline)
{
    shift_ = baseline - face_->Ascent();
}

bool GlyphSource::RenderGlyph(FT_UInt index, RenderedGlyph& glyph) const
{
    if (!face_->RenderIndex(index, glyph))
        return false;
    glyph.yPos += shift_;
    return true;
}

InkOverflow GlyphSource::Measure(const FontMetrics& font) const
{
    InkOverflow overflow;
    RenderedGlyph glyph;
    std::unordered_set<FT_UInt> measured;
    Progress progress(Engine::tr("Measuring font..."), static_cast<int>(planned_.size()));
    for (const PlannedGlyph& planned : planned_) {
        progress.Advance();
        if (measured.insert(planned.glyph).second && RenderGlyph(planned.glyph, glyph) &&
            !IsNothing(glyph) && glyph.rows <= CharInfo::MaxSize)
            overflow.Add(OverflowOf(glyph, font));
    }
    return overflow;
}

// Codes with the same glyph share its pixels.
void GlyphSource::Render(GlyphCollector& collector,
                         const std::function<bool(const PlannedGlyph&)>& isWanted,
                         const std::function<void(const PlannedGlyph&)>& onAdded) const
{
    QHash<FT_UInt, quint16> rendered; // glyphs, with the first code of each
    RenderedGlyph glyph;              // keeps its buffer from glyph to glyph
    Progress progress(Engine::tr("Rendering font..."), face_->GlyphCount());
    for (const PlannedGlyph& planned : planned_) {
        progress.LookedAt();
        if (!isWanted(planned))
            continue;
        if (const auto same = rendered.constFind(planned.glyph); same != rendered.constEnd()) {
            if (!collector.AddLike(planned.code, *same))
                continue;
        } else {
            if (!RenderGlyph(planned.glyph, glyph) || !collector.Add(planned.code, glyph))
                continue;
            rendered.insert(planned.glyph, planned.code);
        }
        onAdded(planned);
        progress.Advance();
    }
}

} // namespace Glyphor
