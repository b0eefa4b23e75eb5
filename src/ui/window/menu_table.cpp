#include "ui/window/menu_table.h"

#include <QCoreApplication>

#include <iterator>

namespace Glyphor {

namespace {

constexpr quint8 StartsEnabled = 0;

constexpr MenuRow Separator = {.kind = MenuRowKind::Separator};

template <typename Command>
constexpr MenuRow Entry(const char* text, const char* shortcut, const char* statusTip,
                        Command command, quint8 disabled = 1)
{
    return {.kind = MenuRowKind::Command,
            .text = text,
            .shortcut = shortcut,
            .statusTip = statusTip,
            .commandId = CommandId(command),
            .disabled = disabled};
}

// Starts disabled and checked.
template <typename Command>
constexpr MenuRow Toggle(const char* text, const char* statusTip, Command command)
{
    MenuRow row = Entry(text, nullptr, statusTip, command);
    row.checkable = 1;
    row.checked = 1;
    return row;
}

template <std::size_t Count>
constexpr MenuRow Submenu(const char* text, const MenuRow (&rows)[Count],
                          SubmenuId id = SubmenuId::None)
{
    return {.kind = MenuRowKind::Submenu,
            .text = text,
            .submenu = rows,
            .submenuCount = qint32(Count),
            .submenuId = id};
}

constexpr MenuRow FileRows[] = {
    Entry(QT_TRANSLATE_NOOP("Menu", "&New..."), "Ctrl+N",
          QT_TRANSLATE_NOOP("Menu", "Create new font from installed fonts"), ActionType::CreateFont,
          StartsEnabled),
    Entry(QT_TRANSLATE_NOOP("Menu", "&Open font file..."), "Ctrl+O",
          QT_TRANSLATE_NOOP("Menu", "Open a font file of the type TTF, BDF, XBF, C or SIF"),
          ActionType::OpenFont, StartsEnabled),
    Entry(
        QT_TRANSLATE_NOOP("Menu", "&Merge font file..."), "CTRL+M",
        QT_TRANSLATE_NOOP(
            "Menu",
            "Merge a font file of the type TTF, BDF, XBF, C or SIF with the currently loaded font"),
        ActionType::MergeFont),
    Separator,
    Entry(QT_TRANSLATE_NOOP("Menu", "&Save"), "Ctrl+S",
          QT_TRANSLATE_NOOP("Menu", "Save the font data"), ActionType::SaveFont),
    Entry(QT_TRANSLATE_NOOP("Menu", "Save &As..."), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Save the font data to a different file"),
          ActionType::SaveFontAs),
    Separator,
    Entry(QT_TRANSLATE_NOOP("Menu", "Save &kerning table..."), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Save the kerning table"), ActionType::SaveKerning),
    Separator,
    Entry(QT_TRANSLATE_NOOP("Menu", "E&xit"), "Alt+F4",
          QT_TRANSLATE_NOOP("Menu", "Exit the program"), ActionType::ExitProgram, StartsEnabled),
};

constexpr MenuRow InsertRows[] = {
    Entry(QT_TRANSLATE_NOOP("Menu", "Right"), "Ctrl+R",
          QT_TRANSLATE_NOOP("Menu", "Insert a column at the right side of the current character"),
          ActionType::InsertColumnRight),
    Entry(QT_TRANSLATE_NOOP("Menu", "Left"), "Ctrl+L",
          QT_TRANSLATE_NOOP("Menu", "Insert a column at the left side of the current character"),
          ActionType::InsertColumnLeft),
    Entry(QT_TRANSLATE_NOOP("Menu", "Top"), "Ctrl+T",
          QT_TRANSLATE_NOOP("Menu", "Insert a row at the top of the current character"),
          ActionType::InsertRowTop),
    Entry(QT_TRANSLATE_NOOP("Menu", "Bottom"), "Ctrl+B",
          QT_TRANSLATE_NOOP("Menu", "Insert a row at the bottom of the current character"),
          ActionType::InsertRowBottom),
};

constexpr MenuRow DeleteRows[] = {
    Entry(QT_TRANSLATE_NOOP("Menu", "Right"), "Shift+R",
          QT_TRANSLATE_NOOP("Menu", "Delete a column at the right side of the current character"),
          ActionType::DeleteColumnRight),
    Entry(QT_TRANSLATE_NOOP("Menu", "Left"), "Shift+L",
          QT_TRANSLATE_NOOP("Menu", "Delete a column at the left side of the current character"),
          ActionType::DeleteColumnLeft),
    Entry(QT_TRANSLATE_NOOP("Menu", "Top"), "Shift+T",
          QT_TRANSLATE_NOOP("Menu", "Delete a row from the top of the current character"),
          ActionType::DeleteRowTop),
    Entry(QT_TRANSLATE_NOOP("Menu", "Bottom"), "Shift+B",
          QT_TRANSLATE_NOOP("Menu", "Delete a row from the bottom of the current character"),
          ActionType::DeleteRowBottom),
};

constexpr MenuRow ShiftRows[] = {
    Entry(QT_TRANSLATE_NOOP("Menu", "Right"), "Ctrl+Shift+R",
          QT_TRANSLATE_NOOP("Menu", "Shift pixel data to the right"), ActionType::ShiftRight),
    Entry(QT_TRANSLATE_NOOP("Menu", "Left"), "Ctrl+Shift+L",
          QT_TRANSLATE_NOOP("Menu", "Shift pixel data to the left"), ActionType::ShiftLeft),
    Entry(QT_TRANSLATE_NOOP("Menu", "Up"), "Ctrl+Shift+U",
          QT_TRANSLATE_NOOP("Menu", "Shift pixel data up"), ActionType::ShiftUp),
    Entry(QT_TRANSLATE_NOOP("Menu", "Down"), "Ctrl+Shift+D",
          QT_TRANSLATE_NOOP("Menu", "Shift pixel data down"), ActionType::ShiftDown),
};

constexpr MenuRow MoveRows[] = {
    Entry(QT_TRANSLATE_NOOP("Menu", "Right"), "Shift+Alt+R",
          QT_TRANSLATE_NOOP("Menu", "Shift pixel data to the right"), ActionType::MoveRight),
    Entry(QT_TRANSLATE_NOOP("Menu", "Left"), "Shift+Alt+L",
          QT_TRANSLATE_NOOP("Menu", "Shift pixel data to the left"), ActionType::MoveLeft),
    Entry(QT_TRANSLATE_NOOP("Menu", "Up"), "Shift+Alt+U",
          QT_TRANSLATE_NOOP("Menu", "Shift pixel data up"), ActionType::MoveUp),
    Entry(QT_TRANSLATE_NOOP("Menu", "Down"), "Shift+Alt+D",
          QT_TRANSLATE_NOOP("Menu", "Shift pixel data down"), ActionType::MoveDown),
};

constexpr MenuRow FontHeightRows[] = {
    Entry(QT_TRANSLATE_NOOP("Menu", "Insert top"), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Insert a row at the top of the font"),
          ActionType::FontInsertRowTop),
    Entry(QT_TRANSLATE_NOOP("Menu", "Insert bottom"), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Insert a row at the bottom of the font"),
          ActionType::FontInsertRowBottom),
    Entry(QT_TRANSLATE_NOOP("Menu", "Delete top"), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Delete a row from the top of the font"),
          ActionType::FontDeleteRowTop),
    Entry(QT_TRANSLATE_NOOP("Menu", "Delete bottom"), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Delete a row from the bottom of the font"),
          ActionType::FontDeleteRowBottom),
};

constexpr MenuRow CursorDistanceRows[] = {
    Entry(QT_TRANSLATE_NOOP("Menu", "Increase"), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Increase cursor distance"),
          ActionType::IncreaseCursorDistance),
    Entry(QT_TRANSLATE_NOOP("Menu", "Decrease"), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Decrease cursor distance"),
          ActionType::DecreaseCursorDistance),
};

constexpr MenuRow PixelIndexRows[] = {
    Entry(QT_TRANSLATE_NOOP("Menu", "Increase index"), "+",
          QT_TRANSLATE_NOOP("Menu", "Increase the index of the current pixel"),
          ActionType::IncreasePixelIndex),
    Entry(QT_TRANSLATE_NOOP("Menu", "Decrease index"), "-",
          QT_TRANSLATE_NOOP("Menu", "Decrease the index of the current pixel"),
          ActionType::DecreasePixelIndex),
    Entry(QT_TRANSLATE_NOOP("Menu", "Invert index"), "Space",
          QT_TRANSLATE_NOOP("Menu", "Invert the index of the current pixel"),
          ActionType::InvertPixelIndex),
    Separator,
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 0"), "0",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 0"),
          ActionType::SetPixelIndex0),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 1"), "1",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 1"),
          ActionType::SetPixelIndex1),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 2"), "2",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 2"),
          ActionType::SetPixelIndex2),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 3"), "3",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 3"),
          ActionType::SetPixelIndex3),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 4"), "4",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 4"),
          ActionType::SetPixelIndex4),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 5"), "5",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 5"),
          ActionType::SetPixelIndex5),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 6"), "6",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 6"),
          ActionType::SetPixelIndex6),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 7"), "7",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 7"),
          ActionType::SetPixelIndex7),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 8"), "8",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 8"),
          ActionType::SetPixelIndex8),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 9"), "9",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 9"),
          ActionType::SetPixelIndex9),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 10"), "A",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 10"),
          ActionType::SetPixelIndex10),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 11"), "B",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 11"),
          ActionType::SetPixelIndex11),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 12"), "C",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 12"),
          ActionType::SetPixelIndex12),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 13"), "D",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 13"),
          ActionType::SetPixelIndex13),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 14"), "E",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 14"),
          ActionType::SetPixelIndex14),
    Entry(QT_TRANSLATE_NOOP("Menu", "Set index to 15"), "F",
          QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 15"),
          ActionType::SetPixelIndex15),
};

constexpr MenuRow EditRows[] = {
    Entry(QT_TRANSLATE_NOOP("Menu", "&Undo"), "Ctrl+Z",
          QT_TRANSLATE_NOOP("Menu", "Undo last action"), WindowCommand::Undo),
    Entry(QT_TRANSLATE_NOOP("Menu", "&Redo"), "Ctrl+Y",
          QT_TRANSLATE_NOOP("Menu", "Redo previous action"), WindowCommand::Redo),
    Separator,
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Insert"), InsertRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Delete"), DeleteRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Shift"), ShiftRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Move"), MoveRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Font height"), FontHeightRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Custor distance"), CursorDistanceRows),
    Entry(QT_TRANSLATE_NOOP("Menu", "&Toggle character"), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Toggle the activation of the current character"),
          ActionType::Toggle),
    Separator,
    Submenu(QT_TRANSLATE_NOOP("Menu", "Pi&xel index"), PixelIndexRows, SubmenuId::PixelIndex),
    Separator,
    Entry(QT_TRANSLATE_NOOP("Menu", "&Enable range of characters..."), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Enable the characters of the given area"), ActionType::Enable),
    Entry(QT_TRANSLATE_NOOP("Menu", "Disa&ble range of characters..."), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Disable the characters of the given area"),
          ActionType::Disable),
    Entry(QT_TRANSLATE_NOOP("Menu", "Disable &all characters"), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Disable all characters"), ActionType::DisableAll),
    Separator,
    Entry(QT_TRANSLATE_NOOP("Menu", "&Read pattern file..."), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Enable the characters of the given pattern file"),
          ActionType::ReadPattern),
    Entry(QT_TRANSLATE_NOOP("Menu", "Save &pattern file..."), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Save the currently enabled characters to a pattern file"),
          ActionType::SavePattern),
};

constexpr MenuRow ViewRows[] = {
    Toggle(QT_TRANSLATE_NOOP("Menu", "&All Characters"),
           QT_TRANSLATE_NOOP("Menu", "Show enabled characters only"), WindowCommand::AllCharacters),
    Entry(QT_TRANSLATE_NOOP("Menu", "&Go to character..."), "Ctrl+G",
          QT_TRANSLATE_NOOP("Menu", "Selects and jumps to a desired character"),
          WindowCommand::GoToCharacter),
};

constexpr MenuRow ToolRows[] = {
    Entry(QT_TRANSLATE_NOOP("Menu", "&Index font directories"), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Search font directories for available fonts"),
          WindowCommand::IndexFonts, StartsEnabled),
    Separator,
    Entry(QT_TRANSLATE_NOOP("Menu", "&Preferences..."), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Configure preferences"), WindowCommand::Preferences,
          StartsEnabled),
};

constexpr MenuRow HelpRows[] = {
    Entry(QT_TRANSLATE_NOOP("Menu", "&User Manual"), "F1",
          QT_TRANSLATE_NOOP("Menu", "Open the user manual (will be opened in a web browser)"),
          WindowCommand::UserManual, StartsEnabled),
    Separator,
    Entry(QT_TRANSLATE_NOOP("Menu", "&About..."), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Show the about dialog"), WindowCommand::About, StartsEnabled),
    Entry(QT_TRANSLATE_NOOP("Menu", "&Command line options..."), nullptr,
          QT_TRANSLATE_NOOP("Menu", "Show the command line options"),
          WindowCommand::CommandLineOptions, StartsEnabled),
};

constexpr MenuRow TopRows[] = {
    Submenu(QT_TRANSLATE_NOOP("Menu", "&File"), FileRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Edit"), EditRows, SubmenuId::Edit),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&View"), ViewRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Tool"), ToolRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Help"), HelpRows),
};

} // namespace

std::span<const MenuRow> MenuTable()
{
    return TopRows;
}

} // namespace Glyphor
