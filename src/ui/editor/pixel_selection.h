#pragma once

#include "app/action_type.h"
#include "model/pixel_block.h"

#include <QObject>

#include <optional>

class QKeyEvent;
class QMouseEvent;

namespace Glyphor {

class CharBitmapView;
struct Edit;
class PixelOutline;
class Session;

// A rectangle of pixels of the editor's character: dragging selects it, or moves it where it is
// grabbed; so do the arrow keys, with and without Shift. Every change of it is one action.
class PixelSelection final : public QObject
{
    Q_OBJECT

public:
    // It belongs to the editor, of which it gets what other filters leave. The session must outlive
    // it.
    PixelSelection(Session& session, CharBitmapView& editor);

    [[nodiscard]] bool IsEmpty() const { return area_.isEmpty(); }

    // In the bitmap of the character. What was pasted or moved may leave that.
    [[nodiscard]] const QRect& Area() const { return area_; }

    void SelectAll();
    void Clear();

    // Of a selection that is not empty.
    [[nodiscard]] PixelBlock Pixels() const;
    void Fill(int index);
    void Erase();

    // Changes all pixels as an edit of pixels does one.
    void Change(const Edit& edit);

    // False for an edit that neither flips nor rotates. It is told where the pixels do not fit.
    bool Turn(ActionType type);

    // Puts pixels over those of the character, and selects them.
    void Paste(const PixelBlock& block, QPoint place);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void Changed();
    void Refused(const QString& reason);

private:
    enum class Drag { None, Selecting, Moving };

    // Pixels that were moved, or pasted, lie above the others until they are let go.
    struct Floating
    {
        QByteArray below; // the character's bytes without them
        QByteArray shown; // with them
        PixelBlock block;
    };

    bool Press(const QMouseEvent& mouse);
    bool DragTo(const QMouseEvent& mouse);
    bool Release();
    bool RunKey(const QKeyEvent& key);
    [[nodiscard]] bool IsOwnKey(const QKeyEvent& key) const;
    void GoBackToPixel();
    void Extend(QPoint step);
    void MoveTo(QPoint place);
    void Lift();
    void Put(const PixelBlock& block, QPoint place, const char* log,
             const QStringList& arguments = {});
    void Select(QPoint anchor, QPoint lead);
    void SetArea(const QRect& area);
    void LetGoOfOther();
    void ShowOutline();
    [[nodiscard]] CharBitmap& Bitmap() const;
    [[nodiscard]] QRect Box() const;
    [[nodiscard]] QPoint PixelAt(QPoint place) const;
    [[nodiscard]] QPoint PlaceInBox(QPoint place, QSize size) const;
    [[nodiscard]] QPoint PlaceInTouch(QPoint place) const;

    Session& session_;
    CharBitmapView& editor_;
    PixelOutline* outline_; // the scene's
    QRect area_;
    QRect box_; // when the area was selected
    QPoint anchor_;
    QPoint lead_; // where the keys go on from
    Drag drag_ = Drag::None;
    QPoint grabbed_;
    QPoint shift_; // while it is dragged
    std::optional<Floating> floating_;
};

} // namespace Glyphor
