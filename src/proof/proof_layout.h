#pragma once

#include "proof/canvas.h"
#include "proof/font_comparison.h"
#include "proof/sample_texts.h"

#include <set>
#include <string>

namespace Glyphor {

class Font;
struct Character;

// What a proof shows. It refers to the fonts, which must outlive it.
struct ProofContents
{
    const Font& font;
    const Font& kerningSource; // files hold no kerning: the font that was saved, or the same
    QString fileName;          // without its folder
    std::vector<SampleText> texts;
    std::set<char32_t> missing = {}; // of what was asked for

    // With another font, whose name stands beside.
    const FontComparison* comparison = nullptr;
    QString comparedName = {};
    const Font* comparedFont = nullptr;
};

// Something to be drawn, in pixels of the picture.
struct ProofMark
{
    enum class Kind { Fill, Outline, Text, Glyph, Difference };

    Kind kind = Kind::Fill;
    Area area; // of glyphs the cursor position at the top of the font, and no size
    quint8 colour = ProofColour::Ink;
    int zoom = 1;
    std::string text = {};
    const Character* glyph = nullptr;
    const Character* before = nullptr; // of a difference, on the same baseline
};

// A strip of a proof, which no page cuts.
struct ProofBand
{
    int height = 0;
    std::vector<ProofMark> marks = {}; // in the order of drawing, from its upper left corner
    bool staysWithNext = false;        // on one page
};

struct ProofLayout
{
    int width = 0;
    int zoom = 1; // of the table of characters
    std::vector<ProofBand> bands;
};

[[nodiscard]] ProofLayout LayOutProof(const ProofContents& contents);

// Bands that stand on one page.
struct ProofPage
{
    std::size_t firstBand = 0;
    std::size_t bandCount = 0;
    int height = 0;
};

// Pages up to a height; a band that is higher has one for itself.
[[nodiscard]] std::vector<ProofPage> PagesOf(const ProofLayout& layout, int maxHeight);

[[nodiscard]] Canvas PaintPage(const ProofLayout& layout, const ProofPage& page);

} // namespace Glyphor
