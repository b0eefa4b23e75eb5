#include "render/glyph_source.h"

#include "app/engine_texts.h"
#include "app/progress.h"
#include "model/code_text.h"
#include "model/encoding.h"
#include "render/glyph_jobs.h"

#include <unordered_map>
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

// Codes with the same glyph share its pixels.
class GlyphSharing
{
public:
    explicit GlyphSharing(GlyphCollector& collector) : collector_(collector) {}

    // A glyph comes with the first of its codes.
    bool AddFirst(const PlannedGlyph& planned, GlyphCollector::Prepared prepared)
    {
        const bool canBeAdded = prepared.character != nullptr;
        // What fits no character is told of each code.
        GlyphCollector::Prepared useless = CopyOfUseless(prepared);
        if (collector_.Add(planned.code, std::move(prepared))) {
            firstCodes_.emplace(planned.glyph, planned.code);
            return true;
        }
        if (!canBeAdded)
            waiting_.insert_or_assign(planned.glyph, std::move(useless));
        return false;
    }

    // Keeps it for codes that come later.
    void Keep(FT_UInt glyph, GlyphCollector::Prepared prepared)
    {
        waiting_.insert_or_assign(glyph, std::move(prepared));
    }

    bool Add(const PlannedGlyph& planned)
    {
        if (const auto same = firstCodes_.find(planned.glyph); same != firstCodes_.end())
            return collector_.AddLike(planned.code, same->second);
        const auto found = waiting_.find(planned.glyph);
        return found != waiting_.end() &&
               AddFirst(planned, found->second.character != nullptr ? std::move(found->second)
                                                                    : CopyOfUseless(found->second));
    }

private:
    static GlyphCollector::Prepared CopyOfUseless(const GlyphCollector::Prepared& prepared)
    {
        return {prepared.isNothing, nullptr};
    }

    GlyphCollector& collector_;
    std::unordered_map<FT_UInt, quint16> firstCodes_; // that a glyph became a character of
    std::unordered_map<FT_UInt, GlyphCollector::Prepared> waiting_; // that became none yet
};

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

void GlyphSource::ReplaceGlyphs(const std::function<FT_UInt(FT_UInt)>& replacement)
{
    for (PlannedGlyph& planned : planned_)
        planned.glyph = replacement(planned.glyph);
}

void GlyphSource::StandOn(int baseline)
{
    shift_ = baseline - face_->Ascent();
}

bool GlyphSource::RenderGlyph(const FreeTypeFace& face, FT_UInt index, RenderedGlyph& glyph) const
{
    if (!face.RenderIndex(index, glyph))
        return false;
    glyph.yPos += shift_;
    return true;
}

std::vector<FT_UInt> GlyphSource::Glyphs() const
{
    std::vector<FT_UInt> glyphs;
    std::unordered_set<FT_UInt> known;
    for (const PlannedGlyph& planned : planned_) {
        if (known.insert(planned.glyph).second)
            glyphs.push_back(planned.glyph);
    }
    return glyphs;
}

InkOverflow GlyphSource::Measure(const FontMetrics& font, int threads) const
{
    const std::vector<FT_UInt> glyphs = Glyphs();
    Progress progress(Engine::tr("Measuring font..."), static_cast<int>(glyphs.size()));
    InkOverflow overflow;
    GlyphJobs<InkOverflow> jobs(
        *face_, glyphs, threads, [&](const FreeTypeFace& face, FT_UInt index) {
            RenderedGlyph glyph;
            const bool isCharacter = RenderGlyph(face, index, glyph) && !IsNothing(glyph) &&
                                     glyph.rows <= CharInfo::MaxSize;
            return isCharacter ? OverflowOf(glyph, font) : InkOverflow();
        });
    jobs.Run([&](std::size_t, const InkOverflow& rows) {
        progress.Advance();
        overflow.Add(rows);
    });
    return overflow;
}

void GlyphSource::Render(GlyphCollector& collector, int threads,
                         const std::function<bool(const PlannedGlyph&)>& isWanted,
                         const std::function<void(const PlannedGlyph&)>& onAdded) const
{
    const std::vector<FT_UInt> glyphs = Glyphs();
    Progress progress(Engine::tr("Rendering font..."), face_->GlyphCount());
    GlyphSharing sharing(collector);
    auto planned = planned_.begin();
    const auto count = [&](bool isAdded) {
        if (isAdded) {
            onAdded(*planned);
            progress.Advance();
        }
        ++planned;
    };
    const auto addShared = [&] {
        progress.LookedAt();
        count(isWanted(*planned) && sharing.Add(*planned));
    };
    GlyphJobs<GlyphCollector::Prepared> jobs(
        *face_, glyphs, threads, [&](const FreeTypeFace& face, FT_UInt index) {
            thread_local RenderedGlyph glyph; // keeps its buffer
            return RenderGlyph(face, index, glyph) ? collector.Prepare(glyph)
                                                   : GlyphCollector::Prepared();
        });
    // Up to the next new glyph, characters share those that there are.
    jobs.Run([&](std::size_t index, GlyphCollector::Prepared& prepared) {
        while (planned->glyph != glyphs[index])
            addShared();
        progress.LookedAt();
        if (isWanted(*planned)) {
            count(sharing.AddFirst(*planned, std::move(prepared)));
        } else {
            sharing.Keep(planned->glyph, std::move(prepared));
            count(false);
        }
    });
    while (planned != planned_.end())
        addShared();
}

} // namespace Glyphor
