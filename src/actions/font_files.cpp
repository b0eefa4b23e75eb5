#include "actions/font_files.h"

#include "app/critical_exception.h"
#include "app/settings.h"
#include "files/font_file_c.h"

#include <QFileInfo>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void FailToOpen(const QString& text)
{
    throw CriticalException(u"Error opening file!"_s, text);
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
        FailToOpen(u"Given file does not exist!"_s);
    const auto type = FileTypeOf(path);
    if (!type)
        ThrowUnsupportedFormat();
    if (info.isDir())
        FailToOpen(u"The file %1 is a directory."_s.arg(path));
    if (!info.isFile())
        FailToOpen(u"The file %1 is not an ordinary file."_s.arg(path));
    if (info.size() == 0)
        FailToOpen(u"The file %1 is empty."_s.arg(path));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        FailToOpen(u"The file %1 could not be read: %2"_s.arg(path, file.errorString()));
    return *type;
}

std::unique_ptr<FontFileScalable> MakeScalableFontFile(const QString& path,
                                                       const RenderOptions& options)
{
    if (FileTypeOf(path) == FileType::TrueTypeCollection)
        return std::make_unique<FontFileTTC>(path, options);
    return std::make_unique<FontFileTTF>(path, options);
}

std::unique_ptr<FontFile> MakeFontFile(const QString& path, const QStringList& actionLog)
{
    const auto type = FileTypeOf(path);
    if (!type || IsScalable(*type))
        ThrowUnsupportedFormat();
    if (*type != FileType::C)
        throw CriticalException(
            u"Unsupported format!"_s,
            u"The file kind of %1 is not available in this version yet."_s.arg(path));
    return std::make_unique<FontFileC>(path, CFileOptionsOfSettings(actionLog));
}

} // namespace Glyphor
