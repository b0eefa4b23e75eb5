#pragma once

#include "render/layout_kerning.h"

namespace Glyphor {

// No font needs as many pairs, but a damaged one can claim one for every two characters.
inline constexpr std::size_t MaxKerningPairs = 1'000'000;

void WarnOfTooManyPairs();

// Pairs of a font speak of the font's own codes; characters that it can't encode have no pairs.
[[nodiscard]] std::vector<KerningPair> EncodedPairs(const std::vector<KerningPair>& pairs,
                                                    EncodingType encoding);

// True for a face without a `kern` table that may have its kerning in GPOS.
[[nodiscard]] bool MayHaveLayoutKerning(const FreeTypeFace& face);

// Gives the characters of a font that was rendered from such a face, listed by the face's codes,
// their pairs. Reports its progress; warns of what it can't do.
void AddLayoutKerning(Font& font, const FreeTypeFace& face, std::span<const ShownGlyph> characters);

} // namespace Glyphor
