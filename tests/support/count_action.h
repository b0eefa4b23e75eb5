#pragma once

#include "actions/action.h"

namespace Glyphor::Test {

struct CountArgs
{
    int step = 1;
};

// Counts, so that every step of the framework can be seen.
class CountAction final : public ActionWithArgs<CountArgs>
{
public:
    CountAction(Session& session, int& total, int repeat,
                const QString& text = QStringLiteral("Counted."))
        : ActionWithArgs(session, ActionType::ShiftRight, repeat), total_(total), text_(text)
    {}

    bool Execute() override { return Args().step != 0; }
    void UndoOnce() override { total_ -= Args().step; }
    void RedoOnce() override { total_ += Args().step; }
    [[nodiscard]] LogEntry Log() const override
    {
        return text_.isEmpty() ? LogEntry() : LogEntry("%1", {text_});
    }

private:
    int& total_;
    QString text_;
};

} // namespace Glyphor::Test
