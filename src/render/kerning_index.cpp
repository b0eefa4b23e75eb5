#include "render/kerning_index.h"

#include "render/sfnt_table.h"

#include FT_TRUETYPE_TAGS_H

#include <algorithm>
#include <numeric>
#include <span>
#include <utility>

namespace Glyphor {

namespace {

// For every glyph up to the largest, and one more, how many entries have a smaller one.
template <typename Entry, typename GlyphOf>
std::vector<quint32> FirstOfEach(const std::vector<Entry>& entries, GlyphOf glyphOf)
{
    std::size_t largest = 0;
    for (const Entry& entry : entries)
        largest = std::max<std::size_t>(largest, glyphOf(entry));
    std::vector<quint32> first(largest + 2);
    for (const Entry& entry : entries)
        ++first[glyphOf(entry) + 1U];
    std::partial_sum(first.begin(), first.end(), first.begin());
    return first;
}

// The entries of one glyph, from the first to the one behind the last.
std::pair<quint32, quint32> EntriesOf(const std::vector<quint32>& first, quint16 glyph)
{
    if (glyph + 1U >= first.size())
        return {0, 0};
    return {first[glyph], first[glyph + 1U]};
}

} // namespace

KerningIndex::KerningIndex(const FreeTypeFace& face) : face_(face)
{
    if (!face_.HasKerning() || !FT_IS_SFNT(face_.Handle()))
        return;
    const std::vector<quint8> table = SfntTable(face_.Handle(), TTAG_kern);
    if (table.empty())
        return;
    ReadKernTable(table);
    ReadCharmap();
    isComplete_ = true;
}

// The table is a version and a count, then subtables: version, length, coverage, and for format 0 a
// pair count, three search fields, and pairs of two glyphs and a distance. Lengths that reach too
// far are cut, as FreeType does; a pair too many does no harm, since FreeType is asked for its
// distance.
void KerningIndex::ReadKernTable(const std::vector<quint8>& table)
{
    constexpr std::size_t subtableHeader = 6;
    constexpr std::size_t pairHeader = 8;
    constexpr std::size_t pairSize = 6;
    std::span<const quint8> rest(table);
    if (rest.size() < 4)
        return;
    int count = Number(rest, 2);
    rest = rest.subspan(4);
    for (; count > 0 && rest.size() >= subtableHeader; --count) {
        const std::size_t length = std::min<std::size_t>(Number(rest, 2), rest.size());
        if (length <= subtableHeader + pairHeader)
            break;
        const bool hasPairs = rest[4] == 0;
        const std::size_t fitting = (length - subtableHeader - pairHeader) / pairSize;
        const std::size_t pairs = std::min<std::size_t>(Number(rest, subtableHeader), fitting);
        for (std::size_t index = 0; hasPairs && index < pairs; ++index) {
            const std::size_t offset = subtableHeader + pairHeader + index * pairSize;
            pairs_.push_back({Number(rest, offset), Number(rest, offset + 2)});
        }
        rest = rest.subspan(length);
    }
    std::ranges::sort(pairs_);
    pairs_.erase(std::unique(pairs_.begin(), pairs_.end()), pairs_.end());

    firstPair_ = FirstOfEach(pairs_, [](const GlyphPair& pair) { return pair.left; });
}

void KerningIndex::ReadCharmap()
{
    const auto expected = static_cast<std::size_t>(face_.GlyphCount());
    std::vector<quint16> glyphs;
    glyphs.reserve(expected);
    codes_.reserve(expected);
    face_.WalkCharmap([&](quint16 code, FT_UInt glyph) {
        glyphs.push_back(static_cast<quint16>(glyph));
        codes_.push_back(code);
        return true;
    });
    firstPosition_ = FirstOfEach(glyphs, [](quint16 glyph) { return glyph; });
    std::vector<quint32> next = firstPosition_;
    positions_.resize(glyphs.size());
    for (std::size_t position = 0; position < glyphs.size(); ++position)
        positions_[next[glyphs[position]]++] = static_cast<quint32>(position);
}

std::vector<KerningPair> KerningIndex::PairsOf(quint16 left) const
{
    if (!isComplete_)
        return face_.KerningPairs(left);

    const auto leftGlyph = static_cast<quint16>(FT_Get_Char_Index(face_.Handle(), left));
    const auto [first, end] = EntriesOf(firstPair_, leftGlyph);
    if (first == end)
        return {};
    const auto [answer, isNew] = answers_.try_emplace(leftGlyph);
    if (isNew)
        answer->second = PairsOfGlyph(leftGlyph, first, end);
    return answer->second;
}

std::vector<KerningPair> KerningIndex::PairsOfGlyph(quint16 leftGlyph, quint32 firstPair,
                                                    quint32 endPair) const
{
    std::vector<std::pair<quint32, int>> found; // position in the charmap, distance
    for (quint32 index = firstPair; index < endPair; ++index) {
        const quint16 right = pairs_[index].right;
        const auto [first, end] = EntriesOf(firstPosition_, right);
        const int distance = first < end ? face_.GlyphKerning(leftGlyph, right) : 0;
        for (quint32 place = first; distance != 0 && place < end; ++place)
            found.emplace_back(positions_[place], distance);
    }
    // Those of a single right glyph are in order; a damaged charmap gives it a million places.
    if (!std::ranges::is_sorted(found))
        std::ranges::sort(found);

    std::vector<KerningPair> pairs;
    pairs.reserve(found.size());
    for (const auto& [position, distance] : found)
        pairs.push_back({codes_[position], distance});
    return pairs;
}

} // namespace Glyphor
