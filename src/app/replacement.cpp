#include "app/replacement.h"

#ifdef Q_OS_UNIX

#include "app/file_name.h"

#include <QCryptographicHash>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace Glyphor {

namespace {

// Several processes may save files of the same name in one folder at a time.
constexpr int SlotCount = 8;

// The signals that end a process from outside and give it the time to clean up.
constexpr std::array EndingSignals = {SIGTERM, SIGINT, SIGHUP};

// What a signal handler can reach: the file that must not stay, and what was done before on a
// signal.
std::array<char, 4096> fileToRemove;
std::atomic<bool> mustRemove = false;
std::array<struct sigaction, EndingSignals.size()> formerActions;

static_assert(std::atomic<bool>::is_always_lock_free);

void RestoreActions()
{
    for (std::size_t index = 0; index < EndingSignals.size(); ++index)
        ::sigaction(EndingSignals[index], &formerActions[index], nullptr);
}

// The signal comes again as soon as its handler is over, and then does what it did before.
extern "C" void RemoveAndEnd(int signal)
{
    const int before = errno;
    if (mustRemove.exchange(false))
        ::unlink(fileToRemove.data());
    RestoreActions();
    ::raise(signal);
    errno = before;
}

// Keeps the ending signals waiting for as long as it lives.
class SignalPause
{
public:
    SignalPause()
    {
        sigset_t signals = {};
        ::sigemptyset(&signals);
        for (const int signal : EndingSignals)
            ::sigaddset(&signals, signal);
        ::pthread_sigmask(SIG_BLOCK, &signals, &former_);
    }
    ~SignalPause() { ::pthread_sigmask(SIG_SETMASK, &former_, nullptr); }
    SignalPause(const SignalPause&) = delete;
    SignalPause& operator=(const SignalPause&) = delete;

private:
    sigset_t former_ = {};
};

// From now on the file goes when the process is told to end.
void RemoveOnSignal(const QByteArray& path)
{
    if (path.size() >= qsizetype(fileToRemove.size()))
        return;
    std::ranges::copy(path, fileToRemove.begin());
    fileToRemove[std::size_t(path.size())] = '\0';
    mustRemove = true;
    for (std::size_t index = 0; index < EndingSignals.size(); ++index) {
        struct sigaction& former = formerActions[index];
        ::sigaction(EndingSignals[index], nullptr, &former);
        if (former.sa_handler == SIG_IGN)
            continue; // as under nohup
        struct sigaction action = {};
        action.sa_handler = RemoveAndEnd;
        ::sigaction(EndingSignals[index], &action, nullptr);
    }
}

void KeepOnSignal()
{
    if (mustRemove.exchange(false))
        RestoreActions();
}

QByteArray NameOf(const QByteArray& path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}

QByteArray FolderOf(const QByteArray& path)
{
    const QByteArray folder = path.chopped(NameOf(path).size());
    return folder.isEmpty() ? QByteArray("./") : folder;
}

// The file that a chain of links leads to, whether or not it exists; errno tells of a loop.
std::optional<QByteArray> FollowLinks(QByteArray path)
{
    constexpr int longestChain = 40;
    for (int links = 0; links < longestChain; ++links) {
        std::array<char, 4096> text{};
        const ssize_t length = ::readlink(path.constData(), text.data(), text.size());
        if (length < 0)
            return errno == ELOOP ? std::nullopt : std::optional(path);
        const QByteArray target(text.data(), length);
        path = target.startsWith('/') ? target : FolderOf(path) + target;
    }
    errno = ELOOP;
    return std::nullopt;
}

std::optional<struct stat> StatOf(int file)
{
    struct stat status = {};
    return ::fstat(file, &status) == 0 ? std::optional(status) : std::nullopt;
}

// Removes a temporary file that no process is writing any more: a writer holds a lock on its file,
// which ends with the process.
void RemoveIfStale(const QByteArray& path)
{
    const int file = ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return;
    // By now the writer may be done, and another one may have begun.
    const bool isFree = ::flock(file, LOCK_EX | LOCK_NB) == 0;
    const auto opened = StatOf(file);
    struct stat there = {};
    const bool isSame = opened && S_ISREG(opened->st_mode) &&
                        ::lstat(path.constData(), &there) == 0 && there.st_ino == opened->st_ino &&
                        there.st_dev == opened->st_dev;
    if (isFree && isSame)
        ::unlink(path.constData());
    ::close(file);
}

} // namespace

Replacement::Replacement(const QString& path)
{
    if (auto target = FollowLinks(BytesOf(path)))
        target_ = *target;
    else
        error_ = errno;
    struct stat status = {};
    if (error_ == 0 && ::stat(target_.constData(), &status) == 0)
        old_ = status;
}

Replacement::~Replacement()
{
    if (!temporary_.isEmpty())
        ::unlink(temporary_.constData());
    KeepOnSignal();
    if (file_ >= 0)
        ::close(file_);
}

QString Replacement::Error() const
{
    return QString::fromStdString(std::generic_category().message(error_));
}

bool Replacement::Fail()
{
    error_ = errno;
    return false;
}

// Short, as a name may be as long as the file system lets it be.
QByteArray Replacement::TemporaryName(int slot) const
{
    constexpr qsizetype digits = 12;
    const QByteArray hash =
        QCryptographicHash::hash(NameOf(target_), QCryptographicHash::Sha1).toHex().left(digits);
    return FolderOf(target_) + ".glyphor-" + hash + '-' + QByteArray::number(slot);
}

bool Replacement::Open()
{
    if (error_ != 0)
        return false;
    if (old_ && ::access(target_.constData(), W_OK) != 0)
        return Fail();
    for (int slot = 0; slot < SlotCount; ++slot)
        RemoveIfStale(TemporaryName(slot));
    return OpenUnnamed() || OpenNamed();
}

bool Replacement::OpenUnnamed()
{
#ifdef O_TMPFILE
    // A name is given to it by way of this folder.
    if (::access("/proc/self/fd", X_OK) != 0)
        return false;
    constexpr mode_t mode = 0666;
    file_ = ::open(FolderOf(target_).constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, mode);
    if (file_ >= 0)
        ::flock(file_, LOCK_EX);
#endif
    return file_ >= 0;
}

bool Replacement::OpenNamed()
{
    const bool isOpen = ClaimName([this](const QByteArray& name) {
        constexpr mode_t mode = 0666;
        file_ = ::open(name.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, mode);
        return file_ >= 0;
    });
    if (isOpen)
        ::flock(file_, LOCK_EX);
    return isOpen;
}

// Calls `create` with temporary names until it makes a file of one that does not exist.
bool Replacement::ClaimName(const std::function<bool(const QByteArray&)>& create)
{
    const SignalPause pause;
    errno = EEXIST;
    for (int slot = 0; slot < SlotCount && errno == EEXIST; ++slot) {
        const QByteArray name = TemporaryName(slot);
        if (create(name)) {
            temporary_ = name;
            RemoveOnSignal(name);
            return true;
        }
    }
    return Fail();
}

// Writing on after a short count tells the reason for it.
bool Replacement::Write(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t count = ::write(file_, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return Fail();
        bytes = bytes.sliced(count);
        written_ += count;
    }
    BeginToStore();
    return true;
}

// Large files are on their way to the disk while the rest is made, so that Commit() waits less.
void Replacement::BeginToStore()
{
#ifdef Q_OS_LINUX
    constexpr qint64 portion = 0x400000;
    if (written_ - stored_ < portion)
        return;
    ::sync_file_range(file_, stored_, written_ - stored_, SYNC_FILE_RANGE_WRITE);
    stored_ = written_;
#endif
}

// Where the owner can't be kept, the group may be.
void Replacement::KeepOwner()
{
    const auto own = StatOf(file_);
    if (!own || (own->st_uid == old_->st_uid && own->st_gid == old_->st_gid))
        return;
    if (::fchown(file_, old_->st_uid, old_->st_gid) != 0)
        (void)!::fchown(file_, static_cast<uid_t>(-1), old_->st_gid);
}

bool Replacement::Commit()
{
    constexpr mode_t permissions = 0777;
    if (old_) {
        KeepOwner();
        ::fchmod(file_, old_->st_mode & permissions); // some file systems have one mode for all
    }
    ::fsync(file_); // not every file system can
    if (temporary_.isEmpty() && !GiveName())
        return false;
    if (!temporary_.isEmpty() && ::rename(temporary_.constData(), target_.constData()) != 0)
        return Fail();
    temporary_.clear();
    KeepOnSignal();
    return true;
}

// A file can't be given the name of another one, so then it gets a temporary name first.
bool Replacement::GiveName()
{
    const QByteArray unnamed = "/proc/self/fd/" + QByteArray::number(file_);
    const auto link = [&unnamed](const QByteArray& name) {
        return ::linkat(AT_FDCWD, unnamed.constData(), AT_FDCWD, name.constData(),
                        AT_SYMLINK_FOLLOW) == 0;
    };
    return (!old_ && link(target_)) || ClaimName(link);
}

} // namespace Glyphor

#endif
