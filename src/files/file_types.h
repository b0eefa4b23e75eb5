#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace Glyphor {

enum class FileType { TrueType, TrueTypeCollection, Bdf, C, Xbf, Sif };

// A kind of font file and the suffixes that tell it: never the contents of a file.
struct FileTypeRow
{
    FileType type;
    const char* description; // that kinds of one group share; to be translated
    std::span<const QLatin1StringView> suffixes;

    [[nodiscard]] constexpr std::string_view Group() const { return description; }
};

// In the order in which a name is tested.
extern const std::array<FileTypeRow, 6> FileTypeTable;

// The first kind one of whose suffixes ends the name, in any letter case.
[[nodiscard]] std::optional<FileType> FileTypeOf(QStringView fileName);

// What file dialogs offer, in the language of the window: an entry for each group of kinds, then
// one for all of them.
[[nodiscard]] QString FontFileFilter(bool forSaving);
[[nodiscard]] QString KerningFileFilter();

// True for ".kern", in any letter case.
[[nodiscard]] bool IsBinaryKerningName(QStringView fileName);

// True for the kinds that are written.
[[nodiscard]] constexpr bool IsWritten(FileType type)
{
    return type == FileType::C || type == FileType::Xbf || type == FileType::Sif;
}

// True for the kinds that are rendered at a height.
[[nodiscard]] constexpr bool IsScalable(FileType type)
{
    return type == FileType::TrueType || type == FileType::TrueTypeCollection;
}

} // namespace Glyphor
