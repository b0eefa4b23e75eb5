#pragma once

#include "render/layout_face.h"

#include <array>
#include <functional>
#include <span>

namespace Glyphor {

class Progress;

// A character with the glyph that shows it.
struct ShownGlyph
{
    quint16 code;
    FT_UInt glyph;
};

// Finds the kerning pairs of a face whose kerning is in its GPOS table. A pair's distance is how
// far kerning moves the second glyph's origin, in whole pixels, where the two are shaped alone: in
// the order and with the script of the two characters, the script's default language and no feature
// but `kern`. Glyphs stand for their characters one by one: nothing is composed, joined or
// reordered.
class LayoutKerning
{
public:
    LayoutKerning(const FreeTypeFace& face, const HarfBuzz& harfBuzz);

    // False where no feature of the face kerns.
    [[nodiscard]] bool HasKerning() const;

    // Some fifteen seconds, which no font needs.
    static constexpr qint64 MaxWork = 500'000'000;

    // Calls take(index, pairs) for each character that has pairs, until it returns false. Pairs are
    // in the order of the characters, which come up once each. Reports its progress. False where
    // pairs are left out, since a damaged font would take forever.
    using Take = std::function<bool(std::size_t index, const std::vector<KerningPair>& pairs)>;
    bool FindPairs(std::span<const ShownGlyph> characters, const Take& take,
                   qint64 maxWork = MaxWork);

private:
    // Glyphs that kern alike.
    struct Kind
    {
        hb_codepoint_t code; // what HarfBuzz gets for it
        hb_script_t script;  // HB_SCRIPT_INVALID: that of the other one of a pair
        bool isTouched;      // kerning may begin at it
        std::vector<quint32> members;
    };
    struct Found
    {
        std::size_t right; // a kind
        int distance;
    };

    static constexpr std::size_t ClassCount = 3;
    static constexpr std::ptrdiff_t MarkClass = 2;

    void ReadLookups();
    [[nodiscard]] std::array<HarfBuzzOwner<hb_set_t>, ClassCount> GlyphClasses() const;
    [[nodiscard]] std::vector<Kind> KindsOf(std::span<const ShownGlyph> characters) const;
    void AskAll(const Kind& left, std::span<const std::size_t> rights, std::span<const Kind> kinds,
                Progress& progress, std::vector<Found>& found);
    void Ask(const Kind& left, std::span<const std::size_t> rights, hb_script_t script,
             std::span<const Kind> kinds, std::vector<Found>& found);
    [[nodiscard]] static std::vector<KerningPair> PairsOf(std::span<const Found> found,
                                                          std::span<const Kind> kinds,
                                                          std::span<const ShownGlyph> characters);

    LayoutFace face_;
    const HarfBuzz& harfBuzz_;
    HarfBuzzOwner<hb_set_t> touched_;
    HarfBuzzOwner<hb_buffer_t> buffer_;
    HarfBuzzOwner<hb_unicode_funcs_t> unicode_;
    std::vector<hb_feature_t> features_; // none is on but kern, and that not for separators
    bool hasContexts_ = false;           // what stands around a pair may count
    qint64 subtables_ = 0;               // that may be looked into for a pair
};

} // namespace Glyphor
