#pragma once

#include "model/pixel_plane.h"

#include <QPoint>

#include <vector>

namespace Glyphor {

// Without gaps, both ends included.
[[nodiscard]] std::vector<QPoint> LinePixels(QPoint from, QPoint to);

// With the two pixels in opposite corners.
[[nodiscard]] std::vector<QPoint> RectanglePixels(QPoint from, QPoint to);
[[nodiscard]] std::vector<QPoint> FilledRectanglePixels(QPoint from, QPoint to);

// The end of the level, upright or diagonal line that comes nearest.
[[nodiscard]] QPoint StraightEnd(QPoint from, QPoint to);

// The corner of the square that has the longer side.
[[nodiscard]] QPoint SquareEnd(QPoint from, QPoint to);

// Those of the same index that can be reached from one without a diagonal step; none from outside.
[[nodiscard]] std::vector<QPoint> AreaPixels(const QByteArray& plane, const PixelLayout& layout,
                                             QPoint start);

} // namespace Glyphor
