#pragma once

#include "app/action_type.h"
#include "ui/editor/editor_tool.h"

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
    UserManual = 65,
    ExportProof = 80,
    ZoomIn = 110,
    ZoomOut = 111,
    ZoomToFit = 112,
    ActualSize = 113,
    ShowNeighbours = 114,
    ShowOutline = 115,
    Cut = 150,
    Copy = 151,
    Paste = 152,
    SelectAllPixels = 153,
    FillPixels = 154,
    DeletePixels = 155,
    History = 175,
    KerningPairs = 176,
    RecoverFonts = 191,
    DeleteCharacters = 200
};

// The number that commands have in the menus and their actions.
[[nodiscard]] constexpr quint32 CommandId(ActionType action)
{
    return static_cast<quint32>(action);
}

[[nodiscard]] constexpr quint32 CommandId(WindowCommand command)
{
    return static_cast<quint32>(command);
}

// Those of the tools begin here.
constexpr quint32 FirstToolCommand = 100;

[[nodiscard]] constexpr quint32 CommandId(EditorTool tool)
{
    return FirstToolCommand + static_cast<quint32>(tool);
}

// Submenus that the window has to find.
enum class SubmenuId : quint8 { None, Edit, PixelIndex, Tools, Transform, PixelSelection };

// One entry of a menu. Texts are null where there is none.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): the order is that of a row's reading
struct MenuRow
{
    MenuRowKind kind = MenuRowKind::Separator;
    const char* text = nullptr;
    const char* shortcut = nullptr;
    const char* statusTip = nullptr;
    quint32 commandId = 0;
    quint8 disabled = 0; // at the start
    quint8 checkable = 0;
    quint8 checked = 0;
    quint8 exclusive = 0; // one of its menu's that have this is checked
    const MenuRow* submenu = nullptr;
    qint32 submenuCount = 0;
    SubmenuId submenuId = SubmenuId::None;

    [[nodiscard]] std::span<const MenuRow> Rows() const
    {
        return {submenu, static_cast<std::size_t>(submenuCount)};
    }
};

// The menu bar, from left to right.
[[nodiscard]] std::span<const MenuRow> MenuTable();

} // namespace Glyphor
