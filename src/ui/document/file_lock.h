#pragma once

#include <QString>

#include <memory>

namespace Glyphor {

// A file that one process at a time holds, until it lets go of it or ends, however it ends.
class FileLock
{
public:
    virtual ~FileLock() = default;
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    // Makes the file where there is none. Null where somebody else holds it, or it can't be made.
    [[nodiscard]] static std::unique_ptr<FileLock> Take(const QString& path);

    virtual void RemoveFile() = 0;

protected:
    FileLock() = default;
};

} // namespace Glyphor
