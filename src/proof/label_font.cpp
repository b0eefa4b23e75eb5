#include "proof/label_font.h"

#include <QList>

#include <array>

namespace Glyphor {

namespace {

constexpr char FirstLabel = ' ';
constexpr char LabelBox = '\x7F';
constexpr std::size_t LabelsPerBand = 12;
constexpr std::size_t LabelBands = 8;

// The characters from the blank to the box, side by side.
// clang-format off
constexpr std::array<const char*, LabelBands * std::size_t(LabelFont::Height)> LabelRows = {
    "..... ..X.. .X.X. .X.X. ..X.. XX..X .XX.. ..X.. ...X. .X... ..... .....",
    "..... ..X.. .X.X. .X.X. .XXXX XX..X X..X. ..X.. ..X.. ..X.. ..X.. ..X..",
    "..... ..X.. .X.X. XXXXX X.X.. ...X. X.X.. ..... .X... ...X. X.X.X ..X..",
    "..... ..X.. ..... .X.X. .XXX. ..X.. .X... ..... .X... ...X. .XXX. XXXXX",
    "..... ..X.. ..... XXXXX ..X.X .X... X.X.X ..... .X... ...X. X.X.X ..X..",
    "..... ..... ..... .X.X. XXXX. X..XX X..X. ..... ..X.. ..X.. ..X.. ..X..",
    "..... ..X.. ..... .X.X. ..X.. X..XX .XX.X ..... ...X. .X... ..... .....",
    "..... ..... ..... ..... ..... ..... ..... ..... ..... ..... ..... .....",
    "..... ..... ..... ....X .XXX. ..X.. .XXX. XXXXX ...X. XXXXX ..XX. XXXXX",
    "..... ..... ..... ....X X...X .XX.. X...X ...X. ..XX. X.... .X... ....X",
    "..... ..... ..... ...X. X..XX ..X.. ....X ..X.. .X.X. XXXX. X.... ...X.",
    "..... XXXXX ..... ..X.. X.X.X ..X.. ...X. ...X. X..X. ....X XXXX. ..X..",
    "..... ..... ..... .X... XX..X ..X.. ..X.. ....X XXXXX ....X X...X ..X..",
    "..X.. ..... .XX.. X.... X...X ..X.. .X... X...X ...X. X...X X...X .X...",
    "..X.. ..... .XX.. X.... .XXX. .XXX. XXXXX .XXX. ...X. .XXX. .XXX. .X...",
    ".X... ..... ..... ..... ..... ..... ..... ..... ..... ..... ..... .....",
    ".XXX. .XXX. ..... ..... ...X. ..... .X... .XXX. .XXX. .XXX. XXXX. .XXX.",
    "X...X X...X ..... ..... ..X.. ..... ..X.. X...X X...X X...X X...X X...X",
    "X...X X...X ..X.. ..X.. .X... XXXXX ...X. ....X X.XXX X...X X...X X....",
    ".XXX. .XXXX ..... ..... X.... ..... ....X ...X. X.X.X XXXXX XXXX. X....",
    "X...X ....X ..... ..... .X... XXXXX ...X. ..X.. X.XXX X...X X...X X....",
    "X...X ...X. ..X.. ..X.. ..X.. ..... ..X.. ..... X.... X...X X...X X...X",
    ".XXX. .XX.. ..... ..X.. ...X. ..... .X... ..X.. .XXXX X...X XXXX. .XXX.",
    "..... ..... ..... .X... ..... ..... ..... ..... ..... ..... ..... .....",
    "XXXX. XXXXX XXXXX .XXX. X...X .XXX. ..XXX X...X X.... X...X X...X .XXX.",
    "X...X X.... X.... X...X X...X ..X.. ...X. X..X. X.... XX.XX XX..X X...X",
    "X...X X.... X.... X.... X...X ..X.. ...X. X.X.. X.... X.X.X X.X.X X...X",
    "X...X XXXX. XXXX. X.XXX XXXXX ..X.. ...X. XX... X.... X.X.X X..XX X...X",
    "X...X X.... X.... X...X X...X ..X.. ...X. X.X.. X.... X...X X...X X...X",
    "X...X X.... X.... X...X X...X ..X.. X..X. X..X. X.... X...X X...X X...X",
    "XXXX. XXXXX X.... .XXXX X...X .XXX. .XX.. X...X XXXXX X...X X...X .XXX.",
    "..... ..... ..... ..... ..... ..... ..... ..... ..... ..... ..... .....",
    "XXXX. .XXX. XXXX. .XXXX XXXXX X...X X...X X...X X...X X...X XXXXX .XXX.",
    "X...X X...X X...X X.... ..X.. X...X X...X X...X X...X X...X ....X .X...",
    "X...X X...X X...X X.... ..X.. X...X X...X X...X .X.X. .X.X. ...X. .X...",
    "XXXX. X...X XXXX. .XXX. ..X.. X...X X...X X.X.X ..X.. ..X.. ..X.. .X...",
    "X.... X.X.X X.X.. ....X ..X.. X...X X...X X.X.X .X.X. ..X.. .X... .X...",
    "X.... X..X. X..X. ....X ..X.. X...X .X.X. XX.XX X...X ..X.. X.... .X...",
    "X.... .XX.X X...X XXXX. ..X.. .XXX. ..X.. X...X X...X ..X.. XXXXX .XXX.",
    "..... ..... ..... ..... ..... ..... ..... ..... ..... ..... ..... .....",
    "X.... .XXX. ..X.. ..... .X... ..... X.... ..... ....X ..... ..XX. .....",
    "X.... ...X. .X.X. ..... ..X.. ..... X.... ..... ....X ..... .X... .....",
    ".X... ...X. X...X ..... ..... .XXX. XXXX. .XXX. .XXXX .XXX. XXXX. .XXXX",
    "..X.. ...X. ..... ..... ..... ....X X...X X.... X...X X...X .X... X...X",
    "...X. ...X. ..... ..... ..... .XXXX X...X X.... X...X XXXXX .X... X...X",
    "....X ...X. ..... ..... ..... X...X X...X X...X X...X X.... .X... .XXXX",
    "....X .XXX. ..... ..... ..... .XXXX XXXX. .XXX. .XXXX .XXX. .X... ....X",
    "..... ..... ..... XXXXX ..... ..... ..... ..... ..... ..... ..... .XXX.",
    "X.... ..X.. ...X. X.... .XX.. ..... ..... ..... ..... ..... ..... .....",
    "X.... ..... ..... X.... ..X.. ..... ..... ..... ..... ..... ..... .....",
    "XXXX. .XX.. ..XX. X..X. ..X.. XX.X. XXXX. .XXX. XXXX. .XXXX X.XX. .XXXX",
    "X...X ..X.. ...X. X.X.. ..X.. X.X.X X...X X...X X...X X...X XX..X X....",
    "X...X ..X.. ...X. XX... ..X.. X.X.X X...X X...X X...X X...X X.... .XXX.",
    "X...X ..X.. ...X. X.X.. ..X.. X.X.X X...X X...X XXXX. .XXXX X.... ....X",
    "X...X .XXX. X..X. X..X. .XXX. X.X.X X...X .XXX. X.... ....X X.... XXXX.",
    "..... ..... .XX.. ..... ..... ..... ..... ..... X.... ....X ..... .....",
    ".X... ..... ..... ..... ..... ..... ..... ...X. ..X.. .X... ..... XXXXX",
    ".X... ..... ..... ..... ..... ..... ..... ..X.. ..X.. ..X.. ..... X...X",
    "XXXX. X...X X...X X...X X...X X...X XXXXX ..X.. ..X.. ..X.. .X..X X...X",
    ".X... X...X X...X X.X.X .X.X. X...X ...X. .X... ..X.. ...X. X.X.X X...X",
    ".X... X...X X...X X.X.X ..X.. X...X ..X.. ..X.. ..X.. ..X.. X..X. X...X",
    ".X..X X..XX .X.X. X.X.X .X.X. .XXXX .X... ..X.. ..X.. ..X.. ..... X...X",
    "..XX. .XX.X ..X.. .X.X. X...X ....X XXXXX ...X. ..X.. .X... ..... XXXXX",
    "..... ..... ..... ..... ..... .XXX. ..... ..... ..... ..... ..... .....",
};
// clang-format on

} // namespace

unsigned LabelFont::RowOf(char character, int row)
{
    const bool isKnown = character >= FirstLabel && character < LabelBox;
    const auto index = std::size_t((isKnown ? character : LabelBox) - FirstLabel);
    const char* const pixels =
        LabelRows[index / LabelsPerBand * std::size_t(Height) + std::size_t(row)] +
        index % LabelsPerBand * std::size_t(Advance);
    unsigned bits = 0;
    for (int column = 0; column < Width; ++column)
        bits = bits << 1 | unsigned(pixels[column] == 'X');
    return bits;
}

std::string LabelText(QStringView text)
{
    std::string label;
    for (const char32_t character : text.toUcs4())
        label += character >= U' ' && character < U'\x7F' ? char(character) : LabelBox;
    return label;
}

} // namespace Glyphor
