#include "ui/document/file_lock.h"

#ifdef Q_OS_UNIX
#include "app/file_name.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <QLockFile>
#endif

namespace Glyphor {

namespace {

#ifdef Q_OS_UNIX

class SystemLock final : public FileLock
{
public:
    explicit SystemLock(const QString& path) : path_(BytesOf(path))
    {
        constexpr mode_t mode = 0600;
        file_ = ::open(path_.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, mode);
    }
    ~SystemLock() override
    {
        if (file_ >= 0)
            ::close(file_);
    }

    // Whoever held it may have removed the file meanwhile.
    [[nodiscard]] bool Lock() const
    {
        struct stat opened = {};
        struct stat there = {};
        return file_ >= 0 && ::flock(file_, LOCK_EX | LOCK_NB) == 0 &&
               ::fstat(file_, &opened) == 0 && ::lstat(path_.constData(), &there) == 0 &&
               opened.st_ino == there.st_ino && opened.st_dev == there.st_dev;
    }

    void RemoveFile() override { ::unlink(path_.constData()); }

private:
    QByteArray path_;
    int file_;
};

#else

class SystemLock final : public FileLock
{
public:
    explicit SystemLock(const QString& path) : lock_(path) { lock_.setStaleLockTime(0); }

    [[nodiscard]] bool Lock() { return lock_.tryLock(); }
    void RemoveFile() override { lock_.unlock(); }

private:
    QLockFile lock_;
};

#endif

} // namespace

std::unique_ptr<FileLock> FileLock::Take(const QString& path)
{
    auto lock = std::make_unique<SystemLock>(path);
    return lock->Lock() ? std::move(lock) : nullptr;
}

} // namespace Glyphor
