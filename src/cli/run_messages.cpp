#include "cli/run_messages.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "app/version.h"

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

QString FileText(const Place& place)
{
    QString text = Shown(place.file);
    if (place.line > 0)
        text += u':' + QString::number(place.line);
    return text;
}

} // namespace

QString PlaceText(const Place& place)
{
    if (place.option.isEmpty())
        return FileText(place);
    const QString option = Shown(place.option);
    return place.file.isEmpty() ? option : u"%1: %2"_s.arg(FileText(place), option);
}

QString PlaceLine(const Place& place, const QString& message)
{
    const bool tellsFile =
        place.file.isEmpty() || (place.line == 0 && message.contains(Shown(place.file)));
    const bool tellsOption = place.option.isEmpty() || message.contains(Shown(place.option));
    if (!place.option.isEmpty() && !(tellsFile && tellsOption))
        return Engine::tr("Option: %1").arg(Shown(place.option)) +
               (place.file.isEmpty() ? QString() : u" (%1)"_s.arg(FileText(place)));
    return tellsFile ? QString() : Engine::tr("File: %1").arg(FileText(place));
}

RunMessages::RunMessages() : output_(stdout), errors_(stderr) {}

// "FILE:LINE: warning: text", as editors and build servers find it; what follows the first line of
// a text are notes.
void RunMessages::PrintForTools(const QString& severity, const QString& text, const Place& place,
                                ConsoleColour colour)
{
    const QString file = place.file.isEmpty() ? QString(Program::Name) : FileText(place);
    QString kind = severity;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        QString message = u"%1: %2: %3"_s.arg(file, kind, line);
        if (kind == severity && !place.option.isEmpty() && !text.contains(Shown(place.option)))
            message += u" (%1)"_s.arg(Shown(place.option));
        errors_.PrintLine(message, colour);
        kind = u"note"_s;
    }
}

void RunMessages::Information(const QString& text)
{
    if (!mode_.isQuiet)
        output_.PrintLine(text);
}

void RunMessages::Warning(const QString& text)
{
    Warning(text, place_);
}

void RunMessages::Warning(const QString& text, const Place& place)
{
    warnings_.push_back({place, text});
    if (mode_.isStrict)
        PrintForTools(u"warning"_s, text, place, ConsoleColour::Yellow);
    else
        output_.PrintLine(text, ConsoleColour::Yellow);
}

void RunMessages::Note(const QString& text, const Place& place)
{
    if (mode_.isStrict) {
        Warning(text, place);
    } else if (!mode_.isQuiet) {
        const QString where = PlaceText(place);
        errors_.PrintLine(where.isEmpty() ? text : u"%1: %2"_s.arg(where, text));
    }
}

void RunMessages::Hint(const QString& text)
{
    if (mode_.isQuiet)
        return;
    if (mode_.isStrict)
        PrintForTools(u"note"_s, text, place_, ConsoleColour::Default);
    else
        errors_.PrintLine(text);
}

void RunMessages::Critical(const QString& title, const QString& text)
{
    Critical(title, text, place_);
}

void RunMessages::Critical(const QString& title, const QString& text, const Place& place)
{
    hasFailed_ = true;
    if (mode_.isStrict) {
        PrintForTools(u"error"_s, text, place, ConsoleColour::Red);
        return;
    }
    // Exit status 0 tells nothing, so every failure begins with the same line.
    if (!title.isEmpty())
        output_.PrintLine(CriticalException::DefaultTitle(), ConsoleColour::Red);
    if (!title.isEmpty() && title != CriticalException::DefaultTitle())
        output_.PrintLine(title, ConsoleColour::Red);
    output_.PrintLine(text, ConsoleColour::Red);
    const QString where = PlaceLine(place, text);
    if (!where.isEmpty())
        output_.PrintLine(where, ConsoleColour::Red);
}

int RunMessages::ExitStatus() const
{
    constexpr int error = 1;
    constexpr int warning = 2;
    if (!mode_.isStrict)
        return 0;
    return hasFailed_ ? error : warnings_.empty() ? 0 : warning;
}

} // namespace Glyphor
