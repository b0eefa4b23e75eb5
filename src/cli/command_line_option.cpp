#include "cli/command_line_option.h"

#include "actions/edit_table.h"
#include "app/user_interface.h"
#include "model/font_format.h"

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

std::vector<ParameterKeywordTable::Entry> KeywordsOf(EditTarget target)
{
    std::vector<ParameterKeywordTable::Entry> entries;
    for (const Edit& edit : EditTable()) {
        if (edit.target == target && !edit.keyword.isEmpty())
            entries.push_back({edit.keyword, edit.help, static_cast<int>(edit.type)});
    }
    return entries;
}

CommandLineParameter Text(const QString& placeholder,
                          const ParameterKeywordTable* keywords = nullptr, bool required = true)
{
    return {ParameterKind::Text, placeholder, keywords, required};
}

CommandLineParameter Number(const QString& placeholder, bool required = true)
{
    return {ParameterKind::Number, placeholder, nullptr, required};
}

CommandLineParameter Range()
{
    return {ParameterKind::Range, u"{<first char>[-<last char>]|all}"_s};
}

// NOLINTNEXTLINE(readability-function-size): a table
std::vector<CommandLineOption> MakeOptions()
{
    return {
        {.id = OptionId::Open,
         .longName = {},
         .shortName = {},
         .parameters = {Text(u"<file path>"_s)},
         .description = u"Open font file. Allowed are TTF, TTC, BDF, C, XBF and SIF font files."_s,
         .position = 0,
         .exclusiveWith = OptionId::Create},
        {.id = OptionId::Create,
         .longName = u"create"_s,
         .shortName = u"c"_s,
         .parameters = {Text(u"<family name>"_s), Text(u"<style name>"_s)},
         .description = u"Create TrueType font from family and style name. Font directory will be "
                        "searched for the font."_s,
         .exclusiveWith = OptionId::Open},
        {.id = OptionId::Height,
         .longName = u"height"_s,
         .shortName = u"h"_s,
         .parameters = {Text(u"<font height>{px|pt}"_s)},
         .description =
             u"Height of font in pixels or points. Only required for generating TrueType "
             "fonts."_s},
        {.id = OptionId::Format,
         .longName = u"format"_s,
         .shortName = u"f"_s,
         .parameters = {Text(u"<output font format>"_s, &FormatKeywords())},
         .description = u"Destination font format."_s},
        {.id = OptionId::Bold,
         .longName = u"bold"_s,
         .shortName = u"b"_s,
         .parameters = {},
         .description = u"Emboldens the outline of each character. Only used for TTF and TTC."_s},
        {.id = OptionId::Italic,
         .longName = u"italic"_s,
         .shortName = u"i"_s,
         .parameters = {},
         .description =
             u"Italicizes each character by a fixed angle. Only used for TTF and TTC."_s},
        {.id = OptionId::Face,
         .longName = u"face"_s,
         .shortName = u"fi"_s,
         .parameters = {Number(u"<index>"_s)},
         .description =
             u"Face index to be used (optional, only used for TTC fonts and multi-master "
             "TTF fonts)."_s},
        {.id = OptionId::Encoding,
         .longName = u"encoding"_s,
         .shortName = u"enc"_s,
         .parameters = {Text(u"<encoding>"_s, &EncodingKeywords())},
         .description = u"Destination encoding of the font."_s},
        {.id = OptionId::Enable,
         .longName = u"enable"_s,
         .shortName = u"e"_s,
         .parameters = {Range()},
         .description = u"Enable a range of characters. Allowed are decimal or hexadecimal ranges "
                        "(e.g. 0x10-0x30) or \"all\"."_s,
         .multiple = true},
        {.id = OptionId::Disable,
         .longName = u"disable"_s,
         .shortName = u"d"_s,
         .parameters = {Range()},
         .description = u"Disable a range of characters. Allowed are decimal or hexadecimal ranges "
                        "(e.g. 0x10-0x30) or \"all\"."_s,
         .multiple = true},
        {.id = OptionId::ReadPattern,
         .longName = u"readpattern"_s,
         .shortName = u"p"_s,
         .parameters = {Text(u"<file path>"_s)},
         .description = u"Reads a pattern file."_s,
         .multiple = true},
        {.id = OptionId::EditFont,
         .longName = u"editfont"_s,
         .shortName = u"ef"_s,
         .parameters = {Text(u"<action>"_s, &FontEditKeywords()), Number(u"<count>"_s, false)},
         .description = u"Equivalent to the 'Edit' menu (font dependent)."_s,
         .multiple = true},
        {.id = OptionId::EditChar,
         .longName = u"editchar"_s,
         .shortName = u"ec"_s,
         .parameters = {Text(u"<action>"_s, &CharEditKeywords()), Range(),
                        Number(u"<value>"_s, false)},
         .description = u"Equivalent to the 'Edit' menu (character dependent)."_s,
         .multiple = true},
        {.id = OptionId::Merge,
         .longName = u"merge"_s,
         .shortName = u"m"_s,
         .parameters = {Text(u"<file path>"_s), Text(u"<merge mode>"_s, &MergeKeywords(), false)},
         .description = u"Merge the currently loaded font with another font file. Only C, XBF, SIF "
                        "and BDF allowed."_s},
        {.id = OptionId::Save,
         .longName = u"save"_s,
         .shortName = u"s"_s,
         .parameters = {Text(u"<file path>"_s)},
         .description = u"Save font file."_s,
         .required = true},
        {.id = OptionId::ListFonts,
         .longName = u"listfonts"_s,
         .shortName = u"lf"_s,
         .parameters = {},
         .description = u"Lists all font families and styles found in the given font directories. "
                        "These fonts may be used in the -create command."_s,
         .standalone = true},
        {.id = OptionId::Verbose,
         .longName = u"verbose"_s,
         .shortName = u"v"_s,
         .parameters = {},
         .description =
             u"Enables verbose mode, prints every action performed on the font (i.e. the "
             "entire log)."_s},
        {.id = OptionId::Exit,
         .longName = u"exit"_s,
         .shortName = u"x"_s,
         .parameters = {},
         .description = u"Exits the command line."_s},
        {.id = OptionId::Hide,
         .longName = u"hide"_s,
         .shortName = {},
         .parameters = {},
         .description = u"Hides the application window in GUI mode."_s},
        {.id = OptionId::ErrorFile,
         .longName = u"xirtsek"_s,
         .shortName = {},
         .parameters = {},
         .description = {}},
        {.id = OptionId::Help,
         .longName = u"help"_s,
         .shortName = u"?"_s,
         .parameters = {},
         .description = u"Displays usage information and exits."_s,
         .standalone = true},
    };
}

} // namespace

const ParameterKeywordTable::Entry* ParameterKeywordTable::Find(QStringView text) const
{
    const auto entry = std::ranges::find_if(entries_, [text](const Entry& candidate) {
        return text.compare(candidate.keyword, Qt::CaseInsensitive) == 0;
    });
    return entry == entries_.end() ? nullptr : &*entry;
}

std::span<const CommandLineOption> CommandLineOptions()
{
    static const std::vector<CommandLineOption> options = MakeOptions();
    return options;
}

const CommandLineOption& OptionOf(OptionId id)
{
    return *std::ranges::find(CommandLineOptions(), id, &CommandLineOption::id);
}

const ParameterKeywordTable& FormatKeywords()
{
    static const ParameterKeywordTable table([] {
        std::vector<ParameterKeywordTable::Entry> entries;
        entries.reserve(FormatKeywordTable.size());
        for (const FormatKeywordRow& row : FormatKeywordTable)
            entries.push_back(
                {row.keyword, FormatDisplayName(row.format), static_cast<int>(row.format)});
        return entries;
    }());
    return table;
}

const ParameterKeywordTable& EncodingKeywords()
{
    static const ParameterKeywordTable table([] {
        std::vector<ParameterKeywordTable::Entry> entries;
        entries.reserve(EncodingKeywordTable.size());
        for (const EncodingKeywordRow& row : EncodingKeywordTable)
            entries.push_back({row.keyword, row.description, static_cast<int>(row.encoding),
                               row.description.isEmpty()});
        return entries;
    }());
    return table;
}

const ParameterKeywordTable& MergeKeywords()
{
    constexpr int replace = static_cast<int>(MergeMode::Replace);
    constexpr int keep = static_cast<int>(MergeMode::Keep);
    static const ParameterKeywordTable table({
        {u"REPLACE"_s,
         u"Replaces duplicate characters in opened font with characters from new font."_s, replace},
        {u"KEEP"_s, u"Retains duplicate characters in opened font."_s, keep},
        {u"ReplaceOld"_s, {}, replace, true},
        {u"KeepOld"_s, {}, keep, true},
    });
    return table;
}

const ParameterKeywordTable& FontEditKeywords()
{
    static const ParameterKeywordTable table(KeywordsOf(EditTarget::Font));
    return table;
}

const ParameterKeywordTable& CharEditKeywords()
{
    static const ParameterKeywordTable table(KeywordsOf(EditTarget::Character));
    return table;
}

QString CommandLineOption::Form() const
{
    QStringList parts;
    if (!longName.isEmpty())
        parts.append(u'-' + longName);
    for (const CommandLineParameter& parameter : parameters)
        parts.append(parameter.placeholder);
    return parts.join(u' ');
}

} // namespace Glyphor
