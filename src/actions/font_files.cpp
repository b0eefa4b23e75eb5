#include "actions/font_files.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/settings.h"
#include "app/shown_text.h"
#include "files/font_file_c.h"
#include "files/font_file_sif.h"
#include "files/font_file_xbf.h"
#include "render/font_file_bdf.h"

#include <QFileInfo>

namespace Glyphor {

namespace {

[[noreturn]] void FailToOpen(const QString& text)
{
    throw CriticalException(Engine::tr("Error opening file!"), text);
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

FileType CheckInputFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        FailToOpen(Engine::tr("Given file does not exist!"));
    const auto type = FileTypeOf(path);
    if (!type)
        ThrowUnsupportedFormat();
    if (info.isDir())
        FailToOpen(Engine::tr("The file %1 is a directory.").arg(Shown(path)));
    if (!info.isFile())
        FailToOpen(Engine::tr("The file %1 is not an ordinary file.").arg(Shown(path)));
    if (info.size() == 0)
        FailToOpen(Engine::tr("The file %1 is empty.").arg(Shown(path)));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        FailToOpen(
            Engine::tr("The file %1 could not be read: %2").arg(Shown(path), file.errorString()));
    return *type;
}

std::unique_ptr<FontFileScalable> MakeScalableFontFile(const QString& path,
                                                       const RenderOptions& options)
{
    if (FileTypeOf(path) == FileType::TrueTypeCollection)
        return std::make_unique<FontFileTTC>(path, options);
    return std::make_unique<FontFileTTF>(path, options);
}

std::unique_ptr<FontFile> MakeInputFile(const QString& path, const FormatAnswer& answer)
{
    const auto type = FileTypeOf(path);
    if (type == FileType::Bdf)
        return std::make_unique<FontFileBDF>(path);
    if (type == FileType::C)
        return std::make_unique<FontFileC>(path, CFileOptions());
    if (type == FileType::Xbf)
        return std::make_unique<FontFileXBF>(path, answer);
    if (type == FileType::Sif)
        return std::make_unique<FontFileSIF>(path, answer);
    ThrowUnsupportedFormat();
}

std::unique_ptr<FontFile> MakeOutputFile(const QString& path, const QStringList& actionLog)
{
    const auto type = FileTypeOf(path);
    if (type == FileType::C)
        return std::make_unique<FontFileC>(path, CFileOptionsOfSettings(actionLog));
    if (type == FileType::Xbf)
        return std::make_unique<FontFileXBF>(path);
    if (type == FileType::Sif)
        return std::make_unique<FontFileSIF>(path);
    ThrowUnsupportedFormat();
}

} // namespace Glyphor
