#include "ui/window/commands.h"

#include "actions/edit_table.h"
#include "actions/session.h"
#include "app/settings.h"
#include "ui/dialogs/code_dialogs.h"
#include "ui/dialogs/preferences_dialog.h"
#include "ui/document/document.h"
#include "ui/document/font_indexer.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/editor/drawing_tools.h"
#include "ui/editor/index_palette.h"
#include "ui/editor/pixel_selection.h"
#include "ui/table/character_table.h"
#include "ui/window/clipboard_commands.h"
#include "ui/window/edit_commands.h"
#include "ui/window/help.h"
#include "ui/window/info_panel.h"
#include "ui/window/menu_bar.h"
#include "ui/window/panes.h"

#include <QApplication>
#include <QMenu>

#include <algorithm>

namespace Glyphor {

Commands::Commands(const WindowParts& parts, QWidget& window)
    : QObject(&window), parts_(parts), window_(window)
{
    connect(&parts_.document, &Document::DirectoriesRequested, this,
            [this](QWidget* parent) { EditPreferences(PreferencesDialog::Fonts, parent); });
    for (const Edit& edit : EditTable()) {
        if (edit.target == EditTarget::Pixel)
            BindToEditor(*parts_.menus.Command(edit.type));
    }
    for (const ToolRow& tool : ToolTable())
        BindToEditor(*parts_.menus.Command(tool.tool));
    for (const WindowCommand command :
         {WindowCommand::SelectAllPixels, WindowCommand::FillPixels, WindowCommand::DeletePixels})
        BindToEditor(*parts_.menus.Command(command));
    // The same key without Shift where plus is above another character.
    parts_.menus.Command(WindowCommand::ZoomIn)
        ->setShortcuts({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal});
    QAction* const deletion = parts_.menus.Command(WindowCommand::DeleteCharacters);
    deletion->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    parts_.panes.Table().addAction(deletion);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* now) { NoteFocus(now); });
}

// Elsewhere its key means something else.
void Commands::BindToEditor(QAction& command) const
{
    command.setShortcutContext(Qt::WidgetWithChildrenShortcut);
    parts_.panes.Editor().addAction(&command);
}

void Commands::ChooseTool(EditorTool tool)
{
    parts_.menus.Command(tool)->setChecked(true);
    parts_.tools.SetTool(tool);
}

void Commands::NoteFocus(const QWidget* widget)
{
    if (widget != nullptr && !widget->inherits("QMenu") && !widget->inherits("QMenuBar"))
        isInEditor_ = widget == &parts_.panes.Editor();
}

void Commands::Run(quint32 id)
{
    parts_.tools.EndDrawing();
    parts_.panes.Info().TakeTyped();
    const auto type = ActionType(id);
    if (const Edit* const edit = EditOf(type))
        return RunEdit(*edit);
    switch (type) {
    case ActionType::CreateFont:
        return parts_.document.Create();
    case ActionType::OpenFont:
        return parts_.document.Open();
    case ActionType::MergeFont:
        return parts_.document.Merge();
    case ActionType::SaveFont:
        parts_.document.Save();
        return;
    case ActionType::SaveFontAs:
        parts_.document.SaveAs();
        return;
    case ActionType::SaveKerning:
        parts_.document.SaveKerning();
        return;
    case ActionType::SavePattern:
        return parts_.document.SavePattern();
    case ActionType::ReadPattern:
        return parts_.document.OpenPattern();
    case ActionType::Enable:
    case ActionType::Disable:
        return parts_.edits.ChangeRange(type);
    case ActionType::DisableAll:
        return parts_.edits.DisableAll();
    case ActionType::Toggle:
        return parts_.edits.ChangeSelection(type);
    case ActionType::ExitProgram:
        window_.close();
        return;
    default:
        RunWindowCommand(id);
    }
}

// Selected pixels are what is edited while the editor has the focus.
void Commands::RunEdit(const Edit& edit)
{
    PixelSelection& selection = parts_.selection;
    if (!selection.IsEmpty() && edit.target == EditTarget::Pixel)
        return selection.Change(edit);
    if (!selection.IsEmpty() && isInEditor_ && selection.Turn(edit.type))
        return;
    parts_.edits.RunEdit(edit);
}

// False for another command.
bool Commands::RunPixelCommand(WindowCommand command)
{
    PixelSelection& selection = parts_.selection;
    switch (command) {
    case WindowCommand::Cut:
        parts_.clipboard.Cut(isInEditor_);
        return true;
    case WindowCommand::Copy:
        parts_.clipboard.Copy(isInEditor_);
        return true;
    case WindowCommand::Paste:
        parts_.clipboard.Paste(isInEditor_);
        return true;
    case WindowCommand::SelectAllPixels:
        selection.SelectAll();
        return true;
    case WindowCommand::FillPixels:
        selection.Fill(parts_.tools.Palette().Index());
        return true;
    case WindowCommand::DeletePixels:
        selection.Erase();
        return true;
    default:
        return false;
    }
}

void Commands::RunWindowCommand(quint32 id)
{
    for (const ToolRow& row : ToolTable()) {
        if (CommandId(row.tool) == id)
            return ChooseTool(row.tool);
    }
    if (RunPixelCommand(WindowCommand(id)))
        return;
    switch (WindowCommand(id)) {
    case WindowCommand::Undo:
        parts_.selection.Clear(); // whose pixels may move back
        return parts_.edits.Undo();
    case WindowCommand::Redo:
        parts_.selection.Clear();
        return parts_.edits.Redo();
    case WindowCommand::AllCharacters:
        return parts_.panes.Table().ShowAll(parts_.menus.Command(id)->isChecked());
    case WindowCommand::GoToCharacter:
        return GoToCharacter();
    case WindowCommand::IndexFonts:
        return parts_.indexer.Start();
    case WindowCommand::Preferences:
        return EditPreferences(-1, &window_);
    case WindowCommand::About:
        return ShowAbout(&window_);
    case WindowCommand::CommandLineOptions:
        return ShowCommandLineOptions(&window_);
    case WindowCommand::UserManual:
        return ShowManual();
    case WindowCommand::ExportProof:
        return parts_.document.ExportProof();
    case WindowCommand::ZoomIn:
        return parts_.panes.Editor().ZoomIn();
    case WindowCommand::ZoomOut:
        return parts_.panes.Editor().ZoomOut();
    case WindowCommand::ZoomToFit:
        return parts_.panes.Editor().SetZoom(0);
    case WindowCommand::ActualSize:
        return parts_.panes.Editor().SetZoom(1);
    case WindowCommand::ShowNeighbours:
        return parts_.panes.ShowNeighbours(parts_.menus.Command(id)->isChecked());
    case WindowCommand::ShowOutline:
        return parts_.panes.ShowOutline(parts_.menus.Command(id)->isChecked());
    case WindowCommand::History:
    case WindowCommand::KerningPairs:
        return; // their panes follow
    case WindowCommand::RecoverFonts:
        Q_EMIT RecoveryRequested();
        return;
    case WindowCommand::DeleteCharacters:
        return parts_.edits.DeleteSelection();
    default:
        return;
    }
}

void Commands::GoToCharacter()
{
    const Font& font = *parts_.session.CurrentFont();
    CodeSet shown = font.ExistingCodes();
    if (!parts_.menus.Command(WindowCommand::AllCharacters)->isChecked())
        shown &= font.EnabledCodes();
    GoToDialog dialog(shown, font.Metrics().encoding, &window_);
    if (dialog.exec() == QDialog::Accepted && parts_.panes.Table().SelectCode(dialog.Code()))
        parts_.panes.Table().setFocus();
}

// Other directories are indexed at once if any were, or are to be chosen from.
void Commands::EditPreferences(int page, QWidget* parent)
{
    const Settings& settings = Settings::Instance();
    const auto directories = [&settings] {
        return std::pair(settings.additionalFontDirs.value(),
                         settings.searchDirsRecursively.value());
    };
    const auto previous = directories();
    PreferencesDialog dialog(parent);
    if (page >= 0)
        dialog.ShowPage(PreferencesDialog::Page(page));
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (directories() != previous && (parts_.indexer.HasBegun() || parent != &window_))
        parts_.indexer.Start();
    Q_EMIT PreferencesChanged();
}

void Commands::ShowContextMenu(QPoint globalPosition)
{
    if (parts_.session.CurrentFont() == nullptr || parts_.panes.Table().CurrentCode() < 0)
        return;
    QMenu menu(&parts_.panes.Table());
    connect(menu.addAction(tr("&Enable")), &QAction::triggered, &parts_.edits,
            [this] { parts_.edits.ChangeSelection(ActionType::Enable); });
    connect(menu.addAction(tr("&Disable")), &QAction::triggered, &parts_.edits,
            [this] { parts_.edits.ChangeSelection(ActionType::Disable); });
    QAction* const toggle = parts_.menus.Command(ActionType::Toggle);
    menu.addAction(toggle);
    menu.addAction(parts_.menus.Command(WindowCommand::DeleteCharacters));
    for (QAction* const action : menu.actions())
        action->setEnabled(toggle->isEnabled()); // they all need a character
    menu.addSeparator();
    AddClipboardCommands(menu);
    menu.addSeparator();
    const QMenu* const ofPixels[] = {parts_.menus.Submenu(SubmenuId::PixelIndex),
                                     parts_.menus.Submenu(SubmenuId::Tools),
                                     parts_.menus.Submenu(SubmenuId::PixelSelection)};
    for (QAction* const action : parts_.menus.Submenu(SubmenuId::Edit)->actions()) {
        if (action->menu() != nullptr && !std::ranges::count(ofPixels, action->menu()))
            menu.addMenu(action->menu());
    }
    menu.addAction(parts_.menus.Command(ActionType::CopyTo));
    menu.exec(globalPosition);
}

void Commands::AddClipboardCommands(QMenu& menu) const
{
    for (const WindowCommand command :
         {WindowCommand::Cut, WindowCommand::Copy, WindowCommand::Paste})
        menu.addAction(parts_.menus.Command(command));
}

// A single pixel has its indices alone.
void Commands::ShowPixelMenu(QPoint globalPosition)
{
    QMenu* const indices = parts_.menus.Submenu(SubmenuId::PixelIndex);
    if (parts_.selection.IsEmpty()) {
        indices->exec(globalPosition);
        return;
    }
    QMenu menu(&parts_.panes.Editor());
    AddClipboardCommands(menu);
    menu.addSeparator();
    for (const SubmenuId id : {SubmenuId::Transform, SubmenuId::PixelSelection})
        menu.addMenu(parts_.menus.Submenu(id));
    menu.addMenu(indices);
    menu.exec(globalPosition);
}

void Commands::EnablePossible()
{
    const Font* const font = parts_.session.CurrentFont();
    const bool hasFont = font != nullptr;
    const auto enable = [this](auto command, bool state) {
        parts_.menus.Command(command)->setEnabled(state);
    };
    for (const ActionType action :
         {ActionType::MergeFont, ActionType::SaveFontAs, ActionType::SavePattern,
          ActionType::ReadPattern, ActionType::Enable, ActionType::Disable, ActionType::DisableAll})
        enable(action, hasFont);
    // A font that was rendered has no file of its own yet.
    const bool isSaved = parts_.session.IsFontSaved() && parts_.document.HasOwnFile();
    enable(ActionType::SaveFont, hasFont && !isSaved);
    enable(ActionType::SaveKerning, hasFont && font->HasKerning());
    for (const WindowCommand command :
         {WindowCommand::AllCharacters, WindowCommand::GoToCharacter, WindowCommand::ExportProof,
          WindowCommand::ZoomIn, WindowCommand::ZoomOut, WindowCommand::ZoomToFit,
          WindowCommand::ActualSize, WindowCommand::ShowNeighbours, WindowCommand::ShowOutline})
        enable(command, hasFont);
    for (const ToolRow& tool : ToolTable())
        enable(tool.tool, hasFont);
    EnableEdits();
    EnablePixelCommands();
}

void Commands::EnablePixelCommands()
{
    const bool hasSelection = !parts_.selection.IsEmpty();
    const bool hasCharacter = !parts_.edits.SelectedCharacters().IsEmpty();
    const bool hasCode =
        parts_.session.CurrentFont() != nullptr && parts_.panes.Table().CurrentCode() >= 0;
    const auto enable = [this](WindowCommand command, bool state) {
        parts_.menus.Command(command)->setEnabled(state);
    };
    enable(WindowCommand::Cut, hasSelection || hasCharacter);
    enable(WindowCommand::Copy, hasSelection || hasCharacter);
    enable(WindowCommand::Paste, hasCode); // whatever is on the clipboard: asking may take long
    enable(WindowCommand::SelectAllPixels, parts_.panes.Editor().CurrentCharacter() != nullptr);
    enable(WindowCommand::FillPixels, hasSelection);
    enable(WindowCommand::DeletePixels, hasSelection);
}

void Commands::EnableEdits()
{
    const Font* const font = parts_.session.CurrentFont();
    const bool hasFont = font != nullptr;
    const bool hasCharacter = !parts_.edits.EditedCharacters().IsEmpty();
    const bool hasPixels = !parts_.selection.IsEmpty();
    const bool hasPixel = hasPixels || (hasFont && parts_.panes.Editor().SelectedPixel().x() >= 0);
    const bool isLegacy = hasFont && IsLegacyFormat(font->Metrics().format);
    const int maximum = hasFont ? (1 << font->Metrics().bitsPerPixel) - 1 : -1;
    for (const Edit& edit : EditTable()) {
        if (edit.applyValue != nullptr)
            continue; // no menu has it
        const bool isTurn = edit.period > 0;
        const bool hasTarget = edit.target == EditTarget::Character
                                   ? hasCharacter || (isTurn && hasPixels)
                               : edit.target == EditTarget::Pixel ? hasPixel
                                                                  : hasFont;
        const bool isRefused = (isLegacy && edit.notForLegacy) || edit.index > maximum;
        parts_.menus.Command(edit.type)->setEnabled(hasTarget && !isRefused);
    }
    parts_.menus.Command(ActionType::Toggle)->setEnabled(hasCharacter);
    parts_.menus.Command(WindowCommand::DeleteCharacters)
        ->setEnabled(!parts_.edits.SelectedCharacters().IsEmpty());
}

} // namespace Glyphor
