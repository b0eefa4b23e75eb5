#include "ui/window/edit_commands.h"

#include "actions/edit_actions.h"
#include "actions/edit_table.h"
#include "actions/session.h"
#include "model/code_text.h"
#include "ui/dialogs/code_dialogs.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/support/guarded.h"
#include "ui/support/undo_stack.h"
#include "ui/table/character_table.h"

#include <QApplication>
#include <QScopedValueRollback>

#include <algorithm>

namespace Glyphor {

namespace {

void RunAction(const std::shared_ptr<Action>& action)
{
    Guarded([&action] { action->Run(); });
}

} // namespace

EditCommands::EditCommands(Session& session, UndoStack& history, CharacterTable& table,
                           CharBitmapView& editor, QWidget& window)
    : QObject(&window),
      session_(session),
      history_(history),
      table_(table),
      editor_(editor),
      window_(window)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) {
        if (now == &editor_ || now == &table_)
            isInEditor_ = now == &editor_;
    });
}

CodeSet EditCommands::SelectedCharacters() const
{
    if (session_.CurrentFont() == nullptr)
        return {};
    CodeSet codes = table_.SelectedCodes();
    codes &= session_.CurrentFont()->ExistingCodes();
    return codes;
}

CodeSet EditCommands::EditedCharacters() const
{
    if (!isInEditor_)
        return SelectedCharacters();
    CodeSet codes;
    if (editor_.CurrentCharacter() != nullptr)
        codes.Set(quint16(editor_.CurrentCode()), true);
    return codes;
}

void EditCommands::RunEdit(const Edit& edit)
{
    switch (edit.target) {
    case EditTarget::Character:
        edit.copies ? Duplicate() : RunCharacterEdit(edit);
        break;
    case EditTarget::Font:
        RunAction(std::make_shared<ActionFont>(session_, edit.type));
        break;
    case EditTarget::Pixel:
        RunPixelEdit(edit);
        break;
    }
}

// Several actions that are undone as one.
void EditCommands::RunMacro(const QString& text, const std::function<void()>& work)
{
    history_.beginMacro(text);
    RunTogether(work);
    history_.endMacro();
    Q_EMIT Done(text);
}

void EditCommands::RunTogether(const std::function<void()>& work)
{
    {
        const QScopedValueRollback atWork(isAtWork_, true);
        Guarded(work);
    }
    Q_EMIT Changed();
}

void EditCommands::NoteChange(const Action* action)
{
    if (isMovingInHistory_ && action != nullptr)
        movedCodes_ |= action->AffectedCodes();
}

void EditCommands::Undo()
{
    MoveInHistory(history_.index() - 1, tr("Undone: %1").arg(history_.ShownUndoText()));
}

void EditCommands::Redo()
{
    MoveInHistory(history_.index() + 1, tr("Redone: %1").arg(history_.ShownRedoText()));
}

void EditCommands::MoveTo(int index)
{
    const int steps = index - history_.index();
    if (steps == -1)
        Undo();
    else if (steps == 1)
        Redo();
    else if (steps < 0)
        MoveInHistory(index, tr("Steps undone: %1").arg(-steps));
    else if (steps > 0)
        MoveInHistory(index, tr("Steps redone: %1").arg(steps));
}

// Brings the view back to what changed.
void EditCommands::MoveInHistory(int index, const QString& told)
{
    movedCodes_ = {};
    {
        const QScopedValueRollback move(isMovingInHistory_, true);
        RunTogether([&] { history_.setIndex(index); });
    }
    Q_EMIT Done(told);
    const int current = table_.CurrentCode();
    const int first = movedCodes_.Next(0);
    if (first < CodeSet::Limit && (current < 0 || !movedCodes_.Test(quint16(current))))
        table_.SelectCode(first);
}

// One action for each run of codes, undone as one.
void EditCommands::RunForEach(const std::vector<CodeRange>& runs, const QString& text,
                              const MakeAction& make)
{
    if (runs.size() == 1)
        RunAction(make(runs.front()));
    else if (!runs.empty())
        RunMacro(tr("Selection: %1").arg(text), [&] {
            for (const CodeRange& run : runs)
                make(run)->Run();
        });
}

void EditCommands::RunCharacterEdit(const Edit& edit)
{
    RunForEach(RunsOf(EditedCharacters()), LogEntry(edit.log).Translated(),
               [&](const CodeRange& run) {
                   auto action = std::make_shared<ActionChar>(session_, edit.type);
                   action->Args() = {.first = run.first, .last = run.last};
                   return action;
               });
}

void EditCommands::ChangeSelection(ActionType type)
{
    const Font& font = *session_.CurrentFont();
    CodeSet codes = EditedCharacters();
    if (codes.IsEmpty())
        return;
    // All of the selection becomes the opposite of its first character.
    const bool enables = type == ActionType::Enable ||
                         (type == ActionType::Toggle && !font.IsEnabled(*codes.begin()));
    if (enables)
        codes -= font.EnabledCodes();
    else
        codes &= font.EnabledCodes();
    const bool isOne = codes.Count() == 1;
    const ActionType state = enables ? ActionType::Enable : ActionType::Disable;
    const ActionType change = isOne ? type : state;
    RunForEach(RunsOf(codes), LogEntry(LogMessage(state)).Translated(), [&](const CodeRange& run) {
        auto action = std::make_shared<ActionCharState>(session_, change);
        action->Args().first = run.first;
        action->Args().last = run.last;
        return action;
    });
}

// The codes keep their distances. A copy must not replace what is still to be copied.
void EditCommands::Duplicate()
{
    const Font& font = *session_.CurrentFont();
    const CodeSet codes = SelectedCharacters();
    DuplicateDialog dialog(codes, font.ExistingCodes(), font.Metrics().encoding, &window_);
    if (codes.IsEmpty() || dialog.exec() != QDialog::Accepted)
        return;
    const int first = *codes.begin();
    const int target = dialog.Code();
    std::vector<CodeRange> runs = RunsOf(codes);
    if (target > first)
        std::ranges::reverse(runs);
    const QString text =
        LogEntry(LogMessage(ActionType::CopyTo), {Hex4Text(quint16(target))}).Translated();
    RunForEach(runs, text, [&](const CodeRange& run) {
        auto action = std::make_shared<ActionChar>(session_, ActionType::CopyTo);
        action->Args() = {
            .first = run.first, .last = run.last, .value = target + run.first - first};
        return action;
    });
    table_.SelectCode(target);
}

void EditCommands::DeleteSelection()
{
    RunAction(std::make_shared<ActionCharDelete>(session_, table_.SelectedCodes()));
}

void EditCommands::RunPixelEdit(const Edit& edit)
{
    const QPoint pixel = editor_.SelectedPixel();
    if (pixel.x() < 0)
        return;
    const auto action = std::make_shared<ActionPixelIndex>(session_, edit.type);
    action->Args().code = quint16(editor_.CurrentCode());
    action->Args().x = pixel.x();
    action->Args().y = pixel.y();
    RunAction(action);
}

void EditCommands::ChangeRange(ActionType type)
{
    const Font& font = *session_.CurrentFont();
    EnableRangeDialog dialog(type, font.ExistingCodes(), font.Metrics().encoding, &window_);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const auto action = std::make_shared<ActionCharState>(session_, type);
    action->Args().first = dialog.First();
    action->Args().last = dialog.Last();
    RunAction(action);
}

void EditCommands::DisableAll()
{
    RunAction(std::make_shared<ActionCharState>(session_, ActionType::DisableAll));
}

void EditCommands::InvertPixel(int column, int row)
{
    Font& font = *session_.CurrentFont();
    font.FindChar(quint16(editor_.CurrentCode()))->bitmap->InvertPixelIndex(column, row);
    session_.MarkChanged();
    Q_EMIT Changed();
}

} // namespace Glyphor
