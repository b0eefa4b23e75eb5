#include "ui/editor/char_pixel_item.h"

#include "ui/editor/char_bitmap_view.h"
#include "ui/support/char_picture.h"

#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace Glyphor {

CharPixelItem::CharPixelItem(CharBitmapView& view) : view_(view)
{
    setGraphicsItem(this);
    setFlag(QGraphicsItem::ItemIsSelectable);
    setFlag(QGraphicsItem::ItemIsFocusable);
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
}

void CharPixelItem::Place(int column, int row)
{
    column_ = column;
    row_ = row;
}

void CharPixelItem::UpdateFrom(const Character& character, const FramePlane& frame)
{
    const CharInfo& info = character.info;
    const bool isLegacy = IsLegacyFormat(info.font.format);
    const int y = isLegacy ? row_ : row_ - info.yPos;
    const int x = column_;
    State state = Pixel;
    QColor colour = Qt::black;
    if (!isLegacy && (y < 0 || y >= info.height)) {
        state = Outside;
        colour = QColor(255, 255, 128);
    } else if (frame.HasPixel(x, y)) {
        state = Frame;
        colour = QColor(128, 255, 255);
    } else {
        colour.setAlpha(IndexAlpha(character.bitmap->GetPixelIndex(x, y), info.font.bitsPerPixel));
    }
    if (state == state_ && colour == colour_)
        return;
    state_ = state;
    colour_ = colour;
    setFlag(QGraphicsItem::ItemIsSelectable, state_ == Pixel);
    setFlag(QGraphicsItem::ItemIsFocusable, state_ == Pixel);
    update();
}

QPoint CharPixelItem::PixelPosition() const
{
    return state_ == Pixel ? BitmapPosition() : QPoint(-1, -1);
}

QPoint CharPixelItem::BitmapPosition() const
{
    return state_ != Outside ? QPoint(column_, row_ - view_.Top()) : QPoint(-1, -1);
}

void CharPixelItem::setGeometry(const QRectF& rect)
{
    QGraphicsLayoutItem::setGeometry(rect);
    setRect(rect);
}

QSizeF CharPixelItem::sizeHint(Qt::SizeHint, const QSizeF&) const
{
    return {view_.CellSize(), view_.CellSize()};
}

int CharPixelItem::PenWidth() const
{
    const int rows = std::max(1, view_.RowCount());
    const int size = static_cast<int>((scene()->height() + 1) / rows);
    if (size < 3)
        return 0;
    return size < 7 ? 1 : 2;
}

void CharPixelItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    painter->fillRect(rect(), Qt::white);
    painter->fillRect(rect(), colour_);
    const int width = PenWidth();
    if (width > 0) {
        painter->setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(rect());
    }
    if (isSelected()) {
        const auto mode = painter->compositionMode();
        // Inverts what is below, so that the mark shows on any grey.
        painter->setCompositionMode(QPainter::RasterOp_NotSourceXorDestination);
        const qreal thickness = std::clamp(rect().width() / 8, 2.0, 5.0);
        const qreal inset = thickness / 2;
        painter->setPen(QPen(Qt::black, thickness, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(rect().adjusted(1 + inset, 1 + inset, -2 - inset, -2 - inset));
        painter->setCompositionMode(mode);
    }
}

void CharPixelItem::mousePressEvent(QGraphicsSceneMouseEvent*)
{
    view_.SelectItem(this);
}

// The view alone says what is selected; the base class would toggle it.
void CharPixelItem::mouseReleaseEvent(QGraphicsSceneMouseEvent*) {}

void CharPixelItem::contextMenuEvent(QGraphicsSceneContextMenuEvent* event)
{
    if (view_.SelectItem(this))
        Q_EMIT view_.MenuRequested(event->screenPos());
}

void CharPixelItem::hoverEnterEvent(QGraphicsSceneHoverEvent*)
{
    view_.ShowStatus(*this);
}

void CharPixelItem::hoverLeaveEvent(QGraphicsSceneHoverEvent*)
{
    view_.ClearStatus();
}

// The neighbour, or the next cell that can be selected, on the other side of a frame for example.
void CharPixelItem::SelectNext(QPoint step, bool skipsOthers) const
{
    QPoint cell = QPoint(column_, row_) + step;
    CharPixelItem* item = view_.CellItem(cell.x(), cell.y());
    while (!view_.SelectItem(item) && item != nullptr && skipsOthers) {
        cell += step;
        item = view_.CellItem(cell.x(), cell.y());
    }
}

void CharPixelItem::keyPressEvent(QKeyEvent* event)
{
    const bool skipsOthers = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->key()) {
    case Qt::Key_Left:
        SelectNext({-1, 0}, skipsOthers);
        break;
    case Qt::Key_Right:
        SelectNext({1, 0}, skipsOthers);
        break;
    case Qt::Key_Up:
        SelectNext({0, -1}, skipsOthers);
        break;
    case Qt::Key_Down:
        SelectNext({0, 1}, skipsOthers);
        break;
    case Qt::Key_Space:
        Q_EMIT view_.InversionRequested(column_, row_);
        break;
    case Qt::Key_Menu:
        Q_EMIT view_.MenuRequested(
            view_.viewport()->mapToGlobal(view_.mapFromScene(rect().center())));
        break;
    default:
        event->ignore();
        break;
    }
}

} // namespace Glyphor
