#include "cli/command_line_parser.h"

#include "app/critical_exception.h"
#include "app/shown_text.h"
#include "cli/command_line_parser_legacy.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <limits>
#include <set>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void Fail(const QString& text)
{
    throw CriticalException(text);
}

// Decimal, or hexadecimal behind "0x"; nothing but digits. What does not fit is the largest number.
quint64 ParseNumber(const QString& text)
{
    const bool isHex = text.startsWith(u"0x", Qt::CaseInsensitive);
    const QString digits = isHex ? text.mid(2) : text;
    const bool onlyDigits = std::ranges::all_of(digits, [isHex](QChar digit) {
        const char character = digit.toLatin1();
        return (isHex ? std::isxdigit(uchar(character)) : std::isdigit(uchar(character))) != 0;
    });
    if (!onlyDigits || digits.isEmpty())
        Fail(u"Error while parsing number: %1"_s.arg(Shown(text)));
    bool fits = false;
    const quint64 number = digits.toULongLong(&fits, isHex ? 16 : 10);
    return fits ? number : std::numeric_limits<quint64>::max();
}

int ParseInt(const QString& text)
{
    const quint64 number = ParseNumber(text);
    if (number > quint64(std::numeric_limits<int>::max()))
        Fail(u"The number %1 is too large."_s.arg(Shown(text)));
    return static_cast<int>(number);
}

bool IsNegativeNumber(QStringView text)
{
    return text.size() > 1 && text[0] == u'-' && text[1] >= u'0' && text[1] <= u'9';
}

quint16 ParseCode(const QString& text)
{
    const quint64 number = ParseNumber(text);
    if (number > std::numeric_limits<quint16>::max())
        Fail(
            u"The character code %1 is too large: codes end at 0xFFFF (65535)."_s.arg(Shown(text)));
    return static_cast<quint16>(number);
}

CodeRange ParseRange(const QString& text, const QString& placeholder)
{
    if (text.compare(u"all", Qt::CaseInsensitive) == 0)
        return {0, std::numeric_limits<quint16>::max()};
    const QStringList parts = text.split(u'-');
    if (parts.size() > 2 || parts.contains(QString()))
        Fail(u"Invalid range entered: %1%2Expected format: %3"_s.arg(Shown(text), u"\n"_s,
                                                                     placeholder));
    return {ParseCode(parts.first()), ParseCode(parts.last())};
}

} // namespace

ParameterValue ParseValue(const CommandLineParameter& parameter, const QString& text)
{
    if (parameter.keywords != nullptr) {
        const auto* const entry = parameter.keywords->Find(text);
        if (entry == nullptr)
            Fail(u"Given parameter %1 did not match constraint!"_s.arg(Shown(text)));
        return entry->value;
    }
    switch (parameter.kind) {
    case ParameterKind::Number:
        return ParseInt(text);
    case ParameterKind::SignedNumber:
        return text.startsWith(u'-') ? -ParseInt(text.mid(1)) : ParseInt(text);
    case ParameterKind::Range:
        return ParseRange(text, parameter.placeholder);
    default:
        return text;
    }
}

namespace {

// What says how the program runs, and not what it does.
bool StandsAnywhere(OptionId option)
{
    using enum OptionId;
    return option == Hide || option == Strict || option == WarningsAreErrors || option == Quiet ||
           option == Defaults || option == Set;
}

// Walks the arguments. The positional option is counted without those that may stand anywhere.
class ArgumentReader
{
public:
    explicit ArgumentReader(const std::vector<Argument>& arguments) : arguments_(arguments) {}

    std::vector<OptionOccurrence> ReadAll()
    {
        std::vector<OptionOccurrence> occurrences;
        for (int position = 0; next_ < arguments_.size();) {
            place_ = arguments_[next_].place;
            const CommandLineOption* const option = Recognise(arguments_[next_].text, position);
            if (arguments_[next_].text.startsWith(u'-'))
                place_.option = arguments_[next_].text;
            if (option == nullptr) {
                ReadLegacy(arguments_[next_++].text, occurrences);
                ++position;
                continue;
            }
            const std::size_t begin = next_;
            if (option->position < 0)
                ++next_;
            if (!StandsAnywhere(option->id))
                ++position;
            std::vector<ParameterValue> values = ReadValues(*option);
            OptionOccurrence occurrence{option, std::move(values), place_};
            for (std::size_t word = begin; word < next_; ++word)
                occurrence.words.append(arguments_[word].text);
            occurrences.push_back(std::move(occurrence));
        }
        std::ranges::move(limits_, std::back_inserter(occurrences));
        return occurrences;
    }

    // Where it stopped.
    [[nodiscard]] const Place& CurrentPlace() const { return place_; }

private:
    // Null where no option has the name.
    const CommandLineOption* Recognise(const QString& argument, int position)
    {
        for (const CommandLineOption& option : CommandLineOptions()) {
            const bool isPositional = option.position == position && !argument.startsWith(u'-');
            if (!isPositional && FindOption(argument) != &option)
                continue;
            MarkPresent(option);
            return &option;
        }
        return nullptr;
    }

    void MarkPresent(const CommandLineOption& option)
    {
        if (!present_.insert(option.id).second && !option.multiple)
            Fail(u"Argument -%1 supplied more than once!"_s.arg(option.longName));
    }

    void ReadLegacy(const QString& argument, std::vector<OptionOccurrence>& occurrences)
    {
        LegacyUses legacy = legacyParser_.Parse(argument);
        if (legacy.uses.empty())
            Fail(u"Invalid argument %1 entered!"_s.arg(Shown(argument)));
        for (OptionOccurrence& use : legacy.uses) {
            MarkPresent(*use.option);
            use.place = place_;
        }
        legacy.uses.front().words.append(argument);
        std::ranges::move(legacy.uses, std::back_inserter(occurrences));
        std::ranges::move(legacy.limits, std::back_inserter(limits_));
    }

    std::vector<ParameterValue> ReadValues(const CommandLineOption& option)
    {
        std::vector<ParameterValue> values;
        bool needsValue = false;
        for (CommandLineParameter parameter : option.parameters) {
            if (needsValue && parameter.kind == ParameterKind::Number) {
                parameter.kind = ParameterKind::SignedNumber;
                parameter.required = true;
            }
            values.push_back(ReadValue(parameter));
            needsValue = needsValue || NeedsValue(parameter, values.back());
        }
        return values;
    }

    // True for a keyword that the number behind it belongs to.
    static bool NeedsValue(const CommandLineParameter& parameter, const ParameterValue& value)
    {
        const auto* const keyword = std::get_if<int>(&value);
        return keyword != nullptr && parameter.keywords != nullptr &&
               std::ranges::any_of(parameter.keywords->Entries(), [keyword](const auto& entry) {
                   return entry.needsValue && entry.value == *keyword;
               });
    }

    ParameterValue ReadValue(const CommandLineParameter& parameter)
    {
        if (next_ == arguments_.size()) {
            if (parameter.required)
                Fail(u"Parameter missing!"_s);
            return {};
        }
        const QString& argument = arguments_[next_].text;
        const bool isNegative =
            parameter.kind == ParameterKind::SignedNumber && IsNegativeNumber(argument);
        if (argument.startsWith(u'-') && !isNegative) {
            const bool isOption =
                FindOption(argument) != nullptr || legacyParser_.CanBegin(argument);
            if (parameter.required || !isOption)
                Fail(
                    u"Read new argument %1 where a parameter was expected!"_s.arg(Shown(argument)));
            return {};
        }
        ++next_;
        return ParseValue(parameter, argument);
    }

    const std::vector<Argument>& arguments_;
    std::size_t next_ = 0;
    std::set<OptionId> present_;
    Place place_;
    CommandLineParserLegacy legacyParser_;
    std::vector<OptionOccurrence> limits_;
};

// Moves the first occurrence of the option to the place; the others keep their order.
void MoveToFront(std::vector<OptionOccurrence>& occurrences, OptionId id)
{
    const auto found = std::ranges::find(occurrences, id, &OptionOccurrence::Id);
    if (found != occurrences.end())
        std::rotate(occurrences.begin(), found, found + 1);
}

void MoveToBack(std::vector<OptionOccurrence>& occurrences, OptionId id)
{
    const auto found = std::ranges::find(occurrences, id, &OptionOccurrence::Id);
    if (found != occurrences.end())
        std::rotate(found, found + 1, occurrences.end());
}

} // namespace

std::vector<OptionOccurrence> CommandLineParser::parse(const QStringList& arguments) const
{
    std::vector<Argument> words;
    for (const QString& argument : arguments)
        words.push_back({argument, {}});
    return Parse(words);
}

std::vector<OptionOccurrence> CommandLineParser::Parse(const std::vector<Argument>& arguments) const
{
    ArgumentReader reader(arguments);
    try {
        return reader.ReadAll();
    } catch (const CriticalException& error) {
        throw CriticalException(error.Title(), error.Text(), reader.CurrentPlace());
    }
}

bool CommandLineParser::check(std::vector<OptionOccurrence>& occurrences) const
{
    const auto standalone = std::ranges::find_if(
        occurrences, [](const auto& occurrence) { return occurrence.option->standalone; });
    if (standalone != occurrences.end()) {
        const OptionId kept = standalone->Id();
        std::erase_if(occurrences, [kept](const auto& other) { return other.Id() != kept; });
        return true;
    }

    const auto isGiven = [&occurrences](OptionId id) {
        return std::ranges::find(occurrences, id, &OptionOccurrence::Id) != occurrences.end();
    };
    for (const CommandLineOption& option : CommandLineOptions()) {
        if (option.exclusiveWith == OptionId::None ||
            isGiven(option.id) != isGiven(option.exclusiveWith))
            continue;
        const QString text = isGiven(option.id)
                                 ? u"Mutually exclusive arguments -%1 and -%2 both set!"_s
                                 : u"Mutually exclusive arguments -%1 and -%2 both not set!"_s;
        Fail(text.arg(option.longName, OptionOf(option.exclusiveWith).longName));
    }
    return false;
}

void ReorderOccurrences(std::vector<OptionOccurrence>& occurrences)
{
    MoveToFront(occurrences, OptionId::Open);
    MoveToFront(occurrences, OptionId::Create);
    MoveToFront(occurrences, OptionId::ProofText);
    std::stable_partition(occurrences.begin(), occurrences.end(), [](const auto& occurrence) {
        return SelectsCharacters(occurrence.Id());
    });
    MoveToBack(occurrences, OptionId::Compare); // with the file that is to be replaced, if any
    MoveToBack(occurrences, OptionId::Save);
    MoveToBack(occurrences, OptionId::Kerning);
    MoveToBack(occurrences, OptionId::Header);
    MoveToBack(occurrences, OptionId::Proof);
    MoveToBack(occurrences, OptionId::Exit);
}

} // namespace Glyphor
