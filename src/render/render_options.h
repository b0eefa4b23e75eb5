#pragma once

#include "model/font_format.h"
#include "render/font_feature.h"

#include <vector>

namespace Glyphor {

// What is done to every outline before it is rendered; bits of a flag word.
enum FaceEffect : quint32 { BoldEffect = 1, ItalicEffect = 2 };

// How a scalable font is rendered: all that the result depends on, but for the file.
struct RenderOptions
{
    FontFormat format = FontFormat::Standard;
    EncodingType encoding = EncodingType::Unicode;
    int height = 0;      // of the face's bounding box, in pixels
    quint32 effects = 0; // bits of FaceEffect
    int faceIndex = 0;
    bool useStrikes = true; // bitmaps of just this height, where the file carries them

    // Kerning of GPOS tables. It takes a library to be loaded, so runs that don't look at kerning
    // go without.
    bool findsLayoutKerning = true;

    std::vector<FontFeature> features = {};

    bool operator==(const RenderOptions&) const = default;
};

// A height as the user gives it. Front ends turn it into pixels, since they know the screen.
struct FontSize
{
    int value = 0;
    bool inPoints = false;

    [[nodiscard]] int PixelHeight(int dotsPerInch) const
    {
        return inPoints ? static_cast<int>(qint64(value) * dotsPerInch / 72) : value;
    }
};

} // namespace Glyphor
