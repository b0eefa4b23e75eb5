#include "ui/menu_table.h"

#include <QCoreApplication>

#include <iterator>

namespace Glyphor {

namespace {

constexpr quint8 StartsEnabled = 0;

constexpr MenuRow Separator = {
    MenuRowKind::Separator, nullptr, nullptr, nullptr, 0, 0, 0, 0, nullptr, 0};

constexpr MenuRow Command(const char* text, const char* shortcut, const char* statusTip, quint32 id,
                          quint8 disabled = 1)
{
    return {MenuRowKind::Command, text, shortcut, statusTip, id, disabled, 0, 0, nullptr, 0};
}

// Starts disabled and checked.
constexpr MenuRow Toggle(const char* text, const char* statusTip, quint32 id)
{
    return {MenuRowKind::Command, text, nullptr, statusTip, id, 1, 1, 1, nullptr, 0};
}

template <std::size_t Count>
constexpr MenuRow Submenu(const char* text, const MenuRow (&rows)[Count])
{
    return {MenuRowKind::Submenu, text, nullptr, nullptr, 0, 0, 0, 0, rows, qint32(Count)};
}

constexpr MenuRow FileRows[] = {
    Command(QT_TRANSLATE_NOOP("Menu", "&New..."), "Ctrl+N",
            QT_TRANSLATE_NOOP("Menu", "Create new font from installed fonts"), 1, StartsEnabled),
    Command(QT_TRANSLATE_NOOP("Menu", "&Open font file..."), "Ctrl+O",
            QT_TRANSLATE_NOOP("Menu", "Open a font file of the type TTF, BDF, XBF, C or SIF"), 2,
            StartsEnabled),
    Command(
        QT_TRANSLATE_NOOP("Menu", "&Merge font file..."), "CTRL+M",
        QT_TRANSLATE_NOOP(
            "Menu",
            "Merge a font file of the type TTF, BDF, XBF, C or SIF with the currently loaded font"),
        7),
    Separator,
    Command(QT_TRANSLATE_NOOP("Menu", "&Save"), "Ctrl+S",
            QT_TRANSLATE_NOOP("Menu", "Save the font data"), 3),
    Command(QT_TRANSLATE_NOOP("Menu", "Save &As..."), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Save the font data to a different file"), 4),
    Separator,
    Command(QT_TRANSLATE_NOOP("Menu", "Save &kerning table..."), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Save the kerning table"), 6),
    Separator,
    Command(QT_TRANSLATE_NOOP("Menu", "E&xit"), "Alt+F4",
            QT_TRANSLATE_NOOP("Menu", "Exit the program"), 54, StartsEnabled),
};

constexpr MenuRow InsertRows[] = {
    Command(QT_TRANSLATE_NOOP("Menu", "Right"), "Ctrl+R",
            QT_TRANSLATE_NOOP("Menu", "Insert a column at the right side of the current character"),
            8),
    Command(QT_TRANSLATE_NOOP("Menu", "Left"), "Ctrl+L",
            QT_TRANSLATE_NOOP("Menu", "Insert a column at the left side of the current character"),
            9),
    Command(QT_TRANSLATE_NOOP("Menu", "Top"), "Ctrl+T",
            QT_TRANSLATE_NOOP("Menu", "Insert a row at the top of the current character"), 10),
    Command(QT_TRANSLATE_NOOP("Menu", "Bottom"), "Ctrl+B",
            QT_TRANSLATE_NOOP("Menu", "Insert a row at the bottom of the current character"), 11),
};

constexpr MenuRow DeleteRows[] = {
    Command(QT_TRANSLATE_NOOP("Menu", "Right"), "Shift+R",
            QT_TRANSLATE_NOOP("Menu", "Delete a column at the right side of the current character"),
            22),
    Command(QT_TRANSLATE_NOOP("Menu", "Left"), "Shift+L",
            QT_TRANSLATE_NOOP("Menu", "Delete a column at the left side of the current character"),
            23),
    Command(QT_TRANSLATE_NOOP("Menu", "Top"), "Shift+T",
            QT_TRANSLATE_NOOP("Menu", "Delete a row from the top of the current character"), 24),
    Command(QT_TRANSLATE_NOOP("Menu", "Bottom"), "Shift+B",
            QT_TRANSLATE_NOOP("Menu", "Delete a row from the bottom of the current character"), 25),
};

constexpr MenuRow ShiftRows[] = {
    Command(QT_TRANSLATE_NOOP("Menu", "Right"), "Ctrl+Shift+R",
            QT_TRANSLATE_NOOP("Menu", "Shift pixel data to the right"), 12),
    Command(QT_TRANSLATE_NOOP("Menu", "Left"), "Ctrl+Shift+L",
            QT_TRANSLATE_NOOP("Menu", "Shift pixel data to the left"), 13),
    Command(QT_TRANSLATE_NOOP("Menu", "Up"), "Ctrl+Shift+U",
            QT_TRANSLATE_NOOP("Menu", "Shift pixel data up"), 14),
    Command(QT_TRANSLATE_NOOP("Menu", "Down"), "Ctrl+Shift+D",
            QT_TRANSLATE_NOOP("Menu", "Shift pixel data down"), 15),
};

constexpr MenuRow MoveRows[] = {
    Command(QT_TRANSLATE_NOOP("Menu", "Right"), "Shift+Alt+R",
            QT_TRANSLATE_NOOP("Menu", "Shift pixel data to the right"), 16),
    Command(QT_TRANSLATE_NOOP("Menu", "Left"), "Shift+Alt+L",
            QT_TRANSLATE_NOOP("Menu", "Shift pixel data to the left"), 17),
    Command(QT_TRANSLATE_NOOP("Menu", "Up"), "Shift+Alt+U",
            QT_TRANSLATE_NOOP("Menu", "Shift pixel data up"), 18),
    Command(QT_TRANSLATE_NOOP("Menu", "Down"), "Shift+Alt+D",
            QT_TRANSLATE_NOOP("Menu", "Shift pixel data down"), 19),
};

constexpr MenuRow FontHeightRows[] = {
    Command(QT_TRANSLATE_NOOP("Menu", "Insert top"), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Insert a row at the top of the font"), 26),
    Command(QT_TRANSLATE_NOOP("Menu", "Insert bottom"), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Insert a row at the bottom of the font"), 27),
    Command(QT_TRANSLATE_NOOP("Menu", "Delete top"), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Delete a row from the top of the font"), 28),
    Command(QT_TRANSLATE_NOOP("Menu", "Delete bottom"), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Delete a row from the bottom of the font"), 29),
};

constexpr MenuRow CursorDistanceRows[] = {
    Command(QT_TRANSLATE_NOOP("Menu", "Increase"), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Increase cursor distance"), 20),
    Command(QT_TRANSLATE_NOOP("Menu", "Decrease"), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Decrease cursor distance"), 21),
};

constexpr MenuRow PixelIndexRows[] = {
    Command(QT_TRANSLATE_NOOP("Menu", "Increase index"), "+",
            QT_TRANSLATE_NOOP("Menu", "Increase the index of the current pixel"), 35),
    Command(QT_TRANSLATE_NOOP("Menu", "Decrease index"), "-",
            QT_TRANSLATE_NOOP("Menu", "Decrease the index of the current pixel"), 36),
    Command(QT_TRANSLATE_NOOP("Menu", "Invert index"), "Space",
            QT_TRANSLATE_NOOP("Menu", "Invert the index of the current pixel"), 37),
    Separator,
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 0"), "0",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 0"), 38),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 1"), "1",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 1"), 39),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 2"), "2",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 2"), 40),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 3"), "3",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 3"), 41),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 4"), "4",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 4"), 42),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 5"), "5",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 5"), 43),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 6"), "6",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 6"), 44),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 7"), "7",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 7"), 45),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 8"), "8",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 8"), 46),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 9"), "9",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 9"), 47),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 10"), "A",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 10"), 48),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 11"), "B",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 11"), 49),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 12"), "C",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 12"), 50),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 13"), "D",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 13"), 51),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 14"), "E",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 14"), 52),
    Command(QT_TRANSLATE_NOOP("Menu", "Set index to 15"), "F",
            QT_TRANSLATE_NOOP("Menu", "Set the current pixel to index 15"), 53),
};

constexpr MenuRow EditRows[] = {
    Command(QT_TRANSLATE_NOOP("Menu", "&Undo"), "Ctrl+Z",
            QT_TRANSLATE_NOOP("Menu", "Undo last action"), 55),
    Command(QT_TRANSLATE_NOOP("Menu", "&Redo"), "Ctrl+Y",
            QT_TRANSLATE_NOOP("Menu", "Redo previous action"), 56),
    Separator,
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Insert"), InsertRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Delete"), DeleteRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Shift"), ShiftRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Move"), MoveRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Font height"), FontHeightRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Custor distance"), CursorDistanceRows),
    Command(QT_TRANSLATE_NOOP("Menu", "&Toggle character"), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Toggle the activation of the current character"), 33),
    Separator,
    Submenu(QT_TRANSLATE_NOOP("Menu", "Pi&xel index"), PixelIndexRows),
    Separator,
    Command(QT_TRANSLATE_NOOP("Menu", "&Enable range of characters..."), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Enable the characters of the given area"), 30),
    Command(QT_TRANSLATE_NOOP("Menu", "Disa&ble range of characters..."), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Disable the characters of the given area"), 31),
    Command(QT_TRANSLATE_NOOP("Menu", "Disable &all characters"), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Disable all characters"), 32),
    Separator,
    Command(QT_TRANSLATE_NOOP("Menu", "&Read pattern file..."), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Enable the characters of the given pattern file"), 34),
    Command(QT_TRANSLATE_NOOP("Menu", "Save &pattern file..."), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Save the currently enabled characters to a pattern file"),
            5),
};

constexpr MenuRow ViewRows[] = {
    Toggle(QT_TRANSLATE_NOOP("Menu", "&All Characters"),
           QT_TRANSLATE_NOOP("Menu", "Show enabled characters only"), 57),
    Command(QT_TRANSLATE_NOOP("Menu", "&Go to character..."), "Ctrl+G",
            QT_TRANSLATE_NOOP("Menu", "Selects and jumps to a desired character"), 58),
};

constexpr MenuRow ToolRows[] = {
    Command(QT_TRANSLATE_NOOP("Menu", "&Index font directories"), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Search font directories for available fonts"), 59,
            StartsEnabled),
    Separator,
    Command(QT_TRANSLATE_NOOP("Menu", "&Preferences..."), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Configure preferences"), 62, StartsEnabled),
};

constexpr MenuRow HelpRows[] = {
    Command(QT_TRANSLATE_NOOP("Menu", "&User Manual"), "F1",
            QT_TRANSLATE_NOOP("Menu", "Open the user manual (will be opened in a web browser)"), 65,
            StartsEnabled),
    Separator,
    Command(QT_TRANSLATE_NOOP("Menu", "&About..."), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Show the about dialog"), 63, StartsEnabled),
    Command(QT_TRANSLATE_NOOP("Menu", "&Command line options..."), nullptr,
            QT_TRANSLATE_NOOP("Menu", "Show the command line options"), 64, StartsEnabled),
};

constexpr MenuRow TopRows[] = {
    Submenu(QT_TRANSLATE_NOOP("Menu", "&File"), FileRows),
    Submenu(QT_TRANSLATE_NOOP("Menu", "&Edit"), EditRows),
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
