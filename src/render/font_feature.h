#pragma once

#include <QString>

namespace Glyphor {

// A feature of a font that shows other glyphs, such as `zero` for slashed zeros.
struct FontFeature
{
    QString tag;       // four letters or digits
    int alternate = 1; // which of several glyphs it offers

    bool operator==(const FontFeature&) const = default;
};

} // namespace Glyphor
