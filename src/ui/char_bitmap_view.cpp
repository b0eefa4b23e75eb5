#include "ui/char_bitmap_view.h"

#include "ui/char_picture.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace Glyphor {

namespace {

constexpr int ResizeDelay = 20; // milliseconds
constexpr int MaxZoom = 64;

} // namespace

CharBitmapView::CharBitmapView(QWidget* parent) : QGraphicsView(parent)
{
    scene_.setItemIndexMethod(QGraphicsScene::NoIndex); // cells move all at once
    setScene(&scene_);
    setAccessibleName(tr("Pixels of the character"));
    setFrameShape(QFrame::NoFrame);
    setBackgroundRole(QPalette::Window);
    setBackgroundBrush(palette().window());
    resizeTimer_.setSingleShot(true);
    resizeTimer_.setInterval(ResizeDelay);
    connect(&resizeTimer_, &QTimer::timeout, this, &CharBitmapView::OnTimerResize);
}

int CharBitmapView::Top() const
{
    if (character_ == nullptr || IsLegacyFormat(character_->info.font.format))
        return 0;
    return character_->info.yPos;
}

void CharBitmapView::SetCharacter(Character* character)
{
    const QPoint selected =
        current_ != nullptr ? QPoint(current_->Column(), current_->Row()) : QPoint(-1, -1);
    const bool isOther = character != character_;
    character_ = character;
    const int columns = character != nullptr ? character->info.width : 0;
    const int rows = character != nullptr ? character->info.font.height : 0;
    const bool isResized = columns != columns_ || rows != rows_;
    columns_ = columns;
    rows_ = rows;
    if (isResized) {
        current_ = nullptr;
        UpdateItems();
        PlaceItems();
    }
    if (character_ != nullptr) {
        const FramePlane frame(*character_);
        for (CharPixelItem* const item : items_)
            item->UpdateFrom(*character_, frame);
    }
    if (isOther || isResized || (current_ != nullptr && current_->CellState() != 0)) {
        ClearPixel();
        CharPixelItem* const same = isOther ? nullptr : ItemAt(selected.x(), selected.y());
        if (same != nullptr && same->CellState() == CharPixelItem::Pixel) {
            current_ = same;
            current_->setSelected(true);
            Q_EMIT PixelSelected(current_);
        }
    }
    const QPoint guides = GuidePlace();
    if (guides != guides_)
        viewport()->update();
    guides_ = guides;
}

// Where the cursor goes and where the characters stand, in the grid.
QPoint CharBitmapView::GuidePlace() const
{
    if (character_ == nullptr)
        return {-1, -1};
    const CharInfo& info = character_->info;
    return {info.cursorDistance - info.xPos, info.font.baseline};
}

// There is one item for each cell: they are made or dropped until the number fits.
void CharBitmapView::UpdateItems()
{
    const auto count = static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_);
    while (items_.size() > count) {
        delete items_.back();
        items_.pop_back();
    }
    while (items_.size() < count) {
        items_.push_back(new CharPixelItem(*this));
        scene_.addItem(items_.back());
    }
    for (std::size_t index = 0; index < count; ++index)
        items_[index]->Place(static_cast<int>(index) % columns_,
                             static_cast<int>(index) / columns_);
}

void CharBitmapView::PlaceItems()
{
    if (items_.empty()) {
        scene_.setSceneRect({});
        return;
    }
    const qreal fitting = std::min(qreal(viewport()->width() - 4) / columns_,
                                   qreal(viewport()->height() - 4) / rows_);
    cellSize_ = std::max(2.0, zoom_ > 0 ? qreal(zoom_) : std::floor(fitting));
    scene_.setSceneRect(0, 0, columns_ * cellSize_, rows_ * cellSize_);
    for (CharPixelItem* const item : items_)
        item->setGeometry(
            {item->Column() * cellSize_, item->Row() * cellSize_, cellSize_, cellSize_});
}

CharPixelItem* CharBitmapView::ItemAt(int column, int row) const
{
    if (column < 0 || row < 0 || column >= columns_ || row >= rows_)
        return nullptr;
    return items_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                  static_cast<std::size_t>(column)];
}

bool CharBitmapView::SelectItem(CharPixelItem* item)
{
    if (item == nullptr || item->CellState() != CharPixelItem::Pixel)
        return false;
    if (current_ != nullptr && current_ != item) {
        current_->setSelected(false);
        current_->update();
    }
    current_ = item;
    item->setSelected(true);
    item->setFocus();
    item->update();
    ensureVisible(item, 0, 0);
    Q_EMIT PixelSelected(item);
    return true;
}

void CharBitmapView::ClearPixel()
{
    if (current_ != nullptr)
        current_->setSelected(false);
    current_ = nullptr;
    Q_EMIT PixelSelected(nullptr);
}

// Straight on the bitmap, with the row of the grid as the row of the bitmap.
void CharBitmapView::InvertPixel(int column, int row)
{
    character_->bitmap->InvertPixelIndex(column, row);
    SetCharacter(character_);
    Q_EMIT PixelInverted();
}

// Thin guides for the baseline and the cursor distance.
void CharBitmapView::drawForeground(QPainter* painter, const QRectF&)
{
    if (character_ == nullptr)
        return;
    QPen pen(QColor(220, 40, 40), 1, Qt::DashLine);
    pen.setCosmetic(true);
    painter->setPen(pen);
    const qreal baseline = guides_.y() * cellSize_;
    if (guides_.y() <= rows_)
        painter->drawLine(QPointF(0, baseline), QPointF(scene_.width(), baseline));
    pen.setColor(QColor(40, 90, 220));
    painter->setPen(pen);
    const qreal advance = guides_.x() * cellSize_;
    if (guides_.x() >= 0 && guides_.x() <= columns_)
        painter->drawLine(QPointF(advance, 0), QPointF(advance, scene_.height()));
}

void CharBitmapView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    resizeTimer_.start();
}

void CharBitmapView::OnTimerResize()
{
    PlaceItems();
}

void CharBitmapView::SetZoom(int zoom)
{
    zoom_ = std::clamp(zoom, 0, MaxZoom);
    PlaceItems();
}

// Zooms; all the way out fits the view again.
void CharBitmapView::wheelEvent(QWheelEvent* event)
{
    if (items_.empty() || event->angleDelta().y() == 0)
        return;
    const int step = event->angleDelta().y() > 0 ? 2 : -2;
    zoom_ = std::clamp(static_cast<int>(cellSize_) + step, 0, MaxZoom);
    const bool fits =
        columns_ * zoom_ <= viewport()->width() && rows_ * zoom_ <= viewport()->height();
    if (step < 0 && fits)
        zoom_ = 0;
    PlaceItems();
    event->accept();
}

// Space is a shortcut as well, but here it is the cell's.
bool CharBitmapView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && current_ != nullptr) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Space && key->modifiers() == Qt::NoModifier) {
            event->accept();
            return true;
        }
    }
    return QGraphicsView::event(event);
}

void CharBitmapView::Paint(QPoint place)
{
    auto* const item = dynamic_cast<CharPixelItem*>(itemAt(place));
    if (item == nullptr || item == lastPainted_ || item->CellState() == CharPixelItem::Outside)
        return;
    lastPainted_ = item;
    const bool inverts = QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier);
    Q_EMIT PixelPainted(item->Column(), item->Row() - Top(), inverts);
}

void CharBitmapView::mousePressEvent(QMouseEvent* event)
{
    if (!pencil_ || event->button() != Qt::LeftButton || character_ == nullptr) {
        QGraphicsView::mousePressEvent(event);
        return;
    }
    isPainting_ = true;
    lastPainted_ = nullptr;
    Q_EMIT StrokeBegun();
    Paint(event->pos());
}

void CharBitmapView::mouseMoveEvent(QMouseEvent* event)
{
    if (isPainting_)
        Paint(event->pos());
    else
        QGraphicsView::mouseMoveEvent(event);
}

void CharBitmapView::mouseReleaseEvent(QMouseEvent* event)
{
    if (!isPainting_) {
        QGraphicsView::mouseReleaseEvent(event);
        return;
    }
    isPainting_ = false;
    Q_EMIT StrokeEnded();
}

} // namespace Glyphor
