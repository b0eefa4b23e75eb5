#pragma once

#include "cli/arguments.h"
#include "cli/command_line_option.h"

#include <QStringList>

#include <vector>

namespace Glyphor {

// Turns arguments into the options that they name, with their values. Any fault is a
// CriticalException, so that nothing runs unless everything can be read.
class CommandLineParser
{
public:
    // The arguments without the program's name; one occurrence for each use of an option.
    [[nodiscard]] std::vector<OptionOccurrence> parse(const QStringList& arguments) const;
    [[nodiscard]] std::vector<OptionOccurrence> Parse(const std::vector<Argument>& arguments) const;

    // Keeps only a standalone option where there is one, else sees to it that exactly one of each
    // exclusive pair is given. True where a standalone option was found.
    bool check(std::vector<OptionOccurrence>& occurrences) const;

    // The text that tells all about the command line.
    [[nodiscard]] QString usage() const;

    // The visible keywords with their descriptions, a line each, as the usage text has them.
    [[nodiscard]] QString KeywordList(const ParameterKeywordTable& keywords) const;
};

// The value that a text has as that parameter; throws a CriticalException where it has none.
[[nodiscard]] ParameterValue ParseValue(const CommandLineParameter& parameter, const QString& text);

// Puts the options into the order in which they run: the character selection, then the font that it
// applies to, the others as given, saving and leaving last.
void ReorderOccurrences(std::vector<OptionOccurrence>& occurrences);

} // namespace Glyphor
