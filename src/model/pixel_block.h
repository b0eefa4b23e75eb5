#pragma once

#include "model/font.h"

#include <QPoint>
#include <QRect>

#include <vector>

namespace Glyphor {

// A rectangle of pixels without a place: what is taken out of a character, turned and put back, or
// into another one.
struct PixelBlock
{
    int width = 0;
    int rows = 0;
    std::vector<quint8> indices; // row by row

    [[nodiscard]] bool IsEmpty() const { return indices.empty(); }
    [[nodiscard]] QSize Size() const { return {width, rows}; }
    [[nodiscard]] int At(int x, int y) const
    {
        return indices[std::size_t(y) * std::size_t(width) + std::size_t(x)];
    }

    bool operator==(const PixelBlock&) const = default;
};

// Of one index.
[[nodiscard]] PixelBlock FilledBlock(QSize size, int index);

// The pixels of the area, whose parts outside of the bitmap are empty.
[[nodiscard]] PixelBlock PixelsOf(const CharBitmap& bitmap, const QRect& area);
[[nodiscard]] PixelBlock PixelsOf(const CharBitmap& bitmap);

// The glyph's coverage, at that depth. It must have 255 x 255 pixels at most.
[[nodiscard]] PixelBlock PixelsOf(const RenderedGlyph& glyph, int bitsPerPixel);

// Parts of the block outside of the bitmap are left out. In framed characters the frame becomes
// that of the new pixels.
void PutPixels(CharBitmap& bitmap, const PixelBlock& block, QPoint place);

[[nodiscard]] PixelBlock FlippedHorizontally(const PixelBlock& block);
[[nodiscard]] PixelBlock FlippedVertically(const PixelBlock& block);
[[nodiscard]] PixelBlock RotatedRight(const PixelBlock& block);
[[nodiscard]] PixelBlock RotatedLeft(const PixelBlock& block);

// As dark with the indices of another depth.
[[nodiscard]] PixelBlock WithDepth(PixelBlock block, int fromBits, int toBits);

// The same of a character as a whole. A rotated one keeps the lower left corner of its box and its
// cursor distance; it is refused, without a change, where the height of a legacy font or the range
// of the offset does not allow it.
bool FlipHorizontally(Character& character);
bool FlipVertically(Character& character);
bool RotateRight(Character& character);
bool RotateLeft(Character& character);

} // namespace Glyphor
