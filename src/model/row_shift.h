#pragma once

#include "model/font.h"

#include <optional>

namespace Glyphor {

// Moves a character down by so many rows, or up where they are negative, and tells what of its ink
// lies outside its font's line then. The cells of legacy formats lose that; other characters keep
// it. An offset beyond its range gets empty rows above the picture. Nothing, and no change, where
// no character can be there.
[[nodiscard]] std::optional<InkOverflow> ShiftRows(Character& character, int rows);

} // namespace Glyphor
