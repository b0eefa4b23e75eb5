#pragma once

#include "model/code_set.h"

#include <QTableView>

namespace Glyphor {

class CharacterDelegate;
class CharacterModel;
class Font;

// The table of all characters. What is selected with Shift or by dragging runs from code to code,
// on from the end of a row to the next; typing a character jumps to it.
class CharacterTable final : public QTableView
{
    Q_OBJECT

public:
    explicit CharacterTable(QWidget* parent = nullptr);

    // Null for no font. The font must outlive its use here; call Refresh() after every change.
    void ShowFont(const Font* font);
    void Refresh();

    // False shows the enabled characters only.
    void ShowAll(bool isOn);

    void ShowHexadecimal(bool isOn);

    // -1 where there is none. It may be hidden.
    [[nodiscard]] int CurrentCode() const { return current_; }

    // Selects one code and scrolls to it; false where the table does not show it.
    bool SelectCode(int code);

    // The selected codes, whether or not they have a character.
    [[nodiscard]] const CodeSet& SelectedCodes() const { return selected_; }

    // How many pixels of the screen a character's pixel is wide and high; 0 for as many as fit.
    [[nodiscard]] int Zoom() const { return zoom_; }

    // Where a code is painted, in the viewport; empty where its row is not shown.
    [[nodiscard]] QRect CellRect(int code) const;

    void keyboardSearch(const QString& text) override;

Q_SIGNALS:
    void CurrentCodeChanged(int code);
    void CodesSelected();
    void EditRequested(); // double click or Return
    void MenuRequested(QPoint globalPosition);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

private:
    void SizeCells();
    [[nodiscard]] int FittingCellWidth() const;
    [[nodiscard]] int FittingZoom() const;
    void TakeSelection();
    void Restore(int current, const CodeSet& selected);
    [[nodiscard]] int FirstCodeWithPixels() const;

    CharacterModel* model_;
    CharacterDelegate* delegate_;
    int current_ = -1;
    CodeSet selected_;
    bool isRestoring_ = false; // what the model's reset took away
    int zoom_ = 0;
    int wheelAngle_ = 0; // that was turned and has not zoomed yet
};

} // namespace Glyphor
