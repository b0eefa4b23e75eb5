#include "model/font_format.h"

#include <QStringView>

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// For texts that are marked for the translations.
constexpr QLatin1StringView Text(const char* text)
{
    return QLatin1StringView(text);
}

} // namespace

constexpr std::array<FormatNameRow, FormatCount> FormatNameTable = {{
    {Text(QT_TRANSLATE_NOOP("Engine", "Legacy, 1bpp")), FontFormat::Legacy, true,
     Text(QT_TRANSLATE_NOOP("Engine", "Standard, 1bpp"))},
    {Text(QT_TRANSLATE_NOOP("Engine", "Legacy, anti-aliased, 2bpp")), FontFormat::LegacyAA2, true,
     Text(QT_TRANSLATE_NOOP("Engine", "Standard, anti-aliased, 2bpp"))},
    {Text(QT_TRANSLATE_NOOP("Engine", "Legacy, anti-aliased, 4bpp")), FontFormat::LegacyAA4, true,
     Text(QT_TRANSLATE_NOOP("Engine", "Standard, anti-aliased, 4bpp"))},
    {Text(QT_TRANSLATE_NOOP("Engine", "Standard, 1bpp")), FontFormat::Standard, false,
     Text(QT_TRANSLATE_NOOP("Engine", "Extended, 1bpp"))},
    {Text(QT_TRANSLATE_NOOP("Engine", "Standard, framed")), FontFormat::Framed, false,
     Text(QT_TRANSLATE_NOOP("Engine", "Extended, framed"))},
    {Text(QT_TRANSLATE_NOOP("Engine", "Standard, anti-aliased, 2bpp")), FontFormat::AA2, false,
     Text(QT_TRANSLATE_NOOP("Engine", "Extended, anti-aliased, 2bpp"))},
    {Text(QT_TRANSLATE_NOOP("Engine", "Standard, anti-aliased, 4bpp")), FontFormat::AA4, false,
     Text(QT_TRANSLATE_NOOP("Engine", "Extended, anti-aliased, 4bpp"))},
}};

constexpr std::array<FontTypeNameRow, 10> FontTypeNameTable = {{
    {"GUI_FONTTYPE_PROP"_L1, FontFormat::Legacy, EncodingType::Unicode},
    {"GUI_FONTTYPE_PROP_AA2"_L1, FontFormat::LegacyAA2, EncodingType::Unicode},
    {"GUI_FONTTYPE_PROP_AA4"_L1, FontFormat::LegacyAA4, EncodingType::Unicode},
    {"GUI_FONTTYPE_PROP_SJIS"_L1, FontFormat::Legacy, EncodingType::ShiftJis},
    {"GUI_FONTTYPE_PROP_AA2_SJIS"_L1, FontFormat::LegacyAA2, EncodingType::ShiftJis},
    {"GUI_FONTTYPE_PROP_AA4_SJIS"_L1, FontFormat::LegacyAA4, EncodingType::ShiftJis},
    {"GUI_FONTTYPE_PROP_EXT"_L1, FontFormat::Standard, EncodingType::Unicode},
    {"GUI_FONTTYPE_PROP_FRM"_L1, FontFormat::Framed, EncodingType::Unicode},
    {"GUI_FONTTYPE_PROP_AA2_EXT"_L1, FontFormat::AA2, EncodingType::Unicode},
    {"GUI_FONTTYPE_PROP_AA4_EXT"_L1, FontFormat::AA4, EncodingType::Unicode},
}};

constexpr std::array<FormatKeywordRow, FormatCount> FormatKeywordTable = {{
    {"LEG"_L1, FontFormat::Legacy},
    {"LEG_AA2"_L1, FontFormat::LegacyAA2},
    {"LEG_AA4"_L1, FontFormat::LegacyAA4},
    {"STD"_L1, FontFormat::Standard},
    {"FRM"_L1, FontFormat::Framed},
    {"AA2"_L1, FontFormat::AA2},
    {"AA4"_L1, FontFormat::AA4},
}};

constexpr std::array<FormatKeywordRow, FormatCount> LegacyFormatKeywordTable = {{
    {"STD"_L1, FontFormat::Legacy},
    {"AA2"_L1, FontFormat::LegacyAA2},
    {"AA4"_L1, FontFormat::LegacyAA4},
    {"EXT"_L1, FontFormat::Standard},
    {"EXT_FRM"_L1, FontFormat::Framed},
    {"EXT_AA2"_L1, FontFormat::AA2},
    {"EXT_AA4"_L1, FontFormat::AA4},
}};

constexpr std::array<EncodingKeywordRow, 6> EncodingKeywordTable = {{
    {"UC"_L1, EncodingType::Unicode, "16-bit Unicode encoding."_L1},
    {"SJIS"_L1, EncodingType::ShiftJis,
     "Shift JIS (Shift Japanese Industrial Standards) encoding."_L1},
    {"UC16"_L1, EncodingType::Unicode, {}},
    {"Unicode"_L1, EncodingType::Unicode, {}},
    {"ShiftJIS"_L1, EncodingType::ShiftJis, {}},
    {"Shift-JIS"_L1, EncodingType::ShiftJis, {}},
}};

QLatin1StringView FormatDisplayName(FontFormat format)
{
    const auto index = static_cast<std::size_t>(format);
    return index < FormatNameTable.size() ? FormatNameTable[index].displayName
                                          : QLatin1StringView();
}

std::optional<FontFormat> FormatFromKeyword(QStringView keyword, KeywordSyntax syntax)
{
    const auto& table =
        syntax == KeywordSyntax::Current ? FormatKeywordTable : LegacyFormatKeywordTable;
    const auto row = std::ranges::find_if(
        table, [keyword](const FormatKeywordRow& entry) { return keyword == entry.keyword; });
    return row == table.end() ? std::nullopt : std::optional(row->format);
}

std::optional<EncodingType> EncodingFromKeyword(QStringView keyword)
{
    const auto row =
        std::ranges::find_if(EncodingKeywordTable, [keyword](const EncodingKeywordRow& entry) {
            return keyword == entry.keyword;
        });
    return row == EncodingKeywordTable.end() ? std::nullopt : std::optional(row->encoding);
}

QLatin1StringView FontTypeName(FontFormat format, EncodingType encoding)
{
    const auto row = std::ranges::find_if(FontTypeNameTable, [=](const FontTypeNameRow& entry) {
        return entry.format == format && entry.encoding == encoding;
    });
    return row == FontTypeNameTable.end() ? QLatin1StringView() : row->typeName;
}

void FormatFromFontTypeName(QStringView typeName, FontFormat& format, EncodingType& encoding)
{
    const auto row =
        std::ranges::find_if(FontTypeNameTable, [typeName](const FontTypeNameRow& entry) {
            return typeName == entry.typeName;
        });
    if (row == FontTypeNameTable.end()) {
        format = FontFormat::Unknown;
        return;
    }
    format = row->format;
    encoding = row->encoding;
}

} // namespace Glyphor
