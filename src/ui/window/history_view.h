#pragma once

#include <QAbstractListModel>
#include <QListView>

namespace Glyphor {

class UndoStack;

// The states that a history leads to, oldest first: one in front of all actions, and one behind
// each of them.
class HistoryModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    // The history must outlive it.
    explicit HistoryModel(const UndoStack& history, QObject* parent = nullptr);

    // Whether there is a file that the font was opened from or saved to as it is.
    void SetHasFile(bool hasFile);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    void Follow();
    void TellChange();

    const UndoStack& history_;
    int count_ = 0; // of the actions that are told
    bool hasFile_ = false;
};

// The history as a list, which marks the current state and leads to any other.
class HistoryView final : public QListView
{
    Q_OBJECT

public:
    explicit HistoryView(const UndoStack& history);

    void SetHasFile(bool hasFile) { model_->SetHasFile(hasFile); }

Q_SIGNALS:
    // How many actions are in force in the state that is wanted.
    void StateRequested(int index);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Mark();

    const UndoStack& history_;
    HistoryModel* model_;
};

} // namespace Glyphor
