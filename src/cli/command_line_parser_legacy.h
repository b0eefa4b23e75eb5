#pragma once

#include "cli/command_line_option.h"

#include <vector>

namespace Glyphor {

// What an argument of the older syntax stands for.
struct LegacyUses
{
    std::vector<OptionOccurrence> uses;   // none where the argument has no form of that syntax
    std::vector<OptionOccurrence> limits; // of its encoding; they go behind all that selects
};

// Reads arguments of the older syntax, which carry their parameters themselves, as in
// "-enable0x20-0x7E~1", into the options that say the same today. Keywords have other meanings
// there. Faults are CriticalExceptions.
class CommandLineParserLegacy
{
public:
    [[nodiscard]] LegacyUses Parse(const QString& argument) const;

    // True for an argument that begins as one of that syntax. Names of options go first.
    [[nodiscard]] bool CanBegin(QStringView argument) const;
};

} // namespace Glyphor
