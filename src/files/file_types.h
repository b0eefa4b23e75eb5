#pragma once

#include "files/c_file_text.h"
#include "files/font_file.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace Glyphor {

enum class FileType { TrueType, TrueTypeCollection, Bdf, C, Xbf, Sif };

// What the objects of files are made with, beside their paths.
struct FontFileOptions
{
    FormatAnswer answer; // for reading
    CFileOptions text;   // for writing
};

// A kind of font file, the suffixes that tell it (never the contents of a file), and what it can.
struct FileTypeRow
{
    FileType type;
    const char* description; // that kinds of one group share; to be translated
    std::span<const QLatin1StringView> suffixes;

    // Null for the kinds that FreeType reads, which render/ makes.
    std::unique_ptr<FontFile> (*make)(const QString& path, const FontFileOptions&) = nullptr;
    bool isScalable = false; // rendered at a height
    bool isWritten = false;
    const char* legacyRefusal = nullptr; // why no legacy font can be written; to be translated

    [[nodiscard]] constexpr std::string_view Group() const { return description; }
};

// In the order in which a name is tested.
extern const std::array<FileTypeRow, 6> FileTypeTable;

[[nodiscard]] const FileTypeRow& RowOf(FileType type);

// The first kind one of whose suffixes ends the name, in any letter case.
[[nodiscard]] std::optional<FileType> FileTypeOf(QStringView fileName);

// What file dialogs offer, in the language of the window: an entry for each group of kinds, then
// one for all of them.
[[nodiscard]] QString FontFileFilter(bool forSaving);
[[nodiscard]] QString KerningFileFilter();

// True for ".kern", in any letter case.
[[nodiscard]] bool IsBinaryKerningName(QStringView fileName);

// True for the kinds that are written; false for none.
[[nodiscard]] inline bool IsWritten(std::optional<FileType> type)
{
    return type && RowOf(*type).isWritten;
}

// True for the kinds that are rendered at a height; false for none.
[[nodiscard]] inline bool IsScalable(std::optional<FileType> type)
{
    return type && RowOf(*type).isScalable;
}

} // namespace Glyphor
