#pragma once

#include "actions/action_open_font.h"
#include "cli/command_line_option.h"

namespace Glyphor {

// What the options that run no action of their own say, once for the whole run.
struct RunOptions
{
    // The fields that options fill; the path comes with the option that opens the font.
    ActionOpenFontArgs open;
    bool verbose = false;
};

// Reads and checks these options; a missing height may be asked for where somebody can. Throws a
// CriticalException for a height that is no height, or that is missing where the font to open needs
// one; warns of a height without a unit.
[[nodiscard]] RunOptions ReadRunOptions(const std::vector<OptionOccurrence>& occurrences,
                                        bool canAsk = false);

// "24px", "18pt", or a bare number of pixels, after a warning.
[[nodiscard]] FontSize ParseHeight(const QString& text);

// The range in ascending order, after a warning where it was reversed.
[[nodiscard]] CodeRange Ordered(CodeRange range);

// Applies an -enable or -disable range to the character selection, which begins empty where its
// first option enables, and full where it disables.
void SelectRange(std::optional<CodeSet>& selection, CodeRange range, bool state);

// Adds the characters of a pattern file to the selection, which begins empty where this is first.
void SelectPattern(std::optional<CodeSet>& selection, const QString& path);

} // namespace Glyphor
