#pragma once

#include <QString>

#include <vector>

namespace Glyphor {

// A character that a text asks for, and the line where it stands first, counted from 1.
struct TextCharacter
{
    char32_t code = 0;
    int line = 0;

    bool operator==(const TextCharacter&) const = default;
};

// The characters that the texts in a file need, in the order of their first occurrence:
// translations of gettext (.po, .pot), Qt (.ts) and XLIFF (.xlf, .xliff) that are finished, the
// values of JSON, the fields of CSV, the string literals of C and C++, and any other file as a
// whole. Files are in UTF-8, or in UTF-16 with a byte order mark. Control characters and byte order
// marks are left out. Throws a CriticalException with the place where the file is damaged or can't
// be read.
[[nodiscard]] std::vector<TextCharacter> ReadTextFile(const QString& path);

} // namespace Glyphor
