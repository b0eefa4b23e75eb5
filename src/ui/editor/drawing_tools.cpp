#include "ui/editor/drawing_tools.h"

#include "actions/action_replace_chars.h"
#include "actions/session.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/editor/index_palette.h"
#include "ui/editor/pixel_shapes.h"
#include "ui/support/guarded.h"

#include <QContextMenuEvent>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace Glyphor {

DrawingTools::DrawingTools(Session& session, CharBitmapView& editor)
    : QObject(&editor), session_(session), editor_(editor), palette_(new IndexPalette)
{
    editor.installEventFilter(this);
    editor.viewport()->installEventFilter(this);
    connect(&editor, &CharBitmapView::CharacterLeft, this, &DrawingTools::EndDrawing);
}

void DrawingTools::ShowFont(const Font* font)
{
    palette_->SetDepth(font != nullptr ? font->Metrics().bitsPerPixel : 0);
}

void DrawingTools::SetTool(EditorTool tool)
{
    EndDrawing();
    tool_ = tool;
    if (tool == EditorTool::Select)
        editor_.viewport()->unsetCursor();
    else
        editor_.viewport()->setCursor(Qt::CrossCursor);
}

bool DrawingTools::eventFilter(QObject* watched, QEvent* event)
{
    const auto isEscape = [event] {
        return static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return watched != &editor_ && TakePress(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
        return watched != &editor_ && TakeMove(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
        return watched != &editor_ && TakeRelease(*static_cast<QMouseEvent*>(event));
    case QEvent::ContextMenu: // its button erases
        return tool_ != EditorTool::Select &&
               static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Mouse;
    case QEvent::ShortcutOverride:
        if (!IsDrawing() || !isEscape())
            return false;
        event->accept();
        return true;
    case QEvent::KeyPress:
        if (!IsDrawing() || !isEscape())
            return false;
        AbandonDrawing();
        return true;
    case QEvent::Hide:
        EndDrawing();
        return false;
    default:
        return false;
    }
}

bool DrawingTools::TakePress(const QMouseEvent& mouse)
{
    EndDrawing();
    isPicking_ = false;
    const bool isLeft = mouse.button() == Qt::LeftButton;
    if (tool_ == EditorTool::Select || editor_.CurrentCharacter() == nullptr ||
        (!isLeft && mouse.button() != Qt::RightButton))
        return false;
    editor_.setFocus(Qt::MouseFocusReason);
    if (!isLeft) {
        Begin(RowOf(EditorTool::Eraser), mouse);
    } else if (tool_ == EditorTool::Picker || mouse.modifiers().testFlag(Qt::AltModifier)) {
        isPicking_ = true;
        Pick(PixelAt(mouse));
    } else {
        Begin(RowOf(tool_), mouse);
    }
    return true;
}

bool DrawingTools::TakeMove(const QMouseEvent& mouse)
{
    // The release may have gone elsewhere.
    if (IsDrawing() && !mouse.buttons().testFlag(drawing_->button))
        EndDrawing();
    isPicking_ = isPicking_ && mouse.buttons().testFlag(Qt::LeftButton);
    if (isPicking_)
        Pick(PixelAt(mouse));
    else if (IsDrawing())
        DrawTo(PixelAt(mouse), mouse.modifiers().testFlag(Qt::ShiftModifier));
    return isPicking_ || IsDrawing();
}

bool DrawingTools::TakeRelease(const QMouseEvent& mouse)
{
    if (IsDrawing() && mouse.button() != drawing_->button)
        return true;
    const bool isEnd = isPicking_ || IsDrawing();
    if (IsDrawing() && drawing_->tool->use != ToolUse::FillsArea)
        DrawTo(PixelAt(mouse), mouse.modifiers().testFlag(Qt::ShiftModifier));
    isPicking_ = false;
    EndDrawing();
    return isEnd;
}

QPoint DrawingTools::PixelAt(const QMouseEvent& mouse) const
{
    return editor_.CellAt(mouse.pos()) - QPoint(0, editor_.Top());
}

void DrawingTools::Pick(QPoint pixel)
{
    const Character* const character = editor_.CurrentCharacter();
    if (character != nullptr &&
        QRect(0, 0, character->info.width, character->info.Rows()).contains(pixel))
        palette_->SetIndex(character->bitmap->GetPixelIndex(pixel.x(), pixel.y()));
}

void DrawingTools::Begin(const ToolRow& tool, const QMouseEvent& mouse)
{
    const Character& character = *editor_.CurrentCharacter();
    const CharInfo& info = character.info;
    const bool inverts =
        tool.invertingLog != nullptr && mouse.modifiers().testFlag(Qt::ControlModifier);
    const int index = tool.tool == EditorTool::Eraser ? 0 : palette_->Index();
    const QPoint pixel = PixelAt(mouse);
    drawing_ = Drawing{&tool,
                       mouse.button(),
                       session_.CurrentFont(),
                       quint16(editor_.CurrentCode()),
                       index,
                       inverts,
                       {info.width, info.Rows(), info.font.bitsPerPixel},
                       {},
                       CopyOf(character, info.font),
                       pixel,
                       pixel,
                       {}};
    drawing_->draft->bitmap->AdjustData();
    drawing_->plane = drawing_->draft->bitmap->Data();
    if (tool.use == ToolUse::FillsArea)
        Paint(AreaPixels(drawing_->plane, drawing_->layout, pixel), drawing_->plane);
    else
        DrawTo(pixel, false);
}

void DrawingTools::DrawTo(QPoint pixel, bool isConstrained)
{
    Drawing& drawing = *drawing_;
    switch (drawing.tool->use) {
    case ToolUse::FollowsMouse:
        Paint(drawing.tool->pixels(drawing.to, pixel), drawing.draft->bitmap->Data());
        drawing.to = pixel;
        break;
    case ToolUse::SpansShape:
        drawing.to = isConstrained ? drawing.tool->constrained(drawing.from, pixel) : pixel;
        Paint(drawing.tool->pixels(drawing.from, drawing.to), drawing.plane);
        break;
    default:
        break;
    }
}

// Into the plane, which becomes that of the draft. A pixel is inverted once, however often it is
// passed.
void DrawingTools::Paint(const std::vector<QPoint>& pixels, QByteArray plane)
{
    Drawing& drawing = *drawing_;
    const QRect bounds(0, 0, drawing.layout.width, drawing.layout.rows);
    std::vector<QPoint> painted;
    for (const QPoint pixel : pixels) {
        if (!bounds.contains(pixel))
            continue;
        const int before =
            PixelPlane::GetPixel(drawing.plane, drawing.layout, pixel.x(), pixel.y());
        const int index = drawing.inverts ? drawing.layout.MaxIndex() - before : drawing.index;
        PixelPlane::SetPixel(plane, drawing.layout, pixel.x(), pixel.y(), index);
        painted.push_back(pixel);
    }
    drawing.draft->bitmap->AssignData(plane);
    editor_.ShowDraft(*drawing.draft, drawing.shown);
    editor_.ShowDraft(*drawing.draft, painted);
    if (!painted.empty())
        editor_.ShowStatus(*drawing.draft, painted.back());
    drawing.shown = std::move(painted);
}

QStringList DrawingTools::LogArguments(const Drawing& drawing)
{
    if (drawing.inverts || drawing.tool->tool == EditorTool::Eraser)
        return {};
    QList<int> numbers = {drawing.index};
    if (drawing.tool->use != ToolUse::FollowsMouse)
        numbers << drawing.from.x() << drawing.from.y();
    if (drawing.tool->use == ToolUse::SpansShape)
        numbers << drawing.to.x() << drawing.to.y();
    QStringList arguments;
    for (const int number : numbers)
        arguments.append(QString::number(number));
    return arguments;
}

// The font may have become another one, or have lost the character.
void DrawingTools::EndDrawing()
{
    if (!IsDrawing())
        return;
    Drawing drawing = std::move(*drawing_);
    drawing_.reset();
    const Font* const font = session_.CurrentFont();
    if (font == nullptr || font != drawing.font || font->FindChar(drawing.code) == nullptr)
        return;
    const char* const text = drawing.inverts ? drawing.tool->invertingLog : drawing.tool->log;
    const auto action = std::make_shared<ActionReplaceChars>(session_, text, LogArguments(drawing));
    action->Put(drawing.code, std::move(drawing.draft));
    Guarded([&action] { action->Run(); });
}

void DrawingTools::AbandonDrawing()
{
    if (!IsDrawing())
        return;
    drawing_.reset();
    editor_.SetCharacter(editor_.CurrentCharacter(), editor_.CurrentCode());
}

} // namespace Glyphor
