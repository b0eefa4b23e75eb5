#pragma once

#include "actions/action_merge_font.h"
#include "actions/action_open_font.h"
#include "actions/demand.h"
#include "cli/command_line_option.h"

#include <functional>

namespace Glyphor {

// What the options that run no action of their own say, once for the whole run.
struct RunOptions
{
    // The fields that options fill; the path comes with the option that opens the font.
    ActionOpenFontArgs open;
    Demand demand; // for what the selection of characters asks for
    bool verbose = false;
    bool onlyChecks = false;
    bool writesKerning = false;
    bool warningsAreErrors = false;
    std::optional<MergeAlignment> alignment;
    QString headerPath;         // empty for none
    QString reportPath;         // likewise
    QString dependencyFilePath; // likewise
    QString proofPath;          // likewise
};

// Reads and checks these options; a missing height may be asked for where somebody can. Throws a
// CriticalException for a height that is no height, or that is missing where the font to open needs
// one, and for files that can't be written because of their kind; warns of a height without a unit.
// `onOption` is told which option is read.
[[nodiscard]] RunOptions ReadRunOptions(
    const std::vector<OptionOccurrence>& occurrences, bool canAsk = false,
    const std::function<void(const Place&)>& onOption = [](const Place&) {});

// The range in ascending order, after a warning where it was reversed.
[[nodiscard]] CodeRange Ordered(CodeRange range);

// Applies an -enable or -disable range to the character selection, which begins empty where its
// first option enables, and full where it disables.
void SelectRange(std::optional<CodeSet>& selection, CodeRange range, bool state);

// Adds codes to the selection, which begins empty where this is first.
void SelectCodes(std::optional<CodeSet>& selection, const CodeSet& codes);

// Runs an option that selects characters.
void Select(const OptionOccurrence& occurrence, RunOptions& options);

// Warns of an option that says how fonts are rendered, which that of the file is not; some of them
// count for its sources.
void WarnOfUnusedOption(const OptionOccurrence& occurrence, const QString& path, bool usesSources);

} // namespace Glyphor
