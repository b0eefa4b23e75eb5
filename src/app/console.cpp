#include "app/console.h"

#include "app/shown_text.h"

#include <QString>

#include <algorithm>
#include <array>
#include <optional>
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

void Put(const QByteArray& bytes, std::FILE* stream)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

#ifdef Q_OS_WIN

bool IsTerminalStream(std::FILE* stream)
{
    return _isatty(_fileno(stream)) != 0;
}

class AttributePainter final : public ConsolePainter
{
public:
    explicit AttributePainter(std::FILE* stream) : stream_(stream) {}

    void Write(const QByteArray& text, ConsoleColour colour, const QByteArray& rest) override
    {
        SetColour(colour);
        Put(text, stream_);
        SetColour(ConsoleColour::Default);
        Put(rest, stream_);
    }

private:
    static void SetColour(ConsoleColour colour)
    {
        if (const auto attribute = ConsoleAttribute(colour))
            SetConsoleTextAttribute(GetStdHandle(STD_OUTPUT_HANDLE), static_cast<WORD>(*attribute));
    }

    std::FILE* stream_;
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

    void Write(const QByteArray& text, ConsoleColour colour, const QByteArray& rest) override
    {
        Put(Sequence(colour) + text + Sequence(ConsoleColour::Default) + rest, stream_);
    }

private:
    static QByteArray Sequence(ConsoleColour colour)
    {
        return ConsoleAttribute(colour) ? "\033[" + QByteArray::number(int(colour)) + 'm'
                                        : QByteArray();
    }

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
    Write(ShownLines(text), colour, {});
}

void Console::PrintLine(QStringView text, ConsoleColour colour)
{
    Write(ShownLines(text), colour, "\n"_ba);
}

void Console::ShowStatus(QStringView text)
{
    Write(text.isEmpty() ? u"\r\033[K"_s : u'\r' + Shown(text), ConsoleColour::Default, {});
}

void Console::Write(QStringView text, ConsoleColour colour, const QByteArray& rest)
{
    const QByteArray bytes = text.toLocal8Bit();
    if (painter_ != nullptr && colour != ConsoleColour::Default)
        painter_->Write(bytes, colour, rest);
    else
        Put(bytes + rest, stream_);
}

} // namespace Glyphor
