#include "cli/command_line.h"

#include "actions/action_merge_font.h"
#include "actions/action_save_file.h"
#include "actions/edit_actions.h"
#include "actions/edit_table.h"
#include "actions/session.h"
#include "app/critical_exception.h"
#include "app/error_file.h"
#include "app/progress.h"
#include "app/settings.h"
#include "app/shown_text.h"
#include "cli/installed_fonts.h"
#include "files/file_types.h"

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

bool HasArgument(int argc, const char* const* argv, QLatin1StringView argument)
{
    return ArgumentList(argc, argv).contains(argument, Qt::CaseInsensitive);
}

// The action kind of an option; nothing for options that run none of their own.
ActionType KindOf(const OptionOccurrence& occurrence)
{
    switch (occurrence.Id()) {
    case OptionId::Open:
        return ActionType::OpenFont;
    case OptionId::Create:
        return ActionType::CreateFont;
    case OptionId::ListFonts:
        return ActionType::ListFonts;
    case OptionId::EditFont:
    case OptionId::EditChar:
        return static_cast<ActionType>(occurrence.Get<int>(0));
    case OptionId::Merge:
        return ActionType::MergeFont;
    case OptionId::Save:
        return ActionType::SaveFont;
    case OptionId::Exit:
        return ActionType::ExitProgram;
    case OptionId::Help:
        return ActionType::PrintUsage;
    default:
        return ActionType::None;
    }
}

// The parameter of an occurrence, or 1 where it was left out.
int CountOf(const OptionOccurrence& occurrence, std::size_t parameter)
{
    return std::holds_alternative<int>(occurrence.values[parameter])
               ? occurrence.Get<int>(parameter)
               : 1;
}

// Null for the kinds that a front end handles itself.
std::shared_ptr<Action> MakeAction(ActionType kind, Session& session)
{
    if (const Edit* const edit = EditOf(kind)) {
        if (edit->target == EditTarget::Font)
            return std::make_shared<ActionFont>(session, kind);
        return std::make_shared<ActionChar>(session, kind);
    }
    switch (kind) {
    case ActionType::CreateFont:
    case ActionType::OpenFont:
        return std::make_shared<ActionOpenFont>(session, kind);
    case ActionType::MergeFont:
        return std::make_shared<ActionMergeFont>(session);
    case ActionType::SaveFont:
        return std::make_shared<ActionSaveFile>(session, kind);
    default:
        return nullptr;
    }
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

// The options that say how a font is opened speak of the other font where its file asks for them.
// The character selection is that of the opened font alone.
ActionMergeFontArgs MergeArgs(const OptionOccurrence& occurrence, const RunOptions& options)
{
    ActionMergeFontArgs args{options.open, std::nullopt};
    args.source.path = occurrence.Get<QString>(0);
    args.source.selection.reset();
    if (std::holds_alternative<int>(occurrence.values[1]))
        args.mode = static_cast<MergeMode>(occurrence.Get<int>(1));
    const auto type = FileTypeOf(args.source.path);
    if (type && IsScalable(*type))
        throw CriticalException(u"Unsupported format!"_s, u"Only C, XBF, SIF and BDF allowed."_s);
    return args;
}

} // namespace

CommandLine::CommandLine() : console_(stdout), progressConsole_(stderr) {}

CommandLine& CommandLine::instance()
{
    static CommandLine commandLine;
    return commandLine;
}

bool CommandLine::isCommandLineMode(int argc, const char* const* argv)
{
    return HasArgument(argc, argv, "-hide"_L1);
}

void CommandLine::runGuarded(int argc, const char* const* argv, Session& session)
{
    const auto fail = [&](const QString& title, const QString& text) {
        CurrentInterface().critical(title, text);
        if (HasArgument(argc, argv, "-xirtsek"_L1))
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
        execute(occurrence, session);
}

void CommandLine::execute(const OptionOccurrence& occurrence, Session& session)
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
    current_ = &occurrence;
    const auto forget = qScopeGuard([this] { current_ = nullptr; });
    const ActionType kind = KindOf(occurrence);
    if (kind != ActionType::None)
        perform(kind, session);
}

void CommandLine::perform(ActionType kind, Session& session)
{
    const std::shared_ptr<Action> action = MakeAction(kind, session);
    if (action == nullptr) {
        CurrentInterface().handleRequest(kind);
        return;
    }
    if (!requestAction(*action))
        return;
    BasicInterface& interface = CurrentInterface();
    if (&interface != this && !interface.requestAction(*action))
        return;
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

bool CommandLine::requestAction(Action& action)
{
    if (current_ == nullptr)
        return false;
    if (auto* const open = dynamic_cast<ActionOpenFont*>(&action)) {
        open->Args() = options_.open;
        open->Args().render.useStrikes = Settings::Instance().useIncludedBitmaps.value();
        open->Args().path = current_->Get<QString>(0);
        if (action.Type() == ActionType::CreateFont) {
            const InstalledFont font =
                FindInstalledFont(current_->Get<QString>(0), current_->Get<QString>(1));
            open->Args().path = font.path;
            open->Args().render.faceIndex = font.faceIndex;
        }
        return true;
    }
    if (auto* const merge = dynamic_cast<ActionMergeFont*>(&action)) {
        merge->Args() = MergeArgs(*current_, options_);
        return true;
    }
    if (auto* const save = dynamic_cast<ActionSaveFile*>(&action)) {
        save->Args().path = current_->Get<QString>(0);
        return true;
    }
    if (auto* const edit = dynamic_cast<ActionChar*>(&action)) {
        const CodeRange range = Ordered(current_->Get<CodeRange>(1));
        edit->Args() = {range.first, range.last};
        edit->SetRepeat(CountOf(*current_, 2));
        return true;
    }
    if (auto* const edit = dynamic_cast<ActionFont*>(&action)) {
        edit->SetRepeat(CountOf(*current_, 1));
        return true;
    }
    return false;
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

bool CommandLine::progressChanged(const QString& text, int value, int maximum)
{
    if (progressConsole_.IsTerminal())
        progressConsole_.ShowStatus(u"%1 %2 %"_s.arg(text).arg(qint64(value) * 100 / maximum));
    return true;
}

void CommandLine::progressFinished()
{
    if (progressConsole_.IsTerminal())
        progressConsole_.ShowStatus({});
}

int CommandLine::askKeyword(const QString& reason, const QString& subject,
                            const ParameterKeywordTable& keywords)
{
    console_.PrintLine(reason);
    for (;;) {
        console_.PrintLine(u"Please select a %1 that should be used:"_s.arg(subject));
        console_.Print(parser_.keywordList(keywords));
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
        askKeyword(u"Font format not found in the file."_s, u"font format"_s, FormatKeywords());
    return FormatChoice{static_cast<FontFormat>(format), assumed};
}

std::optional<MergeMode> CommandLine::askMergeMode()
{
    return static_cast<MergeMode>(
        askKeyword(u"Duplicate characters have been found in both fonts. How should duplicate "
                   "characters be handled?"_s,
                   u"merge mode"_s, MergeKeywords()));
}

} // namespace Glyphor
