#pragma once

#include <QString>

namespace Glyphor {

// A short text of the engine in the language of the window: a format's name, the name of a piece of
// work. Other texts stay as they are.
[[nodiscard]] QString Translated(const QString& text);

// The filter of a file dialog with its descriptions in the language of the window.
[[nodiscard]] QString TranslatedFilter(const QString& filter);

} // namespace Glyphor
