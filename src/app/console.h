#pragma once

#include <QByteArray>
#include <QStringView>

#include <cstdio>
#include <memory>

namespace Glyphor {

// ANSI foreground colours.
enum class ConsoleColour : int {
    Red = 31,
    Green = 32,
    Yellow = 33,
    Blue = 34,
    Magenta = 35,
    Cyan = 36,
    Default = 39
};

// How a kind of output shows colours.
class ConsolePainter
{
public:
    ConsolePainter() = default;
    ConsolePainter(const ConsolePainter&) = delete;
    ConsolePainter& operator=(const ConsolePainter&) = delete;
    virtual ~ConsolePainter() = default;

    // Writes the text in the colour, and what follows it in the default one.
    virtual void Write(const QByteArray& text, ConsoleColour colour, const QByteArray& rest) = 0;
};

// Text output in colour where the output is a terminal, and plain elsewhere. Each call hands the
// system all of its text at once, so that lines of several programs with one output stay whole.
class Console
{
public:
    // The stream stays the caller's.
    explicit Console(std::FILE* stream);

    // What would control the terminal is escaped.
    void Print(QStringView text, ConsoleColour colour = ConsoleColour::Default);
    void PrintLine(QStringView text, ConsoleColour colour = ConsoleColour::Default);

    // Writes over the last line of a terminal; an empty text clears it.
    void ShowStatus(QStringView text);

    [[nodiscard]] bool IsTerminal() const { return isTerminal_; }

private:
    void Write(QStringView text, ConsoleColour colour, const QByteArray& rest);

    std::FILE* stream_;
    bool isTerminal_;
    std::unique_ptr<ConsolePainter> painter_;
};

} // namespace Glyphor
