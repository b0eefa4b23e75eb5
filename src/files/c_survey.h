#pragma once

#include <QByteArray>
#include <QStringList>

#include <string_view>

class QIODevice;

namespace Glyphor {

// The names of what a C text holds beside its first font, in their order: further fonts,
// declarations that the font does not refer to, and directives that generated files do not have.
// Empty for a text without a font. The text must be free of comments.
[[nodiscard]] QStringList BesideTheFont(std::string_view text);

// The same for an open file, comments and all.
[[nodiscard]] QStringList BesideTheFontOfFile(QIODevice& file);

// The first names, for a message.
[[nodiscard]] QString Enumerated(const QStringList& names);

// Whether the text is marked as one of 16 or 32 bits for each character, which C files are not.
[[nodiscard]] bool HasWideCharacters(const QByteArray& contents);

} // namespace Glyphor
