#pragma once

#include "app/user_interface.h"
#include "cli/command_line_parser.h"
#include "cli/run_messages.h"
#include "cli/run_options.h"
#include "cli/run_proof.h"
#include "cli/run_record.h"

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

    // True where "-hide", or an option that needs no window, stands among the arguments, in any
    // letter case; also where they can't all be read, since nobody knows then.
    [[nodiscard]] static bool isCommandLineMode(int argc, const char* const* argv);

    // Tells on standard error why there is no window. What the program ends with then.
    static int TellNoWindow(int argc, const char* const* argv, const QString& text);

    // Parses and runs the arguments on the session's font. A failure is shown by the current
    // interface and ends the run; it goes no further.
    void RunGuarded(int argc, const char* const* argv, Session& session);

    // The same, throwing a CriticalException on failure.
    void run(int argc, const char* const* argv, Session& session);

    // What the program ends with: 0 unless the run was strict.
    [[nodiscard]] int ExitStatus() const { return messages_.ExitStatus(); }

    void information(const QString& title, const QString& text) override;
    void warning(const QString& title, const QString& text) override;
    void critical(const QString& title, const QString& text) override;
    bool handleRequest(ActionType kind) override;
    bool requestAction(Action& action) override;
    bool actionPerformed(const std::shared_ptr<Action>& action, const QString& logText) override;
    void Lacking(const QString& text) override;
    void Hint(const QString& text) override;
    void PartlyDone(const QString& text) override;
    bool ProgressChanged(const QString& text, int value, int maximum) override;
    void ProgressFinished() override;

    // Throw a CriticalException where standard input ends before an answer, or is no terminal and
    // gives a hundred wrong ones.
    std::optional<FormatChoice> askFontFormat(EncodingType assumed) override;
    std::optional<MergeMode> askMergeMode() override;

private:
    // Shows the failure, and writes it to the error file where that was asked for.
    void Fail(const QString& title, const QString& text, const Place& place, bool toFile);
    void Run(const Arguments& arguments, Session& session);
    void Execute(const OptionOccurrence& occurrence, Session& session);
    void WarnOfUnusedOptions(const std::vector<OptionOccurrence>& occurrences, const QString& path);
    void Perform(const std::shared_ptr<Action>& action);
    void LookBeforeWriting(const Session& session);
    void TellMissing(const Font& font);
    void ShowMissing() const;
    void Finish(Session& session);
    void RunProofOption(const OptionOccurrence& occurrence, const Session& session);
    void Compare(const Session& session, const QString& path);
    void WriteProof(const Session& session);
    int AskKeyword(const QString& reason, const QString& subject,
                   const ParameterKeywordTable& keywords);

    CommandLineParser parser_;
    RunMessages messages_;
    RunOptions options_;
    RunRecord record_;
    RunProof proof_;
    const Action* requested_ = nullptr; // by the option that is being executed
};

} // namespace Glyphor
