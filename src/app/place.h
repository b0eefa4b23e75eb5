#pragma once

#include <QString>

namespace Glyphor {

// Where a message belongs: in a file, or at an option of the command line.
struct Place
{
    QString file;        // empty: in none
    int line = 0;        // counted from 1; 0: the file as a whole
    QString option = {}; // as it was written, "-save"
};

} // namespace Glyphor
