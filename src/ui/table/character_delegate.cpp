#include "ui/table/character_delegate.h"

#include "ui/support/char_picture.h"
#include "ui/support/contrast.h"
#include "ui/table/character_model.h"

#include <QAbstractItemView>
#include <QBuffer>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// A small triangle in the lower right corner.
void PaintCutMark(QPainter& painter, const QRect& cell, const QColor& colour)
{
    constexpr int size = 7;
    const QPoint corner = cell.bottomRight() + QPoint(1, 1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(QPolygon{corner, corner - QPoint(size, 0), corner - QPoint(0, size)});
}

// The picture in a text of a tool tip.
QString ImageMarkup(const QImage& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return u"<img src=\"data:image/png;base64,%1\"><br>"_s.arg(
        QString::fromLatin1(bytes.toBase64()));
}

} // namespace

CharacterDelegate::CharacterDelegate(const CharacterModel& model, QObject* parent)
    : QStyledItemDelegate(parent), model_(model)
{}

bool CharacterDelegate::IsCut(const Character& character, const QRect& cell) const
{
    return character.info.width * zoom_ > cell.width();
}

void CharacterDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    const quint16 code = model_.CodeOf(index);
    const QPalette& palette = option.palette;
    painter->save();
    painter->setClipRect(option.rect);
    if (const Character* const character = model_.CharacterAt(code))
        PaintCharacter(*painter, *character, model_.ShownFont()->IsEnabled(code), option);
    else
        painter->fillRect(option.rect, palette.window());
    if (option.state.testFlag(QStyle::State_Selected)) {
        QColor mark = palette.color(QPalette::Highlight);
        mark.setAlpha(90);
        painter->fillRect(option.rect, mark);
    }
    const auto* const view = qobject_cast<const QAbstractItemView*>(option.widget);
    if (view != nullptr && view->currentIndex() == index) {
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(palette.color(QPalette::Highlight), view->hasFocus() ? 3 : 1));
        painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
    }
    painter->restore();
}

// Ink on paper looks as it will on the display, in dark themes as well.
void CharacterDelegate::PaintCharacter(QPainter& painter, const Character& character,
                                       bool isEnabled, const QStyleOptionViewItem& option) const
{
    const QRect& cell = option.rect;
    const QColor disabledPaper = option.palette.color(QPalette::Disabled, QPalette::Button);
    const QColor disabledInk =
        LegibleInk(option.palette.color(QPalette::Disabled, QPalette::Text), disabledPaper);
    painter.fillRect(cell, isEnabled ? QColor(Qt::white) : disabledPaper);
    const QImage picture =
        CharPicture(character, isEnabled ? QColor(Qt::black) : disabledInk, Qt::cyan);
    const CharInfo& info = character.info;
    const bool isCut = IsCut(character, cell);
    const int top = IsLegacyFormat(info.font.format) ? 0 : info.yPos * zoom_;
    const int left = isCut ? Margin : (cell.width() - picture.width() * zoom_) / 2;
    const QPoint origin(cell.left() + left,
                        cell.top() + (cell.height() - info.font.height * zoom_) / 2 + top);
    painter.drawImage(QRect(origin, picture.size() * zoom_), picture);
    if (isCut)
        PaintCutMark(painter, cell, option.palette.color(QPalette::Highlight));
    if (!isEnabled) {
        painter.setPen(disabledInk);
        painter.drawLine(cell.topLeft(), cell.bottomRight());
    }
}

bool CharacterDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                  const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const Character* const character =
        index.isValid() ? model_.CharacterAt(model_.CodeOf(index)) : nullptr;
    const bool showsWhole =
        event->type() == QEvent::ToolTip && character != nullptr && IsCut(*character, option.rect);
    if (!showsWhole)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QImage ink = CharPicture(*character, Qt::black, Qt::cyan);
    QImage picture(ink.size() * zoom_, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter(&picture).drawImage(picture.rect(), ink);
    const QString text = index.data(Qt::ToolTipRole).toString().toHtmlEscaped();
    QToolTip::showText(event->globalPos(), ImageMarkup(picture) + text, view, option.rect);
    return true;
}

} // namespace Glyphor
