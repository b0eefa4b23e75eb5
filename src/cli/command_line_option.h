#pragma once

#include "app/place.h"
#include "model/code_range.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <span>
#include <variant>
#include <vector>

namespace Glyphor {

enum class OptionId : int {
    None = 0,
    Open = 1,
    Create = 2,
    Height = 3,
    Format = 4,
    Bold = 5,
    Italic = 6,
    Face = 7,
    Encoding = 8,
    Enable = 9,
    Disable = 10,
    ReadPattern = 11,
    EditFont = 12,
    EditChar = 13,
    Merge = 14,
    Save = 15,
    Verbose = 16,
    Exit = 17,
    Help = 18,
    Hide = 19,
    ErrorFile = 20,
    ListFonts = 21,
    Strict = 22,
    Quiet = 23,
    Version = 24,
    Defaults = 25,
    Set = 26,
    TextFile = 27,
    Chars = 28,
    Charset = 29,
    ListCharsets = 30,
    Check = 31,
    Name = 32,
    Kerning = 33,
    Report = 34,
    DependencyFile = 35,
    WarningsAreErrors = 36,
    Hinting = 37,
    Gamma = 38,
    Axes = 39,
    Features = 40,
    Fit = 41,
    Source = 42,
    Map = 43,
    Charmap = 44,
    Align = 45,
    Header = 46,
    Image = 47,
    Threshold = 48,
    Jobs = 49,
    Proof = 60,
    ProofText = 61,
    Compare = 62
};

// A signed number may begin with "-".
enum class ParameterKind { Number = 0, Text = 1, Range = 2, SignedNumber = 3 };

// The words that a text parameter takes. Hidden ones are accepted but not listed.
class ParameterKeywordTable
{
public:
    struct Entry
    {
        QString keyword;
        QString description;
        int value;
        bool hidden = false;

        // The number behind it, if any: how often, which may be left out, or a value.
        bool needsValue = false;
    };

    explicit ParameterKeywordTable(std::vector<Entry> entries) : entries_(std::move(entries)) {}

    // Ignores case; null where no keyword matches.
    [[nodiscard]] const Entry* Find(QStringView text) const;

    [[nodiscard]] std::span<const Entry> Entries() const { return entries_; }

private:
    std::vector<Entry> entries_;
};

struct CommandLineParameter
{
    ParameterKind kind;
    QString placeholder;
    const ParameterKeywordTable* keywords = nullptr;
    bool required = true;
};

// What the parameters are called that are files to read or to write.
inline constexpr QStringView FilePlaceholder = u"<file path>";

struct OptionMarks
{
    bool multiple = false;
    bool required = false;
    int position = -1; // of the positional option among the arguments; -1: a named option
    OptionId exclusiveWith = OptionId::None; // exactly one of the two must be given
    bool standalone = false;
};

// One option of the command line. Hidden options have no description.
struct CommandLineOption : OptionMarks
{
    OptionId id;
    QString longName;
    QString shortName;
    std::vector<CommandLineParameter> parameters;
    QString description;

    // "-name <parameter> <parameter>"; the positional option has its parameter alone.
    [[nodiscard]] QString Form() const;
};

// A parsed value; nothing for an optional parameter that was left out. The last code of a range may
// be the smaller one. A keyword stands as its value in the keyword table.
using ParameterValue = std::variant<std::monostate, int, QString, CodeRange>;

// One use of an option among the arguments.
struct OptionOccurrence
{
    const CommandLineOption* option;
    std::vector<ParameterValue> values; // one for each parameter
    Place place = {};
    QStringList words = {}; // as they were given: the name, and each value that was not left out

    [[nodiscard]] OptionId Id() const { return option->id; }

    template <typename Value>
    [[nodiscard]] const Value& Get(std::size_t parameter) const
    {
        return std::get<Value>(values.at(parameter));
    }
};

// Every option, in the order of the usage text.
[[nodiscard]] std::span<const CommandLineOption> CommandLineOptions();

[[nodiscard]] const CommandLineOption& OptionOf(OptionId id);

// True for the options that select characters, which run before a font is opened.
[[nodiscard]] bool SelectsCharacters(OptionId option);

// The option that the argument names in any letter case, "-save" or "-s"; null for no option's
// name.
[[nodiscard]] const CommandLineOption* FindOption(QStringView argument);

[[nodiscard]] const ParameterKeywordTable& FormatKeywords();
[[nodiscard]] const ParameterKeywordTable& EncodingKeywords();
[[nodiscard]] const ParameterKeywordTable& MergeKeywords();
[[nodiscard]] const ParameterKeywordTable& AlignKeywords();
[[nodiscard]] const ParameterKeywordTable& HintingKeywords();
[[nodiscard]] const ParameterKeywordTable& FontEditKeywords();
[[nodiscard]] const ParameterKeywordTable& CharEditKeywords();

} // namespace Glyphor
