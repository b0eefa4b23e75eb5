#pragma once

#include <QtGlobal>

#include <array>
#include <span>
#include <string_view>
#include <vector>

namespace Glyphor {

// The colours of proofs, as indices into the palette of their pictures. The first ones are levels
// of ink, from none to full.
namespace ProofColour {

inline constexpr quint8 FullInk = 15;

enum : quint8 {
    Paper = 0,
    Ink = FullInk,
    Label,
    Rule,
    Advance,
    Bitmap,
    Baseline,
    Frame,
    Missing,
    MorePart, // of a difference: ink that came, in part and in full
    More,
    LessPart,
    Less,
    Count
};

} // namespace ProofColour

struct Rgb
{
    quint8 red;
    quint8 green;
    quint8 blue;
};

[[nodiscard]] const std::array<Rgb, ProofColour::Count>& ProofPalette();

struct Area
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Area&) const = default;
};

// A picture of palette indices. What is drawn outside of it is cut off.
class Canvas
{
public:
    Canvas(int width, int height)
        : width_(width), height_(height), pixels_(std::size_t(width) * std::size_t(height))
    {}

    [[nodiscard]] int Width() const { return width_; }
    [[nodiscard]] int Height() const { return height_; }
    [[nodiscard]] std::span<const quint8> Row(int y) const
    {
        return {pixels_.data() + std::size_t(y) * std::size_t(width_), std::size_t(width_)};
    }

    void Fill(const Area& area, quint8 colour);

    // The edge of the area, one pixel wide.
    void Outline(const Area& area, quint8 colour);

    // A text of the label font, enlarged by a whole number.
    void Text(int x, int y, std::string_view text, quint8 colour, int zoom = 1);

private:
    int width_;
    int height_;
    std::vector<quint8> pixels_;
};

} // namespace Glyphor
