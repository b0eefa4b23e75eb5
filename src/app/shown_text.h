#pragma once

#include <QString>

namespace Glyphor {

// A name from outside (a path, a font's name, an argument) on one line and without effects: control
// characters, line ends and characters that change the direction of writing are escaped as in C.
[[nodiscard]] QString Shown(QStringView name);

// The same for a text of more than one line, whose line ends stay.
[[nodiscard]] QString ShownLines(QStringView text);

} // namespace Glyphor
