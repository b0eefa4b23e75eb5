#include "proof/placed_pixels.h"

#include "model/char_bitmap_framed.h"

namespace Glyphor {

namespace {

constexpr int FullInkLevel = 15;

}

PlacedPixels::PlacedPixels(const Character& character)
    : layout_{character.info.width, character.info.Rows(), character.info.font.bitsPerPixel},
      data_(character.bitmap->Data())
{
    const CharInfo& info = character.info;
    if (!IsLegacyFormat(info.font.format)) {
        left_ = info.xPos;
        top_ = info.yPos;
    }
    if (const auto* const framed = dynamic_cast<const CharBitmapFramed*>(character.bitmap.get()))
        frame_ = &framed->Frame();
    scale_ = FullInkLevel / layout_.MaxIndex();
}

int PlacedPixels::IndexAt(const QByteArray& plane, int x, int y) const
{
    x -= left_;
    y -= top_;
    if (x < 0 || y < 0 || x >= layout_.width || y >= layout_.rows)
        return 0;
    const int bit = x * layout_.bitsPerPixel;
    const qsizetype at = qsizetype(y) * layout_.BytesPerLine() + bit / 8;
    if (at >= plane.size())
        return 0;
    return uchar(plane[at]) >> (8 - layout_.bitsPerPixel - bit % 8) & layout_.MaxIndex();
}

int PlacedPixels::InkAt(int x, int y) const
{
    return IndexAt(data_, x, y) * scale_;
}

bool PlacedPixels::HasFrameAt(int x, int y) const
{
    return frame_ != nullptr && IndexAt(*frame_, x, y) != 0;
}

} // namespace Glyphor
