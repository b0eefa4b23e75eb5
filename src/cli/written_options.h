#pragma once

#include "actions/action_open_font.h"

#include <QStringList>

#include <optional>

namespace Glyphor {

// The arguments of the command line that make what the window makes. Options stay out where they
// would say the default, and points are written as the pixels that they come to.

// The file, and the options that say how it is rendered. Characters are selected by ranges, unless
// other words do so.
[[nodiscard]] QStringList WordsOf(const ActionOpenFontArgs& args,
                                  const std::optional<QStringList>& selection = std::nullopt);

// Selects the characters by their text; nothing where no text can.
[[nodiscard]] std::optional<QStringList> WordsOfText(const CodeSet& codes);

// Have the preferences give the same file whoever runs the line.
[[nodiscard]] QStringList PreferenceWords();

// The words as a line for a POSIX shell.
[[nodiscard]] QString ShellLine(const QStringList& words);

} // namespace Glyphor
