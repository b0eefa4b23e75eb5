#include "ui/editor/char_bitmap_view.h"

#include "ui/support/char_picture.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>

namespace Glyphor {

namespace {

constexpr int ResizeDelay = 20; // milliseconds
constexpr std::array ZoomSteps = {1, 2, 3, 4, 6, 8, 12, 16, 24, 32, 48, 64};
constexpr int MaxZoom = ZoomSteps.back();

// Stands out from any grey, on which an inverted one may not.
void DrawOutline(QPainter& painter, const QRectF& rect)
{
    painter.setBrush(Qt::NoBrush);
    for (const auto& [colour, width] : {std::pair(Qt::black, 3), std::pair(Qt::white, 1)}) {
        painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(rect);
    }
}

} // namespace

CharBitmapView::CharBitmapView(QWidget* parent) : QGraphicsView(parent)
{
    scene_.setItemIndexMethod(QGraphicsScene::NoIndex); // cells move all at once
    setScene(&scene_);
    setAccessibleName(tr("Pixels of the character"));
    setAcceptDrops(false); // the window takes them
    setFrameShape(QFrame::NoFrame);
    setBackgroundRole(QPalette::Window);
    setBackgroundBrush(palette().window());
    resizeTimer_.setSingleShot(true);
    resizeTimer_.setInterval(ResizeDelay);
    connect(&resizeTimer_, &QTimer::timeout, this, &CharBitmapView::OnTimerResize);
    hint_ = scene_.addText(tr("This character has no pixels.\nInsert a row or a column to draw."));
    hint_->setDefaultTextColor(palette().color(QPalette::WindowText));
    hint_->hide();
}

int CharBitmapView::Top() const
{
    if (character_ == nullptr || IsLegacyFormat(character_->info.font.format))
        return 0;
    return character_->info.yPos;
}

void CharBitmapView::SetCharacter(const Character* character, int code)
{
    const QPoint selected =
        current_ != nullptr ? QPoint(current_->Column(), current_->Row()) : QPoint(-1, -1);
    // An edit may give the code another one.
    const bool isOther = code != code_ || (character == nullptr) != (character_ == nullptr);
    if (isOther)
        Q_EMIT CharacterLeft();
    character_ = character;
    code_ = code;
    const int columns = character != nullptr ? character->info.width : 0;
    const int rows = character != nullptr ? character->info.font.height : 0;
    const bool isResized = columns != columns_ || rows != rows_;
    if (isResized || isOther)
        ForgetPixel();
    columns_ = columns;
    rows_ = rows;
    const QPoint guides = GuidePlace();
    const bool hasOtherGuides = guides != guides_;
    guides_ = guides;
    const bool showsOthers = ShownCells() != shownCells_;
    hint_->setVisible(character != nullptr && (columns == 0 || rows == 0));
    if (isResized)
        UpdateItems();
    if (isResized || hasOtherGuides || showsOthers)
        PlaceItems();
    else if (hasOtherBackground_)
        viewport()->update();
    hasOtherBackground_ = false;
    if (character_ != nullptr) {
        const FramePlane frame(*character_);
        for (CharPixelItem* const item : items_)
            item->UpdateFrom(*character_, frame);
    }
    if (current_ != nullptr && current_->CellState() != CharPixelItem::Pixel)
        ForgetPixel();
    CharPixelItem* const same = isOther ? nullptr : CellItem(selected.x(), selected.y());
    if (current_ == nullptr && same != nullptr && same->CellState() == CharPixelItem::Pixel) {
        current_ = same;
        current_->setSelected(true);
        scene_.setFocusItem(current_);
        UpdateMark();
    }
    TellPixel();
    if (told_.x() >= 0) { // its index may be another one now
        const CharPixelItem* const cell = CellItem(told_.x(), told_.y());
        Q_EMIT StatusChanged(cell != nullptr ? Description(*cell) : QString());
    }
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

// Room for the cursor distance beyond the pixels, unless it is far away.
int CharBitmapView::ShownColumns() const
{
    const int room = std::max(4, columns_);
    return guides_.x() > columns_ && guides_.x() <= columns_ + room ? guides_.x() : columns_;
}

// From the corner of the grid. The cursor stands left of it by the offset.
QRect CharBitmapView::CellsOf(const Neighbour& neighbour) const
{
    return {neighbour.place - QPoint(character_->info.xPos, 0), neighbour.picture.size()};
}

// The grid with room for what is nearest of the neighbours.
QRect CharBitmapView::ShownCells() const
{
    const QRect grid(0, 0, ShownColumns(), rows_);
    const int room = std::max(4, columns_ / 2);
    QRect shown = grid;
    if (character_ != nullptr) {
        for (const Neighbour& neighbour : neighbours_)
            shown |= CellsOf(neighbour);
    }
    return shown & grid.adjusted(-room, 0, room, 0);
}

QRectF CharBitmapView::RectOf(const QRect& cells) const
{
    return {QPointF(cells.topLeft()) * cellSize_, QSizeF(cells.size()) * cellSize_};
}

// The size of a cell at which the whole grid can be seen.
qreal CharBitmapView::FittingSize() const
{
    const QSize cells = ShownCells().size();
    return std::max(2.0, std::floor(std::min(qreal(viewport()->width() - 4) / cells.width(),
                                             qreal(viewport()->height() - 4) / cells.height())));
}

void CharBitmapView::PlaceItems()
{
    shownCells_ = ShownCells();
    if (items_.empty()) {
        scene_.setSceneRect(hint_->sceneBoundingRect());
        return;
    }
    cellSize_ = zoom_ > 0 ? qreal(zoom_) : FittingSize();
    scene_.setSceneRect(RectOf(shownCells_));
    for (CharPixelItem* const item : items_)
        item->setGeometry(
            {item->Column() * cellSize_, item->Row() * cellSize_, cellSize_, cellSize_});
    viewport()->update();
}

CharPixelItem* CharBitmapView::CellItem(int column, int row) const
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
        UpdateMark();
    }
    current_ = item;
    item->setSelected(true);
    item->setFocus();
    UpdateMark();
    ensureVisible(item, 0, 0);
    TellPixel();
    return true;
}

void CharBitmapView::SelectFirstPixel()
{
    const auto pixel = std::ranges::find(items_, CharPixelItem::Pixel, &CharPixelItem::CellState);
    if (pixel != items_.end())
        SelectItem(*pixel);
}

QPoint CharBitmapView::SelectedPixel() const
{
    return current_ != nullptr ? current_->PixelPosition() : QPoint(-1, -1);
}

// Of the selected cell, with the outline around it.
void CharBitmapView::UpdateMark()
{
    scene_.update(current_->rect().adjusted(-3, -3, 3, 3));
}

// Takes mark and focus from the cell, before it is one of something else.
void CharBitmapView::ForgetPixel()
{
    if (current_ != nullptr) {
        current_->setSelected(false);
        UpdateMark();
    }
    scene_.setFocusItem(nullptr);
    current_ = nullptr;
}

void CharBitmapView::ClearPixel()
{
    ForgetPixel();
    TellPixel();
}

// Paper for the neighbours.
void CharBitmapView::drawBackground(QPainter* painter, const QRectF& rect)
{
    QGraphicsView::drawBackground(painter, rect);
    if (!items_.empty() && !neighbours_.empty())
        painter->fillRect(scene_.sceneRect(), Qt::white);
}

void CharBitmapView::DrawNeighbours(QPainter& painter) const
{
    painter.save();
    painter.setClipRect(scene_.sceneRect(), Qt::IntersectClip);
    painter.setOpacity(0.45);
    for (const Neighbour& neighbour : neighbours_)
        painter.drawImage(RectOf(CellsOf(neighbour)), neighbour.picture);
    painter.restore();
}

// In a colour with a light edge, which shows on any grey.
void CharBitmapView::DrawGlyphOutline(QPainter& painter) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QPointF(-character_->info.xPos, guides_.y()) * cellSize_);
    painter.scale(cellSize_, cellSize_);
    painter.setBrush(Qt::NoBrush);
    for (const auto& [colour, width] :
         {std::pair(QColor(255, 255, 255, 160), 3.5), std::pair(QColor(225, 0, 140), 1.5)}) {
        QPen pen(colour, width);
        pen.setCosmetic(true);
        painter.strokePath(outline_, pen);
    }
    painter.restore();
}

void CharBitmapView::SetBackground(std::vector<Neighbour> neighbours, const QPainterPath& outline)
{
    hasOtherBackground_ = hasOtherBackground_ || neighbours != neighbours_ || outline != outline_;
    neighbours_ = std::move(neighbours);
    outline_ = outline;
}

// The neighbours, which may reach over the cells, and thin guides for the baseline and the cursor
// distance.
void CharBitmapView::drawForeground(QPainter* painter, const QRectF&)
{
    if (items_.empty())
        return;
    DrawNeighbours(*painter);
    QPen pen(QColor(230, 30, 30), 2);
    painter->setPen(pen);
    const qreal baseline = guides_.y() * cellSize_;
    if (guides_.y() <= rows_)
        painter->drawLine(QPointF(scene_.sceneRect().left(), baseline),
                          QPointF(scene_.sceneRect().right(), baseline));
    pen.setColor(QColor(40, 90, 220));
    painter->setPen(pen);
    const qreal advance = guides_.x() * cellSize_;
    if (guides_.x() >= 0 && guides_.x() <= ShownColumns())
        painter->drawLine(QPointF(advance, 0), QPointF(advance, scene_.height()));
    if (!outline_.isEmpty())
        DrawGlyphOutline(*painter);
    if (current_ != nullptr)
        DrawOutline(*painter, current_->rect());
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
    zoom_ = std::max(0, zoom);
    PlaceItems();
}

// What is at the place stays there, as far as there is something to scroll.
void CharBitmapView::ZoomAround(QPoint place, int zoom)
{
    const QPointF cell = mapToScene(place) / cellSize_;
    SetZoom(zoom);
    const QPoint moved = mapFromScene(cell * cellSize_) - place;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + moved.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + moved.y());
}

QPoint CharBitmapView::ZoomCentre() const
{
    const QRect view = viewport()->rect();
    const QPoint pixel =
        current_ != nullptr ? mapFromScene(current_->rect().center()) : view.center();
    return view.contains(pixel) ? pixel : view.center();
}

void CharBitmapView::ZoomIn()
{
    const auto* const larger = std::ranges::upper_bound(ZoomSteps, static_cast<int>(cellSize_));
    if (larger != ZoomSteps.end())
        ZoomAround(ZoomCentre(), *larger);
}

void CharBitmapView::ZoomOut()
{
    const auto* const first = std::ranges::lower_bound(ZoomSteps, static_cast<int>(cellSize_));
    if (first != ZoomSteps.begin())
        ZoomAround(ZoomCentre(), *std::prev(first));
}

// Zooms; all the way out fits the view again.
void CharBitmapView::wheelEvent(QWheelEvent* event)
{
    constexpr int notch = 120; // touch pads turn in smaller parts
    wheelAngle_ += event->angleDelta().y();
    const int steps = wheelAngle_ / notch;
    wheelAngle_ -= steps * notch;
    event->accept();
    if (items_.empty() || steps == 0)
        return;
    const int fitting = static_cast<int>(FittingSize());
    const int zoom =
        std::clamp(static_cast<int>(cellSize_) + 2 * steps, 2, std::max(MaxZoom, fitting));
    ZoomAround(event->position().toPoint(), zoom <= fitting && steps < 0 ? 0 : zoom);
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
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        const QRect frame = viewport()->rect();
        viewport()->update(QRegion(frame) - QRegion(frame.adjusted(2, 2, -2, -2)));
    }
    return QGraphicsView::event(event);
}

// The arrow keys begin at the first pixel.
void CharBitmapView::keyPressEvent(QKeyEvent* event)
{
    const bool isArrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
    if (current_ != nullptr)
        scene_.setFocusItem(current_); // menus took it
    if (current_ == nullptr && isArrow)
        SelectFirstPixel();
    else if (current_ != nullptr)
        QGraphicsView::keyPressEvent(event);
    else
        event->ignore();
}

void CharBitmapView::ShowDraft(const Character& draft, const std::vector<QPoint>& pixels)
{
    const FramePlane frame(draft);
    const auto update = [&](QPoint cell) {
        if (CharPixelItem* const item = CellItem(cell.x(), cell.y()))
            item->UpdateFrom(draft, frame);
    };
    for (const QPoint pixel : pixels) {
        const QPoint cell = pixel + QPoint(0, Top());
        update(cell);
        if (draft.info.font.format != FontFormat::Framed)
            continue;
        for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
            update(cell + step);
    }
}

// Empty for a cell that is no pixel.
QString CharBitmapView::Description(const CharPixelItem& item) const
{
    const QPoint place = item.PixelPosition();
    if (character_ == nullptr || place.x() < 0)
        return {};
    return Description(*character_, place);
}

QString CharBitmapView::Description(const Character& character, QPoint pixel) const
{
    const int index = character.bitmap->GetPixelIndex(pixel.x(), pixel.y());
    return tr("Index of pixel [%1, %2]: %3").arg(pixel.x()).arg(pixel.y()).arg(index);
}

void CharBitmapView::ShowStatus(const Character& character, QPoint pixel)
{
    Q_EMIT StatusChanged(Description(character, pixel));
}

void CharBitmapView::ShowStatus(const CharPixelItem& item)
{
    const QString text = Description(item);
    if (text.isEmpty())
        return;
    told_ = {item.Column(), item.Row()};
    Q_EMIT StatusChanged(text);
}

void CharBitmapView::ClearStatus()
{
    told_ = {-1, -1};
    Q_EMIT StatusChanged({});
}

// To the commands, and to those who don't see the mark.
void CharBitmapView::TellPixel()
{
    setAccessibleDescription(current_ != nullptr ? Description(*current_) : QString());
    Q_EMIT PixelSelected(current_);
}

QPoint CharBitmapView::CellAt(QPoint place) const
{
    const QPointF cell = mapToScene(place) / cellSize_;
    return {static_cast<int>(std::floor(cell.x())), static_cast<int>(std::floor(cell.y()))};
}

// Beside the cells there is nothing to select, and the selected one stays.
void CharBitmapView::mousePressEvent(QMouseEvent* event)
{
    if (itemAt(event->pos()) != nullptr)
        QGraphicsView::mousePressEvent(event);
}

// The frame tells where the keys go.
void CharBitmapView::paintEvent(QPaintEvent* event)
{
    QGraphicsView::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
}

} // namespace Glyphor
