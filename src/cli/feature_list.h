#pragma once

#include "cli/command_line_option.h"
#include "render/font_feature.h"

namespace Glyphor {

// The list that -features takes: tags with commas between them, each with the number of the
// alternate glyph where that is not the first. Throws a CriticalException for anything else.
[[nodiscard]] std::vector<FontFeature> ParseFeatures(const OptionOccurrence& occurrence);

} // namespace Glyphor
