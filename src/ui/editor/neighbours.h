#pragma once

#include "model/font.h"

#include <QImage>

#include <vector>

namespace Glyphor {

// A character that stands beside another one in a text.
struct Neighbour
{
    QImage picture; // in black, one to one
    QPoint place;   // from the other one's cursor position and the top of the line

    bool operator==(const Neighbour&) const = default;
};

// Those beside the character where the text has it first with ink on both sides, or else on one.
// They stand where firmware puts them that applies kerning.
[[nodiscard]] std::vector<Neighbour> NeighboursIn(const QString& text, const Font& font,
                                                  quint16 code);

} // namespace Glyphor
