#include "app/console.h"

#include "app/shown_text.h"

#include <QString>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// The console text attributes (foreground colour bits) that stand for colours on the desktop system
// whose consoles have attributes.
constexpr std::array<std::pair<ConsoleColour, int>, 7> Attributes = {{
    {ConsoleColour::Red, 12},
    {ConsoleColour::Green, 10},
    {ConsoleColour::Yellow, 14},
    {ConsoleColour::Blue, 9},
    {ConsoleColour::Magenta, 13},
    {ConsoleColour::Cyan, 11},
    {ConsoleColour::Default, 7},
}};

// Nothing for a colour without one.
std::optional<int> ConsoleAttribute(ConsoleColour colour)
{
    const auto* const entry =
        std::ranges::find(Attributes, colour, [](const auto& pair) { return pair.first; });
    return entry == Attributes.end() ? std::nullopt : std::optional(entry->second);
}

#ifdef Q_OS_WIN

bool IsTerminalStream(std::FILE* stream)
{
    return _isatty(_fileno(stream)) != 0;
}

class AttributePainter final : public ConsolePainter
{
public:
    explicit AttributePainter(std::FILE*) {}

    void SetColour(ConsoleColour colour) override
    {
        if (const auto attribute = ConsoleAttribute(colour))
            SetConsoleTextAttribute(GetStdHandle(STD_OUTPUT_HANDLE), static_cast<WORD>(*attribute));
    }
};

using TerminalPainter = AttributePainter;

#else

bool IsTerminalStream(std::FILE* stream)
{
    return isatty(fileno(stream)) != 0;
}

class AnsiPainter final : public ConsolePainter
{
public:
    explicit AnsiPainter(std::FILE* stream) : stream_(stream) {}

    void SetColour(ConsoleColour colour) override
    {
        if (ConsoleAttribute(colour))
            std::fprintf(stream_, "\033[%dm", static_cast<int>(colour));
    }

private:
    std::FILE* stream_;
};

using TerminalPainter = AnsiPainter;

#endif

} // namespace

Console::Console(std::FILE* stream) : stream_(stream), isTerminal_(IsTerminalStream(stream))
{
    if (isTerminal_)
        painter_ = std::make_unique<TerminalPainter>(stream);
}

void Console::Print(QStringView text, ConsoleColour colour)
{
    const bool isColoured = painter_ != nullptr && colour != ConsoleColour::Default;
    if (isColoured)
        painter_->SetColour(colour);
    Write(ShownLines(text));
    if (isColoured)
        painter_->SetColour(ConsoleColour::Default);
}

void Console::PrintLine(QStringView text, ConsoleColour colour)
{
    Print(text, colour);
    Write(u"\n");
}

void Console::ShowStatus(QStringView text)
{
    Write(text.isEmpty() ? u"\r\033[K"_s : u'\r' + Shown(text));
}

void Console::Write(QStringView text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream_);
}

} // namespace Glyphor
