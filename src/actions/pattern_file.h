#pragma once

#include "app/file.h"
#include "model/code_set.h"

namespace Glyphor {

// A list of characters as a text in UTF-16, little-endian with a byte order mark: every code unit
// counts, line breaks included.
class PatternFile : public File
{
public:
    using File::File;

    // Throws a CriticalException where the file can't be read or is no such text.
    [[nodiscard]] CodeSet Read();

    // Throws a CriticalException where the file can't be written.
    void Write(const CodeSet& codes);
};

} // namespace Glyphor
