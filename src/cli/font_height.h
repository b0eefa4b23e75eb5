#pragma once

#include "render/render_options.h"

#include <QString>

namespace Glyphor {

// "24px", "18pt", or a bare number of pixels, after a warning; behind "cap:", "x:", "line:" or
// "em:" that of something else than the box.
[[nodiscard]] FontSize ParseHeight(const QString& text);

// The text that gives the height again.
[[nodiscard]] QString TextOf(const FontSize& size);

} // namespace Glyphor
