#pragma once

#include <QtGlobal>

#include <span>

namespace Glyphor {

enum class MenuRowKind : quint8 { Separator = 0, Command = 1, Submenu = 2 };

// The numbers of the commands that are no actions on the font. The others are those of ActionType.
enum class WindowCommand : quint32 {
    Undo = 55,
    Redo = 56,
    AllCharacters = 57,
    GoToCharacter = 58,
    IndexFonts = 59,
    Preferences = 62,
    About = 63,
    CommandLineOptions = 64,
    UserManual = 65
};

// One entry of a menu. Texts are null where there is none.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): the order is that of a row's reading
struct MenuRow
{
    MenuRowKind kind;
    const char* text;
    const char* shortcut;
    const char* statusTip;
    quint32 commandId;
    quint8 disabled; // at the start
    quint8 checkable;
    quint8 checked;
    const MenuRow* submenu;
    qint32 submenuCount;

    [[nodiscard]] std::span<const MenuRow> Rows() const
    {
        return {submenu, static_cast<std::size_t>(submenuCount)};
    }
};

// The menu bar, from left to right.
[[nodiscard]] std::span<const MenuRow> MenuTable();

} // namespace Glyphor
