#pragma once

#include <QString>

namespace Glyphor {

// A name from outside (a path, a font's name, an argument) on one line and without effects: control
// characters, line ends and characters that change the direction of writing are escaped as in C,
// and so are the bytes of a file name that are no characters (\xE9).
[[nodiscard]] QString Shown(QStringView name);

// The same for a text of more than one line, whose line ends stay.
[[nodiscard]] QString ShownLines(QStringView text);

// Escapes nothing but such bytes, without which a text can't be written in UTF-8.
[[nodiscard]] QString ShownBytes(QStringView text);

} // namespace Glyphor
