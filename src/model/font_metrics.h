#pragma once

#include "model/font_format.h"

namespace Glyphor {

// What a font fixes for all its characters. Heights and distances are in pixels.
struct FontMetrics
{
    quint8 bitsPerPixel = 0;
    FontFormat format = FontFormat::Unknown;
    EncodingType encoding = EncodingType::Unicode;
    quint8 verticalSpace = 0;
    quint8 height = 0;
    quint8 baseline = 0; // from the top of the font
    quint8 lowercaseHeight = 0;
    quint8 capitalHeight = 0;
    quint8 maxWidth = 0;
};

// Bytes of a row of packed pixels.
template <typename Width>
[[nodiscard]] constexpr Width BytesPerLine(Width width, int bitsPerPixel)
{
    return (width * bitsPerPixel + 7) / 8;
}

} // namespace Glyphor
