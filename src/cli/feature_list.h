#pragma once

#include "cli/command_line_option.h"
#include "render/font_feature.h"

namespace Glyphor {

// The list that -features takes: tags with commas between them, each with the number of the
// alternate glyph where that is not the first. Throws a CriticalException for anything else.
[[nodiscard]] std::vector<FontFeature> ParseFeatures(const QString& list);

// The list that gives the features again.
[[nodiscard]] QString TextOf(const std::vector<FontFeature>& features);

} // namespace Glyphor
