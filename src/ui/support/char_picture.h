#pragma once

#include "model/pixel_block.h"

#include <QColor>
#include <QImage>

namespace Glyphor {

// The pixels of a character as a picture, one to one. The ink of an index is as opaque as the index
// is high; frames are drawn in the colour of the paper.
[[nodiscard]] QImage CharPicture(const Character& character, const QColor& ink,
                                 const QColor& paper);

// Pixels in black on white; null where there are none.
[[nodiscard]] QImage BlockPicture(const PixelBlock& block, int bitsPerPixel);

// How opaque an index is drawn, 0 to 255.
[[nodiscard]] int IndexAlpha(int index, int bitsPerPixel);

// The frame of a framed character. Takes the plane once, for many questions.
class FramePlane
{
public:
    // Of any other character there is no pixel.
    explicit FramePlane(const Character& character);

    // (0, 0) is the first pixel of the bitmap.
    [[nodiscard]] bool HasPixel(int x, int y) const;

private:
    PixelLayout layout_;
    QByteArray bytes_;
};

} // namespace Glyphor
