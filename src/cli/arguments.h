#pragma once

#include "app/place.h"
#include "cli/command_line_option.h"

#include <QString>
#include <QStringList>

#include <set>
#include <vector>

namespace Glyphor {

// One word of the command line.
struct Argument
{
    QString text;
    Place place; // in the argument file that it comes from; nowhere on the command line itself
};

struct Arguments
{
    std::vector<Argument> words;
    QStringList files; // that words were read from

    std::set<OptionId> options; // that are named among the words

    [[nodiscard]] bool Names(OptionId option) const { return options.contains(option); }
};

// The words without the program's name. Where an option or the font file could stand, "@FILE"
// stands for the words in that file: an option with its values a line, quotes around what has
// blanks, and comments behind "#". Throws a CriticalException where such a file can't be read, or
// is nested too deep.
[[nodiscard]] Arguments ReadArguments(int argc, const char* const* argv);

// The words as they are written on the command line.
[[nodiscard]] Arguments WrittenArguments(int argc, const char* const* argv);

} // namespace Glyphor
