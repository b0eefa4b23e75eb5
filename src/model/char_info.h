#pragma once

#include "model/font_metrics.h"

namespace Glyphor {

// The metrics of one character, in pixels.
struct CharInfo
{
    static constexpr int MaxSize = 255;

    const FontMetrics& font;
    quint8 width = 0;
    quint8 height = 0; // legacy formats: always the font's height
    qint8 xPos = 0;    // left edge, from the cursor position
    qint8 yPos = 0;    // top row, from the top of the font
    quint8 cursorDistance = 0;
    quint8 bytesPerLine = 0;

    // Pixel rows of one plane.
    [[nodiscard]] int Rows() const { return IsLegacyFormat(font.format) ? font.height : height; }

    void SetWidth(quint8 value)
    {
        width = value;
        bytesPerLine = static_cast<quint8>((font.bitsPerPixel * value + 7) / 8);
    }
};

} // namespace Glyphor
