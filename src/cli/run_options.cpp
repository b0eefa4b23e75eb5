#include "cli/run_options.h"

#include "actions/edit_table.h"
#include "actions/pattern_file.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "app/user_interface.h"
#include "cli/feature_list.h"
#include "cli/font_height.h"
#include "cli/image_option.h"
#include "files/character_header.h"
#include "files/file_types.h"
#include "model/charset.h"
#include "model/code_text.h"
#include "proof/proof_file.h"
#include "render/face_variations.h"
#include "texts/text_file.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// Without a window there is no resolution either, and points give no height.
constexpr int NoScreen = 0;

// Whether a font has a character does not depend on its height.
constexpr int CheckHeight = 16;

// Metrics wrap long before, and every step is a line of the log.
constexpr int MaxCount = 0xFFFF;

void CheckCount(const OptionOccurrence& occurrence, std::size_t parameter)
{
    if (!std::holds_alternative<int>(occurrence.values[parameter]))
        return;
    const int count = occurrence.Get<int>(parameter);
    if (count > MaxCount)
        throw CriticalException(Engine::tr("The %1 of -%2 has to be from 0 to %3.")
                                    .arg(occurrence.option->parameters[parameter].placeholder,
                                         occurrence.option->longName, QString::number(MaxCount)));
}

// It becomes a part of identifiers.
QString CheckedName(const QString& name)
{
    if (!IsCharacterName(name))
        throw CriticalException(
            Engine::tr("The name %1 is not usable: -name takes letters of ASCII, digits and "
                       "underscores, as in the identifiers of C.")
                .arg(Shown(name)));
    return name;
}

double ParseGamma(const QString& text)
{
    constexpr double smallest = 0.1;
    constexpr double largest = 10;
    bool isNumber = false;
    const double gamma = text.toDouble(&isNumber);
    if (!isNumber || !(gamma >= smallest && gamma <= largest))
        throw CriticalException(
            Engine::tr("The gamma %1 is not usable: -gamma takes a number from 0.1 to 10 (e.g. "
                       "1.4).")
                .arg(Shown(text)));
    return gamma;
}

int CheckedThreads(int count)
{
    constexpr int most = 256;
    if (count < 1 || count > most)
        throw CriticalException(
            Engine::tr("The number %1 is not usable: -jobs takes 1 to 256 threads.").arg(count));
    return count;
}

FontSource SourceOf(const OptionOccurrence& occurrence)
{
    FontSource source{occurrence.Get<QString>(0), ParseCharacterMap(occurrence.Get<QString>(1)),
                      std::nullopt};
    if (std::holds_alternative<QString>(occurrence.values[2]))
        source.size = ParseHeight(occurrence.Get<QString>(2));
    return source;
}

void ReadProofOption(const OptionOccurrence& occurrence, RunOptions& options)
{
    if (occurrence.Id() == OptionId::Proof) {
        options.proofPath = occurrence.Get<QString>(0);
        if (!IsProofName(options.proofPath))
            ThrowUnsupportedFormat();
        options.open.render.findsLayoutKerning = true;
    } else if (occurrence.Id() == OptionId::Compare) {
        if (!FileTypeOf(occurrence.Get<QString>(0)))
            ThrowUnsupportedFormat();
    }
}

void ReadRendering(const OptionOccurrence& occurrence, RunOptions& options)
{
    switch (occurrence.Id()) {
    case OptionId::Height:
        options.open.size = ParseHeight(occurrence.Get<QString>(0));
        options.open.render.SetHeight(options.open.size, NoScreen);
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
    case OptionId::Fit:
        options.open.render.fitsInk = true;
        break;
    case OptionId::Hinting:
        options.open.render.hinting = static_cast<Hinting>(occurrence.Get<int>(0));
        break;
    case OptionId::Gamma:
        options.open.render.gamma = ParseGamma(occurrence.Get<QString>(0));
        break;
    case OptionId::Axes:
        options.open.render.axes = ParseAxes(occurrence.Get<QString>(0));
        break;
    case OptionId::Features:
        options.open.render.features = ParseFeatures(occurrence.Get<QString>(0));
        break;
    case OptionId::Map:
        options.open.render.map = ParseCharacterMap(occurrence.Get<QString>(0));
        break;
    case OptionId::Charmap:
        options.open.render.charmapIndex = occurrence.Get<int>(0);
        break;
    case OptionId::Jobs:
        options.open.render.threads = CheckedThreads(occurrence.Get<int>(0));
        break;
    default:
        break;
    }
}

void ReadOutput(const OptionOccurrence& occurrence, RunOptions& options)
{
    switch (occurrence.Id()) {
    case OptionId::Save:
        if (!IsWritten(FileTypeOf(occurrence.Get<QString>(0))) &&
            !IsBinaryKerningName(occurrence.Get<QString>(0)))
            ThrowUnsupportedFormat();
        if (IsBinaryKerningName(occurrence.Get<QString>(0)))
            options.open.render.findsLayoutKerning = true;
        break;
    case OptionId::Kerning:
        if (FileTypeOf(occurrence.Get<QString>(0)) != FileType::C)
            ThrowUnsupportedFormat();
        options.writesKerning = true;
        options.open.render.findsLayoutKerning = true;
        break;
    case OptionId::Header:
        options.headerPath = occurrence.Get<QString>(0);
        if (!IsCHeaderName(options.headerPath))
            ThrowNoHeaderName(options.headerPath);
        break;
    case OptionId::Report:
        options.reportPath = occurrence.Get<QString>(0);
        options.open.render.findsLayoutKerning = true;
        break;
    case OptionId::DependencyFile:
        options.dependencyFilePath = occurrence.Get<QString>(0);
        break;
    default:
        ReadProofOption(occurrence, options);
    }
}

void ReadOption(const OptionOccurrence& occurrence, RunOptions& options)
{
    ReadRendering(occurrence, options);
    ReadOutput(occurrence, options);
    switch (occurrence.Id()) {
    case OptionId::Format:
        options.open.format = static_cast<FontFormat>(occurrence.Get<int>(0));
        break;
    case OptionId::Encoding:
        options.open.encoding = static_cast<EncodingType>(occurrence.Get<int>(0));
        break;
    case OptionId::Source:
        options.open.sources.push_back(SourceOf(occurrence));
        break;
    case OptionId::EditFont:
        CheckCount(occurrence, 1);
        break;
    case OptionId::EditChar:
        if (EditOf(static_cast<ActionType>(occurrence.Get<int>(0)))->applyValue == nullptr)
            CheckCount(occurrence, 2);
        break;
    case OptionId::Verbose:
        options.verbose = true;
        break;
    case OptionId::Check:
        options.onlyChecks = true;
        break;
    case OptionId::Name:
        options.open.name = CheckedName(occurrence.Get<QString>(0));
        break;
    case OptionId::WarningsAreErrors:
        options.warningsAreErrors = true;
        break;
    case OptionId::Align:
        options.alignment = static_cast<MergeAlignment>(occurrence.Get<int>(0));
        break;
    case OptionId::Image:
        options.open.images.push_back(ImageOf(occurrence));
        break;
    case OptionId::Threshold:
        options.open.threshold = ThresholdOf(occurrence);
        break;
    default:
        break;
    }
}

// A dependency file names what it is about.
void CheckOutputs(const std::vector<OptionOccurrence>& occurrences, const RunOptions& options)
{
    const auto isGiven = [&occurrences](OptionId id) {
        return std::ranges::find(occurrences, id, &OptionOccurrence::Id) != occurrences.end();
    };
    const bool writesFont = isGiven(OptionId::Save) || isGiven(OptionId::Kerning);
    if (options.onlyChecks && writesFont)
        throw CriticalException(
            Engine::tr("-check writes no font: it can't be given with -save or -kerning."));
    if (isGiven(OptionId::ProofText) && options.proofPath.isEmpty())
        throw CriticalException(Engine::tr("-prooftext is for a proof: give -proof."));
    const bool writesHeader = !options.headerPath.isEmpty();
    if (options.onlyChecks && writesHeader)
        throw CriticalException(
            Engine::tr("-check writes nothing of the font: it can't be given with -header."));
    for (const OptionOccurrence& other : occurrences) {
        const bool isFontFile = other.Id() == OptionId::Save || other.Id() == OptionId::Kerning;
        if (writesHeader && isFontFile && other.Get<QString>(0) == options.headerPath)
            throw CriticalException(Engine::tr("-header and -%1 can't write the same file %2.")
                                        .arg(other.option->longName, Shown(options.headerPath)));
    }
    const bool writesOther =
        writesHeader || !options.reportPath.isEmpty() || !options.proofPath.isEmpty();
    if (!options.dependencyFilePath.isEmpty() && !writesFont && !writesOther)
        throw CriticalException(
            Engine::tr("-depfile needs a file that depends on others: give -save, -kerning or "
                       "-report."));
    if (options.alignment && !isGiven(OptionId::Merge))
        CurrentInterface().warning(Engine::tr("Option without effect"),
                                   Engine::tr("-align was not used: no font is merged."));
    if (options.open.threshold != 0 && options.open.images.empty())
        CurrentInterface().warning(Engine::tr("Option without effect"),
                                   Engine::tr("-threshold was not used: there is no -image."));
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

RunOptions ReadRunOptions(const std::vector<OptionOccurrence>& occurrences, bool canAsk,
                          const std::function<void(const Place&)>& onOption)
{
    RunOptions options;
    options.open.render.findsLayoutKerning = canAsk; // a window shows it
    bool needsHeight = false;
    bool hasFace = false;
    bool createsByName = false;
    for (const OptionOccurrence& occurrence : occurrences) {
        onOption(occurrence.place);
        ReadOption(occurrence, options);
        needsHeight = needsHeight || OpensScalableFont(occurrence);
        hasFace = hasFace || occurrence.Id() == OptionId::Face;
        createsByName = createsByName || occurrence.Id() == OptionId::Create;
    }
    onOption({});
    CheckOutputs(occurrences, options);
    if (hasFace && createsByName)
        CurrentInterface().warning(
            u"Face"_s, Engine::tr("-face is not used with -create: the style tells the face."));
    if (options.onlyChecks && !options.open.size.IsGiven()) {
        options.open.size.value = CheckHeight;
        options.open.render.height = CheckHeight;
    }
    if (!needsHeight) {
        const EncodingType encoding = options.open.encoding.value_or(EncodingType::Unicode);
        options.demand.SetEncoding(encoding);
    }
    if (needsHeight && !canAsk && !options.open.size.IsGiven())
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

void SelectCodes(std::optional<CodeSet>& selection, const CodeSet& codes)
{
    if (!selection)
        selection.emplace();
    *selection |= codes;
}

const Charset& CharsetNamed(const QString& name)
{
    const Charset* const charset = FindCharset(name);
    if (charset == nullptr)
        throw CriticalException(
            Engine::tr("There is no character set %1: -listcharsets lists them.").arg(Shown(name)));
    return *charset;
}

void Select(const OptionOccurrence& occurrence, RunOptions& options)
{
    std::optional<CodeSet>& selection = options.open.selection;
    Demand& demand = options.demand;
    CodeSet asked;
    const auto ask = [&](char32_t character, const Place& place) {
        if (const auto code = demand.Ask(character, place))
            asked.Set(*code, true);
    };
    switch (occurrence.Id()) {
    case OptionId::Enable:
    case OptionId::Disable: {
        const CodeRange range = Ordered(occurrence.Get<CodeRange>(0));
        const bool enables = occurrence.Id() == OptionId::Enable;
        SelectRange(selection, range, enables);
        if (enables)
            demand.AskRange(range, occurrence.place);
        break;
    }
    case OptionId::ReadPattern: {
        const QString& path = occurrence.Get<QString>(0);
        const CodeSet pattern = PatternFile(path).Read();
        SelectCodes(selection, pattern);
        demand.Ask(pattern, {path, 0, {}});
        break;
    }
    case OptionId::TextFile: {
        const QString& path = occurrence.Get<QString>(0);
        for (const auto& [character, line] : ReadTextFile(path))
            ask(character, {path, line, {}});
        SelectCodes(selection, asked);
        break;
    }
    case OptionId::Chars:
        for (const char32_t character : occurrence.Get<QString>(0).toUcs4())
            ask(character, occurrence.place);
        SelectCodes(selection, asked);
        break;
    case OptionId::Charset:
        for (const quint16 code : CodesOf(CharsetNamed(occurrence.Get<QString>(0))))
            ask(code, occurrence.place);
        SelectCodes(selection, asked);
        break;
    default:
        break;
    }
}

namespace {

// What the sources of a font are rendered with, whatever the font.
bool UsedBySources(OptionId id)
{
    using enum OptionId;
    return id == Height || id == Bold || id == Italic || id == Hinting || id == Gamma;
}

} // namespace

void WarnOfUnusedOption(const OptionOccurrence& occurrence, const QString& path, bool usesSources)
{
    using enum OptionId;
    const OptionId id = occurrence.Id();
    const bool isBdf = FileTypeOf(path) == FileType::Bdf;
    constexpr std::array rendering = {Height, Bold, Italic,  Face, Fit,     Hinting,
                                      Gamma,  Axes, Charmap, Map,  Features};
    const bool hasEffect = (id == Map && isBdf) || (usesSources && UsedBySources(id));
    if (!hasEffect && std::ranges::find(rendering, id) != rendering.end())
        CurrentInterface().warning(Engine::tr("Option without effect"),
                                   Engine::tr("-%1 was not used: the file %2 is not rendered.")
                                       .arg(occurrence.option->longName, Shown(path)));
}

} // namespace Glyphor
