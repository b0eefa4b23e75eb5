#include "ui/char_picture.h"

namespace Glyphor {

int IndexAlpha(int index, int bitsPerPixel)
{
    return index * 255 / ((1 << bitsPerPixel) - 1);
}

bool HasFramePixel(const Character& character, int x, int y)
{
    const CharInfo& info = character.info;
    if (info.font.format != FontFormat::Framed || x < 0 || y < 0 || x >= info.width ||
        y >= info.height)
        return false;
    const QByteArray planes = character.bitmap->DataAsList();
    const PixelLayout layout{info.width, info.height, 1};
    return PixelPlane::GetPixel(planes.sliced(layout.Size()), layout, x, y) != 0;
}

QImage CharPicture(const Character& character, const QColor& ink, const QColor& paper)
{
    const CharInfo& info = character.info;
    QImage picture(info.width, info.Rows(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    const bool isFramed = info.font.format == FontFormat::Framed;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const int index = character.bitmap->GetPixelIndex(x, y);
            QColor colour = ink;
            if (index != 0)
                colour.setAlpha(IndexAlpha(index, info.font.bitsPerPixel));
            else if (isFramed && HasFramePixel(character, x, y))
                colour = paper;
            else
                continue;
            picture.setPixelColor(x, y, colour);
        }
    }
    return picture;
}

} // namespace Glyphor
