#include "ui/table/char_table_view.h"

#include "model/code_text.h"
#include "model/encoding.h"
#include "ui/support/char_picture.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <array>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr int CellMargin = 3; // around the pixels in a cell
constexpr int MinCellSize = 24;

} // namespace

CharTableView::CharTableView(QWidget* parent) : QAbstractScrollArea(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Characters"));
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setAutoFillBackground(true);
}

void CharTableView::SetFont(const Font* font)
{
    font_ = font;
    current_ = -1;
    anchor_ = -1;
    selected_ = {};
    Refresh();
    verticalScrollBar()->setValue(0);
    if (!rows_.empty()) {
        SetCurrentCode(FirstCodeWithPixels());
    } else {
        Q_EMIT CurrentChanged(-1);
        Q_EMIT SelectionChanged();
    }
}

// The first one at all where none has pixels.
int CharTableView::FirstCodeWithPixels() const
{
    const CodeSet& codes = font_->ExistingCodes();
    const int first = codes.Next(rows_.front() * Columns);
    for (int code = first; code < CodeSet::Limit; code = codes.Next(code + 1)) {
        const CharInfo& info = font_->FindChar(quint16(code))->info;
        if (RowIndexOf(code) >= 0 && info.width > 1 && info.Rows() > 0)
            return code;
    }
    return first;
}

void CharTableView::Refresh()
{
    KeepShownSelected();
    UpdateRows();
    UpdateSizes();
    viewport()->update();
}

void CharTableView::SetShowAll(bool showAll)
{
    showAll_ = showAll;
    Refresh();
    if (current_ >= 0)
        ScrollTo(current_);
    Q_EMIT SelectionChanged();
}

void CharTableView::SetHexadecimal(bool hexadecimal)
{
    hexadecimal_ = hexadecimal;
    Refresh();
}

void CharTableView::UpdateRows()
{
    rows_.clear();
    maxWidth_ = 1;
    usualWidth_ = 1;
    if (font_ == nullptr)
        return;
    std::array<int, CharInfo::MaxSize + 1> counts{};
    int count = 0;
    CodeSet codes = font_->ExistingCodes();
    if (!showAll_)
        codes &= font_->EnabledCodes();
    for (const quint16 code : codes) {
        if (rows_.empty() || rows_.back() != code / Columns)
            rows_.push_back(code / Columns);
        const int width = font_->FindChar(code)->info.width;
        maxWidth_ = std::max(maxWidth_, width);
        if (width > 1) { // or characters without pixels would decide
            ++counts[std::size_t(width)];
            ++count;
        }
    }
    int narrower = 0;
    for (int width = 0; width <= maxWidth_ && narrower < count * 9 / 10; ++width) {
        narrower += counts[std::size_t(width)];
        usualWidth_ = std::max(1, width);
    }
}

int CharTableView::HeaderWidth() const
{
    return fontMetrics().horizontalAdvance(u"0xFFF0"_s) + 12;
}

int CharTableView::HeaderHeight() const
{
    return fontMetrics().height() + 8;
}

// Cells fill the width and are large enough for every character at its own size.
void CharTableView::UpdateSizes()
{
    const int fontHeight = font_ != nullptr ? std::max<int>(1, font_->Metrics().height) : 1;
    const int available = (viewport()->width() - HeaderWidth()) / Columns;
    cellWidth_ = std::max({MinCellSize, available, maxWidth_ + 2 * CellMargin});
    cellHeight_ = std::max(MinCellSize, fontHeight * Zoom(usualWidth_) + 2 * CellMargin);
    const int width = HeaderWidth() + Columns * cellWidth_;
    const int height = HeaderHeight() + int(rows_.size()) * cellHeight_;
    verticalScrollBar()->setRange(0, std::max(0, height - viewport()->height()));
    verticalScrollBar()->setPageStep(std::max(cellHeight_, viewport()->height() - HeaderHeight()));
    verticalScrollBar()->setSingleStep(cellHeight_);
    horizontalScrollBar()->setRange(0, std::max(0, width - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(cellWidth_);
}

// The largest whole number at which a character fits its cell. What is usual has the same size.
int CharTableView::Zoom(int width) const
{
    return std::max(1, (cellWidth_ - 2 * CellMargin) / std::max(width, usualWidth_));
}

int CharTableView::RowIndexOf(int code) const
{
    const auto row = std::ranges::lower_bound(rows_, code / Columns);
    const bool isShown = row != rows_.end() && *row == code / Columns;
    return isShown ? int(row - rows_.begin()) : -1;
}

QRect CharTableView::CellRect(int code) const
{
    const int row = code >= 0 ? RowIndexOf(code) : -1;
    if (row < 0)
        return {};
    return {HeaderWidth() + code % Columns * cellWidth_ - horizontalScrollBar()->value(),
            HeaderHeight() + row * cellHeight_ - verticalScrollBar()->value(), cellWidth_,
            cellHeight_};
}

int CharTableView::CodeAt(QPoint place) const
{
    if (place.y() < HeaderHeight() || place.x() < HeaderWidth())
        return -1;
    const int column = (place.x() - HeaderWidth() + horizontalScrollBar()->value()) / cellWidth_;
    const int row = (place.y() - HeaderHeight() + verticalScrollBar()->value()) / cellHeight_;
    if (column >= Columns || row >= int(rows_.size()))
        return -1;
    return rows_[std::size_t(row)] * Columns + column;
}

QString CharTableView::RowLabel(int row) const
{
    const int code = row * Columns;
    return hexadecimal_ ? u"0x"_s + Hex4Text(quint16(code)) : QString::number(code);
}

QString CharTableView::ColumnLabel(int column) const
{
    return hexadecimal_ ? QString::number(column, 16).toUpper() : u"+%1"_s.arg(column);
}

void CharTableView::paintEvent(QPaintEvent*)
{
    QPainter painter(viewport());
    if (font_ == nullptr) {
        painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
        painter.drawText(viewport()->rect(), Qt::AlignCenter,
                         tr("Open a font file or drop one here."));
        return;
    }
    const int first = verticalScrollBar()->value() / cellHeight_;
    const int last = std::min(int(rows_.size()) - 1,
                              (verticalScrollBar()->value() + viewport()->height()) / cellHeight_);
    for (int index = first; index <= last; ++index) {
        const int row = rows_[std::size_t(index)];
        for (int code = row * Columns; code < (row + 1) * Columns; ++code)
            PaintCell(painter, code, CellRect(code));
    }
    PaintHeaders(painter, {rows_.begin() + first, rows_.begin() + last + 1});
}

void CharTableView::PaintHeaders(QPainter& painter, std::span<const int> rows) const
{
    painter.fillRect(0, 0, viewport()->width(), HeaderHeight(), palette().button());
    painter.fillRect(0, 0, HeaderWidth(), viewport()->height(), palette().button());
    painter.setPen(palette().color(QPalette::ButtonText));
    for (int column = 0; column < Columns; ++column) {
        const int x = HeaderWidth() + column * cellWidth_ - horizontalScrollBar()->value();
        if (x >= HeaderWidth() - cellWidth_ / 2)
            painter.drawText(QRect(x, 0, cellWidth_, HeaderHeight()), Qt::AlignCenter,
                             ColumnLabel(column));
    }
    painter.setClipRect(0, HeaderHeight(), HeaderWidth(), viewport()->height());
    for (const int row : rows)
        painter.drawText(QRect(0, CellRect(row * Columns).top(), HeaderWidth() - 6, cellHeight_),
                         Qt::AlignRight | Qt::AlignVCenter, RowLabel(row));
    painter.setClipping(false);
}

// Ink on paper looks as it will on the display, in dark themes as well.
void CharTableView::PaintCharacter(QPainter& painter, const Character& character, bool isEnabled,
                                   const QRect& cell) const
{
    const QColor disabledInk = palette().color(QPalette::Disabled, QPalette::Text);
    const QColor disabledPaper = palette().color(QPalette::Disabled, QPalette::Button);
    painter.fillRect(cell, isEnabled ? QColor(Qt::white) : disabledPaper);
    const QImage picture =
        CharPicture(character, isEnabled ? QColor(Qt::black) : disabledInk, Qt::cyan);
    const CharInfo& info = character.info;
    const int zoom = Zoom(info.width);
    const int top = IsLegacyFormat(info.font.format) ? 0 : info.yPos * zoom;
    const QPoint origin(cell.left() + (cell.width() - picture.width() * zoom) / 2,
                        cell.top() + (cell.height() - info.font.height * zoom) / 2 + top);
    painter.setClipRect(cell);
    painter.drawImage(QRect(origin, picture.size() * zoom), picture);
    if (!isEnabled) {
        painter.setPen(disabledInk);
        painter.drawLine(cell.topLeft(), cell.bottomRight());
    }
    painter.setClipping(false);
}

void CharTableView::PaintCell(QPainter& painter, int code, const QRect& cell) const
{
    const auto code16 = quint16(code);
    const Character* const character = font_->FindChar(code16);
    const bool isEnabled = font_->IsEnabled(code16);
    if (character != nullptr && (showAll_ || isEnabled))
        PaintCharacter(painter, *character, isEnabled, cell);
    else
        painter.fillRect(cell, palette().window());
    if (selected_.Test(code16)) {
        QColor mark = palette().color(QPalette::Highlight);
        mark.setAlpha(90);
        painter.fillRect(cell, mark);
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(cell);
    if (code == current_) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), hasFocus() ? 3 : 1));
        painter.drawRect(cell.adjusted(2, 2, -2, -2));
    }
}

bool CharTableView::SetCurrentCode(int code)
{
    if (code < 0 || code >= CodeSet::Limit || RowIndexOf(code) < 0)
        return false;
    Select(code, Qt::NoModifier);
    return true;
}

void CharTableView::SelectSpan(int first, int last)
{
    selected_ = {};
    for (const int row : rows_) {
        const int from = std::max(row * Columns, std::min(first, last));
        const int to = std::min(row * Columns + Columns - 1, std::max(first, last));
        if (from <= to)
            selected_.SetRange(quint16(from), quint16(to), true);
    }
    KeepShownSelected();
}

// What can't be seen is not to be edited.
void CharTableView::KeepShownSelected()
{
    if (!showAll_ && font_ != nullptr)
        selected_ &= font_->EnabledCodes();
}

// Shift selects the span from the place where selecting began; Ctrl adds or takes away one code.
void CharTableView::Select(int code, Qt::KeyboardModifiers modifiers)
{
    if ((modifiers & Qt::ShiftModifier) != 0 && anchor_ >= 0) {
        SelectSpan(anchor_, code);
    } else {
        if ((modifiers & Qt::ControlModifier) != 0) {
            selected_.Set(quint16(code), !selected_.Test(quint16(code)));
        } else {
            selected_ = {};
            selected_.Set(quint16(code), true);
        }
        KeepShownSelected();
        anchor_ = code;
    }
    const bool isOther = code != current_;
    current_ = code;
    setAccessibleDescription(CodeDescription(code));
    ScrollTo(code);
    viewport()->update();
    if (isOther)
        Q_EMIT CurrentChanged(code);
    Q_EMIT SelectionChanged();
}

void CharTableView::ScrollTo(int code)
{
    const QRect cell = CellRect(code);
    if (cell.isEmpty())
        return;
    const auto scroll = [](QScrollBar* bar, int first, int last, int start, int end) {
        if (first < start)
            bar->setValue(bar->value() - (start - first));
        else if (last > end)
            bar->setValue(bar->value() + (last - end));
    };
    scroll(verticalScrollBar(), cell.top(), cell.bottom() + 1, HeaderHeight(),
           viewport()->height());
    scroll(horizontalScrollBar(), cell.left(), cell.right() + 1, HeaderWidth(),
           viewport()->width());
}

int CharTableView::CodeAfterKey(int key, bool withControl) const
{
    const int count = int(rows_.size());
    const int page = std::max(1, (viewport()->height() - HeaderHeight()) / cellHeight_);
    int row = std::max(0, RowIndexOf(current_));
    int column = std::max(0, current_) % Columns;
    switch (key) {
    case Qt::Key_Left:
        column = column > 0 ? column - 1 : (row > 0 ? Columns - 1 : 0);
        row -= current_ % Columns == 0 && row > 0 ? 1 : 0;
        break;
    case Qt::Key_Right: {
        const bool wraps = column == Columns - 1;
        if (wraps && row + 1 == count)
            break;
        column = wraps ? 0 : column + 1;
        row += wraps ? 1 : 0;
        break;
    }
    case Qt::Key_Up:
        row = std::max(0, row - 1);
        break;
    case Qt::Key_Down:
        row = std::min(count - 1, row + 1);
        break;
    case Qt::Key_PageUp:
        row = std::max(0, row - page);
        break;
    case Qt::Key_PageDown:
        row = std::min(count - 1, row + page);
        break;
    case Qt::Key_Home:
        row = withControl ? 0 : row;
        column = 0;
        break;
    case Qt::Key_End:
        row = withControl ? count - 1 : row;
        column = Columns - 1;
        break;
    default:
        return -1;
    }
    return rows_[std::size_t(row)] * Columns + column;
}

// What typing a text jumps to; -1 for texts that are no single character of the font.
int CharTableView::CodeOfText(const QString& text) const
{
    if (font_ == nullptr || text.size() != 1 || !text[0].isPrint())
        return -1;
    quint16 code = text[0].unicode();
    const EncodingType encoding = font_->Metrics().encoding;
    const bool isEncoded = EncodingFor(EncodingType::Unicode).Convert(encoding, code);
    return isEncoded && font_->FindChar(code) != nullptr ? code : -1;
}

// Typing jumps to a character, so it must not trigger the commands that have letters as shortcuts,
// whether or not the font has the character.
bool CharTableView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        const auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
        const QString text = key->text();
        const bool isTyped = text.size() == 1 && text[0].isPrint();
        if (font_ != nullptr && (key->modifiers() & commands) == 0 && isTyped) {
            event->accept();
            return true;
        }
    }
    return QAbstractScrollArea::event(event);
}

void CharTableView::keyPressEvent(QKeyEvent* event)
{
    if (rows_.empty()) {
        QAbstractScrollArea::keyPressEvent(event);
        return;
    }
    const bool withControl = (event->modifiers() & Qt::ControlModifier) != 0;
    if (event->matches(QKeySequence::SelectAll)) {
        SelectSpan(0, CodeSet::Limit - 1);
        viewport()->update();
        Q_EMIT SelectionChanged();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT Activated(current_);
        return;
    }
    const int code = CodeAfterKey(event->key(), withControl);
    if (code >= 0) {
        Select(code, event->modifiers() & Qt::ShiftModifier);
        return;
    }
    if (!withControl && SetCurrentCode(CodeOfText(event->text())))
        return;
    QAbstractScrollArea::keyPressEvent(event);
}

void CharTableView::mousePressEvent(QMouseEvent* event)
{
    const int code = CodeAt(event->pos());
    if (code < 0)
        return;
    // The menu of a selection is for all of it.
    const bool opensMenu = event->button() == Qt::RightButton;
    if (!opensMenu || !selected_.Test(quint16(code)))
        Select(code, opensMenu ? Qt::NoModifier : event->modifiers());
}

void CharTableView::mouseMoveEvent(QMouseEvent* event)
{
    const int code = CodeAt(event->pos());
    if ((event->buttons() & Qt::LeftButton) != 0 && code >= 0 && code != current_)
        Select(code, Qt::ShiftModifier);
}

void CharTableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const int code = CodeAt(event->pos());
    if (code >= 0)
        Q_EMIT Activated(code);
}

bool CharTableView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QAbstractScrollArea::viewportEvent(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    const int code = CodeAt(help->pos());
    if (code < 0 || font_ == nullptr) {
        QToolTip::hideText();
        return true;
    }
    QToolTip::showText(help->globalPos(), CodeDescription(code), this, CellRect(code));
    return true;
}

QString CharTableView::CodeDescription(int code) const
{
    const QLatin1StringView name = EncodingFor(font_->Metrics().encoding).CharName(quint16(code));
    const QString number = hexadecimal_ ? u"0x"_s + Hex4Text(quint16(code)) : QString::number(code);
    return name.isEmpty() ? number : number + u' ' + name;
}

void CharTableView::resizeEvent(QResizeEvent*)
{
    UpdateSizes();
    UpdateSizes(); // the zoom follows from the width of the cells
    if (current_ >= 0)
        ScrollTo(current_);
}

void CharTableView::focusInEvent(QFocusEvent*)
{
    viewport()->update();
}

void CharTableView::focusOutEvent(QFocusEvent*)
{
    viewport()->update();
}

} // namespace Glyphor
