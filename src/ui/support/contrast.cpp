#include "ui/support/contrast.h"

#include <algorithm>
#include <cmath>

namespace Glyphor {

namespace {

constexpr double LegibleContrast = 3.2; // 3, with room for rounding

double Luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor Between(const QColor& from, const QColor& to, int step, int steps)
{
    const auto part = [&](int first, int last) { return first + (last - first) * step / steps; };
    return {part(from.red(), to.red()), part(from.green(), to.green()),
            part(from.blue(), to.blue())};
}

} // namespace

double Contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor LegibleInk(const QColor& ink, const QColor& paper)
{
    constexpr int steps = 16;
    const QColor end =
        Contrast(Qt::black, paper) > Contrast(Qt::white, paper) ? Qt::black : Qt::white;
    for (int step = 0; step < steps; ++step) {
        const QColor colour = Between(ink, end, step, steps);
        if (Contrast(colour, paper) >= LegibleContrast)
            return colour;
    }
    return end;
}

} // namespace Glyphor
