#include "ui/window/font_outlines.h"

#include "render/glyph_outlines.h"

#include <utility>

namespace Glyphor {

FontOutlines::FontOutlines() = default;
FontOutlines::~FontOutlines() = default;

void FontOutlines::SetOrigin(const ActionOpenFontArgs& origin)
{
    outlines_.reset();
    lastCode_.reset();
    origin_ = origin;
}

const QPainterPath& FontOutlines::PathOf(quint16 code)
{
    if (const auto origin = std::exchange(origin_, std::nullopt))
        outlines_ = OutlinesOf(*origin);
    if (lastCode_ != code)
        lastPath_ = MakePath(code);
    lastCode_ = code;
    return lastPath_;
}

QPainterPath FontOutlines::MakePath(quint16 code) const
{
    QPainterPath path;
    if (outlines_ == nullptr)
        return path;
    for (const OutlineStep& step : outlines_->Of(code)) {
        switch (step.kind) {
        case OutlineStep::Kind::Move:
            path.closeSubpath();
            path.moveTo(step.points[0]);
            break;
        case OutlineStep::Kind::Line:
            path.lineTo(step.points[0]);
            break;
        case OutlineStep::Kind::Quadratic:
            path.quadTo(step.points[0], step.points[1]);
            break;
        case OutlineStep::Kind::Cubic:
            path.cubicTo(step.points[0], step.points[1], step.points[2]);
            break;
        }
    }
    path.closeSubpath();
    return path;
}

} // namespace Glyphor
