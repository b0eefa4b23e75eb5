#pragma once

#include <QLatin1StringView>

#include <array>
#include <optional>

namespace Glyphor {

// How many bits a pixel has and which data structures the generated code uses. The numbers stand in
// files and index the tables below.
enum class FontFormat : quint8 {
    Legacy = 0,
    LegacyAA2 = 1,
    LegacyAA4 = 2,
    Standard = 3,
    Framed = 4,
    AA2 = 5,
    AA4 = 6,
    Unknown = 255
};

// How a character code is to be read.
enum class EncodingType : quint8 { Unicode = 0, ShiftJis = 1 };

// The two sets of command-line keywords; they give the same words to different formats.
enum class KeywordSyntax { Current, Legacy };

struct FormatNameRow
{
    QLatin1StringView displayName;
    FontFormat format;
    bool legacy;
    QLatin1StringView formerDisplayName;
};

struct FontTypeNameRow
{
    QLatin1StringView typeName;
    FontFormat format;
    EncodingType encoding;
};

struct FormatKeywordRow
{
    QLatin1StringView keyword;
    FontFormat format;
};

// Rows without a description are accepted spellings that no list shows.
struct EncodingKeywordRow
{
    QLatin1StringView keyword;
    EncodingType encoding;
    QLatin1StringView description;
};

inline constexpr int FormatCount = 7;

extern const std::array<FormatNameRow, FormatCount> FormatNameTable;
extern const std::array<FontTypeNameRow, 10> FontTypeNameTable;
extern const std::array<FormatKeywordRow, FormatCount> FormatKeywordTable;
extern const std::array<FormatKeywordRow, FormatCount> LegacyFormatKeywordTable;
extern const std::array<EncodingKeywordRow, 6> EncodingKeywordTable;

// True for the formats without offsets, whose characters all have the font's height.
[[nodiscard]] constexpr bool IsLegacyFormat(FontFormat format)
{
    return format <= FontFormat::LegacyAA4;
}

// Pixel planes of a character: framed ones have a second one for the frame.
[[nodiscard]] constexpr int PlaneCount(FontFormat format)
{
    return format == FontFormat::Framed ? 2 : 1;
}

// Bits of one pixel of one plane: 1, 2 or 4; 0 for an unknown format.
[[nodiscard]] constexpr int BitsPerPixel(FontFormat format)
{
    constexpr std::array<int, FormatCount> bits = {1, 2, 4, 1, 1, 2, 4};
    const auto index = static_cast<std::size_t>(format);
    return index < bits.size() ? bits[index] : 0;
}

// Empty for anything but the seven formats.
[[nodiscard]] QLatin1StringView FormatDisplayName(FontFormat format);

// Keywords are compared letter by letter; callers that ignore case look the spelling up first.
[[nodiscard]] std::optional<FontFormat> FormatFromKeyword(QStringView keyword,
                                                          KeywordSyntax syntax);
[[nodiscard]] std::optional<EncodingType> EncodingFromKeyword(QStringView keyword);

// The name of the type that generated code gives to a font; empty where the pair has none.
[[nodiscard]] QLatin1StringView FontTypeName(FontFormat format, EncodingType encoding);

// Sets both outputs from the row with this name, or only the format, to Unknown.
void FormatFromFontTypeName(QStringView typeName, FontFormat& format, EncodingType& encoding);

// Shift JIS fonts exist in the legacy formats only.
[[nodiscard]] constexpr bool IsValidCombination(FontFormat format, EncodingType encoding)
{
    return encoding != EncodingType::ShiftJis || IsLegacyFormat(format);
}

} // namespace Glyphor
