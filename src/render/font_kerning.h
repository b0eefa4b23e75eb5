#pragma once

#include "model/encoding.h"
#include "render/glyph_source.h"
#include "render/layout_kerning.h"

#include <map>

namespace Glyphor {

// No font needs as many pairs, but a damaged one can claim one for every two characters.
inline constexpr std::size_t MaxKerningPairs = 1'000'000;

void WarnOfTooManyPairs();

// The codes that the characters of a face have in its font. Pairs of a font speak of these;
// characters that it can't encode have none.
class CodesInFont
{
public:
    CodesInFont(const GlyphSource& own, const RenderOptions& options);

    // Characters of a face are told apart by 16 bits here.
    static constexpr char32_t LastFaceCode = 0xFFFF;

    template <typename Visit>
    void ForEach(quint16 faceCode, Visit visit) const
    {
        if (!isMapped_) {
            const Encoding& unicode = EncodingFor(EncodingType::Unicode);
            if (const auto code = unicode.Converted(encoding_, faceCode))
                visit(*code);
            return;
        }
        const auto [first, end] = codes_.equal_range(faceCode);
        for (auto code = first; code != end; ++code)
            visit(code->second);
    }

    [[nodiscard]] std::vector<KerningPair> Encoded(const std::vector<KerningPair>& pairs) const;

private:
    EncodingType encoding_;
    bool isMapped_;
    std::multimap<quint16, quint16> codes_; // by those of the face
};

// True for a face without a `kern` table that may have its kerning in GPOS.
[[nodiscard]] bool MayHaveLayoutKerning(const FreeTypeFace& face);

// Gives the characters of a font that was rendered from such a face, listed by the face's codes,
// each once, their pairs. Reports its progress; warns of what it can't do.
void AddLayoutKerning(Font& font, const FreeTypeFace& face, std::span<const ShownGlyph> characters,
                      const CodesInFont& codes);

} // namespace Glyphor
