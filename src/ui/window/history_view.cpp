#include "ui/window/history_view.h"

#include "ui/support/undo_stack.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

namespace Glyphor {

HistoryModel::HistoryModel(const UndoStack& history, QObject* parent)
    : QAbstractListModel(parent), history_(history), count_(history.count())
{
    connect(&history, &QUndoStack::indexChanged, this, &HistoryModel::Follow);
    connect(&history, &QUndoStack::cleanChanged, this, &HistoryModel::TellChange);
}

void HistoryModel::SetHasFile(bool hasFile)
{
    if (hasFile == hasFile_)
        return;
    hasFile_ = hasFile;
    TellChange();
}

// Actions come and go at the end alone.
void HistoryModel::Follow()
{
    const int count = history_.count();
    if (count < count_) {
        beginRemoveRows({}, count + 1, count_);
        count_ = count;
        endRemoveRows();
    } else if (count > count_) {
        beginInsertRows({}, count_ + 1, count);
        count_ = count;
        endInsertRows();
    }
    TellChange();
}

void HistoryModel::TellChange()
{
    Q_EMIT dataChanged(index(0), index(count_));
}

int HistoryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count_ + 1;
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const
{
    const int row = index.row();
    if (!index.isValid() || row > history_.count())
        return {};
    const bool isSaved = hasFile_ && row == history_.cleanIndex();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: {
        const QString text = row == 0 ? tr("Beginning") : history_.ShownText(row - 1);
        return isSaved ? tr("Saved: %1").arg(text) : text;
    }
    case Qt::FontRole: {
        QFont font = QGuiApplication::font();
        font.setBold(isSaved);
        return font;
    }
    case Qt::ForegroundRole: // what was undone
        return row > history_.index()
                   ? QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text)
                   : QVariant();
    default:
        return {};
    }
}

HistoryView::HistoryView(const UndoStack& history)
    : history_(history), model_(new HistoryModel(history, this))
{
    setAccessibleName(tr("History"));
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(&history, &QUndoStack::indexChanged, this, &HistoryView::Mark);
    for (const auto signal : {&QAbstractItemView::clicked, &QAbstractItemView::activated})
        connect(this, signal, this,
                [this](const QModelIndex& index) { Q_EMIT StateRequested(index.row()); });
}

// Hidden, it costs nothing.
void HistoryView::showEvent(QShowEvent* event)
{
    setModel(model_);
    Mark();
    QListView::showEvent(event);
}

void HistoryView::hideEvent(QHideEvent* event)
{
    setModel(nullptr);
    QListView::hideEvent(event);
}

void HistoryView::Mark()
{
    if (model() != nullptr)
        setCurrentIndex(model_->index(history_.index()));
}

} // namespace Glyphor
