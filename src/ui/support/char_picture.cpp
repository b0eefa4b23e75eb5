#include "ui/support/char_picture.h"

#include <array>

namespace Glyphor {

int IndexAlpha(int index, int bitsPerPixel)
{
    return index * 255 / ((1 << bitsPerPixel) - 1);
}

QImage BlockPicture(const PixelBlock& block, int bitsPerPixel)
{
    if (block.IsEmpty())
        return {};
    QImage picture(block.Size(), QImage::Format_Grayscale8);
    for (int y = 0; y < block.rows; ++y) {
        uchar* const line = picture.scanLine(y);
        for (int x = 0; x < block.width; ++x)
            line[x] = uchar(255 - IndexAlpha(block.At(x, y), bitsPerPixel));
    }
    return picture;
}

FramePlane::FramePlane(const Character& character)
{
    const CharInfo& info = character.info;
    if (info.font.format != FontFormat::Framed)
        return;
    layout_ = {info.width, info.height, 1};
    bytes_ = character.bitmap->DataAsList().sliced(layout_.Size());
}

bool FramePlane::HasPixel(int x, int y) const
{
    return x < layout_.width && y < layout_.rows &&
           PixelPlane::GetPixel(bytes_, layout_, x, y) != 0;
}

QImage CharPicture(const Character& character, const QColor& ink, const QColor& paper)
{
    const CharInfo& info = character.info;
    QImage picture(info.width, info.Rows(), QImage::Format_ARGB32_Premultiplied);
    std::array<QRgb, 16> colours{};
    for (int index = 1; index < 1 << info.font.bitsPerPixel; ++index) {
        QColor colour = ink;
        colour.setAlpha(IndexAlpha(index, info.font.bitsPerPixel));
        colours[std::size_t(index)] = qPremultiply(colour.rgba());
    }
    const QRgb frameColour = paper.rgb();
    const FramePlane frame(character);
    for (int y = 0; y < picture.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const int index = character.bitmap->GetPixelIndex(x, y);
            line[x] =
                index == 0 && frame.HasPixel(x, y) ? frameColour : colours[std::size_t(index)];
        }
    }
    return picture;
}

} // namespace Glyphor
