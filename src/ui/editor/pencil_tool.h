#pragma once

#include <QObject>
#include <QPoint>

#include <set>

class QAction;
class QMouseEvent;
class QSpinBox;

namespace Glyphor {

class CharBitmapView;
class CharPixelItem;
class Font;
class Session;
class UndoStack;

// Paints pixels of the editor's character by clicking and dragging, with Ctrl by inverting them.
// What a stroke paints is undone as one.
class PencilTool final : public QObject
{
    Q_OBJECT

public:
    // It belongs to the editor. The session must outlive it.
    PencilTool(Session& session, UndoStack& history, CharBitmapView& editor);

    // Turns the pencil on and off.
    [[nodiscard]] QAction& Command() const { return *command_; }

    // The index that it paints. A tool bar takes it over.
    [[nodiscard]] QSpinBox& IndexBox() const { return *index_; }

    // Null for no font.
    void ShowFont(const Font* font);

    [[nodiscard]] bool IsStroking() const { return isStroking_; }
    void EndStroke();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void StrokeEnded();

private:
    void BeginStroke(const QMouseEvent& mouse);
    void PaintTo(const QMouseEvent& mouse);
    void PaintCell(QPoint cell, bool inverts);
    void PaintPixel(QPoint pixel, bool inverts);

    Session& session_;
    UndoStack& history_;
    CharBitmapView& editor_;
    QAction* command_;
    QSpinBox* index_;
    bool isStroking_ = false;
    bool hasSteps_ = false;                  // of the stroke; one that changes nothing is no step
    QPoint lastCell_;                        // that the stroke passed
    std::set<const CharPixelItem*> painted_; // in the stroke
};

} // namespace Glyphor
