#pragma once

#include "actions/action_set_font_metrics.h"
#include "app/action_type.h"
#include "model/code_set.h"

#include <QElapsedTimer>
#include <QObject>

#include <functional>

namespace Glyphor {

class EditCommands;
class Session;
class UndoStack;

// Sets metrics as the fields of the window tell them. While a field spins, each new value takes the
// place of the one before, so that all of it is one step.
class MetricCommands final : public QObject
{
    Q_OBJECT

public:
    // It belongs to the edits. The others must outlive it.
    MetricCommands(Session& session, UndoStack& history, EditCommands& edits);

    // Of the selected characters, by one of the edits that take a value.
    void SetOfCharacters(ActionType edit, int value, bool isSpinning);

    void SetOfFont(FontMetric metric, int value, bool isSpinning);
    void SetName(const QString& name);

private:
    // The step that the next value of the same field may take the place of.
    struct Spin
    {
        int field = -1; // none
        CodeSet codes;
        QElapsedTimer sinceLast;
    };

    void Run(int field, const CodeSet& codes, bool isSpinning,
             const std::function<std::shared_ptr<Action>()>& make);

    Session& session_;
    UndoStack& history_;
    EditCommands& edits_;
    Spin spin_;
};

} // namespace Glyphor
