#include "ui/editor/pixel_selection.h"

#include "actions/action_replace_chars.h"
#include "actions/edit_table.h"
#include "actions/session.h"
#include "app/engine_texts.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/editor/pixel_outline.h"
#include "ui/support/guarded.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <array>

namespace Glyphor {

namespace {

struct TurnRow
{
    ActionType type;
    PixelBlock (*turned)(const PixelBlock&);
    const char* log;
};

constexpr std::array Turns = {
    TurnRow{ActionType::FlipHorizontally, FlippedHorizontally,
            QT_TRANSLATE_NOOP("Engine", "Flipped pixels horizontally.")},
    TurnRow{ActionType::FlipVertically, FlippedVertically,
            QT_TRANSLATE_NOOP("Engine", "Flipped pixels vertically.")},
    TurnRow{ActionType::RotateRight, RotatedRight,
            QT_TRANSLATE_NOOP("Engine", "Rotated pixels to the right.")},
    TurnRow{ActionType::RotateLeft, RotatedLeft,
            QT_TRANSLATE_NOOP("Engine", "Rotated pixels to the left.")},
};

// Null for other keys.
QPoint StepOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

Qt::KeyboardModifiers ModifiersOf(const QKeyEvent& key)
{
    return key.modifiers() & ~Qt::KeypadModifier;
}

QPoint Within(const QRect& box, QPoint pixel)
{
    return {std::clamp(pixel.x(), box.left(), box.right()),
            std::clamp(pixel.y(), box.top(), box.bottom())};
}

} // namespace

PixelSelection::PixelSelection(Session& session, CharBitmapView& editor)
    : QObject(&editor), session_(session), editor_(editor), outline_(new PixelOutline)
{
    editor.scene()->addItem(outline_);
    editor.installEventFilter(this);
    editor.viewport()->installEventFilter(this);
    connect(editor.scene(), &QGraphicsScene::sceneRectChanged, this, &PixelSelection::ShowOutline);
    connect(&editor, &CharBitmapView::CharacterLeft, this, &PixelSelection::Clear);
    connect(&editor, &CharBitmapView::PixelSelected, this, &PixelSelection::LetGoOfOther);
}

CharBitmap& PixelSelection::Bitmap() const
{
    return *editor_.CurrentCharacter()->bitmap;
}

// The pixels that the editor shows.
QRect PixelSelection::Box() const
{
    const Character* const character = editor_.CurrentCharacter();
    if (character == nullptr)
        return {};
    const QRect shown(0, -editor_.Top(), editor_.ColumnCount(), editor_.RowCount());
    return shown & QRect(0, 0, character->info.width, character->info.Rows());
}

QPoint PixelSelection::PixelAt(QPoint place) const
{
    return editor_.CellAt(place) - QPoint(0, editor_.Top());
}

// Pixels that are larger than the box may leave it, as long as they fill it.
QPoint PixelSelection::PlaceInBox(QPoint place, QSize size) const
{
    const QRect box = Box();
    const QPoint room(box.width() - size.width(), box.height() - size.height());
    const QPoint least(std::min(0, room.x()), std::min(0, room.y()));
    const QPoint most(std::max(0, room.x()), std::max(0, room.y()));
    return {std::clamp(place.x() - box.left(), least.x(), most.x()) + box.left(),
            std::clamp(place.y() - box.top(), least.y(), most.y()) + box.top()};
}

// What is moved may leave the box but for a pixel: it is still there while it is selected.
QPoint PixelSelection::PlaceInTouch(QPoint place) const
{
    const QPoint rest(area_.width() - 1, area_.height() - 1);
    return Within(Box().adjusted(-rest.x(), -rest.y(), 0, 0), place);
}

void PixelSelection::SelectAll()
{
    Select(Box().topLeft(), Box().bottomRight());
}

void PixelSelection::Clear()
{
    drag_ = Drag::None;
    SetArea({});
}

// A single pixel is selected as ever.
void PixelSelection::Select(QPoint anchor, QPoint lead)
{
    const QRect box = Box();
    if (box.isEmpty())
        return;
    anchor_ = Within(box, anchor);
    lead_ = Within(box, lead);
    const QRect area = QRect(anchor_, QSize(1, 1)) | QRect(lead_, QSize(1, 1));
    SetArea(area.size() == QSize(1, 1) ? QRect() : area);
}

void PixelSelection::SetArea(const QRect& area)
{
    floating_.reset();
    shift_ = {};
    const bool isOther = area != area_;
    area_ = area;
    box_ = area.isEmpty() ? QRect() : Box(); // the character may be gone
    ShowOutline();
    if (!isOther)
        return;
    const QString text = area.isEmpty() ? QString()
                                        : tr("Selected pixels: %1 x %2 from [%3, %4] on")
                                              .arg(area.width())
                                              .arg(area.height())
                                              .arg(area.x())
                                              .arg(area.y());
    Q_EMIT editor_.StatusChanged(text);
    if (!area.isEmpty())
        editor_.setAccessibleDescription(text);
    Q_EMIT Changed();
}

// A box of another size, or at another place, has other pixels.
void PixelSelection::LetGoOfOther()
{
    if (!IsEmpty() && Box() != box_)
        Clear();
}

void PixelSelection::ShowOutline()
{
    if (IsEmpty())
        return outline_->hide();
    const qreal size = editor_.CellSize();
    const QRectF area = area_.translated(shift_ + QPoint(0, editor_.Top()));
    outline_->ShowAt({area.topLeft() * size, area.size() * size});
    if (drag_ == Drag::Moving && !shift_.isNull())
        outline_->SetPixels(Pixels(), Bitmap().Info().font.bitsPerPixel);
    else
        outline_->SetPixels({}, 1);
}

PixelBlock PixelSelection::Pixels() const
{
    const bool isFloating = floating_ && floating_->shown == Bitmap().Data();
    return isFloating ? floating_->block : PixelsOf(Bitmap(), area_);
}

void PixelSelection::Lift()
{
    if (floating_ && floating_->shown == Bitmap().Data())
        return;
    const Character& character = *editor_.CurrentCharacter();
    const auto rest = CopyOf(character, character.info.font);
    PutPixels(*rest->bitmap, FilledBlock(area_.size(), 0), area_.topLeft());
    floating_ = {rest->bitmap->Data(), Bitmap().Data(), Pixels()};
}

// Where nothing changes, there is no step, but the selection goes there nevertheless.
void PixelSelection::Put(const PixelBlock& block, QPoint place, const char* log,
                         const QStringList& arguments)
{
    Lift();
    const auto action = std::make_shared<ActionReplaceChars>(session_, log, arguments);
    CharBitmap& bitmap = *action->Change(quint16(editor_.CurrentCode())).bitmap;
    bitmap.AssignData(floating_->below);
    PutPixels(bitmap, block, place);
    const Floating floating = {floating_->below, bitmap.Data(), block};
    const QSize shift(place.x() - area_.x(), place.y() - area_.y());
    anchor_ += QPoint(shift.width(), shift.height());
    lead_ += QPoint(shift.width(), shift.height());
    SetArea({place, block.Size()});
    floating_ = floating;
    Guarded([&action] { action->Run(); });
}

void PixelSelection::Fill(int index)
{
    Put(FilledBlock(area_.size(), index), area_.topLeft(),
        QT_TRANSLATE_NOOP("Engine", "Filled pixels with index %2."), {QString::number(index)});
}

void PixelSelection::Erase()
{
    Put(FilledBlock(area_.size(), 0), area_.topLeft(),
        QT_TRANSLATE_NOOP("Engine", "Deleted pixels."));
}

// What becomes of each index is tried on a pixel.
void PixelSelection::Change(const Edit& edit)
{
    FontMetrics metrics = Bitmap().Info().font;
    metrics.format = FontFormat::Standard;
    Character trial(metrics);
    trial.bitmap->Clear();
    std::array<quint8, 16> changed{};
    for (int index = 0; index < 1 << metrics.bitsPerPixel; ++index) {
        trial.bitmap->SetPixelIndex(0, 0, index);
        edit.applyToPixel(*trial.bitmap, 0, 0, edit.index);
        changed[std::size_t(index)] = quint8(trial.bitmap->GetPixelIndex(0, 0));
    }
    PixelBlock block = Pixels();
    for (quint8& index : block.indices)
        index = changed[index];
    Put(block, area_.topLeft(), QT_TRANSLATE_NOOP("Engine", "Changed the indices of pixels."));
}

// Rotated pixels keep their lower left corner where there is room.
bool PixelSelection::Turn(ActionType type)
{
    const auto* const turn = std::ranges::find(Turns, type, &TurnRow::type);
    if (turn == Turns.end())
        return false;
    const PixelBlock block = turn->turned(Pixels());
    const QSize box = Box().size();
    if (block.Size() != area_.size() && (block.width > box.width() || block.rows > box.height())) {
        Q_EMIT Refused(tr("Rotated, the pixels do not fit into the character."));
        return true;
    }
    const QPoint place(area_.left(), area_.top() + area_.height() - block.rows);
    Put(block, PlaceInBox(place, block.Size()), turn->log);
    return true;
}

void PixelSelection::Paste(const PixelBlock& block, QPoint place)
{
    const QByteArray bytes = Bitmap().Data();
    SetArea({place, block.Size()});
    anchor_ = area_.topLeft();
    lead_ = area_.bottomRight();
    floating_ = {bytes, bytes, block};
    Put(block, PlaceInBox(place, block.Size()), QT_TRANSLATE_NOOP("Engine", "Pasted pixels."));
}

void PixelSelection::MoveTo(QPoint place)
{
    Lift();
    const PixelBlock block = floating_->block;
    Put(block, PlaceInTouch(place), QT_TRANSLATE_NOOP("Engine", "Moved pixels."));
}

void PixelSelection::Extend(QPoint step)
{
    if (IsEmpty()) {
        if (editor_.CurrentPixel() == nullptr)
            editor_.SelectFirstPixel();
        anchor_ = lead_ = editor_.SelectedPixel();
        if (anchor_.x() < 0)
            return;
    }
    Select(anchor_, lead_ + step);
    if (const CharPixelItem* const cell = editor_.CellItem(lead_.x(), lead_.y() + editor_.Top()))
        editor_.ensureVisible(cell, 0, 0);
}

bool PixelSelection::eventFilter(QObject* watched, QEvent* event)
{
    const bool isMouse = watched != &editor_; // which may be going
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return isMouse && Press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
        return isMouse && DragTo(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
        return isMouse && Release();
    case QEvent::ShortcutOverride:
        if (isMouse || !IsOwnKey(*static_cast<QKeyEvent*>(event)))
            return false;
        event->accept();
        return true;
    case QEvent::KeyPress:
        return !isMouse && RunKey(*static_cast<QKeyEvent*>(event));
    default:
        return false;
    }
}

bool PixelSelection::Press(const QMouseEvent& mouse)
{
    if (mouse.button() != Qt::LeftButton || Box().isEmpty())
        return false;
    grabbed_ = PixelAt(mouse.pos());
    if (area_.contains(grabbed_)) {
        drag_ = Drag::Moving;
        return true;
    }
    const QPoint selected = editor_.SelectedPixel();
    if (mouse.modifiers() == Qt::ShiftModifier && selected.x() >= 0) {
        Select(selected, grabbed_);
        return true;
    }
    Clear();
    drag_ = Drag::Selecting;
    return false;
}

bool PixelSelection::DragTo(const QMouseEvent& mouse)
{
    // The release may have gone elsewhere.
    if (drag_ != Drag::None && !mouse.buttons().testFlag(Qt::LeftButton)) {
        drag_ = Drag::None;
        shift_ = {};
        ShowOutline();
    }
    const QPoint pixel = PixelAt(mouse.pos());
    switch (drag_) {
    case Drag::None:
        return false;
    case Drag::Selecting:
        Select(grabbed_, pixel);
        return true;
    case Drag::Moving:
        shift_ = PlaceInTouch(area_.topLeft() + pixel - grabbed_) - area_.topLeft();
        ShowOutline();
        return true;
    }
    return false;
}

// A click ends the selection.
bool PixelSelection::Release()
{
    const Drag drag = std::exchange(drag_, Drag::None);
    if (drag != Drag::Moving)
        return false;
    if (!shift_.isNull()) {
        MoveTo(area_.topLeft() + shift_);
    } else {
        Clear();
        editor_.SelectItem(editor_.CellItem(grabbed_.x(), grabbed_.y() + editor_.Top()));
    }
    return true;
}

void PixelSelection::GoBackToPixel()
{
    Clear();
    editor_.SelectItem(editor_.CurrentPixel());
}

bool PixelSelection::IsOwnKey(const QKeyEvent& key) const
{
    const Qt::KeyboardModifiers modifiers = ModifiersOf(key);
    const bool isArrow = !StepOf(key.key()).isNull();
    if (isArrow && modifiers == Qt::ShiftModifier)
        return editor_.CurrentCharacter() != nullptr;
    if (IsEmpty() || modifiers != Qt::NoModifier)
        return false;
    return isArrow || key.key() == Qt::Key_Escape || key.key() == Qt::Key_Delete ||
           key.key() == Qt::Key_Space;
}

bool PixelSelection::RunKey(const QKeyEvent& key)
{
    if (!IsOwnKey(key))
        return false;
    if (ModifiersOf(key) == Qt::ShiftModifier)
        Extend(StepOf(key.key()));
    else if (key.key() == Qt::Key_Escape)
        GoBackToPixel();
    else if (key.key() == Qt::Key_Delete)
        Erase();
    else if (key.key() == Qt::Key_Space)
        Change(*EditOf(ActionType::InvertPixelIndex));
    else
        MoveTo(area_.topLeft() + StepOf(key.key()));
    return true;
}

} // namespace Glyphor
