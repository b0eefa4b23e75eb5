#pragma once

#include "model/font.h"
#include "ui/editor/editor_tool.h"

#include <QObject>

#include <optional>

class QMouseEvent;

namespace Glyphor {

class CharBitmapView;
class IndexPalette;
class Session;

// Changes pixels of the editor's character with the mouse. What is drawn between a press and its
// release is shown at once, and becomes one action in the end; Escape abandons it.
class DrawingTools final : public QObject
{
    Q_OBJECT

public:
    // It belongs to the editor. The session must outlive it.
    DrawingTools(Session& session, CharBitmapView& editor);

    void SetTool(EditorTool tool);
    [[nodiscard]] EditorTool Tool() const { return tool_; }

    // The index to paint with. A tool bar takes it over.
    [[nodiscard]] IndexPalette& Palette() const { return *palette_; }

    // Null for no font.
    void ShowFont(const Font* font);

    [[nodiscard]] bool IsDrawing() const { return drawing_.has_value(); }
    void EndDrawing();
    void AbandonDrawing();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Drawing
    {
        const ToolRow* tool;
        Qt::MouseButton button;
        const Font* font;
        quint16 code;
        int index;
        bool inverts;
        PixelLayout layout;
        QByteArray plane; // before it
        std::unique_ptr<Character> draft;
        QPoint from;
        QPoint to;
        std::vector<QPoint> shown; // pixels of the draft that may be others than before
    };

    [[nodiscard]] bool TakePress(const QMouseEvent& mouse);
    [[nodiscard]] bool TakeMove(const QMouseEvent& mouse);
    [[nodiscard]] bool TakeRelease(const QMouseEvent& mouse);
    void Begin(const ToolRow& tool, const QMouseEvent& mouse);
    void DrawTo(QPoint pixel, bool isConstrained);
    void Paint(const std::vector<QPoint>& pixels, QByteArray plane);
    void Pick(QPoint pixel);
    [[nodiscard]] QPoint PixelAt(const QMouseEvent& mouse) const;
    [[nodiscard]] static QStringList LogArguments(const Drawing& drawing);

    Session& session_;
    CharBitmapView& editor_;
    IndexPalette* palette_;
    EditorTool tool_ = EditorTool::Select;
    bool isPicking_ = false;
    std::optional<Drawing> drawing_;
};

} // namespace Glyphor
