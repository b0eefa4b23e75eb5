#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#else
#include <QSaveFile>
#endif

namespace Glyphor {

#ifdef Q_OS_UNIX

// A new version of a file, which takes its place as a whole or not at all. It is written without a
// name where the file system knows that, and else beside the file under a name of its own, which
// goes away with the process too, and by the next save at the latest where a process was killed.
//
// Operations return false and leave the reason in Error().
class Replacement
{
public:
    // Follows symbolic links.
    explicit Replacement(const QString& path);
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    bool Open();
    bool Write(QByteArrayView bytes);

    // Keeps the permissions of the file that is replaced, and its owner and group where the system
    // lets us.
    bool Commit();

    // True where the file that is replaced has other names, which keep the old contents.
    [[nodiscard]] bool HasOtherNames() const { return old_ && old_->st_nlink > 1; }

    [[nodiscard]] QString Error() const;

private:
    bool OpenUnnamed();
    bool OpenNamed();
    bool ClaimName(const std::function<bool(const QByteArray&)>& create);
    void BeginToStore();
    void KeepOwner();
    bool GiveName();
    [[nodiscard]] QByteArray TemporaryName(int slot) const;
    bool Fail();

    QByteArray target_;
    std::optional<struct stat> old_;
    QByteArray temporary_; // empty where the new file has no name yet
    int file_ = -1;
    qint64 written_ = 0;
    qint64 stored_ = 0; // of that, what the disk has to take already
    int error_ = 0;     // of errno
};

#else

class Replacement
{
public:
    explicit Replacement(const QString& path) : file_(path) {}

    bool Open() { return file_.open(QIODevice::WriteOnly | QIODevice::Unbuffered); }
    bool Write(QByteArrayView bytes)
    {
        return file_.write(bytes.data(), bytes.size()) == bytes.size();
    }
    bool Commit() { return file_.commit(); }
    [[nodiscard]] bool HasOtherNames() const { return false; }
    [[nodiscard]] QString Error() const { return file_.errorString(); }

private:
    QSaveFile file_;
};

#endif

} // namespace Glyphor
