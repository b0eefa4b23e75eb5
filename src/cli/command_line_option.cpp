#include "cli/command_line_option.h"

#include "actions/action_merge_font.h"
#include "actions/edit_table.h"
#include "app/user_interface.h"
#include "model/font_format.h"
#include "render/render_options.h"

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

std::vector<ParameterKeywordTable::Entry> KeywordsOf(EditTarget target)
{
    std::vector<ParameterKeywordTable::Entry> entries;
    for (const Edit& edit : EditTable()) {
        if (edit.target == target && !edit.keyword.isEmpty())
            entries.push_back({.keyword = edit.keyword,
                               .description = edit.help,
                               .value = static_cast<int>(edit.type),
                               .needsValue = NeedsValue(edit)});
    }
    return entries;
}

CommandLineParameter Text(const QString& placeholder,
                          const ParameterKeywordTable* keywords = nullptr, bool required = true)
{
    return {ParameterKind::Text, placeholder, keywords, required};
}

CommandLineParameter FilePath()
{
    return Text(FilePlaceholder.toString());
}

CommandLineParameter Number(const QString& placeholder, bool required = true)
{
    return {ParameterKind::Number, placeholder, nullptr, required};
}

CommandLineParameter Offset(const QString& placeholder)
{
    return {ParameterKind::SignedNumber, placeholder, nullptr, false};
}

CommandLineParameter Range()
{
    return {ParameterKind::Range, u"{<first char>[-<last char>]|all}"_s};
}

CommandLineOption Option(OptionId id, const QString& longName, const QString& shortName,
                         const std::vector<CommandLineParameter>& parameters,
                         const QString& description, const OptionMarks& marks = {})
{
    return {marks, id, longName, shortName, parameters, description};
}

// NOLINTNEXTLINE(readability-function-size): a table
std::vector<CommandLineOption> MakeOptions()
{
    using enum OptionId;
    return {
        Option(Open, {}, {}, {FilePath()},
               u"Open font file. Allowed are TTF, TTC, BDF, C, XBF and SIF font files."_s,
               {.position = 0, .exclusiveWith = Create}),
        Option(Create, u"create"_s, u"c"_s, {Text(u"<family name>"_s), Text(u"<style name>"_s)},
               u"Create TrueType font from family and style name. Font directory will be searched "
               "for the font."_s,
               {.exclusiveWith = Open}),
        Option(Height, u"height"_s, u"h"_s, {Text(u"<font height>{px|pt}"_s)},
               u"Height of font in pixels or points. Only required for generating TrueType "
               "fonts. Behind cap:, x:, line: or em: it is that of the letter H or x, of the line "
               "or of the em."_s),
        Option(Format, u"format"_s, u"f"_s, {Text(u"<output font format>"_s, &FormatKeywords())},
               u"Destination font format."_s),
        Option(Bold, u"bold"_s, u"b"_s, {},
               u"Emboldens the outline of each character. Only used for TTF and TTC."_s),
        Option(Italic, u"italic"_s, u"i"_s, {},
               u"Italicizes each character by a fixed angle. Only used for TTF and TTC."_s),
        Option(Face, u"face"_s, u"fi"_s, {Number(u"<index>"_s)},
               u"Face index to be used (optional, only used for TTC fonts and multi-master TTF "
               "fonts)."_s),
        Option(
            Features, u"features"_s, u"fea"_s, {Text(u"<tag>[=<number>][,...]"_s)},
            u"Shows characters with the glyphs of features of the font, e.g. tnum,zero,ss01. Only "
            "used for TTF and TTC."_s),
        Option(Encoding, u"encoding"_s, u"enc"_s, {Text(u"<encoding>"_s, &EncodingKeywords())},
               u"Destination encoding of the font."_s),
        Option(Enable, u"enable"_s, u"e"_s, {Range()},
               u"Enable a range of characters. Allowed are decimal or hexadecimal ranges (e.g. "
               "0x10-0x30) or \"all\"."_s,
               {.multiple = true}),
        Option(Disable, u"disable"_s, u"d"_s, {Range()},
               u"Disable a range of characters. Allowed are decimal or hexadecimal ranges (e.g. "
               "0x10-0x30) or \"all\"."_s,
               {.multiple = true}),
        Option(ReadPattern, u"readpattern"_s, u"p"_s, {FilePath()}, u"Reads a pattern file."_s,
               {.multiple = true}),
        Option(EditFont, u"editfont"_s, u"ef"_s,
               {Text(u"<action>"_s, &FontEditKeywords()), Number(u"<count>"_s, false)},
               u"Equivalent to the 'Edit' menu (font dependent)."_s, {.multiple = true}),
        Option(EditChar, u"editchar"_s, u"ec"_s,
               {Text(u"<action>"_s, &CharEditKeywords()), Range(), Number(u"<value>"_s, false)},
               u"Equivalent to the 'Edit' menu (character dependent)."_s, {.multiple = true}),
        Option(Merge, u"merge"_s, u"m"_s,
               {FilePath(), Text(u"<merge mode>"_s, &MergeKeywords(), false)},
               u"Merge the currently loaded font with another font file. Only C, XBF, SIF and BDF "
               "allowed."_s),
        Option(Save, u"save"_s, u"s"_s, {FilePath()}, u"Save font file."_s, {.required = true}),
        Option(
            ListFonts, u"listfonts"_s, u"lf"_s, {},
            u"Lists all font families and styles found in the given font directories. These fonts "
            "may be used in the -create command."_s,
            {.standalone = true}),
        Option(Verbose, u"verbose"_s, u"v"_s, {},
               u"Enables verbose mode, prints every action performed on the font (i.e. the entire "
               "log)."_s),
        Option(Exit, u"exit"_s, u"x"_s, {}, u"Exits the command line."_s),
        Option(Hide, u"hide"_s, {}, {}, u"Hides the application window in GUI mode."_s),
        Option(ErrorFile, u"xirtsek"_s, {}, {}, {}),
        Option(Help, u"help"_s, u"?"_s, {}, u"Displays usage information and exits."_s,
               {.standalone = true}),
        Option(
            Strict, u"strict"_s, u"st"_s, {},
            u"Tells by the exit status how the run went (0 well, 1 error, 2 warnings) and writes "
            "messages to standard error as compilers do."_s),
        Option(Quiet, u"quiet"_s, u"q"_s, {}, u"Prints warnings and errors only."_s),
        Option(Version, u"version"_s, u"ver"_s, {},
               u"Displays the versions of the program and of what it uses, and exits."_s,
               {.standalone = true}),
        Option(Defaults, u"defaults"_s, u"df"_s, {},
               u"Uses the built-in settings instead of the user's."_s),
        Option(Set, u"set"_s, u"se"_s, {Text(u"<key>=<value>"_s)},
               u"Uses a value for one of the settings in this run, e.g. WritePaths=false."_s,
               {.multiple = true}),
        Option(
            TextFile, u"text"_s, u"t"_s, {FilePath()},
            u"Enables the characters of a text: PO, TS, XLIFF, JSON, CSV, C and C++ by what they "
            "say, any other file as a whole."_s,
            {.multiple = true}),
        Option(Chars, u"chars"_s, u"ch"_s, {Text(u"<text>"_s)},
               u"Enables the characters of the text."_s, {.multiple = true}),
        Option(Charset, u"charset"_s, u"cs"_s, {Text(u"<name>"_s)},
               u"Enables the characters of a standard (e.g. latin1) or a language (e.g. de)."_s,
               {.multiple = true}),
        Option(ListCharsets, u"listcharsets"_s, u"lc"_s, {},
               u"Lists the names that -charset takes, and how many characters they have."_s,
               {.standalone = true}),
        Option(Check, u"check"_s, u"ck"_s, {},
               u"Tells which of the characters that were asked for the font does not have, and "
               "writes no font."_s),
        Option(Name, u"name"_s, u"n"_s, {Text(u"<name>"_s)},
               u"Name of the font, and of the C structure behind \"GUI_Font\"."_s),
        Option(Kerning, u"kerning"_s, u"k"_s, {FilePath()}, u"Save kerning table as a C file."_s),
        Option(Report, u"report"_s, u"r"_s, {FilePath()},
               u"Writes what was made of what into a JSON file."_s),
        Option(DependencyFile, u"depfile"_s, u"dep"_s, {FilePath()},
               u"Writes the files that the output depends on into a file for Make or Ninja."_s),
        Option(WarningsAreErrors, u"werror"_s, u"we"_s, {},
               u"Takes warnings for errors: a run that would warn writes nothing."_s),
        Option(Fit, u"fit"_s, u"fit"_s, {},
               u"Makes the font so high that all its ink lies within the line. Only used for TTF "
               "and TTC."_s),
        Option(Hinting, u"hinting"_s, u"hi"_s, {Text(u"<mode>"_s, &HintingKeywords())},
               u"How outlines are fitted to the pixels. Only used for TTF and TTC."_s),
        Option(Gamma, u"gamma"_s, u"ga"_s, {Text(u"<value>"_s)},
               u"Makes the edges of strokes darker (above 1) or lighter (below). Only used for TTF "
               "and TTC with 2 or 4 bits per pixel."_s),
        Option(Axes, u"axes"_s, u"ax"_s, {Text(u"<tag>=<value>,..."_s)},
               u"Moves a variable font along its axes (e.g. wght=550,wdth=87)."_s),
        Option(Map, u"map"_s, u"mp"_s, {Text(u"<codes>[=<code>[:<name>]],..."_s)},
               u"Which characters of a TTF, TTC or BDF file to take, and where they go (e.g. "
               "0x20-0x7E,0xF02D1=0xE001)."_s),
        Option(Source, u"source"_s, u"so"_s,
               {FilePath(), Text(u"<codes>[=<code>[:<name>]],..."_s),
                Text(u"<height>"_s, nullptr, false)},
               u"Takes characters of another TTF, TTC or BDF file into the font; those behind a ? "
               "where they are missing."_s,
               {.multiple = true}),
        Option(Charmap, u"charmap"_s, u"cm"_s, {Number(u"<index>"_s)},
               u"Index of the charmap that tells the codes of a TTF or TTC file."_s),
        Option(Jobs, u"jobs"_s, u"j"_s, {Number(u"<count>"_s)},
               u"How many threads render large fonts; as many as there are cores if not given."_s),
        Option(Proof, u"proof"_s, u"pr"_s, {FilePath()},
               u"Writes pictures of the font into a PNG or PDF file: all its characters and sample "
               "texts, in its own pixels."_s),
        Option(ProofText, u"prooftext"_s, u"pt"_s, {FilePath()},
               u"The text to show in the proof, instead of the built-in ones."_s),
        Option(Compare, u"compare"_s, u"co"_s, {FilePath()},
               u"Tells in which characters and metrics the font differs from another font file; "
               "the proof shows them."_s),
        Option(Align, u"align"_s, u"al"_s, {Text(u"<line>"_s, &AlignKeywords())},
               u"What the characters of a merged font are put on, where the fonts differ."_s),
        Option(Header, u"header"_s, u"hd"_s, {FilePath()},
               u"Writes names for the characters of -map, -source and -image into a C header."_s),
        Option(Image, u"image"_s, u"im"_s,
               {FilePath(), Text(u"<code>[:<name>]"_s), Offset(u"<rows>"_s)},
               u"Takes a PNG file into the font as a character, dark is ink; so many rows above "
               "the baseline."_s,
               {.multiple = true}),
        Option(Threshold, u"threshold"_s, u"th"_s, {Number(u"<coverage>"_s)},
               u"Makes pixels of -image full ink from this darkness on (1 to 255), and all others "
               "empty."_s),
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

bool SelectsCharacters(OptionId option)
{
    using enum OptionId;
    constexpr std::array selecting = {Enable, Disable, ReadPattern, TextFile, Chars, Charset};
    return std::ranges::find(selecting, option) != selecting.end();
}

const CommandLineOption* FindOption(QStringView argument)
{
    if (!argument.startsWith(u'-'))
        return nullptr;
    const auto matches = [name = argument.mid(1)](const QString& candidate) {
        return !candidate.isEmpty() && candidate.size() == name.size() &&
               name.compare(candidate, Qt::CaseInsensitive) == 0;
    };
    const auto options = CommandLineOptions();
    const auto found = std::ranges::find_if(options, [&matches](const auto& option) {
        return matches(option.longName) || matches(option.shortName);
    });
    return found != options.end() ? &*found : nullptr;
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

const ParameterKeywordTable& AlignKeywords()
{
    static const ParameterKeywordTable table({
        {u"baseline"_s, u"On the baseline of the opened font."_s, int(MergeAlignment::Baseline)},
    });
    return table;
}

const ParameterKeywordTable& HintingKeywords()
{
    using enum Glyphor::Hinting;
    static const ParameterKeywordTable table({
        {u"default"_s, u"As the font wants it, with the shapes of letters kept."_s, int(Default)},
        {u"mono"_s, u"Stems of whole pixels, for 1 bit per pixel."_s, int(Mono)},
        {u"light"_s, u"Vertically alone, so that widths stay."_s, int(Light)},
        {u"auto"_s, u"By FreeType instead of the font's own instructions."_s, int(Auto)},
        {u"none"_s, u"Not at all."_s, int(None)},
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
