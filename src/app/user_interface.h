#pragma once

#include "app/action_type.h"
#include "model/font_format.h"

#include <QString>

#include <memory>
#include <optional>

namespace Glyphor {

class Action;

// What a file does not tell of its font.
struct FormatChoice
{
    FontFormat format;
    EncodingType encoding;
};

// What becomes of characters that both fonts have. The numbers are those of the user interfaces.
enum class MergeMode { Replace = 2, Keep = 3 };

// Nobody answers where there is nobody to ask.
enum class Answer { No, Yes, Nobody };

// How the engine talks to whoever uses it. The engine reaches the current one through
// CurrentInterface() and never prints, asks or shows anything itself.
class BasicInterface
{
public:
    BasicInterface() = default;
    BasicInterface(const BasicInterface&) = delete;
    BasicInterface& operator=(const BasicInterface&) = delete;

    virtual void information(const QString& title, const QString& text) = 0;
    virtual void warning(const QString& title, const QString& text) = 0;
    virtual void critical(const QString& title, const QString& text) = 0;

    // Handles a kind that has no action object; false where it doesn't.
    virtual bool handleRequest(ActionType kind) = 0;

    // Fills the action's argument record; false: the action is not to be performed.
    virtual bool requestAction(Action& action) = 0;

    // Tells that an action was performed, with its log line. True if there is an action.
    virtual bool actionPerformed(const std::shared_ptr<Action>& action, const QString& logText) = 0;

    // Something that was asked for could not be had.
    virtual void Lacking(const QString& text) = 0;

    // Worth knowing, and nothing to be done about.
    virtual void Hint(const QString& text) = 0;

    // Tells that a part of an action could not be done.
    virtual void PartlyDone(const QString& text) = 0;

    // Tells that an action was undone or redone, so that views show the change.
    virtual void ActionChanged(const std::shared_ptr<Action>& action) = 0;

    // Long work: `value` runs from 0 to `maximum`, in steps worth showing. False asks it to stop.
    virtual bool ProgressChanged(const QString& text, int value, int maximum) = 0;
    virtual void ProgressFinished() = 0;

    // These give nothing where the user gives up. The encoding is `assumed` unless it is chosen
    // too.
    virtual std::optional<FormatChoice> askFontFormat(EncodingType assumed) = 0;
    virtual std::optional<MergeMode> askMergeMode() = 0;

    // A question with the answers yes and no.
    virtual Answer Ask(const QString& title, const QString& text) = 0;

    virtual ~BasicInterface() = default;
};

// Says nothing and answers no question: what an interface does unless it knows better.
class UserInterface : public BasicInterface
{
public:
    void information(const QString&, const QString&) override {}
    void warning(const QString&, const QString&) override {}
    void critical(const QString&, const QString&) override {}
    bool handleRequest(ActionType) override { return false; }
    bool requestAction(Action&) override { return false; }
    bool actionPerformed(const std::shared_ptr<Action>& action, const QString&) override
    {
        return action != nullptr;
    }
    void Lacking(const QString&) override {}
    void Hint(const QString&) override {}
    void PartlyDone(const QString&) override {}
    void ActionChanged(const std::shared_ptr<Action>&) override {}
    bool ProgressChanged(const QString&, int, int) override { return true; }
    void ProgressFinished() override {}
    std::optional<FormatChoice> askFontFormat(EncodingType) override { return std::nullopt; }
    std::optional<MergeMode> askMergeMode() override { return std::nullopt; }
    Answer Ask(const QString&, const QString&) override { return Answer::Nobody; }
};

// The process-wide interface: a silent one until a front end sets its own.
[[nodiscard]] BasicInterface& CurrentInterface();

// The interface stays the caller's and must be taken back (null) before it goes.
void SetCurrentInterface(BasicInterface* interface);

// Makes an interface the current one for as long as it lives, and then the one before it again.
class InterfaceScope
{
public:
    explicit InterfaceScope(BasicInterface& interface) : previous_(CurrentInterface())
    {
        SetCurrentInterface(&interface);
    }
    ~InterfaceScope() { SetCurrentInterface(&previous_); }
    InterfaceScope(const InterfaceScope&) = delete;
    InterfaceScope& operator=(const InterfaceScope&) = delete;

    [[nodiscard]] BasicInterface& Previous() const { return previous_; }

private:
    BasicInterface& previous_;
};

} // namespace Glyphor
