#include "ui/editor/pencil_tool.h"

#include "actions/edit_actions.h"
#include "actions/edit_table.h"
#include "actions/session.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/support/guarded.h"
#include "ui/support/undo_stack.h"

#include <QAction>
#include <QMouseEvent>
#include <QSpinBox>

namespace Glyphor {

using namespace Qt::StringLiterals;

PencilTool::PencilTool(Session& session, UndoStack& history, CharBitmapView& editor)
    : QObject(&editor),
      session_(session),
      history_(history),
      editor_(editor),
      command_(new QAction(QIcon(u":/icons/pencil.svg"_s), tr("Pencil"), this)),
      index_(new QSpinBox)
{
    command_->setCheckable(true);
    command_->setStatusTip(tr("Paint pixels by clicking and dragging (Ctrl inverts them)"));
    index_->setToolTip(tr("Index that the pencil paints"));
    index_->setAccessibleName(index_->toolTip());
    editor.viewport()->installEventFilter(this);
    connect(&editor, &CharBitmapView::CharacterLeft, this, &PencilTool::EndStroke);
}

void PencilTool::ShowFont(const Font* font)
{
    const int maximum = font != nullptr ? (1 << font->Metrics().bitsPerPixel) - 1 : 1;
    index_->setRange(0, maximum);
    index_->setValue(maximum);
    index_->setEnabled(font != nullptr);
    command_->setEnabled(font != nullptr);
}

bool PencilTool::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const auto& mouse = *static_cast<QMouseEvent*>(event);
        EndStroke();
        if (!command_->isChecked() || mouse.button() != Qt::LeftButton ||
            editor_.CurrentCharacter() == nullptr)
            return false;
        BeginStroke(mouse);
        return true;
    }
    case QEvent::MouseMove: {
        const auto& mouse = *static_cast<QMouseEvent*>(event);
        // The release may have gone elsewhere.
        if (isStroking_ && !mouse.buttons().testFlag(Qt::LeftButton))
            EndStroke();
        if (!isStroking_)
            return false;
        PaintTo(mouse);
        return true;
    }
    case QEvent::MouseButtonRelease: {
        const bool isEnd = isStroking_;
        EndStroke();
        return isEnd;
    }
    case QEvent::Hide:
        EndStroke();
        return false;
    default:
        return false;
    }
}

void PencilTool::BeginStroke(const QMouseEvent& mouse)
{
    isStroking_ = true;
    lastCell_ = editor_.CellAt(mouse.pos());
    PaintTo(mouse);
}

// Paints all cells on the way, as a fast mouse skips some.
void PencilTool::PaintTo(const QMouseEvent& mouse)
{
    const QPoint cell = editor_.CellAt(mouse.pos());
    const bool inverts = mouse.modifiers().testFlag(Qt::ControlModifier);
    const QPoint way = cell - lastCell_;
    const int steps = std::max(std::abs(way.x()), std::abs(way.y()));
    for (int step = 1; step <= steps; ++step)
        PaintCell(lastCell_ + way * (qreal(step) / steps), inverts);
    if (steps == 0)
        PaintCell(cell, inverts);
    lastCell_ = cell;
}

// Each cell once in a stroke.
void PencilTool::PaintCell(QPoint cell, bool inverts)
{
    const CharPixelItem* const item = editor_.CellItem(cell.x(), cell.y());
    if (item == nullptr || item->CellState() == CharPixelItem::Outside ||
        !painted_.insert(item).second)
        return;
    PaintPixel(item->BitmapPosition(), inverts);
    editor_.ShowStatus(*item);
}

void PencilTool::PaintPixel(QPoint pixel, bool inverts)
{
    const int index = index_->value();
    if (!inverts &&
        editor_.CurrentCharacter()->bitmap->GetPixelIndex(pixel.x(), pixel.y()) == index)
        return;
    const ActionType type = inverts ? ActionType::InvertPixelIndex : EditThatSets(index).type;
    const auto action = std::make_shared<ActionPixelIndex>(session_, type);
    action->Args().code = quint16(editor_.CurrentCode());
    action->Args().x = pixel.x();
    action->Args().y = pixel.y();
    if (!hasSteps_) {
        hasSteps_ = true;
        history_.beginMacro(tr("Stroke"));
    }
    Guarded([&action] { action->Run(); });
}

void PencilTool::EndStroke()
{
    if (!isStroking_)
        return;
    isStroking_ = false;
    painted_.clear();
    if (hasSteps_)
        history_.endMacro();
    hasSteps_ = false;
    Q_EMIT StrokeEnded();
}

} // namespace Glyphor
