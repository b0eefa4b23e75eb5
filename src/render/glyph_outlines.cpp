#include "render/glyph_outlines.h"

#include FT_OUTLINE_H

namespace Glyphor {

namespace {

using Kind = OutlineStep::Kind;

QPointF PointOf(const FT_Vector& vector)
{
    return {double(vector.x) / 64, double(-vector.y) / 64};
}

void Add(void* steps, Kind kind, const std::array<QPointF, 3>& points)
{
    static_cast<std::vector<OutlineStep>*>(steps)->push_back({kind, points});
}

int MoveTo(const FT_Vector* to, void* steps)
{
    Add(steps, Kind::Move, {PointOf(*to)});
    return 0;
}

int LineTo(const FT_Vector* to, void* steps)
{
    Add(steps, Kind::Line, {PointOf(*to)});
    return 0;
}

int ConicTo(const FT_Vector* control, const FT_Vector* to, void* steps)
{
    Add(steps, Kind::Quadratic, {PointOf(*control), PointOf(*to)});
    return 0;
}

int CubicTo(const FT_Vector* first, const FT_Vector* second, const FT_Vector* to, void* steps)
{
    Add(steps, Kind::Cubic, {PointOf(*first), PointOf(*second), PointOf(*to)});
    return 0;
}

// Far beyond what a character can be.
bool IsHuge(FT_Outline* outline)
{
    constexpr FT_Pos limit = 2048 * 64;
    FT_BBox box{};
    FT_Outline_Get_CBox(outline, &box);
    return box.xMin < -limit || box.yMin < -limit || box.xMax > limit || box.yMax > limit;
}

} // namespace

GlyphOutlines::GlyphOutlines(const GlyphSource& source) : openFace_(source.Face().Opener())
{
    for (const PlannedGlyph& planned : source.Planned()) {
        if (!glyphs_.contains(planned.code)) // of several the font takes the first
            glyphs_.insert(planned.code, planned.glyph);
    }
}

std::vector<OutlineStep> GlyphOutlines::Of(quint16 code) const
{
    std::vector<OutlineStep> steps;
    if (!glyphs_.contains(code))
        return steps;
    FontLibrary library;
    const FreeTypeFace face = openFace_(library);
    if (!face.LoadOutline(glyphs_.value(code)))
        return steps;
    FT_Outline* const outline = &face.Handle()->glyph->outline;
    if (IsHuge(outline))
        return steps;
    const FT_Outline_Funcs functions = {MoveTo, LineTo, ConicTo, CubicTo, 0, 0};
    if (FT_Outline_Decompose(outline, &functions, &steps) != 0)
        steps.clear();
    return steps;
}

} // namespace Glyphor
