#include "ui/window/metric_commands.h"

#include "actions/action_replace_chars.h"
#include "actions/edit_table.h"
#include "actions/session.h"
#include "ui/support/guarded.h"
#include "ui/support/undo_stack.h"
#include "ui/window/edit_commands.h"

namespace Glyphor {

namespace {

constexpr int NoField = -1;
constexpr qint64 LongestPause = 800; // milliseconds between the values of one spin

// The fields of the font, beside the types of edits.
constexpr int FieldOf(FontMetric metric)
{
    return -2 - int(metric);
}

} // namespace

MetricCommands::MetricCommands(Session& session, UndoStack& history, EditCommands& edits)
    : QObject(&edits), session_(session), history_(history), edits_(edits)
{
    connect(&history_, &QUndoStack::indexChanged, this, [this] { spin_.field = NoField; });
}

void MetricCommands::SetOfCharacters(ActionType type, int value, bool isSpinning)
{
    const CodeSet codes = edits_.SelectedCharacters();
    if (codes.IsEmpty())
        return;
    Run(int(type), codes, isSpinning, [&] {
        const Edit& edit = *EditOf(type);
        auto action = std::make_shared<ActionReplaceChars>(session_, edit.log,
                                                           QStringList(QString::number(value)));
        for (const quint16 code : codes)
            edit.applyValue(action->Change(code), value);
        return action;
    });
}

void MetricCommands::SetOfFont(FontMetric metric, int value, bool isSpinning)
{
    Run(FieldOf(metric), {}, isSpinning,
        [&] { return std::make_shared<ActionSetFontMetrics>(session_, metric, value); });
}

void MetricCommands::SetName(const QString& name)
{
    Guarded([&] { std::make_shared<ActionSetFontName>(session_, name)->Run(); });
}

void MetricCommands::Run(int field, const CodeSet& codes, bool isSpinning,
                         const std::function<std::shared_ptr<Action>()>& make)
{
    const bool goesOn = isSpinning && field == spin_.field && codes == spin_.codes &&
                        !history_.isClean() && spin_.sinceLast.elapsed() < LongestPause;
    bool isDone = false;
    edits_.RunTogether([&] {
        if (goesOn)
            history_.TakeBack();
        isDone = make()->Run();
    });
    if (!isSpinning || !isDone)
        return;
    spin_.field = field;
    spin_.codes = codes;
    spin_.sinceLast.start();
}

} // namespace Glyphor
