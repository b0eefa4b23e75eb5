#pragma once

#include "render/font_feature.h"
#include "render/layout_face.h"

#include <optional>
#include <span>

namespace Glyphor {

// The glyphs that features of a face put in the places of others, one for one. Their lookups are
// those of the default language of all scripts, and are applied in the order of the GSUB table.
class GlyphSubstitution
{
public:
    // Throws a CriticalException for a feature that the face does not have, which names those it
    // has, and where HarfBuzz can't be loaded.
    GlyphSubstitution(const FreeTypeFace& face, std::span<const FontFeature> features);

    [[nodiscard]] FT_UInt Replacement(FT_UInt glyph);

    // Warns of features that replaced none of the glyphs that were asked for.
    void WarnOfUnused() const;

private:
    struct Step
    {
        unsigned lookup;
        std::size_t feature;
        bool isAlternate;

        auto operator<=>(const Step&) const = default;
    };

    void AddSteps(std::size_t feature, unsigned variations);
    void AddLookups(unsigned featureIndex, std::size_t feature, unsigned variations);
    [[nodiscard]] std::optional<FT_UInt> OtherGlyph(const Step& step, FT_UInt glyph) const;

    LayoutFace face_;
    const HarfBuzz& harfBuzz_;
    std::vector<FontFeature> features_;
    std::vector<bool> isUsed_; // for each feature
    std::vector<Step> steps_;
};

} // namespace Glyphor
