#include "proof/proof_layout.h"

#include "proof/placed_pixels.h"
#include "proof/proof_builder.h"

#include <algorithm>

namespace Glyphor {

namespace {

// Of pixels of the same colour side by side, one area is filled.
template <typename ColourAt>
void PaintPixels(Canvas& canvas, const Area& at, const Area& pixels, int zoom, ColourAt colourAt)
{
    for (int y = pixels.y; y < pixels.y + pixels.height; ++y) {
        const int right = pixels.x + pixels.width;
        for (int x = pixels.x; x < right;) {
            const quint8 colour = colourAt(x, y);
            int end = x + 1;
            while (end < right && colourAt(end, y) == colour)
                ++end;
            if (colour != ProofColour::Paper)
                canvas.Fill({at.x + x * zoom, at.y + y * zoom, (end - x) * zoom, zoom}, colour);
            x = end;
        }
    }
}

Area AreaOf(const PlacedPixels& pixels)
{
    return {pixels.Left(), pixels.Top(), pixels.Right() - pixels.Left(),
            pixels.Bottom() - pixels.Top()};
}

void PaintGlyph(Canvas& canvas, const ProofMark& mark, int y)
{
    const PlacedPixels pixels(*mark.glyph);
    PaintPixels(canvas, {mark.area.x, y, 0, 0}, AreaOf(pixels), mark.zoom, [&](int px, int py) {
        const int ink = pixels.InkAt(px, py);
        return ink == 0 && pixels.HasFrameAt(px, py) ? quint8(ProofColour::Frame) : quint8(ink);
    });
}

// Ink that both have is pale, and in colours what only one has.
quint8 DifferenceColour(int before, int after)
{
    constexpr int part = ProofColour::FullInk / 2;
    constexpr int paleness = 3;
    if (after > before)
        return after - before > part ? ProofColour::More : ProofColour::MorePart;
    if (after < before)
        return before - after > part ? ProofColour::Less : ProofColour::LessPart;
    return quint8((after + paleness - 1) / paleness);
}

void PaintDifference(Canvas& canvas, const ProofMark& mark, int y)
{
    std::optional<PlacedPixels> before;
    std::optional<PlacedPixels> after;
    Area area;
    int shift = 0; // of the former baseline
    if (mark.glyph != nullptr) {
        after.emplace(*mark.glyph);
        area = AreaOf(*after);
    }
    if (mark.before != nullptr) {
        before.emplace(*mark.before);
        Area former = AreaOf(*before);
        if (mark.glyph != nullptr)
            shift = mark.glyph->info.font.baseline - mark.before->info.font.baseline;
        former.y += shift;
        if (after) {
            const int right = std::max(area.x + area.width, former.x + former.width);
            const int bottom = std::max(area.y + area.height, former.y + former.height);
            area.x = std::min(area.x, former.x);
            area.y = std::min(area.y, former.y);
            area.width = right - area.x;
            area.height = bottom - area.y;
        } else {
            area = former;
        }
    }
    const auto inkAt = [](const PlacedPixels& pixels, int px, int py) {
        constexpr int frameInk = ProofColour::FullInk / 3;
        const int ink = pixels.InkAt(px, py);
        return ink == 0 && pixels.HasFrameAt(px, py) ? frameInk : ink;
    };
    PaintPixels(canvas, {mark.area.x, y, 0, 0}, area, mark.zoom, [&](int px, int py) {
        return DifferenceColour(before ? inkAt(*before, px, py - shift) : 0,
                                after ? inkAt(*after, px, py) : 0);
    });
}

void PaintMark(Canvas& canvas, const ProofMark& mark, int bandTop)
{
    const Area area{mark.area.x, mark.area.y + bandTop, mark.area.width, mark.area.height};
    switch (mark.kind) {
    case ProofMark::Kind::Fill:
        return canvas.Fill(area, mark.colour);
    case ProofMark::Kind::Outline:
        return canvas.Outline(area, mark.colour);
    case ProofMark::Kind::Text:
        return canvas.Text(area.x, area.y, mark.text, mark.colour, mark.zoom);
    case ProofMark::Kind::Glyph:
        return PaintGlyph(canvas, mark, area.y);
    case ProofMark::Kind::Difference:
        return PaintDifference(canvas, mark, area.y);
    }
}

} // namespace

ProofLayout LayOutProof(const ProofContents& contents)
{
    return ProofBuilder(contents).Build();
}

std::vector<ProofPage> PagesOf(const ProofLayout& layout, int maxHeight)
{
    std::vector<ProofPage> pages;
    ProofPage page;
    for (std::size_t begin = 0, end = 0; begin < layout.bands.size(); begin = end) {
        int height = 0;
        bool isOpen = true;
        for (end = begin; isOpen && end < layout.bands.size(); ++end) {
            height += layout.bands[end].height;
            isOpen = layout.bands[end].staysWithNext;
        }
        if (page.bandCount > 0 && page.height + height > maxHeight) {
            pages.push_back(page);
            page = {begin, 0, 0};
        }
        page.bandCount += end - begin;
        page.height += height;
    }
    pages.push_back(page);
    return pages;
}

Canvas PaintPage(const ProofLayout& layout, const ProofPage& page)
{
    Canvas canvas(layout.width, page.height);
    int top = 0;
    for (std::size_t index = 0; index < page.bandCount; ++index) {
        const ProofBand& band = layout.bands[page.firstBand + index];
        for (const ProofMark& mark : band.marks)
            PaintMark(canvas, mark, top);
        top += band.height;
    }
    return canvas;
}

} // namespace Glyphor
