#pragma once

#include "app/console.h"
#include "app/user_interface.h"
#include "cli/command_line_parser.h"
#include "cli/run_options.h"

#include <iosfwd>

namespace Glyphor {

class Session;

// Runs the arguments as a script of actions, and is the user interface of a run without a window:
// it prints what the engine has to say and asks its questions on the console.
class CommandLine final : public UserInterface
{
public:
    CommandLine();

    // The program's own, made on first use; it outlives the application object.
    static CommandLine& Instance();

    // True where "-hide" stands among the arguments, in any letter case.
    [[nodiscard]] static bool isCommandLineMode(int argc, const char* const* argv);

    // Parses and runs the arguments on the session's font. A failure is shown by the current
    // interface and ends the run; it goes no further.
    void RunGuarded(int argc, const char* const* argv, Session& session);

    // The same, throwing a CriticalException on failure.
    void run(int argc, const char* const* argv, Session& session);

    void information(const QString& title, const QString& text) override;
    void warning(const QString& title, const QString& text) override;
    void critical(const QString& title, const QString& text) override;
    bool handleRequest(ActionType kind) override;
    bool requestAction(Action& action) override;
    bool actionPerformed(const std::shared_ptr<Action>& action, const QString& logText) override;
    bool ProgressChanged(const QString& text, int value, int maximum) override;
    void ProgressFinished() override;

    // Throw a CriticalException where standard input ends before an answer.
    std::optional<FormatChoice> askFontFormat(EncodingType assumed) override;
    std::optional<MergeMode> askMergeMode() override;

private:
    void Execute(const OptionOccurrence& occurrence, Session& session);
    void Perform(const std::shared_ptr<Action>& action);
    int AskKeyword(const QString& reason, const QString& subject,
                   const ParameterKeywordTable& keywords);

    CommandLineParser parser_;
    Console console_;
    Console progressConsole_;
    RunOptions options_;
    const Action* requested_ = nullptr; // by the option that is being executed
};

} // namespace Glyphor
