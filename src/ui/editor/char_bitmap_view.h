#pragma once

#include "ui/editor/char_pixel_item.h"

#include <QGraphicsView>
#include <QTimer>

#include <set>
#include <vector>

namespace Glyphor {

// The pixel editor: a grid with one cell for each pixel of the current character, over the whole
// height of the font.
class CharBitmapView final : public QGraphicsView
{
    Q_OBJECT

public:
    explicit CharBitmapView(QWidget* parent = nullptr);

    // Null for none. The character must outlive its use here; call it again after every change.
    void SetCharacter(Character* character);

    [[nodiscard]] const Character* CurrentCharacter() const { return character_; }

    // Null where no pixel is selected.
    [[nodiscard]] CharPixelItem* CurrentPixel() const { return current_; }

    // Null outside the grid.
    [[nodiscard]] CharPixelItem* ItemAt(int column, int row) const;

    // In the character's bitmap; (-1, -1) where no pixel is selected.
    [[nodiscard]] QPoint SelectedPixel() const;

    // Selects the cell and takes the focus to it; false where it can't be selected.
    bool SelectItem(CharPixelItem* item);
    void SelectFirstPixel();
    void ClearPixel();

    [[nodiscard]] int ColumnCount() const { return columns_; }
    [[nodiscard]] int RowCount() const { return rows_; }
    [[nodiscard]] qreal CellSize() const { return cellSize_; }

    // Tells the place and the index of a cell that is a pixel.
    void ShowStatus(const CharPixelItem& item);

    // The y of the first row of the character's bitmap.
    [[nodiscard]] int Top() const;

    // The size of a cell in pixels; 0 where the grid fits the view.
    [[nodiscard]] int Zoom() const { return zoom_; }
    void SetZoom(int zoom);

    // In pencil mode a press and a drag paint instead of selecting.
    void SetPencil(bool isOn) { pencil_ = isOn; }

    // Ends the stroke of the pencil, if there is one.
    void EndStroke();

    // A character that was changed without an action.
    void InvertPixel(int column, int row);

Q_SIGNALS:
    // Null where no pixel is selected.
    void PixelSelected(CharPixelItem* item);

    // Empty where the mouse left the pixels.
    void StatusChanged(const QString& text);

    void MenuRequested(QPoint globalPosition);
    void PixelInverted();

    // Positions are those of the character's bitmap, each once in a stroke.
    void StrokeBegun();
    void PixelPainted(int x, int y, bool inverts);
    void StrokeEnded();

protected:
    void drawForeground(QPainter* painter, const QRectF& rect) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    Q_SLOT void OnTimerResize();
    void UpdateItems();
    void PlaceItems();
    void ForgetPixel();
    [[nodiscard]] QPoint GuidePlace() const;
    void Paint(QPoint cell);
    void PaintTo(QPoint place);
    [[nodiscard]] QPoint CellAt(QPoint place) const;
    [[nodiscard]] qreal FittingSize() const;
    [[nodiscard]] int ShownColumns() const;

    Character* character_ = nullptr;
    QGraphicsScene scene_;
    QTimer resizeTimer_;
    QGraphicsTextItem* hint_;           // where there are no pixels
    std::vector<CharPixelItem*> items_; // the scene's, row by row
    CharPixelItem* current_ = nullptr;
    int columns_ = 0;
    int rows_ = 0;
    QPoint guides_ = {-1, -1};
    qreal cellSize_ = 1;
    int zoom_ = 0; // size of a cell in pixels; 0 fits the view
    bool pencil_ = false;
    bool isPainting_ = false;
    QPoint lastCell_;                  // that the stroke passed
    std::set<CharPixelItem*> painted_; // in the stroke
    int wheelAngle_ = 0;               // that was turned and has not zoomed yet
};

} // namespace Glyphor
