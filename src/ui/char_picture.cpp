#include "ui/char_picture.h"

namespace Glyphor {

int IndexAlpha(int index, int bitsPerPixel)
{
    return index * 255 / ((1 << bitsPerPixel) - 1);
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
    picture.fill(Qt::transparent);
    const FramePlane frame(character);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const int index = character.bitmap->GetPixelIndex(x, y);
            QColor colour = ink;
            if (index != 0)
                colour.setAlpha(IndexAlpha(index, info.font.bitsPerPixel));
            else if (frame.HasPixel(x, y))
                colour = paper;
            else
                continue;
            picture.setPixelColor(x, y, colour);
        }
    }
    return picture;
}

} // namespace Glyphor
