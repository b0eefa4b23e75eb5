#pragma once

#include "model/char_info.h"
#include "model/rendered_glyph.h"

#include <QByteArray>

#include <algorithm>
#include <optional>

namespace Glyphor {

// Where a rendered glyph goes in the bitmap of its character, and that character's metrics.
struct GlyphPlacement : CharMetrics
{
    int column = 0; // of the glyph's first column in the bitmap
    int row = 0;    // of the glyph's first row; rows outside the bitmap are dropped
};

// Fits a glyph into the fields of a character of such a font without moving its picture. Empty
// where a field can't hold what the glyph needs.
[[nodiscard]] std::optional<GlyphPlacement> PlaceGlyph(const RenderedGlyph& glyph,
                                                       const FontMetrics& font);

// The part of a glyph's bitmap that has ink, in its rows and columns; the ends lie behind the last.
struct InkBox
{
    int top = 0;
    int bottom = 0;
    int left = 0;
    int right = 0;

    [[nodiscard]] int Rows() const { return bottom - top; }
    [[nodiscard]] bool IsEmpty() const { return bottom == top; }
};

// What is left of the glyph at that depth; empty where nothing is.
[[nodiscard]] InkBox InkOf(const RenderedGlyph& glyph, int bitsPerPixel);

// The rows that ink reaches beyond a line.
struct InkOverflow
{
    int above = 0;
    int below = 0;

    [[nodiscard]] bool IsAny() const { return above > 0 || below > 0; }
    void Add(const InkOverflow& other)
    {
        above = std::max(above, other.above);
        below = std::max(below, other.below);
    }
};

// The packed pixel rows of the placed glyph, quantised to the font's depth.
[[nodiscard]] QByteArray ConvertGlyph(const RenderedGlyph& glyph, const GlyphPlacement& placement,
                                      int bitsPerPixel);

} // namespace Glyphor
