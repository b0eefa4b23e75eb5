#pragma once

#include <QPoint>
#include <QtGlobal>

#include <span>
#include <vector>

namespace Glyphor {

// What the mouse does in the pixel editor.
enum class EditorTool : quint8 {
    Select, // none of the others
    Pencil,
    Eraser,
    Line,
    Rectangle,
    FilledRectangle,
    Fill,
    Picker
};

// How a tool gets from the mouse to pixels.
enum class ToolUse : quint8 {
    Selects,
    FollowsMouse, // paints all of the way
    SpansShape,   // between the press and the mouse
    FillsArea,    // around the press
    PicksIndex
};

// All that there is to know about a tool, but for its menu entry.
struct ToolRow
{
    EditorTool tool;
    ToolUse use;
    const char* icon;

    // What the log says. %1 is the index, but of an eraser; the rest are the places of a shape or
    // an area. Null for what does not paint.
    const char* log = nullptr;
    const char* invertingLog = nullptr; // with Ctrl, where that inverts

    // The pixels between two, of which a shape has some outside the bitmap.
    std::vector<QPoint> (*pixels)(QPoint from, QPoint to) = nullptr;

    // What the mouse must go to for a level or diagonal line, or a square.
    QPoint (*constrained)(QPoint from, QPoint to) = nullptr;
};

// In the order of the menu, and of their numbers.
[[nodiscard]] std::span<const ToolRow> ToolTable();

[[nodiscard]] const ToolRow& RowOf(EditorTool tool);

} // namespace Glyphor
