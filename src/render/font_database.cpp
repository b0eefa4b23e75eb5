#include "render/font_database.h"

#include "app/file_system.h"
#include "render/font_directories.h"

#include <QDir>
#include <QSet>

#include <algorithm>
#include <mutex>
#include <new>

namespace Glyphor {

namespace {

constexpr uint ThreadStackSize = 4 * 1024 * 1024;

struct FontFileEntry
{
    QString path;
    FileType type;
};

// Enters a directory and, if asked for, those below it, each once.
void EnterDirectory(const QString& path, bool recursively, QSet<QString>& seen,
                    QStringList& entered)
{
    constexpr qsizetype maxEntered = 10;
    const QString canonical = CanonicalPathOf(path);
    if (canonical.isEmpty() || seen.contains(canonical) || KindOf(canonical) != FileKind::Directory)
        return;
    seen.insert(canonical);
    entered.append(path);
    if (!recursively)
        return;
    const QDir directory(path);
    for (const QString& name : EntriesOf(path, FileKind::Directory)) {
        // The count never goes down again, so it limits the whole list and not the depth.
        if (entered.size() < maxEntered)
            EnterDirectory(directory.filePath(name), true, seen, entered);
    }
}

std::vector<FontFileEntry> FontFilesIn(const QStringList& directories)
{
    std::vector<FontFileEntry> files;
    for (const QString& directory : directories) {
        QStringList names = EntriesOf(directory, FileKind::Ordinary);
        names.sort();
        for (const QString& name : names) {
            if (const auto type = FileTypeOf(name); IsScalable(type))
                files.push_back({QDir(directory).filePath(name), *type});
        }
    }
    return files;
}

std::mutex currentMutex;
std::shared_ptr<const FontDatabase> current;

} // namespace

std::shared_ptr<const FontDatabase> FontDatabase::Current()
{
    const std::scoped_lock lock(currentMutex);
    static const auto empty = std::make_shared<const FontDatabase>();
    return current != nullptr ? current : empty;
}

void FontDatabase::SetCurrent(std::shared_ptr<const FontDatabase> database)
{
    const std::scoped_lock lock(currentMutex);
    current = std::move(database);
}

bool FontDatabase::Build(const QStringList& directories, const std::function<void(int)>& counted,
                         const std::function<bool(int)>& done)
{
    families_.clear();
    const std::vector<FontFileEntry> files = FontFilesIn(directories);
    counted(static_cast<int>(files.size()));
    FontLibrary library;
    int count = 0;
    for (const FontFileEntry& file : files) {
        AddFile(file.path, file.type, library);
        if (!done(++count))
            return false;
    }
    std::ranges::sort(families_, {}, [](const auto& family) { return family->Name(); });
    return true;
}

// A file that there is no memory for is left out, as a damaged one is.
void FontDatabase::AddFile(const QString& path, FileType type, FontLibrary& library)
{
    try {
        for (auto& family : ListFamilies(path, type, library))
            Add(std::move(family));
    } catch (const std::bad_alloc&) {
    }
}

void FontDatabase::Add(std::unique_ptr<FontFamily> family)
{
    if (family->Name().isEmpty() || family->StyleNames().isEmpty())
        return;
    const auto known = std::ranges::find(families_, family->Name(),
                                         [](const auto& other) { return other->Name(); });
    if (known != families_.end())
        (*known)->AddStyles(*family);
    else
        families_.push_back(std::move(family));
}

const FontFamily* FontDatabase::Find(const QString& name) const
{
    const auto found =
        std::ranges::find(families_, name, [](const auto& family) { return family->Name(); });
    return found != families_.end() ? found->get() : nullptr;
}

QStringList ExpandDirectories(const QStringList& directories, bool recursively)
{
    QSet<QString> seen;
    QStringList entered;
    for (const QString& directory : directories)
        EnterDirectory(directory, recursively, seen, entered);
    return entered;
}

QStringList FontSearchList(const QStringList& additional, bool recursively)
{
    QStringList list = ExpandDirectories(SystemFontDirectories(), true);
    list += ExpandDirectories(additional, recursively);
    list.removeDuplicates();
    return list;
}

FontDatabaseThread::FontDatabaseThread(const QStringList& additional, bool recursively,
                                       QObject* parent)
    : QThread(parent), additionalDirectories_(additional), recursively_(recursively)
{
    setStackSize(ThreadStackSize);
}

void FontDatabaseThread::run()
{
    auto database = std::make_shared<FontDatabase>();
    try {
        const bool isComplete = database->Build(
            FontSearchList(additionalDirectories_, recursively_),
            [this](int count) { Q_EMIT initFileCount(count); },
            [this](int done) {
                Q_EMIT fileDone(done);
                return !isInterruptionRequested();
            });
        if (isComplete)
            FontDatabase::SetCurrent(std::move(database));
    } catch (const std::bad_alloc&) { // the database that there is stays
    }
    Q_EMIT hasFinished();
}

} // namespace Glyphor
