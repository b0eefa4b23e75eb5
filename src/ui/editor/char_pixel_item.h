#pragma once

#include "model/font.h"

#include <QColor>
#include <QGraphicsLayoutItem>
#include <QGraphicsRectItem>

namespace Glyphor {

class CharBitmapView;
class FramePlane;

// One cell of the pixel editor.
class CharPixelItem final : public QGraphicsRectItem, public QGraphicsLayoutItem
{
public:
    enum State { Pixel = 0, Outside = 1, Frame = 2 };

    explicit CharPixelItem(CharBitmapView& view);

    void Place(int column, int row);

    // Takes state and colour from the character, whose frame is given apart: it is asked for every
    // cell.
    void UpdateFrom(const Character& character, const FramePlane& frame);

    [[nodiscard]] State CellState() const { return state_; }
    [[nodiscard]] const QColor& Colour() const { return colour_; }
    [[nodiscard]] int Column() const { return column_; }
    [[nodiscard]] int Row() const { return row_; }

    // The place in the bitmap of the character; (-1, -1) for a cell that is no pixel of it.
    [[nodiscard]] QPoint PixelPosition() const;

    // The same, with a place for cells of the frame, which is painted over but can't be selected.
    [[nodiscard]] QPoint BitmapPosition() const;

    void setGeometry(const QRectF& rect) override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

protected:
    [[nodiscard]] QSizeF sizeHint(Qt::SizeHint which, const QSizeF& constraint) const override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent* event) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] int PenWidth() const;
    void SelectNext(QPoint step, bool skipsOthers) const;

    CharBitmapView& view_;
    State state_ = Pixel;
    QColor colour_;
    int column_ = -1;
    int row_ = -1;
};

} // namespace Glyphor
