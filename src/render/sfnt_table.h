#pragma once

#include "render/free_type_face.h"

#include <span>
#include <vector>

namespace Glyphor {

// A table of an SFNT font; empty where the face has none.
[[nodiscard]] std::vector<quint8> SfntTable(FT_Face face, FT_ULong tag);

[[nodiscard]] bool HasSfntTable(const FreeTypeFace& face, FT_ULong tag);

// The number of 16 bits at an offset; the bytes must reach as far.
[[nodiscard]] quint16 Number(std::span<const quint8> bytes, std::size_t offset);

} // namespace Glyphor
