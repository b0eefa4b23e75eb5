#pragma once

#include "model/font.h"

#include <QAbstractScrollArea>

#include <span>
#include <vector>

namespace Glyphor {

// All characters of a font in rows of 16, each in its own pixels. Rows without characters are left
// out. Only what is visible is painted, so that the size of the font does not matter.
class CharTableView final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    static constexpr int Columns = 16;

    explicit CharTableView(QWidget* parent = nullptr);

    // Null for no font. The font must outlive its use here; call Refresh() after every change.
    void SetFont(const Font* font);
    void Refresh();

    // False shows the enabled characters only.
    void SetShowAll(bool showAll);

    void SetHexadecimal(bool hexadecimal);

    // -1 where nothing is selected.
    [[nodiscard]] int CurrentCode() const { return current_; }

    // Selects one code and scrolls to it; false where the table does not show it.
    bool SetCurrentCode(int code);

    // The selected codes, whether or not they have a character.
    [[nodiscard]] const CodeSet& SelectedCodes() const { return selected_; }

    // The first codes of the rows shown, divided by 16.
    [[nodiscard]] const std::vector<int>& ShownRows() const { return rows_; }

    // Where a code is painted, in the viewport; empty where its row is not shown.
    [[nodiscard]] QRect CellRect(int code) const;

    // The code under a place in the viewport; -1 for none.
    [[nodiscard]] int CodeAt(QPoint place) const;

    // The label of a row or column header.
    [[nodiscard]] QString RowLabel(int row) const;
    [[nodiscard]] QString ColumnLabel(int column) const;

Q_SIGNALS:
    void CurrentChanged(int code);
    void SelectionChanged();
    void Activated(int code); // double click or Return

protected:
    bool viewportEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void UpdateRows();
    void UpdateSizes();
    void PaintHeaders(QPainter& painter, std::span<const int> rows) const;
    void PaintCharacter(QPainter& painter, const Character& character, bool isEnabled,
                        const QRect& cell) const;
    void PaintCell(QPainter& painter, int code, const QRect& cell) const;
    void Select(int code, Qt::KeyboardModifiers modifiers);
    void SelectSpan(int first, int last);
    void KeepShownSelected();
    void ScrollTo(int code);
    [[nodiscard]] QString CodeDescription(int code) const;
    [[nodiscard]] int FirstCodeWithPixels() const;
    [[nodiscard]] int RowIndexOf(int code) const;
    [[nodiscard]] int CodeAfterKey(int key, bool withControl) const;
    [[nodiscard]] int CodeOfText(const QString& text) const;
    [[nodiscard]] int HeaderWidth() const;
    [[nodiscard]] int HeaderHeight() const;
    [[nodiscard]] int Zoom(int width) const;

    const Font* font_ = nullptr;
    bool showAll_ = true;
    bool hexadecimal_ = true;
    std::vector<int> rows_;
    int current_ = -1;
    int anchor_ = -1; // where a span of selected codes begins
    CodeSet selected_;
    int cellWidth_ = 32;
    int cellHeight_ = 32;
    int maxWidth_ = 1;   // of the font's characters
    int usualWidth_ = 1; // that most of them do not exceed
};

} // namespace Glyphor
