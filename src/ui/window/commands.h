#pragma once

#include "ui/editor/editor_tool.h"
#include "ui/window/menu_table.h"

#include <QObject>

class QAction;
class QMenu;
class QPoint;
class QWidget;

namespace Glyphor {

class ClipboardCommands;
class Document;
class DrawingTools;
class EditCommands;
class FontIndexer;
struct Edit;
class MenuBar;
class Panes;
class PixelSelection;
class Session;

// What the commands of the window work on.
struct WindowParts
{
    Session& session;
    FontIndexer& indexer;
    Document& document;
    MenuBar& menus;
    Panes& panes;
    EditCommands& edits;
    DrawingTools& tools;
    PixelSelection& selection;
    ClipboardCommands& clipboard;
};

// Runs the commands of the menus by their numbers, and enables those that can be run.
class Commands final : public QObject
{
    Q_OBJECT

public:
    // The parts must outlive it. It belongs to the window, as its dialogs do.
    Commands(const WindowParts& parts, QWidget& window);

    void Run(quint32 id);
    void EnablePossible();
    void EditPreferences(int page, QWidget* parent);
    void ChooseTool(EditorTool tool);

    // The commands for what is selected in the table.
    void ShowContextMenu(QPoint globalPosition);

    // Those for what is selected in the editor.
    void ShowPixelMenu(QPoint globalPosition);

Q_SIGNALS:
    void PreferencesChanged();
    void RecoveryRequested();

private:
    void BindToEditor(QAction& command) const;
    void RunWindowCommand(quint32 id);
    bool RunPixelCommand(WindowCommand command);
    void RunEdit(const Edit& edit);
    void EnableEdits();
    void EnablePixelCommands();
    void AddClipboardCommands(QMenu& menu) const;
    void NoteFocus(const QWidget* widget);
    void GoToCharacter();

    WindowParts parts_;
    QWidget& window_;
    bool isInEditor_ = false; // the focus, or was before a menu had it
};

} // namespace Glyphor
