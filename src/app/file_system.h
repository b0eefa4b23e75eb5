#pragma once

#include <QStringList>

#include <optional>

namespace Glyphor {

// What the system says about files, whatever bytes their names have. Links are followed.

enum class FileKind { None, Ordinary, Directory, Other };

[[nodiscard]] FileKind KindOf(const QString& path);

// In bytes; 0 where that is not known.
[[nodiscard]] qint64 SizeOfFile(const QString& path);

// What tells a version of a file from the others that have its name.
struct FileStamp
{
    qint64 size = 0;
    qint64 modified = 0; // nanoseconds since 1970
    quint64 number = 0;  // of the file in its file system

    bool operator==(const FileStamp&) const = default;
};

// Nothing where there is no ordinary file.
[[nodiscard]] std::optional<FileStamp> StampOf(const QString& path);

// The names of the ordinary files or of the directories in a directory, but for hidden ones, in the
// system's order.
[[nodiscard]] QStringList EntriesOf(const QString& directory, FileKind kind);

// The same path for all names of a file that exists; empty for any other.
[[nodiscard]] QString CanonicalPathOf(const QString& path);

// From the root on, tidied up.
[[nodiscard]] QString AbsolutePathOf(const QString& path);

// Finds the file again whose name came through a conversion that replaced bytes by U+FFFD: the one
// name that looks like it. The path stays as it is where there is such a file, or none or several
// look like it.
[[nodiscard]] QString WithLostBytes(const QString& path);

} // namespace Glyphor
