#pragma once

#include <QObject>

class QPoint;
class QWidget;

namespace Glyphor {

class Document;
class EditCommands;
class FontIndexer;
class MenuBar;
class Panes;
class PencilTool;
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
    PencilTool& pencil;
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

    // The commands for what is selected in the table.
    void ShowContextMenu(QPoint globalPosition);

Q_SIGNALS:
    void PreferencesChanged();
    void RecoveryRequested();

private:
    void RunWindowCommand(quint32 id);
    void EnableEdits();
    void GoToCharacter();

    WindowParts parts_;
    QWidget& window_;
};

} // namespace Glyphor
