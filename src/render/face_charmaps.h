#pragma once

#include <QString>
#include <QStringList>

#include <ft2build.h>
#include FT_FREETYPE_H

namespace Glyphor {

// Selects the charmap with the index, or with -1 one whose codes can be those of a font: Unicode's,
// else that of a symbol font with its own codes. Throws a CriticalException where there is none.
void SelectCharmap(FT_Face face, int index);

// Each charmap of the face with its index, "0: Mac Roman".
[[nodiscard]] QStringList CharmapNames(FT_Face face);

// Whether the face has charmaps that do not speak Unicode.
[[nodiscard]] bool HasOtherCharmaps(FT_Face face);

} // namespace Glyphor
