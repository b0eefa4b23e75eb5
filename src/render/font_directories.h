#pragma once

#include <QStringList>

namespace Glyphor {

// Where this system keeps its fonts: what fontconfig names, which has the directories below as
// well, or the toolkit's standard locations where there is no fontconfig.
[[nodiscard]] QStringList SystemFontDirectories();

} // namespace Glyphor
