#include "cli/command_line_parser_legacy.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "cli/command_line_parser.h"
#include "files/file_types.h"
#include "model/font_format.h"

#include <algorithm>
#include <array>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

using Entries = std::vector<ParameterKeywordTable::Entry>;

// Codes and characters are those of Unicode, so it is no encoding of its own.
constexpr int Iso8859 = -1;

constexpr std::array<CodeRange, 3> BeyondIso8859 = {{{0, 0x1F}, {0x7F, 0x9F}, {0x100, 0xFFFF}}};

// An action that has directions is that of today once one of them stands for its last letter.
struct LegacyEdit
{
    QLatin1StringView keyword;
    QLatin1StringView directions = {};
};

constexpr std::array LegacyEdits = {
    LegacyEdit{"CINC"_L1},
    LegacyEdit{"CDEC"_L1},
    LegacyEdit{"SHIFTH"_L1, "LR"_L1},
    LegacyEdit{"SHIFTV"_L1, "UD"_L1},
    LegacyEdit{"MOVEH"_L1, "LR"_L1},
    LegacyEdit{"MOVEV"_L1, "UD"_L1},
    LegacyEdit{"INST"_L1},
    LegacyEdit{"INSB"_L1},
    LegacyEdit{"INSL"_L1},
    LegacyEdit{"INSR"_L1},
    LegacyEdit{"DELT"_L1},
    LegacyEdit{"DELB"_L1},
    LegacyEdit{"DELL"_L1},
    LegacyEdit{"DELR"_L1},
};

const ParameterKeywordTable& LegacyFormatKeywords()
{
    static const ParameterKeywordTable table([] {
        Entries entries;
        for (const FormatKeywordRow& row : LegacyFormatKeywordTable)
            entries.push_back({row.keyword, {}, static_cast<int>(row.format)});
        return entries;
    }());
    return table;
}

const ParameterKeywordTable& LegacyEncodingKeywords()
{
    static const ParameterKeywordTable table({
        {u"UC16"_s, {}, static_cast<int>(EncodingType::Unicode)},
        {u"ISO8859"_s, {}, Iso8859},
        {u"JIS"_s, {}, static_cast<int>(EncodingType::ShiftJis)},
    });
    return table;
}

// With their places in the table of edits.
const ParameterKeywordTable& LegacyEditKeywords()
{
    static const ParameterKeywordTable table([] {
        Entries entries;
        for (const LegacyEdit& edit : LegacyEdits)
            entries.push_back({edit.keyword, {}, int(entries.size())});
        return entries;
    }());
    return table;
}

const ParameterKeywordTable& StateKeywords()
{
    static const ParameterKeywordTable table({{u"0"_s, {}, 0}, {u"1"_s, {}, 1}});
    return table;
}

// The kinds that can be saved, by their suffixes.
const ParameterKeywordTable& FileTypeKeywords()
{
    static const ParameterKeywordTable table([] {
        Entries entries;
        for (const FileTypeRow& row : FileTypeTable) {
            if (row.isWritten)
                entries.push_back({row.suffixes.front().sliced(1), {}, static_cast<int>(row.type)});
        }
        return entries;
    }());
    return table;
}

ParameterValue ValueOr(const CommandLineParameter& parameter, const QString& text,
                       const QString& message)
{
    try {
        return ParseValue(parameter, text);
    } catch (const CriticalException&) {
        throw CriticalException(message.arg(Shown(text)));
    }
}

CommandLineParameter OneOf(const ParameterKeywordTable& keywords)
{
    return {ParameterKind::Text, {}, &keywords};
}

int KeywordValue(const ParameterKeywordTable& keywords, const QString& text)
{
    return std::get<int>(ParseValue(OneOf(keywords), text));
}

ParameterValue LegacyRange(const QString& text)
{
    return ValueOr({ParameterKind::Range, {}}, text, Engine::tr("Error parsing range: %1"));
}

OptionOccurrence UseOf(OptionId id, const std::vector<ParameterValue>& values)
{
    return {&OptionOf(id), values, {}, {}};
}

// The parameters may end with a comma.
QString WithoutComma(const QString& parameters)
{
    return parameters.endsWith(u',') ? parameters.chopped(1) : parameters;
}

// Of an option without names in it, which may also join its parameters by commas.
QStringList Parts(const QString& parameters)
{
    return WithoutComma(parameters).replace(u',', u'~').split(u'~');
}

bool AreParts(const QStringList& parts, qsizetype least, qsizetype most)
{
    return parts.size() >= least && parts.size() <= most && !parts.contains(QString());
}

LegacyUses ParseCreate(const QString& parameters)
{
    const QStringList parts = WithoutComma(parameters).split(u'~');
    if (!AreParts(parts, 5, 6))
        throw CriticalException(
            Engine::tr("Invalid create string syntax: %1").arg(Shown(parameters)));
    const auto number = [&parts](qsizetype index) {
        return std::get<int>(ValueOr({ParameterKind::Number, {}}, parts[index],
                                     Engine::tr("Invalid create string syntax: W%1")));
    };
    const int height = number(2);
    const ParameterValue format =
        ValueOr(OneOf(LegacyFormatKeywords()), parts[3], Engine::tr("Invalid font format: %1"));
    const ParameterValue encoding =
        ValueOr(OneOf(LegacyEncodingKeywords()), parts[4], Engine::tr("Invalid encoding type: %2"));
    if (parts.size() > 5)
        number(5); // the method of anti-aliasing, of which there is one now

    LegacyUses result;
    const bool isLimited = encoding == ParameterValue(Iso8859);
    result.uses = {UseOf(OptionId::Create, {parts[0], parts[1]}),
                   UseOf(OptionId::Height, {u"%1px"_s.arg(height)}),
                   UseOf(OptionId::Format, {format}),
                   UseOf(OptionId::Encoding,
                         {isLimited ? static_cast<int>(EncodingType::Unicode) : encoding})};
    if (isLimited) {
        for (const CodeRange range : BeyondIso8859)
            result.limits.push_back(UseOf(OptionId::Disable, {range}));
    }
    return result;
}

LegacyUses ParseEnable(const QString& parameters)
{
    const QStringList parts = Parts(parameters);
    if (!AreParts(parts, 2, 2))
        return {};
    const ParameterValue range = LegacyRange(parts[0]);
    const bool isEnabled = KeywordValue(StateKeywords(), parts[1]) != 0;
    return {{UseOf(isEnabled ? OptionId::Enable : OptionId::Disable, {range})}, {}};
}

LegacyUses ParseEdit(const QString& parameters)
{
    const QStringList parts = Parts(parameters);
    if (!AreParts(parts, 2, 3))
        return {};
    const auto index = static_cast<std::size_t>(KeywordValue(LegacyEditKeywords(), parts[0]));
    const LegacyEdit& edit = LegacyEdits.at(index);
    QString keyword = edit.keyword;
    QString range = parts[1];
    if (!edit.directions.isEmpty()) {
        const bool hasDirection = range.size() > 1 && range[1] == u'/' &&
                                  edit.directions.contains(range[0], Qt::CaseInsensitive);
        if (!hasDirection)
            throw CriticalException(Engine::tr("Error parsing range: %1").arg(Shown(range)));
        keyword.back() = range[0];
        range.remove(0, 2);
    }
    const CommandLineOption& option = OptionOf(OptionId::EditChar);
    std::vector<ParameterValue> values = {ParseValue(option.parameters[0], keyword),
                                          LegacyRange(range)};
    values.push_back(parts.size() > 2 ? ParseValue(option.parameters[2], parts[2])
                                      : ParameterValue());
    return {{{&option, values, {}, {}}}, {}};
}

LegacyUses ParseReadPattern(const QString& path)
{
    return {{UseOf(OptionId::ReadPattern, {path})}, {}};
}

LegacyUses ParseMerge(const QString& path)
{
    return {{UseOf(OptionId::Merge, {path, {}})}, {}};
}

// The name may have the joint in it, the type has not. A name without a suffix of its type gets it.
LegacyUses ParseSaveAs(const QString& parameters)
{
    const QString text = WithoutComma(parameters);
    const qsizetype joint = text.lastIndexOf(u'~');
    if (joint < 1 || joint + 1 == text.size())
        return {};
    const auto type =
        static_cast<FileType>(KeywordValue(FileTypeKeywords(), text.sliced(joint + 1)));
    QString path = text.first(joint);
    if (FileTypeOf(path) != type)
        path += RowOf(type).suffixes.front();
    return {{UseOf(OptionId::Save, {path})}, {}};
}

struct LegacyForm
{
    QLatin1StringView name;
    LegacyUses (*parse)(const QString& parameters);
};

constexpr std::array LegacyForms = {
    LegacyForm{"create"_L1, ParseCreate}, LegacyForm{"enable"_L1, ParseEnable},
    LegacyForm{"edit"_L1, ParseEdit},     LegacyForm{"readpattern"_L1, ParseReadPattern},
    LegacyForm{"merge"_L1, ParseMerge},   LegacyForm{"saveas"_L1, ParseSaveAs},
};

// Null for an argument that is not of the older syntax, or has nothing behind the name.
const LegacyForm* FormOf(QStringView argument)
{
    const auto* const form = std::ranges::find_if(LegacyForms, [argument](const LegacyForm& row) {
        return argument.startsWith(u'-') && argument.size() > row.name.size() + 1 &&
               argument.sliced(1).startsWith(row.name, Qt::CaseInsensitive);
    });
    return form == LegacyForms.end() ? nullptr : form;
}

} // namespace

LegacyUses CommandLineParserLegacy::Parse(const QString& argument) const
{
    const LegacyForm* const form = FormOf(argument);
    return form == nullptr ? LegacyUses() : form->parse(argument.sliced(form->name.size() + 1));
}

bool CommandLineParserLegacy::CanBegin(QStringView argument) const
{
    return FormOf(argument) != nullptr;
}

} // namespace Glyphor
