#pragma once

#include "actions/action.h"
#include "model/code_range.h"
#include "model/code_set.h"

#include <QObject>

#include <functional>
#include <vector>

class QWidget;

namespace Glyphor {

class CharBitmapView;
class CharacterTable;
struct Edit;
class Session;
class UndoStack;

// The commands that change the font by what is selected in the table and in the editor, and undo
// and redo with what they mean for the selection. Failures are told.
class EditCommands final : public QObject
{
    Q_OBJECT

public:
    // It belongs to the window. The others must outlive it.
    EditCommands(Session& session, UndoStack& history, CharacterTable& table,
                 CharBitmapView& editor, QWidget& window);

    void RunEdit(const Edit& edit);

    // Enables or disables the selected characters, or toggles them.
    void ChangeSelection(ActionType type);

    // Enables or disables characters that a dialog asks for.
    void ChangeRange(ActionType type);
    void DisableAll();
    void DeleteSelection();

    // Inverts a pixel by no action, so the history does not know of it.
    void InvertPixel(int column, int row);

    void Undo();
    void Redo();

    // To the state in which so many of the actions are in force.
    void MoveTo(int index);

    // What undo and redo change is selected once they are done.
    void NoteChange(const Action* action);

    // What the work changes is told once, at its end.
    void RunTogether(const std::function<void()>& work);

    // True while there is more to come than what was changed.
    [[nodiscard]] bool IsAtWork() const { return isAtWork_; }

    // The selected codes that have a character.
    [[nodiscard]] CodeSet SelectedCharacters() const;

    // The current character alone where the editor was used last, or else the selected ones.
    [[nodiscard]] CodeSet EditedCharacters() const;

Q_SIGNALS:
    void Changed();
    void Done(const QString& text);

private:
    using MakeAction = std::function<std::shared_ptr<Action>(const CodeRange&)>;

    void RunCharacterEdit(const Edit& edit);
    void RunPixelEdit(const Edit& edit);
    void RunForEach(const std::vector<CodeRange>& runs, const QString& text,
                    const MakeAction& make);
    void Duplicate();
    void RunMacro(const QString& text, const std::function<void()>& work);
    void MoveInHistory(int index, const QString& told);

    Session& session_;
    UndoStack& history_;
    CharacterTable& table_;
    CharBitmapView& editor_;
    QWidget& window_;
    bool isInEditor_ = false; // where the focus was last, of the table and the editor
    bool isAtWork_ = false;
    bool isMovingInHistory_ = false; // by undo or redo
    CodeSet movedCodes_;             // that undo or redo changed
};

} // namespace Glyphor
