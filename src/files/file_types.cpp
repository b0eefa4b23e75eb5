#include "files/file_types.h"

#include "app/engine_texts.h"
#include "files/font_file_c.h"
#include "files/font_file_sif.h"
#include "files/font_file_xbf.h"

#include <QStringList>

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array TrueTypeSuffixes = {".ttf"_L1, ".otf"_L1, ".woff"_L1};
constexpr std::array CollectionSuffixes = {".ttc"_L1};
constexpr std::array BdfSuffixes = {".bdf"_L1};
constexpr std::array CSuffixes = {".c"_L1, ".cpp"_L1, ".cxx"_L1, ".cc"_L1,
                                  ".h"_L1, ".hpp"_L1, ".hxx"_L1, ".hh"_L1};
constexpr std::array XbfSuffixes = {".xbf"_L1};
constexpr std::array SifSuffixes = {".sif"_L1};

std::unique_ptr<FontFile> MakeC(const QString& path, const FontFileOptions& options)
{
    return std::make_unique<FontFileC>(path, options.text);
}

template <typename File>
std::unique_ptr<FontFile> MakeBinary(const QString& path, const FontFileOptions& options)
{
    return std::make_unique<File>(path, options.answer);
}

} // namespace

constexpr std::array<FileTypeRow, 6> FileTypeTable = {{
    {.type = FileType::TrueType,
     .description = QT_TRANSLATE_NOOP("Engine", "TrueType font formats"),
     .suffixes = TrueTypeSuffixes,
     .isScalable = true},
    {.type = FileType::TrueTypeCollection,
     .description = QT_TRANSLATE_NOOP("Engine", "TrueType font formats"),
     .suffixes = CollectionSuffixes,
     .isScalable = true},
    {.type = FileType::Bdf,
     .description = QT_TRANSLATE_NOOP("Engine", "Glyph Bitmap Distribution Format"),
     .suffixes = BdfSuffixes},
    {.type = FileType::C,
     .description = QT_TRANSLATE_NOOP("Engine", "C fonts"),
     .suffixes = CSuffixes,
     .make = MakeC,
     .isWritten = true},
    {.type = FileType::Xbf,
     .description = QT_TRANSLATE_NOOP("Engine", "External Bitmap Fonts"),
     .suffixes = XbfSuffixes,
     .make = MakeBinary<FontFileXBF>,
     .isWritten = true,
     .legacyRefusal =
         QT_TRANSLATE_NOOP("Engine", "Legacy font formats cannot be saved in the XBF format.")},
    {.type = FileType::Sif,
     .description = QT_TRANSLATE_NOOP("Engine", "System Independent Fonts"),
     .suffixes = SifSuffixes,
     .make = MakeBinary<FontFileSIF>,
     .isWritten = true},
}};

namespace {

QStringList Patterns(std::span<const QLatin1StringView> suffixes)
{
    QStringList patterns;
    for (const QLatin1StringView suffix : suffixes)
        patterns.append(u'*' + suffix);
    return patterns;
}

} // namespace

const FileTypeRow& RowOf(FileType type)
{
    return *std::ranges::find(FileTypeTable, type, &FileTypeRow::type);
}

std::optional<FileType> FileTypeOf(QStringView fileName)
{
    const auto row = std::ranges::find_if(FileTypeTable, [fileName](const FileTypeRow& entry) {
        return std::ranges::any_of(entry.suffixes, [fileName](QLatin1StringView suffix) {
            return fileName.endsWith(suffix, Qt::CaseInsensitive);
        });
    });
    return row == FileTypeTable.end() ? std::nullopt : std::optional(row->type);
}

QString FontFileFilter(bool forSaving)
{
    QStringList entries;
    QString all;
    for (std::size_t index = 0; index < FileTypeTable.size();) {
        const FileTypeRow& group = FileTypeTable[index];
        QStringList patterns;
        for (; index < FileTypeTable.size() && FileTypeTable[index].Group() == group.Group();
             ++index)
            patterns += Patterns(FileTypeTable[index].suffixes);
        if (forSaving && !IsWritten(group.type))
            continue;
        entries.append(u"%1 (%2)"_s.arg(Engine::tr(group.description), patterns.join(u' ')));
        all += patterns.join(u' ') + u' ';
    }
    entries.append(u"%1 (%2)"_s.arg(Engine::tr("All supported file types"), all));
    return entries.join(u";;"_s);
}

QString KerningFileFilter()
{
    return u"%1 (%2)"_s.arg(Engine::tr("Kerning C files"), Patterns(CSuffixes).join(u' '));
}

bool IsBinaryKerningName(QStringView fileName)
{
    return fileName.endsWith(".kern"_L1, Qt::CaseInsensitive);
}

} // namespace Glyphor
