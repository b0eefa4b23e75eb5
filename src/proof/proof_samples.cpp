#include "model/font.h"
#include "proof/label_font.h"
#include "proof/proof_builder.h"

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr int SampleMargin = 16;
constexpr int SampleGap = 4;

int MissingAdvance(const FontMetrics& font)
{
    return std::max(font.height / 2, 2) + 1;
}

int KerningBetween(const Character& left, quint16 right)
{
    const auto pair = std::ranges::find(left.kerning, right, &KerningPair::right);
    return pair == left.kerning.end() ? 0 : pair->distance;
}

} // namespace

const Character* ProofBuilder::Find(char32_t character) const
{
    const auto code = CodeFor(font_, character);
    return code && font_.IsEnabled(*code) ? font_.FindChar(*code) : nullptr;
}

// A font may do without the blank, unless a text of the user's needs it.
void ProofBuilder::TakeMissing(const SampleText& text)
{
    for (const QString& line : text.lines) {
        for (const char32_t character : line.toUcs4()) {
            const bool isOptional = IsControl(character) || (character == U' ' && !text.isGiven);
            if (!isOptional && Find(character) == nullptr)
                missing_.insert(character);
        }
    }
}

void ProofBuilder::AddSample(const SampleText& text)
{
    if (!text.title.isEmpty()) {
        AddGap(SampleGap);
        AddText(text.title, ProofColour::Label);
        layout_.bands.back().staysWithNext = true;
    }
    for (const QString& shown : text.lines) {
        QList<uint> line = shown.toUcs4();
        line.removeIf([](uint character) { return IsControl(character); });
        std::vector<char32_t> characters(line.begin(), line.end());
        std::span<const char32_t> rest = characters;
        do {
            const auto count = std::size_t(BreakOf(rest));
            AddSampleLine(rest.first(count), false, text.isGiven);
            AddSampleLine(rest.first(count), true, text.isGiven);
            rest = rest.subspan(count);
        } while (!rest.empty());
    }
}

// How many characters stand on one line: up to the last blank that fits, or all that fit.
qsizetype ProofBuilder::BreakOf(std::span<const char32_t> line) const
{
    const int available = contentWidth_ / sampleZoom_;
    int cursor = 0;
    std::size_t blankEnd = 0;
    for (std::size_t index = 0; index < line.size(); ++index) {
        const Character* const glyph = Find(line[index]);
        cursor += glyph != nullptr ? glyph->info.cursorDistance : MissingAdvance(font_.Metrics());
        if (cursor > available)
            return qsizetype(blankEnd > 0 ? blankEnd : std::max<std::size_t>(index, 1));
        if (line[index] == U' ')
            blankEnd = index + 1;
    }
    return qsizetype(line.size());
}

// The characters with their cursor positions in pixels of the font, and the position behind them.
std::vector<ProofBuilder::Placed> ProofBuilder::Place(std::span<const char32_t> line, bool isKerned,
                                                      int& end, bool needsBlank) const
{
    std::vector<Placed> placed;
    int cursor = 0;
    const Character* previous = nullptr; // with its kerning
    for (const char32_t character : line) {
        const auto code = CodeFor(font_, character);
        const Character* const glyph = Find(character);
        if (isKerned && previous != nullptr && glyph != nullptr)
            cursor += KerningBetween(*previous, *code);
        if (glyph != nullptr || character != U' ' || needsBlank)
            placed.push_back({cursor, glyph});
        cursor += glyph != nullptr ? glyph->info.cursorDistance : MissingAdvance(font_.Metrics());
        previous = glyph != nullptr ? contents_.kerningSource.FindChar(*code) : nullptr;
    }
    end = cursor;
    return placed;
}

// Kerned lines stand below those without where they differ from them.
void ProofBuilder::AddSampleLine(std::span<const char32_t> line, bool isKerned, bool needsBlank)
{
    const FontMetrics& metrics = font_.Metrics();
    int end = 0;
    const std::vector<Placed> placed = Place(line, isKerned, end, needsBlank);
    if (isKerned) {
        int plainEnd = 0;
        const std::vector<Placed> plain = Place(line, false, plainEnd, needsBlank);
        if (std::ranges::equal(placed, plain, {}, &Placed::x, &Placed::x))
            return;
    }
    Reach reach{0, 0, 0, std::max(metrics.height, metrics.verticalSpace)};
    for (const Placed& place : placed) {
        if (place.glyph != nullptr)
            reach.Include(Glyphor::ReachOf(*place.glyph));
    }
    const int zoom = sampleZoom_;
    const int top = reach.top * zoom;
    ProofBand band{top + reach.bottom * zoom + SampleGap};
    for (const Placed& place : placed) {
        const int x = SampleMargin + place.x * zoom;
        if (place.glyph == nullptr)
            band.marks.push_back(
                {.kind = ProofMark::Kind::Outline,
                 .area = {x, top, (MissingAdvance(metrics) - 1) * zoom, metrics.height * zoom},
                 .colour = ProofColour::Missing});
        else
            band.marks.push_back({.kind = ProofMark::Kind::Glyph,
                                  .area = {x, top, 0, 0},
                                  .zoom = zoom,
                                  .glyph = place.glyph});
    }
    if (isKerned)
        band.marks.push_back({.kind = ProofMark::Kind::Text,
                              .area = {SampleMargin + end * zoom + 2 * SampleGap, top, 0, 0},
                              .colour = ProofColour::Label,
                              .text = "kerned"});
    layout_.bands.push_back(std::move(band));
}

} // namespace Glyphor
