#pragma once

#include "render/free_type_face.h"

#include <unordered_map>
#include <vector>

namespace Glyphor {

// Finds the kerning pairs of a face's characters without asking for every pair of its charmap: only
// pairs that its kern table holds can have a distance. The answers are those of
// FreeTypeFace::KerningPairs().
class KerningIndex
{
public:
    // Reads the table and the charmap. The face's size must not change afterwards.
    explicit KerningIndex(const FreeTypeFace& face);

    [[nodiscard]] std::vector<KerningPair> PairsOf(quint16 left) const;

private:
    struct GlyphPair
    {
        quint16 left;
        quint16 right;

        auto operator<=>(const GlyphPair&) const = default;
    };

    [[nodiscard]] std::vector<KerningPair> PairsOfGlyph(quint16 leftGlyph, quint32 firstPair,
                                                        quint32 endPair) const;
    void ReadKernTable(const std::vector<quint8>& table);
    void ReadCharmap();

    FreeTypeFace face_;
    bool isComplete_ = false; // every pair of the face is in pairs_

    // Lists by glyph: those of glyph g are the entries from first[g] to first[g + 1].
    std::vector<GlyphPair> pairs_; // ascending, without repetitions
    std::vector<quint32> firstPair_;
    std::vector<quint32> positions_; // in the charmap, ascending for each glyph
    std::vector<quint32> firstPosition_;

    std::vector<quint16> codes_; // in charmap order

    // Answers by glyph: characters can share one, and each question costs.
    mutable std::unordered_map<quint16, std::vector<KerningPair>> answers_;
};

} // namespace Glyphor
