#include "app/file.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/file_name.h"
#include "app/file_system.h"
#include "app/replacement.h"
#include "app/shown_text.h"
#include "app/user_interface.h"

#ifdef Q_OS_UNIX
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Glyphor {

bool File::open(OpenMode mode)
{
    return HasRawBytes(fileName()) ? OpenByBytes(mode) : QFile::open(mode);
}

// For reading or writing, as the toolkit does it with other names.
bool File::OpenByBytes(OpenMode mode)
{
#ifdef Q_OS_UNIX
    constexpr mode_t permissions = 0666;
    const bool isRead = mode.testFlag(ReadOnly);
    const int flags = isRead ? O_RDONLY : O_WRONLY | O_CREAT | O_TRUNC;
    const int file = ::open(BytesOf(fileName()).constData(), flags | O_CLOEXEC, permissions);
    struct stat status = {};
    if (file >= 0 && ::fstat(file, &status) == 0 && !S_ISDIR(status.st_mode))
        return QFile::open(file, mode, AutoCloseHandle);
    setErrorString(qt_error_string(file >= 0 ? EISDIR : errno));
    if (file >= 0)
        ::close(file);
    return false;
#else
    return QFile::open(mode);
#endif
}

QByteArray File::Contents()
{
    constexpr qint64 limit = 0x7FFFFFFF;
    const auto fail = [this](const QString& reason) {
        throw CriticalException(
            Engine::tr("Error opening file!"),
            Engine::tr("The file %1 could not be read: %2").arg(Shown(fileName()), reason));
    };
    if (!open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        fail(errorString());
    if (size() > limit)
        fail(Engine::tr("It is too large."));
    QByteArray contents(size(), Qt::Uninitialized);
    qint64 count = 0;
    for (qint64 part = 1; part > 0 && count < contents.size(); count += part)
        part = read(contents.data() + count, contents.size() - count);
    if (error() != QFileDevice::NoError)
        fail(errorString());
    close();
    contents.truncate(count);
    return contents;
}

// Devices and pipes. Unbuffered: a failure to write a buffer when the file is closed would go
// unnoticed. Writing on after a short count tells the reason for it.
void File::WriteDirectly(const std::function<void(const Sink&)>& compose)
{
    if (!open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        Fail(errorString());
    compose([this](QByteArrayView bytes) {
        while (!bytes.isEmpty()) {
            const qint64 count = write(bytes.data(), bytes.size());
            if (count <= 0)
                Fail(errorString());
            bytes = bytes.sliced(count);
        }
    });
    close();
}

void File::ForgetContents() const
{
#ifdef Q_OS_LINUX
    ::posix_fadvise(handle(), 0, 0, POSIX_FADV_DONTNEED);
#endif
}

void File::Replace(const std::function<void(const Sink&)>& compose)
{
    const FileKind kind = KindOf(fileName());
    if (kind == FileKind::Directory)
        Fail(Engine::tr("It is a directory."));
    if (kind == FileKind::Other) {
        WriteDirectly(compose);
        return;
    }
    Replacement replacement(fileName());
    if (!replacement.Open())
        Fail(replacement.Error());
    compose([&](QByteArrayView bytes) {
        if (!replacement.Write(bytes))
            Fail(replacement.Error());
    });
    if (!replacement.Commit())
        Fail(replacement.Error());
    if (replacement.HasOtherNames())
        CurrentInterface().warning(
            Engine::tr("Hard links"),
            Engine::tr("The file %1 had other names (hard links). They keep its old contents.")
                .arg(Shown(fileName())));
}

void File::Replace(const QByteArray& contents)
{
    Replace([&contents](const Sink& sink) { sink(contents); });
}

void File::Fail(const QString& reason) const
{
    throw CriticalException(
        Engine::tr("Error saving file!"),
        Engine::tr("The file %1 could not be written: %2").arg(Shown(fileName()), reason));
}

} // namespace Glyphor
