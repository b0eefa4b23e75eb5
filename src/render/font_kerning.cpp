#include "render/font_kerning.h"

#include "app/engine_texts.h"
#include "app/user_interface.h"
#include "render/sfnt_table.h"

#include FT_TRUETYPE_TAGS_H

namespace Glyphor {

void WarnOfTooManyPairs()
{
    CurrentInterface().warning(
        Engine::tr("Kerning left out"),
        Engine::tr("The font has too many kerning pairs; some were left out."));
}

CodesInFont::CodesInFont(const GlyphSource& own, const RenderOptions& options)
    : encoding_(options.encoding), isMapped_(!options.map.empty())
{
    for (const PlannedGlyph& planned : own.Planned()) {
        if (isMapped_ && planned.faceCode <= LastFaceCode)
            codes_.emplace(static_cast<quint16>(planned.faceCode), planned.code);
    }
}

std::vector<KerningPair> CodesInFont::Encoded(const std::vector<KerningPair>& pairs) const
{
    std::vector<KerningPair> encoded;
    encoded.reserve(pairs.size());
    for (const KerningPair& pair : pairs)
        ForEach(pair.right, [&](quint16 code) { encoded.push_back({code, pair.distance}); });
    return encoded;
}

bool MayHaveLayoutKerning(const FreeTypeFace& face)
{
    return !HasSfntTable(face, TTAG_kern) && HasSfntTable(face, TTAG_GPOS);
}

void AddLayoutKerning(Font& font, const FreeTypeFace& face, std::span<const ShownGlyph> characters,
                      const CodesInFont& codes)
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
    std::size_t count = 0;
    const bool isComplete = kerning.FindPairs(
        characters, [&](std::size_t index, const std::vector<KerningPair>& pairs) {
            const std::vector<KerningPair> encoded = codes.Encoded(pairs);
            codes.ForEach(characters[index].code, [&](quint16 code) {
                if (Character* const character = font.FindChar(code)) {
                    character->kerning = encoded;
                    count += encoded.size();
                }
            });
            return count < MaxKerningPairs;
        });
    if (!isComplete || count >= MaxKerningPairs)
        WarnOfTooManyPairs();
}

} // namespace Glyphor
