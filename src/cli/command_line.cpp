#include "cli/command_line.h"

#include "actions/action_open_font.h"
#include "actions/action_save_file.h"
#include "actions/session.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/error_file.h"
#include "app/progress.h"
#include "app/settings.h"
#include "app/shown_text.h"
#include "app/version.h"
#include "cli/installed_fonts.h"
#include "cli/option_actions.h"
#include "files/character_header.h"
#include "files/file_types.h"
#include "files/kerning_file.h"
#include "model/charset.h"
#include "render/free_type_library.h"

#include <QScopeGuard>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

#include <algorithm>
#include <iostream>
#include <new>
#include <string>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

bool IsTerminalInput()
{
#ifdef Q_OS_WIN
    return _isatty(_fileno(stdin)) != 0;
#else
    return isatty(STDIN_FILENO) != 0;
#endif
}

// What the messages of an option are about: its file, or else the option itself.
Place SubjectOf(const OptionOccurrence& occurrence)
{
    const auto& parameters = occurrence.option->parameters;
    const bool hasFile = !parameters.empty() && parameters.front().placeholder == FilePlaceholder;
    return hasFile ? Place{occurrence.Get<QString>(0), 0, {}} : occurrence.place;
}

void UseSettings(const std::vector<OptionOccurrence>& occurrences)
{
    Settings& settings = Settings::Instance();
    for (const OptionOccurrence& occurrence : occurrences) {
        if (occurrence.Id() == OptionId::Defaults)
            settings.UseDefaults();
    }
    for (const OptionOccurrence& occurrence : occurrences) {
        if (occurrence.Id() == OptionId::Set)
            settings.Override(occurrence.Get<QString>(0));
    }
}

QString CharsetTable()
{
    constexpr int nameWidth = 12;
    constexpr int countWidth = 5;
    QString table;
    for (const Charset& charset : Charsets())
        table += u"%1 %2  %3\n"_s.arg(QString(CharsetName(charset)), -nameWidth)
                     .arg(CodesOf(charset).Count(), countWidth)
                     .arg(CharsetDescription(charset));
    return table;
}

QString Versions()
{
    return u"%1 %2\nFreeType %3\nQt %4\n"_s.arg(Program::Name, Program::Version, FreeTypeVersion(),
                                                QLatin1StringView(qVersion()));
}

// A line of standard input, of which the first characters matter; nothing at its end.
std::optional<QString> ReadLine()
{
    constexpr std::size_t longest = 200;
    std::string line;
    int character = std::cin.get();
    if (character == EOF)
        return std::nullopt;
    for (; character != EOF && character != '\n'; character = std::cin.get()) {
        if (line.size() < longest)
            line += static_cast<char>(character);
    }
    return QString::fromLocal8Bit(line);
}

} // namespace

CommandLine::CommandLine() = default;

CommandLine& CommandLine::Instance()
{
    static CommandLine commandLine;
    return commandLine;
}

bool CommandLine::isCommandLineMode(int argc, const char* const* argv)
{
    try {
        const Arguments arguments = ReadArguments(argc, argv);
        return arguments.Names(OptionId::Hide) || arguments.Names(OptionId::Version) ||
               arguments.Names(OptionId::ListCharsets);
    } catch (const CriticalException&) {
        return true;
    }
}

int CommandLine::TellNoWindow(int argc, const char* const* argv, const QString& text)
{
    const bool isStrict = WrittenArguments(argc, argv).Names(OptionId::Strict);
    Console(stderr).PrintLine(isStrict ? u"Glyphor: error: "_s + text : text);
    return isStrict ? 1 : 0;
}

void CommandLine::Fail(const QString& title, const QString& text, const Place& place, bool toFile)
{
    const bool isKnown = !place.file.isEmpty() || !place.option.isEmpty();
    if (isKnown)
        messages_.SetPlace(place);
    const QString where = PlaceLine(messages_.CurrentPlace(), text);
    const bool isOnConsole = &CurrentInterface() == this;
    CurrentInterface().critical(title,
                                isOnConsole || where.isEmpty() ? text : text + u'\n' + where);
    if (!isOnConsole)
        messages_.MarkFailed();
    if (toFile)
        ErrorFile().Write(text);
}

void CommandLine::RunGuarded(int argc, const char* const* argv, Session& session)
{
    const Arguments written = WrittenArguments(argc, argv);
    messages_.SetMode({written.Names(OptionId::Strict), written.Names(OptionId::Quiet)});
    if (written.Names(OptionId::Help)) { // whatever else there is, and be it broken
        CurrentInterface().handleRequest(ActionType::PrintUsage);
        return;
    }
    bool toFile = written.Names(OptionId::ErrorFile);
    try {
        try {
            const Arguments arguments = ReadArguments(argc, argv);
            messages_.SetMode(
                {arguments.Names(OptionId::Strict), arguments.Names(OptionId::Quiet)});
            toFile = arguments.Names(OptionId::ErrorFile);
            Run(arguments, session);
        } catch (const CriticalException& error) {
            Fail(error.Title(), error.Text(), error.Where(), toFile);
        } catch (const std::bad_alloc&) {
            Fail(CriticalException::DefaultTitle(), u"There is not enough memory."_s, {}, toFile);
        } catch (const WorkStopped&) {
            // The user knows; the options that are left do not run.
        }
    } catch (const CriticalException& error) { // of the error file
        CurrentInterface().critical(error.Title(), error.Text());
    }
}

void CommandLine::run(int argc, const char* const* argv, Session& session)
{
    Run(ReadArguments(argc, argv), session);
}

void CommandLine::Run(const Arguments& arguments, Session& session)
{
    if (arguments.words.empty())
        return;
    if (arguments.Names(OptionId::Help)) { // of an argument file
        CurrentInterface().handleRequest(ActionType::PrintUsage);
        return;
    }
    std::vector<OptionOccurrence> occurrences = parser_.Parse(arguments.words);
    const bool isStandalone = parser_.check(occurrences);
    if (!isStandalone)
        ReorderOccurrences(occurrences);
    UseSettings(occurrences);
    options_.warningsAreErrors = arguments.Names(OptionId::WarningsAreErrors);
    options_ = ReadRunOptions(occurrences, &CurrentInterface() != this,
                              [this](const Place& place) { messages_.SetPlace(place); });
    record_ = RunRecord(arguments.files, occurrences);
    proof_ = {};
    for (const OptionOccurrence& occurrence : occurrences) {
        Execute(occurrence, session);
        if (occurrence.Id() == OptionId::Open)
            WarnOfUnusedOptions(occurrences, occurrence.Get<QString>(0));
    }
    if (!isStandalone)
        Finish(session);
}

void CommandLine::WarnOfUnusedOptions(const std::vector<OptionOccurrence>& occurrences,
                                      const QString& path)
{
    const auto isRendered = [](const OptionOccurrence& occurrence) {
        return occurrence.Id() == OptionId::Compare &&
               IsScalable(FileTypeOf(occurrence.Get<QString>(0)));
    };
    if (IsScalable(FileTypeOf(path)) || std::ranges::any_of(occurrences, isRendered))
        return;
    for (const OptionOccurrence& occurrence : occurrences) {
        messages_.SetPlace(occurrence.place);
        WarnOfUnusedOption(occurrence, path, !options_.open.sources.empty());
    }
}

void CommandLine::Execute(const OptionOccurrence& occurrence, Session& session)
{
    messages_.SetPlace(SubjectOf(occurrence));
    if (SelectsCharacters(occurrence.Id())) {
        Select(occurrence, options_);
        return;
    }
    const OptionAction* const row = ActionOf(occurrence.Id());
    if (row == nullptr)
        return RunProofOption(occurrence, session);
    if (row->make == nullptr) {
        CurrentInterface().handleRequest(row->request);
        return;
    }
    const bool isWritten = occurrence.Id() == OptionId::Save ||
                           occurrence.Id() == OptionId::Kerning ||
                           occurrence.Id() == OptionId::Header;
    if (isWritten && session.CurrentFont() != nullptr)
        LookBeforeWriting(session);
    Perform(row->make(occurrence, options_, session));
}

void CommandLine::RunProofOption(const OptionOccurrence& occurrence, const Session& session)
{
    switch (occurrence.Id()) {
    case OptionId::ProofText:
        proof_.ReadText(occurrence.Get<QString>(0));
        return record_.AddInput("proof text", occurrence.Get<QString>(0));
    case OptionId::Compare:
        return Compare(session, occurrence.Get<QString>(0));
    case OptionId::Proof:
        WriteProof(session);
        if (options_.warningsAreErrors && !record_.Missing().empty())
            throw CriticalException(Engine::tr("The font lacks characters that were asked for."));
        return;
    default:
        return;
    }
}

// Differences are what was asked for: they are no fault unless warnings are, and the proof shows
// them then as well.
void CommandLine::Compare(const Session& session, const QString& path)
{
    const QString text = proof_.Compare(session, path, options_);
    record_.AddInput("compared font", path);
    messages_.Answer(text);
    if (!proof_.FoundDifferences() || !options_.warningsAreErrors)
        return;
    if (!options_.proofPath.isEmpty())
        WriteProof(session);
    throw CriticalException(
        Engine::tr("The font differs from %1, which is an error with -werror.").arg(Shown(path)));
}

void CommandLine::WriteProof(const Session& session)
{
    TellMissing(*session.CurrentFont());
    const QStringList written =
        proof_.Write(session, record_.SavedFont(), record_.Missing(), options_.proofPath);
    for (const QString& path : written) {
        record_.AddOutput("proof", path);
        if (&CurrentInterface() == this)
            messages_.Information(u"Saved proof: "_s + Shown(path));
    }
}

void CommandLine::Perform(const std::shared_ptr<Action>& action)
{
    if (action == nullptr) // nothing to do
        return;
    requested_ = action.get();
    const auto forget = qScopeGuard([this] { requested_ = nullptr; });
    BasicInterface& interface = CurrentInterface();
    const bool isWanted =
        requestAction(*action) && (&interface == this || interface.requestAction(*action));
    if (isWanted && action->Run())
        record_.Add(*action);
}

// Whatever would be warned of after the first file is written is known here.
void CommandLine::LookBeforeWriting(const Session& session)
{
    const Font& font = *session.CurrentFont();
    TellMissing(font);
    if (!options_.warningsAreErrors)
        return;
    if (!record_.Missing().empty() && !options_.proofPath.isEmpty())
        WriteProof(session);
    if (!record_.Missing().empty())
        throw CriticalException(
            Engine::tr("The font lacks characters that were asked for, so it was not saved."));
    if (options_.writesKerning && EnabledKerning(font).empty())
        throw CriticalException(Engine::tr("The font has no kerning, so it was not saved."));
    if (!options_.headerPath.isEmpty() && !HasNamedChars(font))
        throw CriticalException(
            Engine::tr("The font has no characters with names, so it was not saved."));
}

// Once, with the font as it is written.
void CommandLine::TellMissing(const Font& font)
{
    if (record_.IsChecked())
        return;
    record_.SetMissing(options_.demand.MissingIn(font, options_.open.selection));
    if (&CurrentInterface() != this) {
        ShowMissing();
        return;
    }
    for (const DemandGap& missing : record_.Missing()) {
        if (options_.onlyChecks || options_.warningsAreErrors)
            messages_.Warning(missing.text, missing.place);
        else
            messages_.Note(missing.text, missing.place);
    }
}

// In one box of the window.
void CommandLine::ShowMissing() const
{
    constexpr std::size_t shown = 20;
    QStringList lines;
    for (const DemandGap& missing : record_.Missing()) {
        if (lines.size() == shown) {
            lines.append(u"..."_s);
            break;
        }
        lines.append(u"%1: %2"_s.arg(PlaceText(missing.place), missing.text));
    }
    if (!lines.isEmpty())
        CurrentInterface().information(Engine::tr("Characters that the font does not have"),
                                       lines.join(u'\n'));
}

void CommandLine::Finish(Session& session)
{
    const Font* const font = session.CurrentFont();
    if (font == nullptr)
        return;
    TellMissing(*font);
    if (options_.onlyChecks)
        CurrentInterface().information(Engine::tr("Characters that the font does not have"),
                                       record_.CheckResult());
    if (!options_.reportPath.isEmpty()) {
        messages_.SetPlace({options_.reportPath, 0, {}});
        record_.WriteReport(*font, options_.reportPath, messages_.Warnings());
    }
    if (!options_.dependencyFilePath.isEmpty()) {
        messages_.SetPlace({options_.dependencyFilePath, 0, {}});
        record_.WriteDependencies(options_.dependencyFilePath);
    }
}

void CommandLine::information(const QString&, const QString& text)
{
    messages_.Information(text);
}

void CommandLine::warning(const QString&, const QString& text)
{
    if (options_.warningsAreErrors)
        throw CriticalException(text);
    messages_.Warning(text);
}

void CommandLine::critical(const QString& title, const QString& text)
{
    messages_.Critical(title, text);
}

void CommandLine::Lacking(const QString& text)
{
    if (options_.warningsAreErrors)
        throw CriticalException(text);
    messages_.Note(text, messages_.CurrentPlace());
}

void CommandLine::Hint(const QString& text)
{
    messages_.Hint(text);
}

void CommandLine::PartlyDone(const QString& text)
{
    warning({}, text);
}

bool CommandLine::handleRequest(ActionType kind)
{
    switch (kind) {
    case ActionType::ExitProgram: // the program ends after the run anyway
        return true;
    case ActionType::ListFonts:
        messages_.Answer(InstalledFontTable());
        return true;
    case ActionType::PrintUsage:
        messages_.Answer(parser_.usage());
        return true;
    case ActionType::ListCharsets:
        messages_.Answer(CharsetTable());
        return true;
    case ActionType::PrintVersion:
        messages_.Answer(Versions());
        return true;
    default:
        return false;
    }
}

// The arguments came with the action.
bool CommandLine::requestAction(Action& action)
{
    return &action == requested_;
}

bool CommandLine::actionPerformed(const std::shared_ptr<Action>& action, const QString& logText)
{
    if (action == nullptr)
        return false;
    if (const auto* const open = dynamic_cast<const ActionOpenFont*>(action.get()))
        messages_.Information(u"Opened font file: "_s + Shown(open->Args().path));
    else if (const auto* const save = dynamic_cast<const ActionSaveFile*>(action.get()))
        messages_.Information((save->Type() == ActionType::SaveKerning  ? u"Saved kerning file: "_s
                               : save->Type() == ActionType::SaveHeader ? u"Saved header file: "_s
                                                                        : u"Saved font file: "_s) +
                              Shown(save->Args().path));
    else if (options_.verbose && !logText.isEmpty())
        messages_.Information(logText);
    return true;
}

bool CommandLine::ProgressChanged(const QString& text, int value, int maximum)
{
    if (messages_.ShowsProgress())
        messages_.Progress(u"%1 %2 %"_s.arg(text).arg(qint64(value) * 100 / maximum));
    return true;
}

void CommandLine::ProgressFinished()
{
    if (messages_.ShowsProgress())
        messages_.Progress({});
}

int CommandLine::AskKeyword(const QString& reason, const QString& subject,
                            const ParameterKeywordTable& keywords)
{
    constexpr int maxAttempts = 100;
    messages_.Ask(reason + u'\n');
    for (int attempt = 1;; ++attempt) {
        messages_.Ask(u"Please select a %1 that should be used:\n"_s.arg(subject));
        messages_.Ask(parser_.KeywordList(keywords));
        const std::optional<QString> line = ReadLine();
        if (!line)
            throw CriticalException(
                u"Standard input ended before a %1 was selected."_s.arg(subject));
        const QString answer = line->trimmed();
        if (const auto* const entry = keywords.Find(answer))
            return entry->value;
        messages_.RefuseAnswer(u"Invalid %1 \"%2\""_s.arg(subject, answer));
        if (attempt == maxAttempts && !IsTerminalInput())
            throw CriticalException(
                u"Standard input gave %1 answers that are no %2."_s.arg(attempt).arg(subject));
    }
}

std::optional<FormatChoice> CommandLine::askFontFormat(EncodingType assumed)
{
    const int format =
        AskKeyword(u"Font format not found in the file."_s, u"font format"_s, FormatKeywords());
    return FormatChoice{static_cast<FontFormat>(format), assumed};
}

std::optional<MergeMode> CommandLine::askMergeMode()
{
    return static_cast<MergeMode>(
        AskKeyword(u"Duplicate characters have been found in both fonts. How should duplicate "
                   "characters be handled?"_s,
                   u"merge mode"_s, MergeKeywords()));
}

} // namespace Glyphor
