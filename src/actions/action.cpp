#include "actions/action.h"

#include "actions/edit_table.h"
#include "actions/session.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/user_interface.h"
#include "model/code_text.h"

#include <algorithm>
#include <array>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

struct LogMessageRow
{
    ActionType type;
    const char* text;
};

// Those of actions that are no edits. Disabling a range and disabling everything read alike.
constexpr auto LogMessages = std::to_array<LogMessageRow>({
    {ActionType::CreateFont, QT_TRANSLATE_NOOP("Engine", "[Font]: Initial height of font: %1px.")},
    {ActionType::OpenFont, QT_TRANSLATE_NOOP("Engine", "[Font]: Opened font file: %1")},
    {ActionType::MergeFont, QT_TRANSLATE_NOOP("Engine", "[Font]: Font merged with: %1")},
    {ActionType::Enable, QT_TRANSLATE_NOOP("Engine", "Enabled.")},
    {ActionType::Disable, QT_TRANSLATE_NOOP("Engine", "Disabled.")},
    {ActionType::DisableAll, QT_TRANSLATE_NOOP("Engine", "Disabled.")},
    {ActionType::Toggle, "%1."},
    {ActionType::ReadPattern, QT_TRANSLATE_NOOP("Engine", "[Font]: Read pattern file: %1.")},
});

} // namespace

const char* LogMessage(ActionType type)
{
    if (const Edit* const edit = EditOf(type))
        return edit->log;
    const auto* const row = std::ranges::find(LogMessages, type, &LogMessageRow::type);
    return row != LogMessages.end() ? row->text : nullptr;
}

QString RangePrefix(quint16 first, quint16 last)
{
    return first == last ? u"[Char 0x%1]: "_s.arg(Hex4Text(first))
                         : u"[Range 0x%1-0x%2]: "_s.arg(Hex4Text(first), Hex4Text(last));
}

const char* Action::MessageFor(ActionType type) const
{
    return LogMessage(type == ActionType::None ? type_ : type);
}

QStringList Action::LogLines() const
{
    const QString text = LogText();
    return text.isEmpty() ? QStringList() : QStringList(LoggedSteps(), text);
}

Font* Action::CurrentFont() const
{
    return session_.CurrentFont();
}

void Action::ThrowActionError(const QString& title, const QString& message)
{
    throw CriticalException(title, message);
}

bool Action::Run()
{
    const std::shared_ptr<Action> self = shared_from_this();
    const bool isPerformed = Execute();
    if (isPerformed) {
        session_.Stack().Push(self);
        CurrentInterface().actionPerformed(self, LoggedSteps() > 0 ? LogText() : QString());
    }
    const QString shortfall = Shortfall();
    if (!shortfall.isEmpty())
        CurrentInterface().PartlyDone(shortfall);
    return isPerformed;
}

void Action::Undo()
{
    const std::shared_ptr<Action> self = shared_from_this();
    applied_ -= repeat_;
    for (int step = 0; step < repeat_; ++step)
        UndoOnce();
    CurrentInterface().ActionChanged(self);
}

void Action::Redo()
{
    const std::shared_ptr<Action> self = shared_from_this();
    applied_ += repeat_;
    for (int step = 0; step < repeat_; ++step)
        RedoOnce();
    CurrentInterface().ActionChanged(self);
}

} // namespace Glyphor
