#pragma once

#include <QtGlobal>

namespace Glyphor {

// Consecutive codes, from the first to the last.
struct CodeRange
{
    quint16 first = 0;
    quint16 last = 0;

    [[nodiscard]] int Size() const { return last - first + 1; }
    bool operator==(const CodeRange&) const = default;
};

} // namespace Glyphor
