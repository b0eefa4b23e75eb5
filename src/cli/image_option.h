#pragma once

#include "cli/command_line_option.h"
#include "render/picture_glyph.h"

namespace Glyphor {

// The picture of a use of -image, and the value of one of -threshold. Throw a CriticalException for
// what is out of range.
[[nodiscard]] FontImage ImageOf(const OptionOccurrence& occurrence);
[[nodiscard]] int ThresholdOf(const OptionOccurrence& occurrence);

} // namespace Glyphor
