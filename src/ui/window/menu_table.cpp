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

// Starts disabled.
template <typename Command>
constexpr MenuRow Toggle(const char* text, const char* statusTip, Command command,
                         quint8 checked = 1)
{
    MenuRow row = Entry(text, nullptr, statusTip, command);
    row.checkable = 1;
    row.checked = checked;
    return row;
}

// One of several, of which the first is chosen at the start.
constexpr MenuRow Choice(const char* text, const char* shortcut, const char* statusTip,
                         EditorTool tool)
{
    MenuRow row = Entry(text, shortcut, statusTip, tool);
    row.checkable = 1;
    row.checked = tool == EditorTool::Select ? 1 : 0;
    row.exclusive = 1;
    return row;
}

// Of a pane, which is hidden at the start.
constexpr MenuRow Pane(const char* text, const char* statusTip, WindowCommand command)
{
    MenuRow row = Entry(text, nullptr, statusTip, command, StartsEnabled);
    row.checkable = 1;
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

// Its name is the context of the texts.
struct Menu
{
    Q_DECLARE_TR_FUNCTIONS(Menu)

public:
    static constexpr MenuRow FileRows[] = {
        Entry(QT_TR_NOOP("&New..."), "Ctrl+N", QT_TR_NOOP("Create new font from installed fonts"),
              ActionType::CreateFont, StartsEnabled),
        Entry(QT_TR_NOOP("&Open font file..."), "Ctrl+O",
              QT_TR_NOOP("Open a font file of the type TTF, BDF, XBF, C or SIF"),
              ActionType::OpenFont, StartsEnabled),
        Entry(QT_TR_NOOP("&Merge font file..."), "CTRL+M",
              QT_TR_NOOP("Merge a font file of the type TTF, BDF, XBF, C or SIF with the currently "
                         "loaded font"),
              ActionType::MergeFont),
        Separator,
        Entry(QT_TR_NOOP("&Save"), "Ctrl+S", QT_TR_NOOP("Save the font data"),
              ActionType::SaveFont),
        Entry(QT_TR_NOOP("Save &As..."), nullptr,
              QT_TR_NOOP("Save the font data to a different file"), ActionType::SaveFontAs),
        Separator,
        Entry(QT_TR_NOOP("Save &kerning table..."), nullptr, QT_TR_NOOP("Save the kerning table"),
              ActionType::SaveKerning),
        Separator,
        Entry(QT_TR_NOOP("E&xit"), "Alt+F4", QT_TR_NOOP("Exit the program"),
              ActionType::ExitProgram, StartsEnabled),
        Separator,
        Entry(QT_TR_NOOP("Export &proof..."), nullptr,
              QT_TR_NOOP("Write pictures of the font into a PNG or PDF file"),
              WindowCommand::ExportProof),
        Entry(QT_TR_NOOP("&Recover unsaved fonts..."), nullptr,
              QT_TR_NOOP("Restore fonts whose windows were lost before they were saved"),
              WindowCommand::RecoverFonts, StartsEnabled),
    };

    static constexpr MenuRow InsertRows[] = {
        Entry(QT_TR_NOOP("Right"), "Ctrl+R",
              QT_TR_NOOP("Insert a column at the right side of the current character"),
              ActionType::InsertColumnRight),
        Entry(QT_TR_NOOP("Left"), "Ctrl+L",
              QT_TR_NOOP("Insert a column at the left side of the current character"),
              ActionType::InsertColumnLeft),
        Entry(QT_TR_NOOP("Top"), "Ctrl+T",
              QT_TR_NOOP("Insert a row at the top of the current character"),
              ActionType::InsertRowTop),
        Entry(QT_TR_NOOP("Bottom"), "Ctrl+B",
              QT_TR_NOOP("Insert a row at the bottom of the current character"),
              ActionType::InsertRowBottom),
    };

    static constexpr MenuRow DeleteRows[] = {
        Entry(QT_TR_NOOP("Right"), "Shift+R",
              QT_TR_NOOP("Delete a column at the right side of the current character"),
              ActionType::DeleteColumnRight),
        Entry(QT_TR_NOOP("Left"), "Shift+L",
              QT_TR_NOOP("Delete a column at the left side of the current character"),
              ActionType::DeleteColumnLeft),
        Entry(QT_TR_NOOP("Top"), "Shift+T",
              QT_TR_NOOP("Delete a row from the top of the current character"),
              ActionType::DeleteRowTop),
        Entry(QT_TR_NOOP("Bottom"), "Shift+B",
              QT_TR_NOOP("Delete a row from the bottom of the current character"),
              ActionType::DeleteRowBottom),
    };

    static constexpr MenuRow ShiftRows[] = {
        Entry(QT_TR_NOOP("Right"), "Ctrl+Shift+R", QT_TR_NOOP("Shift pixel data to the right"),
              ActionType::ShiftRight),
        Entry(QT_TR_NOOP("Left"), "Ctrl+Shift+L", QT_TR_NOOP("Shift pixel data to the left"),
              ActionType::ShiftLeft),
        Entry(QT_TR_NOOP("Up"), "Ctrl+Shift+U", QT_TR_NOOP("Shift pixel data up"),
              ActionType::ShiftUp),
        Entry(QT_TR_NOOP("Down"), "Ctrl+Shift+D", QT_TR_NOOP("Shift pixel data down"),
              ActionType::ShiftDown),
    };

    static constexpr MenuRow MoveRows[] = {
        Entry(QT_TR_NOOP("Right"), "Shift+Alt+R", QT_TR_NOOP("Shift pixel data to the right"),
              ActionType::MoveRight),
        Entry(QT_TR_NOOP("Left"), "Shift+Alt+L", QT_TR_NOOP("Shift pixel data to the left"),
              ActionType::MoveLeft),
        Entry(QT_TR_NOOP("Up"), "Shift+Alt+U", QT_TR_NOOP("Shift pixel data up"),
              ActionType::MoveUp),
        Entry(QT_TR_NOOP("Down"), "Shift+Alt+D", QT_TR_NOOP("Shift pixel data down"),
              ActionType::MoveDown),
    };

    static constexpr MenuRow FontHeightRows[] = {
        Entry(QT_TR_NOOP("Insert top"), nullptr, QT_TR_NOOP("Insert a row at the top of the font"),
              ActionType::FontInsertRowTop),
        Entry(QT_TR_NOOP("Insert bottom"), nullptr,
              QT_TR_NOOP("Insert a row at the bottom of the font"),
              ActionType::FontInsertRowBottom),
        Entry(QT_TR_NOOP("Delete top"), nullptr,
              QT_TR_NOOP("Delete a row from the top of the font"), ActionType::FontDeleteRowTop),
        Entry(QT_TR_NOOP("Delete bottom"), nullptr,
              QT_TR_NOOP("Delete a row from the bottom of the font"),
              ActionType::FontDeleteRowBottom),
    };

    static constexpr MenuRow CursorDistanceRows[] = {
        Entry(QT_TR_NOOP("Increase"), nullptr, QT_TR_NOOP("Increase cursor distance"),
              ActionType::IncreaseCursorDistance),
        Entry(QT_TR_NOOP("Decrease"), nullptr, QT_TR_NOOP("Decrease cursor distance"),
              ActionType::DecreaseCursorDistance),
    };

    static constexpr MenuRow PixelIndexRows[] = {
        Entry(QT_TR_NOOP("Increase index"), "+",
              QT_TR_NOOP("Increase the index of the current pixel"),
              ActionType::IncreasePixelIndex),
        Entry(QT_TR_NOOP("Decrease index"), "-",
              QT_TR_NOOP("Decrease the index of the current pixel"),
              ActionType::DecreasePixelIndex),
        Entry(QT_TR_NOOP("Invert index"), "Space",
              QT_TR_NOOP("Invert the index of the current pixel"), ActionType::InvertPixelIndex),
        Separator,
        Entry(QT_TR_NOOP("Set index to 0"), "0", QT_TR_NOOP("Set the current pixel to index 0"),
              ActionType::SetPixelIndex0),
        Entry(QT_TR_NOOP("Set index to 1"), "1", QT_TR_NOOP("Set the current pixel to index 1"),
              ActionType::SetPixelIndex1),
        Entry(QT_TR_NOOP("Set index to 2"), "2", QT_TR_NOOP("Set the current pixel to index 2"),
              ActionType::SetPixelIndex2),
        Entry(QT_TR_NOOP("Set index to 3"), "3", QT_TR_NOOP("Set the current pixel to index 3"),
              ActionType::SetPixelIndex3),
        Entry(QT_TR_NOOP("Set index to 4"), "4", QT_TR_NOOP("Set the current pixel to index 4"),
              ActionType::SetPixelIndex4),
        Entry(QT_TR_NOOP("Set index to 5"), "5", QT_TR_NOOP("Set the current pixel to index 5"),
              ActionType::SetPixelIndex5),
        Entry(QT_TR_NOOP("Set index to 6"), "6", QT_TR_NOOP("Set the current pixel to index 6"),
              ActionType::SetPixelIndex6),
        Entry(QT_TR_NOOP("Set index to 7"), "7", QT_TR_NOOP("Set the current pixel to index 7"),
              ActionType::SetPixelIndex7),
        Entry(QT_TR_NOOP("Set index to 8"), "8", QT_TR_NOOP("Set the current pixel to index 8"),
              ActionType::SetPixelIndex8),
        Entry(QT_TR_NOOP("Set index to 9"), "9", QT_TR_NOOP("Set the current pixel to index 9"),
              ActionType::SetPixelIndex9),
        Entry(QT_TR_NOOP("Set index to 10"), "A", QT_TR_NOOP("Set the current pixel to index 10"),
              ActionType::SetPixelIndex10),
        Entry(QT_TR_NOOP("Set index to 11"), "B", QT_TR_NOOP("Set the current pixel to index 11"),
              ActionType::SetPixelIndex11),
        Entry(QT_TR_NOOP("Set index to 12"), "C", QT_TR_NOOP("Set the current pixel to index 12"),
              ActionType::SetPixelIndex12),
        Entry(QT_TR_NOOP("Set index to 13"), "D", QT_TR_NOOP("Set the current pixel to index 13"),
              ActionType::SetPixelIndex13),
        Entry(QT_TR_NOOP("Set index to 14"), "E", QT_TR_NOOP("Set the current pixel to index 14"),
              ActionType::SetPixelIndex14),
        Entry(QT_TR_NOOP("Set index to 15"), "F", QT_TR_NOOP("Set the current pixel to index 15"),
              ActionType::SetPixelIndex15),
    };

    static constexpr MenuRow DrawingRows[] = {
        Choice(QT_TR_NOOP("&Select"), "S", QT_TR_NOOP("Select pixels by clicking"),
               EditorTool::Select),
        Choice(QT_TR_NOOP("&Pencil"), "P",
               QT_TR_NOOP("Paint pixels by clicking and dragging (Ctrl inverts them)"),
               EditorTool::Pencil),
        Choice(QT_TR_NOOP("&Eraser"), "X",
               QT_TR_NOOP("Set pixels to index 0 by clicking and dragging (as the right button "
                          "does with every tool)"),
               EditorTool::Eraser),
        Choice(QT_TR_NOOP("&Line"), "L",
               QT_TR_NOOP("Draw a line by dragging (Shift keeps it level, upright or diagonal)"),
               EditorTool::Line),
        Choice(QT_TR_NOOP("&Rectangle"), "U",
               QT_TR_NOOP("Draw the outline of a rectangle by dragging (Shift makes it a square)"),
               EditorTool::Rectangle),
        Choice(QT_TR_NOOP("Filled re&ctangle"), "Shift+U",
               QT_TR_NOOP("Fill a rectangle by dragging (Shift makes it a square)"),
               EditorTool::FilledRectangle),
        Choice(QT_TR_NOOP("&Fill"), "G",
               QT_TR_NOOP("Fill the area of pixels with the same index by clicking"),
               EditorTool::Fill),
        Choice(QT_TR_NOOP("Pic&ker"), "I",
               QT_TR_NOOP("Take the index to paint with from a pixel (as Alt and a click do with "
                          "every tool)"),
               EditorTool::Picker),
    };

    static constexpr MenuRow TransformRows[] = {
        Entry(QT_TR_NOOP("Flip horizontally"), "Ctrl+Shift+H",
              QT_TR_NOOP("Flip the selected pixels, or the characters, from left to right"),
              ActionType::FlipHorizontally),
        Entry(QT_TR_NOOP("Flip vertically"), "Ctrl+Shift+V",
              QT_TR_NOOP("Flip the selected pixels, or the characters, from top to bottom"),
              ActionType::FlipVertically),
        Entry(QT_TR_NOOP("Rotate right"), "Ctrl+.",
              QT_TR_NOOP("Rotate the selected pixels, or the characters, to the right"),
              ActionType::RotateRight),
        Entry(QT_TR_NOOP("Rotate left"), "Ctrl+,",
              QT_TR_NOOP("Rotate the selected pixels, or the characters, to the left"),
              ActionType::RotateLeft),
    };

    static constexpr MenuRow PixelSelectionRows[] = {
        Entry(QT_TR_NOOP("Select all"), "Ctrl+A", QT_TR_NOOP("Select all pixels of the character"),
              WindowCommand::SelectAllPixels),
        Entry(QT_TR_NOOP("Fill"), "Ctrl+Shift+F",
              QT_TR_NOOP("Fill the selected pixels with the index to paint with"),
              WindowCommand::FillPixels),
        Entry(QT_TR_NOOP("Delete"), "Del", QT_TR_NOOP("Set the selected pixels to index 0"),
              WindowCommand::DeletePixels),
    };

    static constexpr MenuRow EditRows[] = {
        Entry(QT_TR_NOOP("&Undo"), "Ctrl+Z", QT_TR_NOOP("Undo last action"), WindowCommand::Undo),
        Entry(QT_TR_NOOP("&Redo"), "Ctrl+Y", QT_TR_NOOP("Redo previous action"),
              WindowCommand::Redo),
        Separator,
        Submenu(QT_TR_NOOP("&Insert"), InsertRows),
        Submenu(QT_TR_NOOP("&Delete"), DeleteRows),
        Submenu(QT_TR_NOOP("&Shift"), ShiftRows),
        Submenu(QT_TR_NOOP("&Move"), MoveRows),
        Submenu(QT_TR_NOOP("&Font height"), FontHeightRows),
        Submenu(QT_TR_NOOP("&Custor distance"), CursorDistanceRows),
        Entry(QT_TR_NOOP("&Toggle character"), nullptr,
              QT_TR_NOOP("Toggle the activation of the current character"), ActionType::Toggle),
        Separator,
        Submenu(QT_TR_NOOP("Pi&xel index"), PixelIndexRows, SubmenuId::PixelIndex),
        Separator,
        Entry(QT_TR_NOOP("&Enable range of characters..."), nullptr,
              QT_TR_NOOP("Enable the characters of the given area"), ActionType::Enable),
        Entry(QT_TR_NOOP("Disa&ble range of characters..."), nullptr,
              QT_TR_NOOP("Disable the characters of the given area"), ActionType::Disable),
        Entry(QT_TR_NOOP("Disable &all characters"), nullptr, QT_TR_NOOP("Disable all characters"),
              ActionType::DisableAll),
        Separator,
        Entry(QT_TR_NOOP("&Read pattern file..."), nullptr,
              QT_TR_NOOP("Enable the characters of the given pattern file"),
              ActionType::ReadPattern),
        Entry(QT_TR_NOOP("Save &pattern file..."), nullptr,
              QT_TR_NOOP("Save the currently enabled characters to a pattern file"),
              ActionType::SavePattern),
        Separator,
        Submenu(QT_TR_NOOP("Too&ls"), DrawingRows, SubmenuId::Tools),
        Submenu(QT_TR_NOOP("Tra&nsform"), TransformRows, SubmenuId::Transform),
        Submenu(QT_TR_NOOP("Pixel selecti&on"), PixelSelectionRows, SubmenuId::PixelSelection),
        Entry(QT_TR_NOOP("Duplicate to code..."), nullptr,
              QT_TR_NOOP("Copy the selected characters to another code and those behind it"),
              ActionType::CopyTo),
        Separator,
        Entry(QT_TR_NOOP("Cut"), "Ctrl+X",
              QT_TR_NOOP("Cut the selected pixels, or the characters, to the clipboard"),
              WindowCommand::Cut),
        Entry(QT_TR_NOOP("Cop&y"), "Ctrl+C",
              QT_TR_NOOP("Copy the selected pixels, or the characters, to the clipboard"),
              WindowCommand::Copy),
        Entry(QT_TR_NOOP("Paste"), "Ctrl+V",
              QT_TR_NOOP("Paste pixels or characters from the clipboard"), WindowCommand::Paste),
        Entry(QT_TR_NOOP("Delete c&haracters"), "Del",
              QT_TR_NOOP("Delete the selected characters from the font"),
              WindowCommand::DeleteCharacters),
    };

    static constexpr MenuRow ViewRows[] = {
        Toggle(QT_TR_NOOP("&All Characters"), QT_TR_NOOP("Show enabled characters only"),
               WindowCommand::AllCharacters),
        Entry(QT_TR_NOOP("&Go to character..."), "Ctrl+G",
              QT_TR_NOOP("Selects and jumps to a desired character"), WindowCommand::GoToCharacter),
        Separator,
        Entry(QT_TR_NOOP("Zoom &in"), "Ctrl++", QT_TR_NOOP("Show the pixels of the editor larger"),
              WindowCommand::ZoomIn),
        Entry(QT_TR_NOOP("Zoom &out"), "Ctrl+-",
              QT_TR_NOOP("Show the pixels of the editor smaller"), WindowCommand::ZoomOut),
        Entry(QT_TR_NOOP("&Fit to view"), "Ctrl+0",
              QT_TR_NOOP("Show the whole character as large as the editor has room for"),
              WindowCommand::ZoomToFit),
        Entry(QT_TR_NOOP("Actual &size"), "Ctrl+1",
              QT_TR_NOOP("Show each pixel of the character as one of the screen"),
              WindowCommand::ActualSize),
        Separator,
        Toggle(QT_TR_NOOP("Show &neighbours"),
               QT_TR_NOOP("Show in the editor what stands beside the character in the sample text"),
               WindowCommand::ShowNeighbours, 0),
        Toggle(QT_TR_NOOP("Show o&utline"),
               QT_TR_NOOP("Show in the editor the outline that the character was rendered from"),
               WindowCommand::ShowOutline, 0),
        Separator,
        Pane(QT_TR_NOOP("&History"), QT_TR_NOOP("Show the steps that can be undone and redone"),
             WindowCommand::History),
        Pane(QT_TR_NOOP("&Kerning pairs"),
             QT_TR_NOOP("Show the kerning pairs of the current character"),
             WindowCommand::KerningPairs),
    };

    static constexpr MenuRow ToolRows[] = {
        Entry(QT_TR_NOOP("&Index font directories"), nullptr,
              QT_TR_NOOP("Search font directories for available fonts"), WindowCommand::IndexFonts,
              StartsEnabled),
        Separator,
        Entry(QT_TR_NOOP("&Preferences..."), nullptr, QT_TR_NOOP("Configure preferences"),
              WindowCommand::Preferences, StartsEnabled),
    };

    static constexpr MenuRow HelpRows[] = {
        Entry(QT_TR_NOOP("&User Manual"), "F1",
              QT_TR_NOOP("Open the user manual (will be opened in a web browser)"),
              WindowCommand::UserManual, StartsEnabled),
        Separator,
        Entry(QT_TR_NOOP("&About..."), nullptr, QT_TR_NOOP("Show the about dialog"),
              WindowCommand::About, StartsEnabled),
        Entry(QT_TR_NOOP("&Command line options..."), nullptr,
              QT_TR_NOOP("Show the command line options"), WindowCommand::CommandLineOptions,
              StartsEnabled),
    };

    static constexpr MenuRow TopRows[] = {
        Submenu(QT_TR_NOOP("&File"), FileRows),
        Submenu(QT_TR_NOOP("&Edit"), EditRows, SubmenuId::Edit),
        Submenu(QT_TR_NOOP("&View"), ViewRows),
        Submenu(QT_TR_NOOP("&Tool"), ToolRows),
        Submenu(QT_TR_NOOP("&Help"), HelpRows),
    };
};

} // namespace

std::span<const MenuRow> MenuTable()
{
    return Menu::TopRows;
}

} // namespace Glyphor
