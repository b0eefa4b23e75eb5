#include "cli/run_options.h"

#include "actions/pattern_file.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/user_interface.h"
#include "files/file_types.h"
#include "model/code_text.h"

#include <algorithm>
#include <utility>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// FreeType counts pixels per em in 16 bits.
constexpr int MaxHeight = 0xFFFF;

// Without a window there is no resolution either, and points give no height.
constexpr int NoScreen = 0;

// Metrics wrap long before, and every step is a line of the log.
constexpr int MaxCount = 0xFFFF;

void CheckCount(const OptionOccurrence& occurrence, std::size_t parameter)
{
    if (!std::holds_alternative<int>(occurrence.values[parameter]))
        return;
    const int count = occurrence.Get<int>(parameter);
    if (count < 1 || count > MaxCount)
        throw CriticalException(Engine::tr("The %1 of -%2 has to be from 1 to %3.")
                                    .arg(occurrence.option->parameters[parameter].placeholder,
                                         occurrence.option->longName, QString::number(MaxCount)));
}

void ReadOption(const OptionOccurrence& occurrence, RunOptions& options)
{
    switch (occurrence.Id()) {
    case OptionId::Height:
        options.open.size = ParseHeight(occurrence.Get<QString>(0));
        options.open.render.height = options.open.size.PixelHeight(NoScreen);
        break;
    case OptionId::Format:
        options.open.format = static_cast<FontFormat>(occurrence.Get<int>(0));
        break;
    case OptionId::Encoding:
        options.open.encoding = static_cast<EncodingType>(occurrence.Get<int>(0));
        break;
    case OptionId::Bold:
        options.open.render.effects |= BoldEffect;
        break;
    case OptionId::Italic:
        options.open.render.effects |= ItalicEffect;
        break;
    case OptionId::Face:
        options.open.render.faceIndex = occurrence.Get<int>(0);
        break;
    case OptionId::EditFont:
        CheckCount(occurrence, 1);
        break;
    case OptionId::EditChar:
        CheckCount(occurrence, 2);
        break;
    case OptionId::Verbose:
        options.verbose = true;
        break;
    default:
        break;
    }
}

bool OpensScalableFont(const OptionOccurrence& occurrence)
{
    if (occurrence.Id() == OptionId::Create)
        return true;
    if (occurrence.Id() != OptionId::Open)
        return false;
    const auto type = FileTypeOf(occurrence.Get<QString>(0));
    return type && IsScalable(*type);
}

} // namespace

FontSize ParseHeight(const QString& text)
{
    const bool inPoints = text.endsWith(u"pt", Qt::CaseInsensitive);
    const bool inPixels = text.endsWith(u"px", Qt::CaseInsensitive);
    const QString number = inPoints || inPixels ? text.chopped(2) : text;
    const bool onlyDigits =
        std::ranges::all_of(number, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
    bool isNumber = false;
    const int height = number.toInt(&isNumber);
    if (!onlyDigits || !isNumber || height == 0 || height > MaxHeight)
        throw CriticalException(
            Engine::tr("The font height %1 is not usable: -height takes a whole number "
                       "from 1 to %2, followed "
                       "by px or pt (e.g. 24px).")
                .arg(text, QString::number(MaxHeight)));
    if (!inPoints && !inPixels)
        CurrentInterface().warning(Engine::tr("Height"),
                                   Engine::tr("Invalid measuring format, assuming px."));
    return {height, inPoints};
}

RunOptions ReadRunOptions(const std::vector<OptionOccurrence>& occurrences, bool canAsk)
{
    RunOptions options;
    bool needsHeight = false;
    bool hasFace = false;
    bool createsByName = false;
    for (const OptionOccurrence& occurrence : occurrences) {
        ReadOption(occurrence, options);
        needsHeight = needsHeight || OpensScalableFont(occurrence);
        hasFace = hasFace || occurrence.Id() == OptionId::Face;
        createsByName = createsByName || occurrence.Id() == OptionId::Create;
    }
    if (hasFace && createsByName)
        CurrentInterface().warning(
            u"Face"_s, Engine::tr("-face is not used with -create: the style tells the face."));
    if (needsHeight && !canAsk && options.open.size.value == 0)
        throw CriticalException(
            Engine::tr("A scalable font needs a height: give -height (e.g. -height 24px)."));
    return options;
}

CodeRange Ordered(CodeRange range)
{
    if (range.first > range.last) {
        CurrentInterface().warning(
            u"Range"_s, Engine::tr("The range 0x%1-0x%2 is reversed, assuming 0x%2-0x%1.")
                            .arg(Hex4Text(range.first), Hex4Text(range.last)));
        std::swap(range.first, range.last);
    }
    return range;
}

void SelectRange(std::optional<CodeSet>& selection, CodeRange range, bool state)
{
    if (!selection) {
        selection.emplace();
        if (!state)
            selection->SetRange(0, CodeSet::Limit - 1, true);
    }
    range = Ordered(range);
    selection->SetRange(range.first, range.last, state);
}

void SelectPattern(std::optional<CodeSet>& selection, const QString& path)
{
    const CodeSet pattern = PatternFile(path).Read();
    if (!selection)
        selection.emplace();
    *selection |= pattern;
}

} // namespace Glyphor
