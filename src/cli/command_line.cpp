#include "cli/command_line.h"

#include "actions/action_open_font.h"
#include "actions/action_save_file.h"
#include "actions/session.h"
#include "app/critical_exception.h"
#include "app/error_file.h"
#include "app/progress.h"
#include "app/shown_text.h"
#include "cli/installed_fonts.h"
#include "cli/option_actions.h"

#include <QScopeGuard>

#include <iostream>
#include <new>
#include <string>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

QStringList ArgumentList(int argc, const char* const* argv)
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments.append(QString::fromLocal8Bit(argv[index]));
    return arguments;
}

bool HasArgument(int argc, const char* const* argv, QStringView argument)
{
    return ArgumentList(argc, argv).contains(argument, Qt::CaseInsensitive);
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

CommandLine::CommandLine() : console_(stdout), progressConsole_(stderr) {}

CommandLine& CommandLine::Instance()
{
    static CommandLine commandLine;
    return commandLine;
}

bool CommandLine::isCommandLineMode(int argc, const char* const* argv)
{
    return HasArgument(argc, argv, u"-hide");
}

void CommandLine::RunGuarded(int argc, const char* const* argv, Session& session)
{
    const auto fail = [&](const QString& title, const QString& text) {
        CurrentInterface().critical(title, text);
        if (HasArgument(argc, argv, u"-xirtsek"))
            ErrorFile().Write(text);
    };
    try {
        try {
            run(argc, argv, session);
        } catch (const CriticalException& error) {
            fail(error.Title(), error.Text());
        } catch (const std::bad_alloc&) {
            fail(CriticalException::DefaultTitle(), u"There is not enough memory."_s);
        } catch (const WorkStopped&) {
            // The user knows; the options that are left do not run.
        }
    } catch (const CriticalException& error) { // of the error file
        CurrentInterface().critical(error.Title(), error.Text());
    }
}

void CommandLine::run(int argc, const char* const* argv, Session& session)
{
    if (argc < 2)
        return;
    std::vector<OptionOccurrence> occurrences = parser_.parse(ArgumentList(argc, argv));
    if (!parser_.check(occurrences))
        ReorderOccurrences(occurrences);
    options_ = ReadRunOptions(occurrences, &CurrentInterface() != this);
    for (const OptionOccurrence& occurrence : occurrences)
        Execute(occurrence, session);
}

void CommandLine::Execute(const OptionOccurrence& occurrence, Session& session)
{
    std::optional<CodeSet>& selection = options_.open.selection;
    switch (occurrence.Id()) {
    case OptionId::Enable:
    case OptionId::Disable:
        SelectRange(selection, occurrence.Get<CodeRange>(0), occurrence.Id() == OptionId::Enable);
        return;
    case OptionId::ReadPattern:
        SelectPattern(selection, occurrence.Get<QString>(0));
        return;
    default:
        break;
    }
    const OptionAction* const row = ActionOf(occurrence.Id());
    if (row == nullptr)
        return;
    if (row->make == nullptr)
        CurrentInterface().handleRequest(row->request);
    else
        Perform(row->make(occurrence, options_, session));
}

void CommandLine::Perform(const std::shared_ptr<Action>& action)
{
    requested_ = action.get();
    const auto forget = qScopeGuard([this] { requested_ = nullptr; });
    BasicInterface& interface = CurrentInterface();
    if (requestAction(*action) && (&interface == this || interface.requestAction(*action)))
        action->Run();
}

void CommandLine::information(const QString&, const QString& text)
{
    console_.PrintLine(text);
}

void CommandLine::warning(const QString&, const QString& text)
{
    console_.PrintLine(text, ConsoleColour::Yellow);
}

void CommandLine::critical(const QString& title, const QString& text)
{
    // Exit status 0 tells nothing, so every failure begins with the same line.
    if (!title.isEmpty())
        console_.PrintLine(CriticalException::DefaultTitle(), ConsoleColour::Red);
    if (!title.isEmpty() && title != CriticalException::DefaultTitle())
        console_.PrintLine(title, ConsoleColour::Red);
    console_.PrintLine(text, ConsoleColour::Red);
}

bool CommandLine::handleRequest(ActionType kind)
{
    switch (kind) {
    case ActionType::ExitProgram: // the program ends after the run anyway
        return true;
    case ActionType::ListFonts:
        console_.Print(InstalledFontTable());
        return true;
    case ActionType::PrintUsage:
        console_.Print(parser_.usage());
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
        console_.PrintLine(u"Opened font file: "_s + Shown(open->Args().path));
    else if (const auto* const save = dynamic_cast<const ActionSaveFile*>(action.get()))
        console_.PrintLine(u"Saved font file: "_s + Shown(save->Args().path));
    else if (options_.verbose && !logText.isEmpty())
        console_.PrintLine(logText);
    return true;
}

bool CommandLine::ProgressChanged(const QString& text, int value, int maximum)
{
    if (progressConsole_.IsTerminal())
        progressConsole_.ShowStatus(u"%1 %2 %"_s.arg(text).arg(qint64(value) * 100 / maximum));
    return true;
}

void CommandLine::ProgressFinished()
{
    if (progressConsole_.IsTerminal())
        progressConsole_.ShowStatus({});
}

int CommandLine::AskKeyword(const QString& reason, const QString& subject,
                            const ParameterKeywordTable& keywords)
{
    console_.PrintLine(reason);
    for (;;) {
        console_.PrintLine(u"Please select a %1 that should be used:"_s.arg(subject));
        console_.Print(parser_.KeywordList(keywords));
        const std::optional<QString> line = ReadLine();
        if (!line)
            throw CriticalException(
                u"Standard input ended before a %1 was selected."_s.arg(subject));
        const QString answer = line->trimmed();
        if (const auto* const entry = keywords.Find(answer))
            return entry->value;
        console_.PrintLine(u"Invalid %1 \"%2\""_s.arg(subject, answer), ConsoleColour::Red);
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
