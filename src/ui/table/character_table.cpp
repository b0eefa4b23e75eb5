#include "ui/table/character_table.h"

#include "model/font.h"
#include "ui/support/dialog_parts.h"
#include "ui/table/character_delegate.h"
#include "ui/table/character_model.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace Glyphor {

namespace {

constexpr int MinCellSize = 24;
constexpr int CellMargins = 2 * CharacterDelegate::Margin;
constexpr int MaxZoom = 16;

bool IsTyped(const QKeyEvent& key)
{
    return key.text().size() == 1 && key.text()[0].isPrint();
}

// One that the shortcuts of menus have.
bool HasCommandModifier(const QKeyEvent& key)
{
    return (key.modifiers() &
            (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

bool IsOfCommand(const QWidget& window, const QKeyEvent& key)
{
    const auto commands = window.findChildren<QAction*>();
    return std::ranges::any_of(commands, [&key](const QAction* command) {
        return command->shortcutContext() == Qt::WindowShortcut &&
               command->shortcuts().contains(QKeySequence(key.keyCombination()));
    });
}

} // namespace

CharacterTable::CharacterTable(QWidget* parent)
    : QTableView(parent),
      model_(new CharacterModel(this)),
      delegate_(new CharacterDelegate(*model_, this))
{
    setModel(model_);
    setItemDelegate(delegate_);
    setAccessibleName(tr("Characters"));
    setFrameShape(QFrame::StyledPanel);
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    for (QHeaderView* const header : {horizontalHeader(), verticalHeader()}) {
        header->setSectionResizeMode(QHeaderView::Fixed);
        header->setMinimumSectionSize(1);
        header->setHighlightSections(false);
        header->hide();
    }
    horizontalHeader()->setSectionsClickable(false);
    verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &QAbstractItemView::activated, this, &CharacterTable::EditRequested);
}

void CharacterTable::ShowFont(const Font* font)
{
    {
        const QScopedValueRollback restoring(isRestoring_, true);
        model_->ShowFont(font);
        current_ = -1;
        TakeSelection();
    }
    for (QHeaderView* const header : {horizontalHeader(), verticalHeader()})
        header->setVisible(font != nullptr);
    zoom_ = 0;
    SizeCells();
    scrollToTop();
    if (model_->rowCount() > 0) {
        SelectCode(FirstCodeWithPixels());
        horizontalScrollBar()->setValue(0);
    } else {
        Q_EMIT CurrentCodeChanged(-1);
        Q_EMIT CodesSelected();
    }
}

// The first one at all where none has pixels.
int CharacterTable::FirstCodeWithPixels() const
{
    const CodeSet& codes = model_->ShownFont()->ExistingCodes();
    for (const quint16 code : codes) {
        const Character* const character = model_->CharacterAt(code);
        if (character != nullptr && character->info.width > 1 && character->info.Rows() > 0)
            return code;
    }
    return codes.Next(model_->CodeOf(model_->index(0, 0)));
}

void CharacterTable::Refresh()
{
    const CodeSet selected = selected_;
    if (model_->Refresh())
        Restore(current_, selected);
    TakeSelection();
    SizeCells();
}

void CharacterTable::ShowAll(bool isOn)
{
    const CodeSet selected = selected_;
    if (model_->ShowAll(isOn))
        Restore(current_, selected);
    TakeSelection();
    SizeCells();
    scrollTo(currentIndex());
    Q_EMIT CodesSelected();
}

void CharacterTable::ShowHexadecimal(bool isOn)
{
    model_->ShowHexadecimal(isOn);
}

// The codes stay selected where their cells are others.
void CharacterTable::Restore(int current, const CodeSet& selected)
{
    const QScopedValueRollback restoring(isRestoring_, true);
    selectionModel()->setCurrentIndex(model_->IndexOf(current), QItemSelectionModel::NoUpdate);
    selectionModel()->select(model_->Cells(selected), QItemSelectionModel::ClearAndSelect);
}

void CharacterTable::TakeSelection()
{
    selected_ = {};
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            selected_.SetRange(model_->CodeOf(model_->index(row, range.left())),
                               model_->CodeOf(model_->index(row, range.right())), true);
    }
    // Hidden cells can't be selected, though ranges go over them.
    if (!model_->ShowsAll() && model_->ShownFont() != nullptr)
        selected_ &= model_->ShownFont()->EnabledCodes();
}

// Cells fill the width and are large enough for the usual characters at their own size. Room for
// the scroll bar is left in any case: its coming and going would change what it comes and goes for.
int CharacterTable::FittingCellWidth() const
{
    const int available = maximumViewportSize().width() - verticalScrollBar()->sizeHint().width();
    return std::max(
        {MinCellSize, available / CharacterModel::Columns, model_->UsualWidth() + CellMargins});
}

int CharacterTable::FittingZoom() const
{
    return std::max(1, (FittingCellWidth() - CellMargins) / model_->UsualWidth());
}

void CharacterTable::SizeCells()
{
    const Font* const font = model_->ShownFont();
    const int fontHeight = font != nullptr ? std::max<int>(1, font->Metrics().height) : 1;
    const int zoom = zoom_ > 0 ? zoom_ : FittingZoom();
    const int width = zoom_ > 0 ? std::max(MinCellSize, model_->UsualWidth() * zoom + CellMargins)
                                : FittingCellWidth();
    const int height = std::max(MinCellSize, fontHeight * zoom + CellMargins);
    delegate_->ZoomTo(zoom);
    horizontalHeader()->setDefaultSectionSize(width);
    verticalHeader()->setDefaultSectionSize(height);
    viewport()->update();
}

QRect CharacterTable::CellRect(int code) const
{
    return visualRect(model_->IndexOf(code));
}

bool CharacterTable::SelectCode(int code)
{
    const QModelIndex cell = model_->IndexOf(code);
    if (!cell.isValid())
        return false;
    // Not as the keys would have it that are held: those of a shortcut, maybe.
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect);
    return true;
}

void CharacterTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (previous.isValid())
        update(previous);
    if (isRestoring_ || !current.isValid() || model_->CodeOf(current) == current_)
        return;
    current_ = model_->CodeOf(current);
    Q_EMIT CurrentCodeChanged(current_);
}

void CharacterTable::selectionChanged(const QItemSelection& selected,
                                      const QItemSelection& deselected)
{
    QTableView::selectionChanged(selected, deselected);
    if (isRestoring_)
        return;
    TakeSelection();
    Q_EMIT CodesSelected();
}

// The corners of the rectangle are those where selecting began and where it is now.
void CharacterTable::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command)
{
    const QModelIndex begin = indexAt(rect.topLeft());
    const QModelIndex end = indexAt(rect.bottomRight());
    if (!begin.isValid() || !end.isValid())
        return;
    const auto [first, last] = std::minmax({model_->CodeOf(begin), model_->CodeOf(end)});
    CodeSet span;
    span.SetRange(first, last, true);
    selectionModel()->select(model_->Cells(span), command);
}

// The keys to the left and right go on from row to row.
QModelIndex CharacterTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const bool isBack = action == MoveLeft || action == MovePrevious;
    const bool isOn = action == MoveRight || action == MoveNext;
    const QModelIndex current = currentIndex();
    if ((!isBack && !isOn) || !current.isValid())
        return QTableView::moveCursor(action, modifiers);
    const int cell = current.row() * CharacterModel::Columns + current.column() + (isOn ? 1 : -1);
    const int count = model_->rowCount() * CharacterModel::Columns;
    if (cell < 0 || cell >= count)
        return current;
    return model_->index(cell / CharacterModel::Columns, cell % CharacterModel::Columns);
}

// Only a text that is a single character of the font is one to jump to.
void CharacterTable::keyboardSearch(const QString& text)
{
    const Font* const font = model_->ShownFont();
    if (font == nullptr || text.size() != 1 || !text[0].isPrint())
        return;
    const auto code = Encoded(text[0].unicode(), font->Metrics().encoding);
    if (code && font->FindChar(*code) != nullptr)
        SelectCode(*code);
}

// Plain typing jumps to a character, so it must not trigger the commands that have letters as
// shortcuts, whether or not the font has the character.
bool CharacterTable::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (model_->ShownFont() != nullptr && IsTyped(key) && !HasCommandModifier(key)) {
            event->accept();
            return true;
        }
    }
    return QTableView::event(event);
}

// Ctrl and the wheel zoom, and fit the cells again where they pass what fits.
void CharacterTable::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier) || model_->ShownFont() == nullptr)
        return QTableView::wheelEvent(event);
    constexpr int notch = 120; // touch pads turn in smaller parts
    wheelAngle_ += event->angleDelta().y();
    const int steps = wheelAngle_ / notch;
    wheelAngle_ -= steps * notch;
    event->accept();
    if (steps == 0)
        return;
    const int fitting = FittingZoom();
    const int zoom =
        std::clamp((zoom_ > 0 ? zoom_ : fitting) + steps, 1, std::max(MaxZoom, fitting));
    zoom_ = zoom == fitting ? 0 : zoom;
    SizeCells();
    scrollTo(currentIndex());
}

// A blank is a character like others here. A command that can't be run now gets its key still, or
// the selection that it is meant for would be lost.
void CharacterTable::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier)
        keyboardSearch(event->text());
    else if (!IsTyped(*event) || !HasCommandModifier(*event) || !IsOfCommand(*window(), *event))
        QTableView::keyPressEvent(event);
}

// The key opens the menu at the current cell.
void CharacterTable::contextMenuEvent(QContextMenuEvent* event)
{
    QPoint place = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        scrollTo(currentIndex());
        place = viewport()->mapToGlobal(CellRect(current_).center());
    }
    Q_EMIT MenuRequested(place);
}

void CharacterTable::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    SizeCells();
    scrollTo(currentIndex());
}

} // namespace Glyphor
