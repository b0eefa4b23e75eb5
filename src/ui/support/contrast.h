#pragma once

#include <QColor>

namespace Glyphor {

// How much two opaque colours differ in luminance, as for texts: from 1 to 21.
[[nodiscard]] double Contrast(const QColor& one, const QColor& other);

// The ink, or what is nearest to it on the way to black or white that can be read on the paper.
[[nodiscard]] QColor LegibleInk(const QColor& ink, const QColor& paper);

} // namespace Glyphor
