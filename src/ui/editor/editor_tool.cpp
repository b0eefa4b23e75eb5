#include "ui/editor/editor_tool.h"

#include "ui/editor/pixel_shapes.h"

#include <QtGlobal>

#include <array>

namespace Glyphor {

namespace {

constexpr std::array Rows = {
    ToolRow{.tool = EditorTool::Select, .use = ToolUse::Selects, .icon = "select"},
    ToolRow{.tool = EditorTool::Pencil,
            .use = ToolUse::FollowsMouse,
            .icon = "pencil",
            .log = QT_TRANSLATE_NOOP("Engine", "Drew a stroke with index %1."),
            .invertingLog = QT_TRANSLATE_NOOP("Engine", "Inverted the pixels of a stroke."),
            .pixels = LinePixels},
    ToolRow{.tool = EditorTool::Eraser,
            .use = ToolUse::FollowsMouse,
            .icon = "eraser",
            .log = QT_TRANSLATE_NOOP("Engine", "Erased the pixels of a stroke."),
            .pixels = LinePixels},
    ToolRow{.tool = EditorTool::Line,
            .use = ToolUse::SpansShape,
            .icon = "line",
            .log =
                QT_TRANSLATE_NOOP("Engine", "Drew a line with index %1 from (%2,%3) to (%4,%5)."),
            .pixels = LinePixels,
            .constrained = StraightEnd},
    ToolRow{.tool = EditorTool::Rectangle,
            .use = ToolUse::SpansShape,
            .icon = "rectangle",
            .log = QT_TRANSLATE_NOOP("Engine",
                                     "Drew a rectangle with index %1 from (%2,%3) to (%4,%5)."),
            .pixels = RectanglePixels,
            .constrained = SquareEnd},
    ToolRow{.tool = EditorTool::FilledRectangle,
            .use = ToolUse::SpansShape,
            .icon = "filled-rectangle",
            .log = QT_TRANSLATE_NOOP("Engine",
                                     "Filled a rectangle with index %1 from (%2,%3) to (%4,%5)."),
            .pixels = FilledRectanglePixels,
            .constrained = SquareEnd},
    ToolRow{.tool = EditorTool::Fill,
            .use = ToolUse::FillsArea,
            .icon = "fill",
            .log = QT_TRANSLATE_NOOP("Engine", "Filled the area at (%2,%3) with index %1.")},
    ToolRow{.tool = EditorTool::Picker, .use = ToolUse::PicksIndex, .icon = "picker"},
};

} // namespace

std::span<const ToolRow> ToolTable()
{
    return Rows;
}

const ToolRow& RowOf(EditorTool tool)
{
    return Rows[static_cast<std::size_t>(tool)];
}

} // namespace Glyphor
