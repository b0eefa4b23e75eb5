#include "model/glyph_conversion.h"

#include "model/char_info.h"
#include "model/pixel_plane.h"

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

namespace Glyphor {

namespace {

using QuantiseTable = std::array<quint8, 256>;

// A coverage is an opaque grey with three equal channels. The divisors are those of the sum of the
// channels, so that every depth rounds as it would for a colour.
constexpr quint8 Quantise(int coverage, int bitsPerPixel)
{
    const int sum = 3 * coverage;
    switch (bitsPerPixel) {
    case 1:
        return static_cast<quint8>((sum + 383) / 765);
    case 2:
        return static_cast<quint8>((sum + 127) / 255);
    case 4:
        return static_cast<quint8>((3 * (coverage >> 4) + 1) / 3);
    default:
        return static_cast<quint8>(sum / 3);
    }
}

constexpr QuantiseTable MakeTable(int bitsPerPixel)
{
    QuantiseTable table{};
    for (int coverage = 0; coverage < 256; ++coverage)
        table[static_cast<std::size_t>(coverage)] = Quantise(coverage, bitsPerPixel);
    return table;
}

constexpr QuantiseTable Table1 = MakeTable(1);
constexpr QuantiseTable Table2 = MakeTable(2);
constexpr QuantiseTable Table4 = MakeTable(4);
constexpr QuantiseTable Table8 = MakeTable(8);

const QuantiseTable& TableFor(int bitsPerPixel)
{
    switch (bitsPerPixel) {
    case 1:
        return Table1;
    case 2:
        return Table2;
    case 4:
        return Table4;
    default:
        return Table8;
    }
}

// Writes one palette index per pixel of a glyph's row.
void QuantiseRow(const RenderedGlyph& glyph, int y, const QuantiseTable& table, quint8* indices)
{
    const quint8* const source = glyph.pixels.data() + std::ptrdiff_t(y) * glyph.pitch;
    if (glyph.bitsPerPixel == 8) {
        std::transform(source, source + glyph.width, indices,
                       [&table](quint8 coverage) { return table[coverage]; });
        return;
    }
    const int bits = glyph.bitsPerPixel;
    const int maximum = (1 << bits) - 1;
    for (int x = 0; x < glyph.width; ++x) {
        const int value = source[x * bits / 8] >> (8 - bits - x * bits % 8) & maximum;
        indices[x] = table[static_cast<std::size_t>(value * 255 / maximum)];
    }
}

// Frames need an empty pixel around the ink: adds a row or column where ink lies on an edge.
void GrowForFrame(const RenderedGlyph& glyph, GlyphPlacement& placement)
{
    bool top = false;
    bool bottom = false;
    bool left = false;
    bool right = false;
    std::vector<quint8> indices(static_cast<std::size_t>(glyph.width));
    for (int y = 0; y < glyph.rows && !glyph.pixels.empty(); ++y) {
        QuantiseRow(glyph, y, Table1, indices.data());
        const bool ink = std::ranges::find(indices, 1) != indices.end();
        top |= ink && y == 0;
        bottom |= ink && y == glyph.rows - 1;
        left |= indices.front() != 0;
        right |= indices.back() != 0;
    }
    placement.column = left ? 1 : 0;
    placement.row = top ? 1 : 0;
    placement.width += int(left) + int(right);
    placement.height += int(top) + int(bottom);
    placement.xPos -= placement.column;
    placement.yPos -= placement.row;
}

// Brings an offset beyond a signed byte into range with empty pixels before the picture.
void PadOffset(int& offset, int& start, int& size, bool isEmpty)
{
    constexpr int maximum = std::numeric_limits<qint8>::max();
    if (isEmpty) {
        offset = std::clamp<int>(offset, std::numeric_limits<qint8>::min(), maximum);
        return;
    }
    const int padding = std::max(0, offset - maximum);
    offset -= padding;
    start += padding;
    size += padding;
}

bool FitsByte(int value)
{
    return value >= 0 && value <= CharInfo::MaxSize;
}

bool FitsFields(const GlyphPlacement& placement)
{
    constexpr int minimum = std::numeric_limits<qint8>::min();
    return FitsByte(placement.width) && FitsByte(placement.height) &&
           FitsByte(placement.cursorDistance) && placement.xPos >= minimum &&
           placement.yPos >= minimum;
}

// Legacy characters have no offsets: the picture stands at its place in a cell of the font's
// height.
GlyphPlacement PlaceLegacy(const RenderedGlyph& glyph, const FontMetrics& font)
{
    GlyphPlacement placement;
    placement.column = std::max(0, glyph.xPos);
    placement.row = glyph.yPos;
    placement.width = std::max(glyph.cursorDistance, placement.column + glyph.width);
    placement.height = font.height;
    placement.cursorDistance = glyph.cursorDistance;
    return placement;
}

GlyphPlacement PlaceStandard(const RenderedGlyph& glyph, const FontMetrics& font)
{
    GlyphPlacement placement;
    placement.width = glyph.width;
    placement.height = glyph.rows;
    placement.xPos = glyph.xPos;
    placement.yPos = glyph.yPos;
    placement.cursorDistance = glyph.cursorDistance;
    if (font.format == FontFormat::Framed)
        GrowForFrame(glyph, placement);
    const bool isEmpty = placement.width == 0 || placement.height == 0;
    PadOffset(placement.xPos, placement.column, placement.width, isEmpty);
    PadOffset(placement.yPos, placement.row, placement.height, isEmpty);
    return placement;
}

} // namespace

quint8 QuantiseCoverage(quint8 coverage, int bitsPerPixel)
{
    return TableFor(bitsPerPixel)[coverage];
}

std::optional<GlyphPlacement> PlaceGlyph(const RenderedGlyph& glyph, const FontMetrics& font)
{
    // Larger values fit no field, and smaller ones keep the sums below from overflowing.
    constexpr int limit = 0xFFFF;
    for (const int value : {glyph.xPos, glyph.yPos, glyph.width, glyph.rows}) {
        if (value < -limit || value > limit)
            return std::nullopt;
    }
    const GlyphPlacement placement =
        IsLegacyFormat(font.format) ? PlaceLegacy(glyph, font) : PlaceStandard(glyph, font);
    return FitsFields(placement) ? std::optional(placement) : std::nullopt;
}

QByteArray ConvertGlyph(const RenderedGlyph& glyph, const GlyphPlacement& placement,
                        int bitsPerPixel)
{
    const PixelLayout layout{placement.width, placement.height, bitsPerPixel};
    QByteArray bytes(layout.Size(), '\0');
    if (glyph.pixels.empty())
        return bytes;

    const QuantiseTable& table = TableFor(bitsPerPixel);
    std::array<quint8, CharInfo::MaxSize> indices{};
    const int firstRow = std::max(0, -placement.row);
    const int endRow = std::min(glyph.rows, placement.height - placement.row);
    for (int y = firstRow; y < endRow; ++y) {
        QuantiseRow(glyph, y, table, indices.data() + placement.column);
        auto* const row = reinterpret_cast<uchar*>(bytes.data()) +
                          std::ptrdiff_t(placement.row + y) * layout.BytesPerLine();
        PixelPlane::PackRow(indices.data(), layout, row);
    }
    return bytes;
}

} // namespace Glyphor
