#pragma once

#include <QByteArray>

namespace Glyphor {

// A character code as all texts show it: four upper-case hexadecimal digits.
[[nodiscard]] inline QByteArray Hex4(quint16 code)
{
    constexpr char digits[] = "0123456789ABCDEF";
    const char text[] = {digits[code >> 12], digits[code >> 8 & 15], digits[code >> 4 & 15],
                         digits[code & 15]};
    return {text, sizeof text};
}

} // namespace Glyphor
