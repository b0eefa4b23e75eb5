#pragma once

#include <QString>

namespace Glyphor {

// The name of a format or of a kind of files in the language of the window.
[[nodiscard]] QString Translated(const QString& text);

// The filter of a file dialog with its descriptions in the language of the window.
[[nodiscard]] QString TranslatedFilter(const QString& filter);

} // namespace Glyphor
