#pragma once

#include "files/c_file_text.h"
#include "files/file_types.h"

#include <QStringList>

#include <memory>

namespace Glyphor {

// Throws a CriticalException unless there is a file with something in it that may be read.
void CheckReadableFile(const QString& path);

// The same, and unless its name tells a known kind.
FileType CheckInputFile(const QString& path);

// What the settings say about generated C files; the log is told where they want it told.
[[nodiscard]] CFileOptions CFileOptionsOfSettings(const QStringList& actionLog);

// The file object for one of our own kinds, to be read. Throws a CriticalException for any other
// kind.
[[nodiscard]] std::unique_ptr<FontFile> MakeInputFile(const QString& path,
                                                      const FormatAnswer& answer);

// The file object for a font to be written. The log is what text files tell of the font's history,
// if the settings want it told. Throws a CriticalException for a kind that is never written.
[[nodiscard]] std::unique_ptr<FontFile> MakeOutputFile(const QString& path,
                                                       const QStringList& actionLog);

} // namespace Glyphor
