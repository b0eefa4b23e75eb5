#pragma once

#include "app/console.h"
#include "app/place.h"

#include <QString>

#include <vector>

namespace Glyphor {

struct RunWarning
{
    Place place;
    QString text;
};

// What a run without a window says, and what that means for its exit status.
class RunMessages
{
public:
    struct Mode
    {
        bool isStrict = false; // warnings and errors in the form of compilers, to standard error
        bool isQuiet = false;  // those alone
    };

    RunMessages();

    void SetMode(const Mode& mode) { mode_ = mode; }
    [[nodiscard]] const Mode& CurrentMode() const { return mode_; }

    // What messages are about that do not say it themselves.
    void SetPlace(const Place& place) { place_ = place; }
    [[nodiscard]] const Place& CurrentPlace() const { return place_; }

    // What a command was asked for, a line or more with their ends.
    void Answer(const QString& text) { output_.Print(text); }

    void Information(const QString& text);
    void Warning(const QString& text);
    void Warning(const QString& text, const Place& place);

    // A note that is a warning where the run is strict, and goes to standard error in any case.
    void Note(const QString& text, const Place& place);

    // A note that is one in any case.
    void Hint(const QString& text);

    void Critical(const QString& title, const QString& text);
    void Critical(const QString& title, const QString& text, const Place& place);

    // Those of a question, a line or more with their ends.
    void Ask(const QString& lines) { output_.Print(lines); }
    void RefuseAnswer(const QString& line) { output_.PrintLine(line, ConsoleColour::Red); }

    // The user was told of a failure elsewhere.
    void MarkFailed() { hasFailed_ = true; }

    // Where standard error is a terminal.
    [[nodiscard]] bool ShowsProgress() const { return errors_.IsTerminal() && !mode_.isQuiet; }

    // An empty text clears it.
    void Progress(const QString& text) { errors_.ShowStatus(text); }

    [[nodiscard]] const std::vector<RunWarning>& Warnings() const { return warnings_; }

    // 0, or for strict runs 1 after an error and 2 after a warning.
    [[nodiscard]] int ExitStatus() const;

private:
    void PrintForTools(const QString& severity, const QString& text, const Place& place,
                       ConsoleColour colour);

    Console output_;
    Console errors_;
    Mode mode_;
    Place place_;
    std::vector<RunWarning> warnings_;
    bool hasFailed_ = false;
};

// A line that says where a message belongs; empty where the message says so itself, or nobody
// knows.
[[nodiscard]] QString PlaceLine(const Place& place, const QString& message);

// "de.po:118", "-charset de"; empty for no place.
[[nodiscard]] QString PlaceText(const Place& place);

} // namespace Glyphor
