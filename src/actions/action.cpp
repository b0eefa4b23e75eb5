#include "actions/action.h"

#include "actions/session.h"
#include "app/critical_exception.h"
#include "app/user_interface.h"
#include "model/code_text.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

struct LogMessageRow
{
    ActionType type;
    QLatin1StringView text;
};

// In ascending order. Disabling a range and disabling everything read alike.
constexpr std::array<LogMessageRow, 34> LogMessages = {{
    {ActionType::CreateFont, "[Font]: Initial height of font: %1px."_L1},
    {ActionType::OpenFont, "[Font]: Opened font file: %1"_L1},
    {ActionType::MergeFont, "[Font]: Font merged with: %1"_L1},
    {ActionType::InsertColumnRight, "Inserted a column at the right edge."_L1},
    {ActionType::InsertColumnLeft, "Inserted a column at the left edge."_L1},
    {ActionType::InsertRowTop, "Inserted a row at the top edge."_L1},
    {ActionType::InsertRowBottom, "Inserted a row at the bottom edge."_L1},
    {ActionType::ShiftRight, "Pixel data shifted to the right."_L1},
    {ActionType::ShiftLeft, "Pixel data shifted to the left."_L1},
    {ActionType::ShiftUp, "Pixel data shifted up."_L1},
    {ActionType::ShiftDown, "Pixel data shifted down."_L1},
    {ActionType::MoveRight, "Moved 1 pixel to the right."_L1},
    {ActionType::MoveLeft, "Moved 1 pixel to the left."_L1},
    {ActionType::MoveUp, "Moved 1 pixel up."_L1},
    {ActionType::MoveDown, "Moved 1 pixel down."_L1},
    {ActionType::IncreaseCursorDistance, "Increased cursor distance."_L1},
    {ActionType::DecreaseCursorDistance, "Decreased cursor distance."_L1},
    {ActionType::DeleteColumnRight, "Deleted a column from the right edge."_L1},
    {ActionType::DeleteColumnLeft, "Deleted a column from the left edge."_L1},
    {ActionType::DeleteRowTop, "Deleted a row from the top edge."_L1},
    {ActionType::DeleteRowBottom, "Deleted a row from the bottom edge."_L1},
    {ActionType::FontInsertRowTop, "[Font]: Inserted a row at the top of the font."_L1},
    {ActionType::FontInsertRowBottom, "[Font]: Inserted a row at the bottom of the font."_L1},
    {ActionType::FontDeleteRowTop, "[Font]: Deleted a row from the top of the font."_L1},
    {ActionType::FontDeleteRowBottom, "[Font]: Deleted a row from the bottom of the font."_L1},
    {ActionType::Enable, "Enabled."_L1},
    {ActionType::Disable, "Disabled."_L1},
    {ActionType::DisableAll, "Disabled."_L1},
    {ActionType::Toggle, "%1."_L1},
    {ActionType::ReadPattern, "[Font]: Read pattern file: %1."_L1},
    {ActionType::IncreasePixelIndex, "Increased pixel index (%2,%3)."_L1},
    {ActionType::DecreasePixelIndex, "Decreased pixel index (%2,%3)."_L1},
    {ActionType::InvertPixelIndex, "Inverted pixel index (%2,%3)."_L1},
    {ActionType::SetPixelIndex0, "Set pixel index (%2,%3) to %4."_L1},
}};

} // namespace

QString LogMessage(ActionType type)
{
    const auto* const row = std::ranges::lower_bound(LogMessages, type, {}, &LogMessageRow::type);
    return row != LogMessages.end() && row->type == type ? QString(row->text) : QString();
}

QString RangePrefix(quint16 first, quint16 last)
{
    return first == last ? u"[Char 0x%1]: "_s.arg(Hex4Text(first))
                         : u"[Range 0x%1-0x%2]: "_s.arg(Hex4Text(first), Hex4Text(last));
}

QString Action::MessageFor(ActionType type) const
{
    return LogMessage(type == ActionType::None ? type_ : type);
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
    if (!Execute())
        return false;
    session_.Stack().Push(self);
    CurrentInterface().actionPerformed(self, LogText());
    return true;
}

void Action::Undo()
{
    const std::shared_ptr<Action> self = shared_from_this();
    applied_ -= repeat_;
    for (int step = 0; step < repeat_; ++step)
        UndoOnce();
    CurrentInterface().actionChanged(self);
}

void Action::Redo()
{
    const std::shared_ptr<Action> self = shared_from_this();
    applied_ += repeat_;
    for (int step = 0; step < repeat_; ++step)
        RedoOnce();
    CurrentInterface().actionChanged(self);
}

} // namespace Glyphor
