#include "ui/editor/pixel_shapes.h"

#include "model/char_info.h"

#include <QRect>

#include <algorithm>
#include <cstdlib>

namespace Glyphor {

namespace {

// Cut beyond the largest bitmap, where it is of no use.
QRect Spanned(QPoint from, QPoint to)
{
    const QRect rect(QPoint(std::min(from.x(), to.x()), std::min(from.y(), to.y())),
                     QPoint(std::max(from.x(), to.x()), std::max(from.y(), to.y())));
    return rect & QRect(QPoint(-1, -1), QPoint(CharInfo::MaxSize, CharInfo::MaxSize));
}

int SignOf(int value)
{
    return (value > 0 ? 1 : 0) - (value < 0 ? 1 : 0);
}

} // namespace

// Bresenham's, for all directions.
std::vector<QPoint> LinePixels(QPoint from, QPoint to)
{
    const int width = std::abs(to.x() - from.x());
    const int height = std::abs(to.y() - from.y());
    const int right = SignOf(to.x() - from.x());
    const int down = SignOf(to.y() - from.y());
    std::vector<QPoint> pixels = {from};
    int error = width - height;
    while (from != to) {
        const int doubled = 2 * error;
        if (doubled >= -height) {
            error -= height;
            from.rx() += right;
        }
        if (doubled <= width) {
            error += width;
            from.ry() += down;
        }
        pixels.push_back(from);
    }
    return pixels;
}

std::vector<QPoint> RectanglePixels(QPoint from, QPoint to)
{
    const QRect rect = Spanned(from, to);
    std::vector<QPoint> pixels;
    for (int x = rect.left(); x <= rect.right(); ++x) {
        pixels.emplace_back(x, rect.top());
        pixels.emplace_back(x, rect.bottom());
    }
    for (int y = rect.top() + 1; y < rect.bottom(); ++y) {
        pixels.emplace_back(rect.left(), y);
        pixels.emplace_back(rect.right(), y);
    }
    return pixels;
}

std::vector<QPoint> FilledRectanglePixels(QPoint from, QPoint to)
{
    const QRect rect = Spanned(from, to);
    std::vector<QPoint> pixels;
    for (int y = rect.top(); y <= rect.bottom(); ++y)
        for (int x = rect.left(); x <= rect.right(); ++x)
            pixels.emplace_back(x, y);
    return pixels;
}

QPoint StraightEnd(QPoint from, QPoint to)
{
    const QPoint way = to - from;
    const int width = std::abs(way.x());
    const int height = std::abs(way.y());
    if (height * 2 < width)
        return {to.x(), from.y()};
    if (width * 2 < height)
        return {from.x(), to.y()};
    return SquareEnd(from, to);
}

QPoint SquareEnd(QPoint from, QPoint to)
{
    const QPoint way = to - from;
    const int side = std::max(std::abs(way.x()), std::abs(way.y()));
    return from + QPoint(way.x() < 0 ? -side : side, way.y() < 0 ? -side : side);
}

std::vector<QPoint> AreaPixels(const QByteArray& plane, const PixelLayout& layout, QPoint start)
{
    const QRect bounds(0, 0, layout.width, layout.rows);
    if (!bounds.contains(start))
        return {};
    const auto indexAt = [&](QPoint pixel) {
        return PixelPlane::GetPixel(plane, layout, pixel.x(), pixel.y());
    };
    const int index = indexAt(start);
    std::vector<bool> isTaken(static_cast<std::size_t>(layout.width) *
                              static_cast<std::size_t>(layout.rows));
    std::vector<QPoint> pixels;
    const auto take = [&](QPoint pixel) {
        const int number = pixel.y() * layout.width + pixel.x();
        if (!bounds.contains(pixel) || isTaken[std::size_t(number)] || indexAt(pixel) != index)
            return;
        isTaken[std::size_t(number)] = true;
        pixels.push_back(pixel);
    };
    take(start);
    for (std::size_t next = 0; next < pixels.size(); ++next) {
        const QPoint pixel = pixels[next];
        for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
            take(pixel + step);
    }
    return pixels;
}

} // namespace Glyphor
