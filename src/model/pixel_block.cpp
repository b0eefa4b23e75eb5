#include "model/pixel_block.h"

#include <utility>

namespace Glyphor {

namespace {

using Turn = PixelBlock (*)(const PixelBlock&);

// The block of that size whose pixel (x, y) is the other one's at source(x, y).
template <typename Source>
PixelBlock Mapped(const PixelBlock& block, QSize size, Source source)
{
    PixelBlock result = FilledBlock(size, 0);
    auto to = result.indices.begin();
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QPoint from = source(x, y);
            *to++ = static_cast<quint8>(block.At(from.x(), from.y()));
        }
    }
    return result;
}

PixelLayout LayoutOf(const CharInfo& info)
{
    return {info.width, info.Rows(), info.font.bitsPerPixel};
}

bool Flip(Character& character, Turn flipped)
{
    PutPixels(*character.bitmap, flipped(PixelsOf(*character.bitmap)), {0, 0});
    return true;
}

bool Rotate(Character& character, Turn rotated)
{
    CharInfo& info = character.info;
    CharMetrics metrics = info.Metrics();
    if (IsLegacyFormat(info.font.format)) {
        if (metrics.width != info.Rows())
            return false;
    } else {
        metrics.yPos += metrics.height - metrics.width;
        std::swap(metrics.width, metrics.height);
    }
    if (!metrics.FitFields())
        return false;
    const PixelBlock block = rotated(PixelsOf(*character.bitmap));
    info.Set(metrics);
    character.bitmap->AdjustData();
    PutPixels(*character.bitmap, block, {0, 0});
    return true;
}

} // namespace

PixelBlock FilledBlock(QSize size, int index)
{
    const auto count = std::size_t(size.width()) * std::size_t(size.height());
    return {size.width(), size.height(), std::vector<quint8>(count, static_cast<quint8>(index))};
}

PixelBlock PixelsOf(const CharBitmap& bitmap, const QRect& area)
{
    const PixelLayout layout = LayoutOf(bitmap.Info());
    const QByteArray& data = bitmap.Data();
    PixelBlock block = FilledBlock(area.size(), 0);
    auto to = block.indices.begin();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x, ++to) {
            if (x < layout.width)
                *to = static_cast<quint8>(PixelPlane::GetPixel(data, layout, x, y));
        }
    }
    return block;
}

PixelBlock PixelsOf(const CharBitmap& bitmap)
{
    const PixelLayout layout = LayoutOf(bitmap.Info());
    return PixelsOf(bitmap, {0, 0, layout.width, layout.rows});
}

PixelBlock PixelsOf(const RenderedGlyph& glyph, int bitsPerPixel)
{
    GlyphPlacement placement;
    placement.width = glyph.width;
    placement.height = glyph.rows;
    const QByteArray data = ConvertGlyph(glyph, placement, bitsPerPixel);
    const PixelLayout layout{glyph.width, glyph.rows, bitsPerPixel};
    PixelBlock block = FilledBlock({glyph.width, glyph.rows}, 0);
    auto to = block.indices.begin();
    for (int y = 0; y < glyph.rows; ++y) {
        for (int x = 0; x < glyph.width; ++x)
            *to++ = static_cast<quint8>(PixelPlane::GetPixel(data, layout, x, y));
    }
    return block;
}

void PutPixels(CharBitmap& bitmap, const PixelBlock& block, QPoint place)
{
    const PixelLayout layout = LayoutOf(bitmap.Info());
    QByteArray data = bitmap.Data();
    auto from = block.indices.begin();
    for (int y = 0; y < block.rows; ++y) {
        for (int x = 0; x < block.width; ++x)
            PixelPlane::SetPixel(data, layout, place.x() + x, place.y() + y, *from++);
    }
    bitmap.AssignData(data);
}

PixelBlock FlippedHorizontally(const PixelBlock& block)
{
    return Mapped(block, block.Size(),
                  [&](int x, int y) { return QPoint(block.width - 1 - x, y); });
}

PixelBlock FlippedVertically(const PixelBlock& block)
{
    return Mapped(block, block.Size(), [&](int x, int y) { return QPoint(x, block.rows - 1 - y); });
}

PixelBlock RotatedRight(const PixelBlock& block)
{
    return Mapped(block, block.Size().transposed(),
                  [&](int x, int y) { return QPoint(y, block.rows - 1 - x); });
}

PixelBlock RotatedLeft(const PixelBlock& block)
{
    return Mapped(block, block.Size().transposed(),
                  [&](int x, int y) { return QPoint(block.width - 1 - y, x); });
}

PixelBlock WithDepth(PixelBlock block, int fromBits, int toBits)
{
    const int from = (1 << fromBits) - 1;
    const int to = (1 << toBits) - 1;
    for (quint8& index : block.indices)
        index = static_cast<quint8>((index * to + from / 2) / from);
    return block;
}

bool FlipHorizontally(Character& character)
{
    return Flip(character, FlippedHorizontally);
}

bool FlipVertically(Character& character)
{
    return Flip(character, FlippedVertically);
}

bool RotateRight(Character& character)
{
    return Rotate(character, RotatedRight);
}

bool RotateLeft(Character& character)
{
    return Rotate(character, RotatedLeft);
}

} // namespace Glyphor
