#pragma once

#include "actions/log_entry.h"
#include "app/action_type.h"
#include "model/code_set.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace Glyphor {

class Font;
class Session;

// One change to the font of a session, or one use of it. Always held by shared ownership: made with
// std::make_shared, run once, and then kept by the session's stack, where undo and redo move it
// between applied and undone.
class Action : public std::enable_shared_from_this<Action>
{
public:
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;
    virtual ~Action() = default;

    // Does whatever can fail and must come before the first step. False: there is nothing to do and
    // the action is dropped. Throws a CriticalException on failure; the font is then as it was.
    virtual bool Execute() = 0;

    // Reverts one elementary step.
    virtual void UndoOnce() = 0;

    // Applies one elementary step, the first time too. Must not throw.
    virtual void RedoOnce() = 0;

    // What the action tells in the log, if anything.
    [[nodiscard]] virtual LogEntry Log() const = 0;

    // The action's line in the log; empty for none.
    [[nodiscard]] virtual QString LogText() const { return Log().Text(); }

    // What the action could not do of what it was told; empty where it did everything.
    [[nodiscard]] virtual QString Shortfall() const { return {}; }

    // All that the log has of the action now.
    [[nodiscard]] virtual QStringList LogLines() const;

    // How often its line stands in the log.
    [[nodiscard]] virtual int LoggedSteps() const { return applied_; }

    // The codes that undo and redo change; empty where that is the font as a whole.
    [[nodiscard]] virtual CodeSet AffectedCodes() const { return {}; }

    // False for actions that stay out of the undo stack and have their line in the log only.
    [[nodiscard]] virtual bool IsUndoable() const { return true; }

    // Executes the action, pushes it on the session's stack and tells the interface. False where
    // there was nothing to do. These three throw std::bad_weak_ptr unless the action is shared.
    bool Run();
    void Undo();
    void Redo();

    [[nodiscard]] ActionType Type() const { return type_; }
    [[nodiscard]] int Repeat() const { return repeat_; }

    // For an action that has not run yet. Actions whose undo data hold one step set it back to 1.
    void SetRepeat(int repeat) { repeat_ = repeat; }

    // How many elementary steps are in force: 0 or the repeat count.
    [[nodiscard]] int Applied() const { return applied_; }

    // The log message of the type, or of the action's own type; null where there is none.
    [[nodiscard]] const char* MessageFor(ActionType type = ActionType::None) const;

protected:
    // `repeat` elementary steps are applied, undone and redone as one.
    Action(Session& session, ActionType type, int repeat = 1)
        : session_(session), type_(type), repeat_(repeat)
    {}

    [[nodiscard]] Session& CurrentSession() const { return session_; }

    // Null where the session has none.
    [[nodiscard]] Font* CurrentFont() const;

    [[noreturn]] static void ThrowActionError(const QString& title, const QString& message);

private:
    Session& session_;
    ActionType type_;
    int repeat_;
    int applied_ = 0;
};

// An action with a record of arguments, which a front end fills before the action runs.
template <typename Arguments>
class ActionWithArgs : public Action
{
public:
    [[nodiscard]] Arguments& Args() { return arguments_; }
    [[nodiscard]] const Arguments& Args() const { return arguments_; }

protected:
    using Action::Action;

private:
    Arguments arguments_;
};

// What log lines of character actions begin with: one code, or a range of codes.
[[nodiscard]] QString RangePrefix(quint16 first, quint16 last);

// The texts of the log. %1 is a range prefix or a file path, %2 and %3 a pixel, %4 an index. Null
// where a type has none.
[[nodiscard]] const char* LogMessage(ActionType type);

} // namespace Glyphor
