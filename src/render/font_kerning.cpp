#include "render/font_kerning.h"

#include "app/engine_texts.h"
#include "app/user_interface.h"
#include "model/encoding.h"
#include "render/sfnt_table.h"

#include FT_TRUETYPE_TAGS_H

namespace Glyphor {

void WarnOfTooManyPairs()
{
    CurrentInterface().warning(
        Engine::tr("Kerning left out"),
        Engine::tr("The font has too many kerning pairs; some were left out."));
}

std::vector<KerningPair> EncodedPairs(const std::vector<KerningPair>& pairs, EncodingType encoding)
{
    std::vector<KerningPair> encoded;
    encoded.reserve(pairs.size());
    for (const KerningPair& pair : pairs) {
        if (const auto right = EncodingFor(EncodingType::Unicode).Converted(encoding, pair.right))
            encoded.push_back({*right, pair.distance});
    }
    return encoded;
}

bool MayHaveLayoutKerning(const FreeTypeFace& face)
{
    return !HasSfntTable(face, TTAG_kern) && HasSfntTable(face, TTAG_GPOS);
}

void AddLayoutKerning(Font& font, const FreeTypeFace& face, std::span<const ShownGlyph> characters)
{
    const HarfBuzz* const library = HarfBuzz::Loaded();
    if (library == nullptr) {
        CurrentInterface().warning(
            Engine::tr("Kerning left out"),
            Engine::tr("The font has no kerning here: HarfBuzz, which reads it, could not be "
                       "loaded."));
        return;
    }
    LayoutKerning kerning(face, *library);
    font.SetHasKerning(kerning.HasKerning());
    if (!kerning.HasKerning())
        return;
    const EncodingType encoding = font.Metrics().encoding;
    std::size_t count = 0;
    const bool isComplete = kerning.FindPairs(
        characters, [&](std::size_t index, const std::vector<KerningPair>& pairs) {
            const auto code =
                EncodingFor(EncodingType::Unicode).Converted(encoding, characters[index].code);
            auto& kept = font.FindChar(*code)->kerning;
            kept = EncodedPairs(pairs, encoding);
            count += kept.size();
            return count < MaxKerningPairs;
        });
    if (!isComplete || count >= MaxKerningPairs)
        WarnOfTooManyPairs();
}

} // namespace Glyphor
