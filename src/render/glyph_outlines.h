#pragma once

#include "render/glyph_source.h"

#include <QHash>
#include <QPointF>

#include <array>

namespace Glyphor {

// A step of an outline. A line has one point, curves have their control points before the end.
struct OutlineStep
{
    enum class Kind : quint8 { Move, Line, Quadratic, Cubic };

    Kind kind;
    std::array<QPointF, 3> points;
};

// The outlines of the glyphs of a source as they were rendered: sized, fitted to the pixels, bold
// and slanted. The file is open only while it is asked: somebody may write it.
class GlyphOutlines
{
public:
    explicit GlyphOutlines(const GlyphSource& source);

    // In pixels to the right of the cursor position and down from the baseline. Nothing for a
    // character that the source does not give, or gives as a bitmap, and for huge ones.
    [[nodiscard]] std::vector<OutlineStep> Of(quint16 code) const;

private:
    std::function<FreeTypeFace(FontLibrary&)> openFace_;
    QHash<quint16, FT_UInt> glyphs_;
};

} // namespace Glyphor
