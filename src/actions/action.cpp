#include "actions/action.h"

#include "actions/session.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/user_interface.h"
#include "model/code_text.h"

#include <QLatin1StringView>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <vector>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

struct LogMessageRow
{
    ActionType type;
    QLatin1StringView text;
};

constexpr QLatin1StringView Text(const char* text)
{
    return QLatin1StringView(text);
}

// In ascending order. Disabling a range and disabling everything read alike.
constexpr std::array<LogMessageRow, 34> LogMessages = {{
    {ActionType::CreateFont,
     Text(QT_TRANSLATE_NOOP("Engine", "[Font]: Initial height of font: %1px."))},
    {ActionType::OpenFont, Text(QT_TRANSLATE_NOOP("Engine", "[Font]: Opened font file: %1"))},
    {ActionType::MergeFont, Text(QT_TRANSLATE_NOOP("Engine", "[Font]: Font merged with: %1"))},
    {ActionType::InsertColumnRight,
     Text(QT_TRANSLATE_NOOP("Engine", "Inserted a column at the right edge."))},
    {ActionType::InsertColumnLeft,
     Text(QT_TRANSLATE_NOOP("Engine", "Inserted a column at the left edge."))},
    {ActionType::InsertRowTop,
     Text(QT_TRANSLATE_NOOP("Engine", "Inserted a row at the top edge."))},
    {ActionType::InsertRowBottom,
     Text(QT_TRANSLATE_NOOP("Engine", "Inserted a row at the bottom edge."))},
    {ActionType::ShiftRight, Text(QT_TRANSLATE_NOOP("Engine", "Pixel data shifted to the right."))},
    {ActionType::ShiftLeft, Text(QT_TRANSLATE_NOOP("Engine", "Pixel data shifted to the left."))},
    {ActionType::ShiftUp, Text(QT_TRANSLATE_NOOP("Engine", "Pixel data shifted up."))},
    {ActionType::ShiftDown, Text(QT_TRANSLATE_NOOP("Engine", "Pixel data shifted down."))},
    {ActionType::MoveRight, Text(QT_TRANSLATE_NOOP("Engine", "Moved 1 pixel to the right."))},
    {ActionType::MoveLeft, Text(QT_TRANSLATE_NOOP("Engine", "Moved 1 pixel to the left."))},
    {ActionType::MoveUp, Text(QT_TRANSLATE_NOOP("Engine", "Moved 1 pixel up."))},
    {ActionType::MoveDown, Text(QT_TRANSLATE_NOOP("Engine", "Moved 1 pixel down."))},
    {ActionType::IncreaseCursorDistance,
     Text(QT_TRANSLATE_NOOP("Engine", "Increased cursor distance."))},
    {ActionType::DecreaseCursorDistance,
     Text(QT_TRANSLATE_NOOP("Engine", "Decreased cursor distance."))},
    {ActionType::DeleteColumnRight,
     Text(QT_TRANSLATE_NOOP("Engine", "Deleted a column from the right edge."))},
    {ActionType::DeleteColumnLeft,
     Text(QT_TRANSLATE_NOOP("Engine", "Deleted a column from the left edge."))},
    {ActionType::DeleteRowTop,
     Text(QT_TRANSLATE_NOOP("Engine", "Deleted a row from the top edge."))},
    {ActionType::DeleteRowBottom,
     Text(QT_TRANSLATE_NOOP("Engine", "Deleted a row from the bottom edge."))},
    {ActionType::FontInsertRowTop,
     Text(QT_TRANSLATE_NOOP("Engine", "[Font]: Inserted a row at the top of the font."))},
    {ActionType::FontInsertRowBottom,
     Text(QT_TRANSLATE_NOOP("Engine", "[Font]: Inserted a row at the bottom of the font."))},
    {ActionType::FontDeleteRowTop,
     Text(QT_TRANSLATE_NOOP("Engine", "[Font]: Deleted a row from the top of the font."))},
    {ActionType::FontDeleteRowBottom,
     Text(QT_TRANSLATE_NOOP("Engine", "[Font]: Deleted a row from the bottom of the font."))},
    {ActionType::Enable, Text(QT_TRANSLATE_NOOP("Engine", "Enabled."))},
    {ActionType::Disable, Text(QT_TRANSLATE_NOOP("Engine", "Disabled."))},
    {ActionType::DisableAll, Text(QT_TRANSLATE_NOOP("Engine", "Disabled."))},
    {ActionType::Toggle, "%1."_L1},
    {ActionType::ReadPattern, Text(QT_TRANSLATE_NOOP("Engine", "[Font]: Read pattern file: %1."))},
    {ActionType::IncreasePixelIndex,
     Text(QT_TRANSLATE_NOOP("Engine", "Increased pixel index (%2,%3)."))},
    {ActionType::DecreasePixelIndex,
     Text(QT_TRANSLATE_NOOP("Engine", "Decreased pixel index (%2,%3)."))},
    {ActionType::InvertPixelIndex,
     Text(QT_TRANSLATE_NOOP("Engine", "Inverted pixel index (%2,%3)."))},
    {ActionType::SetPixelIndex0,
     Text(QT_TRANSLATE_NOOP("Engine", "Set pixel index (%2,%3) to %4."))},
}};

// Lines of actions that build them without the table.
constexpr std::array OtherMessages = {QT_TRANSLATE_NOOP("Engine", "Deleted."),
                                      QT_TRANSLATE_NOOP("Engine", "Saved font file: %1"),
                                      QT_TRANSLATE_NOOP("Engine", "Saved kerning file: %1")};

constexpr QLatin1StringView PrefixEnd = "]: "_L1;

// A message as it is written, and what it is recognised by once it was filled.
struct LogTemplate
{
    const char* text;
    QRegularExpression pattern;
};

std::vector<LogTemplate> LogTemplates()
{
    std::vector<LogTemplate> templates;
    const auto add = [&templates](const char* text) {
        QString pattern =
            QRegularExpression::escape(QString::fromLatin1(text).section(PrefixEnd, -1));
        pattern.replace(QRegularExpression(u"\\\\%\\d"_s), u"(.*)"_s);
        templates.push_back(
            {text, QRegularExpression(QRegularExpression::anchoredPattern(pattern))});
    };
    for (const LogMessageRow& row : LogMessages) {
        if (row.type != ActionType::Toggle) // which reads like the two before it
            add(row.text.data());
    }
    for (const char* const text : OtherMessages)
        add(text);
    return templates;
}

} // namespace

QString LogMessage(ActionType type)
{
    const auto* const row = std::ranges::lower_bound(LogMessages, type, {}, &LogMessageRow::type);
    return row != LogMessages.end() && row->type == type ? QString(row->text) : QString();
}

QString TranslatedLog(const QString& line)
{
    static const std::vector<LogTemplate> templates = LogTemplates();
    const qsizetype end = line.indexOf(PrefixEnd);
    const qsizetype start = line.startsWith(u'[') && end >= 0 ? end + PrefixEnd.size() : 0;
    for (const LogTemplate& known : templates) {
        const QRegularExpressionMatch match = known.pattern.match(line.mid(start));
        if (!match.hasMatch())
            continue;
        QString translated = Engine::tr(known.text).section(PrefixEnd, -1);
        for (int index = 1; index <= match.lastCapturedIndex(); ++index)
            translated = translated.arg(match.captured(index));
        return line.left(start) + translated;
    }
    return line;
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
