#pragma once

#include "ui/editor/char_pixel_item.h"
#include "ui/editor/neighbours.h"

#include <QGraphicsView>
#include <QPainterPath>
#include <QTimer>

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
    void SetCharacter(const Character* character, int code);

    // What to show from the next call on: neighbours in grey, and an outline, whose origin is the
    // cursor position on the baseline, in pixels of the font.
    void SetBackground(std::vector<Neighbour> neighbours, const QPainterPath& outline);

    [[nodiscard]] const Character* CurrentCharacter() const { return character_; }
    [[nodiscard]] int CurrentCode() const { return code_; }

    // Null where no pixel is selected.
    [[nodiscard]] CharPixelItem* CurrentPixel() const { return current_; }

    // Null outside the grid.
    [[nodiscard]] CharPixelItem* CellItem(int column, int row) const;

    // In the character's bitmap; (-1, -1) where no pixel is selected.
    [[nodiscard]] QPoint SelectedPixel() const;

    // Selects the cell and takes the focus to it; false where it can't be selected.
    bool SelectItem(CharPixelItem* item);
    void SelectFirstPixel();
    void ClearPixel();

    [[nodiscard]] int ColumnCount() const { return columns_; }
    [[nodiscard]] int RowCount() const { return rows_; }
    [[nodiscard]] qreal CellSize() const { return cellSize_; }

    // Tells the place and the index of a cell that is a pixel, until the mouse leaves it.
    void ShowStatus(const CharPixelItem& item);
    void ShowStatus(const Character& character, QPoint pixel);

    // Shows pixels of a bitmap that the character may get, until it is set the next time.
    void ShowDraft(const Character& draft, const std::vector<QPoint>& pixels);
    void ClearStatus();

    // The y of the first row of the character's bitmap.
    [[nodiscard]] int Top() const;

    // The size of a cell in pixels; 0 where the grid fits the view.
    [[nodiscard]] int Zoom() const { return zoom_; }
    void SetZoom(int zoom);

    // To the next size of a series, around the selected pixel.
    void ZoomIn();
    void ZoomOut();

    // The cell at a place in the viewport, in a grid that goes on beyond its ends.
    [[nodiscard]] QPoint CellAt(QPoint place) const;

Q_SIGNALS:
    // Null where no pixel is selected.
    void PixelSelected(CharPixelItem* item);

    // Empty where the mouse left the pixels.
    void StatusChanged(const QString& text);

    void MenuRequested(QPoint globalPosition);

    // With the row of the grid, whose first may lie above the character's.
    void InversionRequested(int column, int row);

    // Another character is about to be shown.
    void CharacterLeft();

protected:
    void drawBackground(QPainter* painter, const QRectF& rect) override;
    void drawForeground(QPainter* painter, const QRectF& rect) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    Q_SLOT void OnTimerResize();
    void UpdateItems();
    void PlaceItems();
    void DrawNeighbours(QPainter& painter) const;
    void DrawGlyphOutline(QPainter& painter) const;
    void UpdateMark();
    void ForgetPixel();
    void TellPixel();
    [[nodiscard]] QString Description(const CharPixelItem& item) const;
    [[nodiscard]] QString Description(const Character& character, QPoint pixel) const;
    [[nodiscard]] QPoint GuidePlace() const;
    [[nodiscard]] qreal FittingSize() const;
    [[nodiscard]] QPoint ZoomCentre() const;
    void ZoomAround(QPoint place, int zoom);
    [[nodiscard]] int ShownColumns() const;
    [[nodiscard]] QRect ShownCells() const;
    [[nodiscard]] QRect CellsOf(const Neighbour& neighbour) const;
    [[nodiscard]] QRectF RectOf(const QRect& cells) const;

    const Character* character_ = nullptr;
    int code_ = -1;
    QGraphicsScene scene_;
    QTimer resizeTimer_;
    QGraphicsTextItem* hint_;           // where there are no pixels
    std::vector<CharPixelItem*> items_; // the scene's, row by row
    CharPixelItem* current_ = nullptr;
    int columns_ = 0;
    int rows_ = 0;
    QPoint guides_ = {-1, -1};
    std::vector<Neighbour> neighbours_;
    QPainterPath outline_;
    bool hasOtherBackground_ = false; // than what is painted
    QRect shownCells_;                // when they were placed
    qreal cellSize_ = 1;
    int zoom_ = 0;           // size of a cell in pixels; 0 fits the view
    QPoint told_ = {-1, -1}; // the cell whose index is told
    int wheelAngle_ = 0;     // that was turned and has not zoomed yet
};

} // namespace Glyphor
