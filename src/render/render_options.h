#pragma once

#include "model/font_format.h"
#include "render/character_map.h"
#include "render/font_feature.h"

#include <QByteArray>

#include <vector>

namespace Glyphor {

// What is done to every outline before it is rendered; bits of a flag word.
enum FaceEffect : quint32 { BoldEffect = 1, ItalicEffect = 2 };

// What a height is the height of.
enum class HeightUnit {
    Box,        // the face's bounding box
    Capital,    // the ink of "H"
    LowercaseX, // the ink of "x"
    Line,       // the line that the font will have
    Em
};

// How outlines are fitted to the pixels: FreeType's load targets.
enum class Hinting { Default, Mono, Light, Auto, None };

// A place on one axis of a variable face, in the units of the axis.
struct AxisPosition
{
    QByteArray tag; // four characters, "wght"
    double value = 0;

    bool operator==(const AxisPosition&) const = default;
};

// A height as the user gives it. Front ends turn it into pixels, since they know the screen.
struct FontSize
{
    int value = 0;
    bool inPoints = false;
    HeightUnit unit = HeightUnit::Box;
    int sixtyFourths = 0; // beyond the value; of the em alone

    bool operator==(const FontSize&) const = default;

    [[nodiscard]] bool IsGiven() const { return value > 0 || sixtyFourths > 0; }

    // In 64ths.
    [[nodiscard]] qint64 FinePixels(int dotsPerInch) const
    {
        const qint64 fine = qint64(value) * 64 + sixtyFourths;
        return inPoints ? fine * dotsPerInch / 72 : fine;
    }
};

// How a scalable font is rendered: all that the result depends on, but for the file.
struct RenderOptions
{
    FontFormat format = FontFormat::Standard;
    EncodingType encoding = EncodingType::Unicode;
    int height = 0; // in pixels
    HeightUnit heightUnit = HeightUnit::Box;
    int sixtyFourths = 0; // of a pixel, beyond the height; of the em alone
    quint32 effects = 0;  // bits of FaceEffect
    int faceIndex = 0;
    bool useStrikes = true; // bitmaps of just this height, where the file carries them
    bool fitsInk = false;   // the line grows until all ink lies in it
    Hinting hinting = Hinting::Default;
    double gamma = 1;                    // above 1 makes the edges of strokes darker
    std::vector<AxisPosition> axes = {}; // those that are not named stay where the face has them
    int charmapIndex = -1;               // -1 for the one that speaks Unicode
    std::vector<FontFeature> features = {};
    CharacterMap map = {}; // every code of the face to itself where empty
    // Kerning of GPOS tables. It takes a library to be loaded, so runs that don't look at kerning
    // go without.
    bool findsLayoutKerning = true;
    int threads = 0; // 0 for as many as there are cores; the result is the same

    bool operator==(const RenderOptions&) const = default;

    void SetHeight(const FontSize& size, int dotsPerInch)
    {
        const qint64 fine = size.FinePixels(dotsPerInch);
        height = static_cast<int>(fine / 64);
        heightUnit = size.unit;
        sixtyFourths = size.unit == HeightUnit::Em ? static_cast<int>(fine % 64) : 0;
    }
};

} // namespace Glyphor
