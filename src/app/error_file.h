#pragma once

#include "app/file.h"

namespace Glyphor {

// Keeps the text of a fatal error in the working directory, for a calling tool to read.
class ErrorFile : public File
{
public:
    ErrorFile();

    void Write(const QString& text) { Replace(text.toUtf8()); }
};

} // namespace Glyphor
