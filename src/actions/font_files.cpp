#include "actions/font_files.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/file_system.h"
#include "app/settings.h"
#include "app/shown_text.h"

namespace Glyphor {

namespace {

[[noreturn]] void FailToOpen(const QString& path, const QString& text)
{
    throw CriticalException(Engine::tr("Error opening file!"), text, {path, 0, {}});
}

void CheckExists(const QString& path)
{
    if (KindOf(path) == FileKind::None)
        FailToOpen(path, Engine::tr("Given file does not exist!"));
}

void CheckContents(const QString& path)
{
    const FileKind kind = KindOf(path);
    if (kind == FileKind::Directory)
        FailToOpen(path, Engine::tr("The file %1 is a directory.").arg(Shown(path)));
    if (kind == FileKind::Other)
        FailToOpen(path, Engine::tr("The file %1 is not an ordinary file.").arg(Shown(path)));
    if (SizeOfFile(path) == 0)
        FailToOpen(path, Engine::tr("The file %1 is empty.").arg(Shown(path)));
    File file(path);
    if (!file.open(QIODevice::ReadOnly))
        FailToOpen(
            path,
            Engine::tr("The file %1 could not be read: %2").arg(Shown(path), file.errorString()));
}

} // namespace

CFileOptions CFileOptionsOfSettings(const QStringList& actionLog)
{
    const Settings& settings = Settings::Instance();
    CFileOptions options{settings.LineEnding(), std::nullopt};
    if (settings.logActions.value())
        options.actionLog = actionLog;
    return options;
}

void CheckReadableFile(const QString& path)
{
    CheckExists(path);
    CheckContents(path);
}

FileType CheckInputFile(const QString& path)
{
    CheckExists(path);
    const auto type = FileTypeOf(path);
    if (!type)
        ThrowUnsupportedFormat();
    CheckContents(path);
    return *type;
}

std::unique_ptr<FontFile> MakeInputFile(const QString& path, const FormatAnswer& answer)
{
    const auto type = FileTypeOf(path);
    if (!type || RowOf(*type).make == nullptr)
        ThrowUnsupportedFormat();
    return RowOf(*type).make(path, {.answer = answer, .text = {}});
}

std::unique_ptr<FontFile> MakeOutputFile(const QString& path, const QStringList& actionLog)
{
    const auto type = FileTypeOf(path);
    if (!IsWritten(type))
        ThrowUnsupportedFormat();
    return RowOf(*type).make(path, {.answer = {}, .text = CFileOptionsOfSettings(actionLog)});
}

} // namespace Glyphor
