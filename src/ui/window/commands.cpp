#include "ui/window/commands.h"

#include "actions/edit_table.h"
#include "actions/session.h"
#include "app/settings.h"
#include "ui/dialogs/code_dialogs.h"
#include "ui/dialogs/preferences_dialog.h"
#include "ui/document/document.h"
#include "ui/document/font_indexer.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/editor/pencil_tool.h"
#include "ui/table/character_table.h"
#include "ui/window/edit_commands.h"
#include "ui/window/help.h"
#include "ui/window/menu_bar.h"
#include "ui/window/panes.h"

#include <QMenu>

namespace Glyphor {

Commands::Commands(const WindowParts& parts, QWidget& window)
    : QObject(&window), parts_(parts), window_(window)
{
    connect(&parts_.document, &Document::DirectoriesRequested, this,
            [this](QWidget* parent) { EditPreferences(PreferencesDialog::Fonts, parent); });
    // Elsewhere their keys mean something else.
    for (const Edit& edit : EditTable()) {
        if (edit.target != EditTarget::Pixel)
            continue;
        QAction* const command = parts_.menus.Command(edit.type);
        command->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        parts_.panes.Editor().addAction(command);
    }
    QAction* const deletion = parts_.menus.Command(WindowCommand::DeleteCharacters);
    deletion->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    parts_.panes.Table().addAction(deletion);
}

void Commands::Run(quint32 id)
{
    parts_.pencil.EndStroke();
    const auto type = ActionType(id);
    if (const Edit* const edit = EditOf(type))
        return parts_.edits.RunEdit(*edit);
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
        return parts_.document.SaveKerning();
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

void Commands::RunWindowCommand(quint32 id)
{
    switch (WindowCommand(id)) {
    case WindowCommand::Undo:
        return parts_.edits.Undo();
    case WindowCommand::Redo:
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
    case WindowCommand::DeleteCharacters:
        return parts_.edits.DeleteSelection();
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
    for (QAction* const action : parts_.menus.Submenu(SubmenuId::Edit)->actions()) {
        if (action->menu() != nullptr &&
            action->menu() != parts_.menus.Submenu(SubmenuId::PixelIndex))
            menu.addMenu(action->menu());
    }
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
    const bool isSaved = !parts_.session.IsModified() && parts_.document.HasOwnFile();
    enable(ActionType::SaveFont, hasFont && !isSaved);
    enable(ActionType::SaveKerning, hasFont && font->HasKerning());
    enable(WindowCommand::AllCharacters, hasFont);
    enable(WindowCommand::GoToCharacter, hasFont);
    enable(WindowCommand::ExportProof, hasFont);
    EnableEdits();
}

void Commands::EnableEdits()
{
    const Font* const font = parts_.session.CurrentFont();
    const bool hasFont = font != nullptr;
    const bool hasCharacter = !parts_.edits.EditedCharacters().IsEmpty();
    const bool hasPixel = hasFont && parts_.panes.Editor().SelectedPixel().x() >= 0;
    const bool isLegacy = hasFont && IsLegacyFormat(font->Metrics().format);
    const int maximum = hasFont ? (1 << font->Metrics().bitsPerPixel) - 1 : -1;
    for (const Edit& edit : EditTable()) {
        const bool hasTarget = edit.target == EditTarget::Character ? hasCharacter
                               : edit.target == EditTarget::Pixel   ? hasPixel
                                                                    : hasFont;
        const bool isRefused = (isLegacy && edit.notForLegacy) || edit.index > maximum;
        parts_.menus.Command(edit.type)->setEnabled(hasTarget && !isRefused);
    }
    parts_.menus.Command(ActionType::Toggle)->setEnabled(hasCharacter);
    parts_.menus.Command(WindowCommand::DeleteCharacters)
        ->setEnabled(!parts_.edits.SelectedCharacters().IsEmpty());
}

} // namespace Glyphor
