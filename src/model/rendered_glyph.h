#pragma once

#include <QtGlobal>

#include <vector>

namespace Glyphor {

// One glyph as the rasteriser gives it: a bitmap with rows from the top, and its metrics in pixels.
struct RenderedGlyph
{
    std::vector<quint8> pixels; // pitch x rows bytes; empty where there is no bitmap
    qint32 size = 0;            // bytes in pixels
    qint32 xPos = 0;            // left edge, from the cursor position
    qint32 yPos = 0;            // first row, from the top of the font
    qint32 cursorDistance = 0;
    qint32 width = 0;
    qint32 rows = 0;
    qint32 pitch = 0;        // bytes per row
    qint32 bitsPerPixel = 0; // 1, 2 or 4 packed from the most significant bit, 8 for coverage
};

} // namespace Glyphor
