#pragma once

#include "model/font_metrics.h"

namespace Glyphor {

// What a source says about a character, in pixels, before it is known to fit.
struct CharMetrics
{
    int width = 0;
    int height = 0;
    int xPos = 0;
    int yPos = 0;
    int cursorDistance = 0;

    bool operator==(const CharMetrics&) const = default;

    // True where every value fits its field of a character.
    [[nodiscard]] constexpr bool FitFields() const
    {
        const auto isByte = [](int value) { return value >= 0 && value <= 255; };
        const auto isOffset = [](int value) { return value >= -128 && value <= 127; };
        return isByte(width) && isByte(height) && isByte(cursorDistance) && isOffset(xPos) &&
               isOffset(yPos);
    }
};

// The metrics of one character, in pixels.
struct CharInfo
{
    static constexpr int MaxSize = 255;
    static constexpr int MinOffset = -128;
    static constexpr int MaxOffset = 127;

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
        bytesPerLine = static_cast<quint8>(BytesPerLine<int>(value, font.bitsPerPixel));
    }

    [[nodiscard]] CharMetrics Metrics() const
    {
        return {width, height, xPos, yPos, cursorDistance};
    }

    // They must fit.
    void Set(const CharMetrics& metrics)
    {
        SetWidth(static_cast<quint8>(metrics.width));
        height = static_cast<quint8>(metrics.height);
        xPos = static_cast<qint8>(metrics.xPos);
        yPos = static_cast<qint8>(metrics.yPos);
        cursorDistance = static_cast<quint8>(metrics.cursorDistance);
    }
};

} // namespace Glyphor
