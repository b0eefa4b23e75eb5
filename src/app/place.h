#pragma once

#include <QString>

namespace Glyphor {

// Where in a file a message belongs.
struct Place
{
    QString file; // empty: nowhere in particular
    int line = 0; // counted from 1; 0: the file as a whole
};

} // namespace Glyphor
