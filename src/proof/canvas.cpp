#include "proof/canvas.h"

#include "proof/label_font.h"

#include <algorithm>

namespace Glyphor {

namespace {

std::array<Rgb, ProofColour::Count> MakePalette()
{
    std::array<Rgb, ProofColour::Count> palette{};
    for (int level = 0; level <= ProofColour::FullInk; ++level) {
        const auto grey = quint8(255 - level * 255 / ProofColour::FullInk);
        palette[std::size_t(level)] = {grey, grey, grey};
    }
    palette[ProofColour::Label] = {0x50, 0x60, 0x78};
    palette[ProofColour::Rule] = {0xC8, 0xD0, 0xDC};
    palette[ProofColour::Advance] = {0xDC, 0xEC, 0xFC};
    palette[ProofColour::Bitmap] = {0xFC, 0xF0, 0xB8};
    palette[ProofColour::Baseline] = {0x40, 0xA8, 0xE0};
    palette[ProofColour::Frame] = {0xF0, 0x90, 0x30};
    palette[ProofColour::Missing] = {0xE0, 0x10, 0x20};
    palette[ProofColour::MorePart] = {0x80, 0xD0, 0x90};
    palette[ProofColour::More] = {0x10, 0x90, 0x30};
    palette[ProofColour::LessPart] = {0xF4, 0xA0, 0xA0};
    palette[ProofColour::Less] = {0xD8, 0x20, 0x30};
    return palette;
}

} // namespace

const std::array<Rgb, ProofColour::Count>& ProofPalette()
{
    static const std::array<Rgb, ProofColour::Count> palette = MakePalette();
    return palette;
}

void Canvas::Fill(const Area& area, quint8 colour)
{
    const int left = std::max(area.x, 0);
    const int right = std::min(area.x + area.width, width_);
    if (left >= right)
        return;
    const int bottom = std::min(area.y + area.height, height_);
    for (int y = std::max(area.y, 0); y < bottom; ++y)
        std::fill_n(pixels_.begin() + std::ptrdiff_t(y) * width_ + left, right - left, colour);
}

void Canvas::Outline(const Area& area, quint8 colour)
{
    Fill({area.x, area.y, area.width, 1}, colour);
    Fill({area.x, area.y + area.height - 1, area.width, 1}, colour);
    Fill({area.x, area.y, 1, area.height}, colour);
    Fill({area.x + area.width - 1, area.y, 1, area.height}, colour);
}

void Canvas::Text(int x, int y, std::string_view text, quint8 colour, int zoom)
{
    for (const char character : text) {
        for (int row = 0; row < LabelFont::Height; ++row) {
            const unsigned bits = LabelFont::RowOf(character, row);
            for (int column = 0; column < LabelFont::Width; ++column) {
                if ((bits >> (LabelFont::Width - 1 - column) & 1) != 0)
                    Fill({x + column * zoom, y + row * zoom, zoom, zoom}, colour);
            }
        }
        x += LabelFont::Advance * zoom;
    }
}

} // namespace Glyphor
