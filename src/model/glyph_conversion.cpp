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
template <int Bits>
constexpr quint8 Quantise(int coverage)
{
    const int sum = 3 * coverage;
    if constexpr (Bits == 1)
        return static_cast<quint8>((sum + 383) / 765);
    else if constexpr (Bits == 2)
        return static_cast<quint8>((sum + 127) / 255);
    else
        return static_cast<quint8>((3 * (coverage >> 4) + 1) / 3);
}

template <int Bits>
constexpr QuantiseTable MakeTable()
{
    QuantiseTable table{};
    for (int coverage = 0; coverage < 256; ++coverage)
        table[static_cast<std::size_t>(coverage)] = Quantise<Bits>(coverage);
    return table;
}

template <int Bits>
constexpr QuantiseTable Table = MakeTable<Bits>();

// Writes one coverage per pixel of a glyph's row.
void ExpandRow(const RenderedGlyph& glyph, int y, quint8* coverages)
{
    const quint8* const source = glyph.pixels.data() + std::ptrdiff_t(y) * glyph.pitch;
    const int bits = glyph.bitsPerPixel;
    if (bits == 8) {
        std::copy_n(source, glyph.width, coverages);
        return;
    }
    const int maximum = (1 << bits) - 1;
    for (int x = 0; x < glyph.width; ++x) {
        const int value = source[x * bits / 8] >> (8 - bits - x * bits % 8) & maximum;
        coverages[x] = static_cast<quint8>(value * 255 / maximum);
    }
}

// Writes the indices of a row of coverages as packed bytes. The depth is a constant so that the
// compiler unrolls the loop over a byte's pixels.
template <int Bits>
void PackRow(const quint8* coverages, int width, uchar* row)
{
    constexpr int perByte = 8 / Bits;
    int x = 0;
    for (; x + perByte <= width; x += perByte) {
        int packed = 0;
        for (int i = 0; i < perByte; ++i)
            packed = packed << Bits | Table<Bits>[coverages[x + i]];
        *row++ = static_cast<uchar>(packed);
    }
    if (x < width) {
        int packed = 0;
        for (int i = 0; i < perByte; ++i)
            packed = packed << Bits | (x + i < width ? Table<Bits>[coverages[x + i]] : 0);
        *row = static_cast<uchar>(packed);
    }
}

template <int Bits>
void PackRows(const RenderedGlyph& glyph, const GlyphPlacement& placement, uchar* bytes)
{
    const int length = BytesPerLine(placement.width, Bits);
    const int firstRow = std::max(0, -placement.row);
    const int endRow = std::min(glyph.rows, placement.height - placement.row);
    const bool isWhole = glyph.bitsPerPixel == 8 && glyph.width == placement.width;
    std::array<quint8, CharInfo::MaxSize> coverages{};
    for (int y = firstRow; y < endRow; ++y) {
        uchar* const row = bytes + std::ptrdiff_t(placement.row + y) * length;
        if (isWhole) {
            PackRow<Bits>(glyph.pixels.data() + std::ptrdiff_t(y) * glyph.pitch, glyph.width, row);
        } else {
            ExpandRow(glyph, y, coverages.data() + placement.column);
            PackRow<Bits>(coverages.data(), placement.width, row);
        }
    }
}

// Frames need an empty pixel around the ink: adds a row or column where ink lies on an edge.
void GrowForFrame(const RenderedGlyph& glyph, GlyphPlacement& placement)
{
    bool top = false;
    bool bottom = false;
    bool left = false;
    bool right = false;
    std::vector<quint8> coverages(static_cast<std::size_t>(glyph.width));
    const auto isInk = [](quint8 coverage) { return Table<1>[coverage] != 0; };
    for (int y = 0; y < glyph.rows && !glyph.pixels.empty(); ++y) {
        ExpandRow(glyph, y, coverages.data());
        const bool ink = std::ranges::any_of(coverages, isInk);
        top |= ink && y == 0;
        bottom |= ink && y == glyph.rows - 1;
        left |= isInk(coverages.front());
        right |= isInk(coverages.back());
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

InkBox InkOf(const RenderedGlyph& glyph, int bitsPerPixel)
{
    InkBox box{0, 0, glyph.width, 0};
    std::vector<quint8> coverages(static_cast<std::size_t>(std::max(0, glyph.width)));
    const QuantiseTable& table = bitsPerPixel == 1   ? Table<1>
                                 : bitsPerPixel == 2 ? Table<2>
                                 : bitsPerPixel == 4 ? Table<4>
                                                     : Table<8>;
    const auto isInk = [&table](quint8 coverage) { return table[coverage] != 0; };
    for (int y = 0; y < glyph.rows && !glyph.pixels.empty(); ++y) {
        ExpandRow(glyph, y, coverages.data());
        const auto first = std::ranges::find_if(coverages, isInk);
        if (first == coverages.end())
            continue;
        const auto last = std::find_if(coverages.rbegin(), coverages.rend(), isInk);
        if (box.IsEmpty())
            box.top = y;
        box.bottom = y + 1;
        box.left = std::min(box.left, static_cast<int>(first - coverages.begin()));
        box.right = std::max(box.right, static_cast<int>(coverages.rend() - last));
    }
    return box.IsEmpty() ? InkBox() : box;
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
    return placement.FitFields() ? std::optional(placement) : std::nullopt;
}

QByteArray ConvertGlyph(const RenderedGlyph& glyph, const GlyphPlacement& placement,
                        int bitsPerPixel)
{
    const PixelLayout layout{placement.width, placement.height, bitsPerPixel};
    QByteArray bytes(layout.Size(), '\0');
    if (glyph.pixels.empty())
        return bytes;

    auto* const rows = reinterpret_cast<uchar*>(bytes.data());
    switch (bitsPerPixel) {
    case 1:
        PackRows<1>(glyph, placement, rows);
        break;
    case 2:
        PackRows<2>(glyph, placement, rows);
        break;
    case 4:
        PackRows<4>(glyph, placement, rows);
        break;
    default:
        PackRows<8>(glyph, placement, rows);
        break;
    }
    return bytes;
}

} // namespace Glyphor
