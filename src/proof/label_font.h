#pragma once

#include <QStringView>

#include <string>

namespace Glyphor {

// The small font that proofs are labelled with, so that they are the same on every machine.
namespace LabelFont {

inline constexpr int Width = 5;
inline constexpr int Height = 8;  // capitals have 7 rows
inline constexpr int Advance = 6; // pixels
inline constexpr int LineHeight = 10;

// The row of a character, its leftmost pixel in bit 4. Whatever is not in ASCII is a box.
[[nodiscard]] unsigned RowOf(char character, int row);

} // namespace LabelFont

// A text as labels have it: a box in the place of each character that is not in ASCII.
[[nodiscard]] std::string LabelText(QStringView text);

// Pixels from the left edge of the first character to the right edge of the last one.
[[nodiscard]] constexpr int LabelWidth(std::size_t length)
{
    return length == 0 ? 0 : static_cast<int>(length) * LabelFont::Advance - 1;
}

} // namespace Glyphor
