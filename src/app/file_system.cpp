#include "app/file_system.h"

#include "app/file_name.h"

#include <QDir>

#include <algorithm>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#else
#include <QDateTime>
#include <QFileInfo>
#endif

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

std::filesystem::path NativePath(const QString& path)
{
#ifdef Q_OS_UNIX
    return BytesOf(path).toStdString();
#else
    return path.toStdU16String();
#endif
}

QString TextOf(const std::filesystem::path& path)
{
#ifdef Q_OS_UNIX
    return FileNameOf(QByteArrayView(path.native()));
#else
    return QString::fromStdU16String(path.generic_u16string());
#endif
}

// Conversions differ in how many marks they put for a run of lost bytes.
QString WithShortMarks(QString name)
{
    for (const QString marks(2, QChar::ReplacementCharacter); name.contains(marks);)
        name.replace(marks, QChar(QChar::ReplacementCharacter));
    return name;
}

} // namespace

FileKind KindOf(const QString& path)
{
    if (path.contains(QChar(u'\0')))
        return FileKind::None; // the system would read up to there
    std::error_code error;
    switch (std::filesystem::status(NativePath(path), error).type()) {
    case std::filesystem::file_type::none:
    case std::filesystem::file_type::not_found:
    case std::filesystem::file_type::unknown:
        return FileKind::None;
    case std::filesystem::file_type::regular:
        return FileKind::Ordinary;
    case std::filesystem::file_type::directory:
        return FileKind::Directory;
    default:
        return FileKind::Other;
    }
}

qint64 SizeOfFile(const QString& path)
{
    std::error_code error;
    const auto size = std::filesystem::file_size(NativePath(path), error);
    return error ? 0 : qint64(size);
}

std::optional<FileStamp> StampOf(const QString& path)
{
    if (KindOf(path) != FileKind::Ordinary)
        return std::nullopt;
#ifdef Q_OS_UNIX
    struct stat status = {};
    if (::stat(BytesOf(path).constData(), &status) != 0)
        return std::nullopt;
#ifdef Q_OS_DARWIN
    const timespec& modified = status.st_mtimespec;
#else
    const timespec& modified = status.st_mtim;
#endif
    constexpr qint64 second = 1'000'000'000;
    return FileStamp{qint64(status.st_size), qint64(modified.tv_sec) * second + modified.tv_nsec,
                     quint64(status.st_ino)};
#else
    const QFileInfo info(path);
    constexpr qint64 millisecond = 1'000'000;
    return FileStamp{info.size(), info.lastModified().toMSecsSinceEpoch() * millisecond, 0};
#endif
}

QStringList EntriesOf(const QString& directory, FileKind kind)
{
    QStringList names;
    std::error_code error;
    std::filesystem::directory_iterator entry(NativePath(directory), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        // Where the directory tells the kind, these don't ask for it.
        std::error_code unknown;
        const bool isWanted = kind == FileKind::Directory ? entry->is_directory(unknown)
                                                          : entry->is_regular_file(unknown);
        const QString name = TextOf(entry->path().filename());
        if (isWanted && !name.startsWith(u'.'))
            names.append(name);
    }
    return names;
}

QString CanonicalPathOf(const QString& path)
{
    std::error_code error;
    const std::filesystem::path canonical = std::filesystem::canonical(NativePath(path), error);
    return error ? QString() : TextOf(canonical);
}

QString AbsolutePathOf(const QString& path)
{
    std::error_code error;
    const QString folder =
        QDir::isRelativePath(path) ? TextOf(std::filesystem::current_path(error)) : QString();
    return QDir::cleanPath(folder.isEmpty() ? path : folder + u'/' + path);
}

QString WithLostBytes(const QString& path)
{
    if (!path.contains(QChar::ReplacementCharacter) || KindOf(path) != FileKind::None)
        return path;
    const qsizetype nameStart = path.lastIndexOf(u'/') + 1;
    const QString folder = WithLostBytes(path.left(nameStart > 1 ? nameStart - 1 : nameStart));
    const QString name = path.mid(nameStart);
    const QString start = nameStart > 1 ? folder + u'/' : folder;
    const QString searched = folder.isEmpty() ? u"."_s : folder;
    QStringList alike = EntriesOf(searched, FileKind::Ordinary);
    alike += EntriesOf(searched, FileKind::Directory);
    alike.removeIf([&name](const QString& entry) {
        return !HasRawBytes(entry) ||
               WithShortMarks(QString::fromUtf8(BytesOf(entry))) != WithShortMarks(name);
    });
    return start + (alike.size() == 1 ? alike.first() : name);
}

} // namespace Glyphor
