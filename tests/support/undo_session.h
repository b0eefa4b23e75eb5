#pragma once

#include "actions/session.h"

#include <optional>
#include <vector>

namespace Glyphor::Test {

// A history that moves back and forth, as that of a window does.
class UndoHistory final : public ActionStack
{
public:
    void Push(const std::shared_ptr<Action>& action) override
    {
        undoable_.resize(next_);
        if (clean_ && *clean_ > next_)
            clean_.reset();
        DropUndone();
        ActionStack::Push(action);
        if (!action->IsUndoable())
            return;
        undoable_.push_back(action);
        ++next_;
    }
    void Clear() override
    {
        ActionStack::Clear();
        undoable_.clear();
        next_ = 0;
        clean_ = 0;
    }
    [[nodiscard]] bool IsAsSaved() const override { return clean_ == next_; }
    void MarkSaved() override { clean_ = next_; }

    [[nodiscard]] std::size_t Count() const { return undoable_.size(); }
    [[nodiscard]] bool CanUndo() const { return next_ > 0; }
    void Undo()
    {
        if (CanUndo())
            undoable_[--next_]->Undo();
    }
    void Redo()
    {
        if (next_ < undoable_.size())
            undoable_[next_++]->Redo();
    }

private:
    std::vector<std::shared_ptr<Action>> undoable_;
    std::size_t next_ = 0; // to be redone
    std::optional<std::size_t> clean_ = 0;
};

struct HistoryOwner
{
    UndoHistory history;
};

// A session whose actions can be undone.
class UndoSession final : private HistoryOwner, public Session
{
public:
    explicit UndoSession(std::unique_ptr<Font> font = nullptr) : Session(history)
    {
        if (font != nullptr)
            ReplaceFont(std::move(font), {});
    }

    [[nodiscard]] UndoHistory& Stack() { return history; }
};

} // namespace Glyphor::Test
