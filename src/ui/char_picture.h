#pragma once

#include "model/font.h"

#include <QColor>
#include <QImage>

namespace Glyphor {

// The pixels of a character as a picture, one to one. The ink of an index is as opaque as the index
// is high; frames are drawn in the colour of the paper.
[[nodiscard]] QImage CharPicture(const Character& character, const QColor& ink,
                                 const QColor& paper);

// How opaque an index is drawn, 0 to 255.
[[nodiscard]] int IndexAlpha(int index, int bitsPerPixel);

// True where a framed character has a frame pixel; (0, 0) is the first pixel of its bitmap.
[[nodiscard]] bool HasFramePixel(const Character& character, int x, int y);

} // namespace Glyphor
