#pragma once

#include <QLineEdit>
#include <QSpinBox>

#include <optional>

namespace Glyphor {

// Fields take the keys of undo and redo for what is typed. True for such a key where there is
// nothing of that: it is the window's then.
[[nodiscard]] bool LeavesToWindow(const QEvent& event, const QLineEdit& line);

// A number that stands for one or several things. It tells a new one when Return is pressed or the
// field is left, and each one that it spins to. What was told already is the window's to undo.
class NumberField final : public QSpinBox
{
    Q_OBJECT

public:
    explicit NumberField(QWidget* parent = nullptr);

    void SetLimits(int least, int most);

    // Nothing for several values, of which spinning goes on from one.
    void ShowValue(std::optional<int> value, int one);

    // For nothing that has a number. It can't be edited.
    void ShowNone();

    // False where the number stands for several ones.
    [[nodiscard]] bool HasValue() const { return state_ == State::One; }

    void stepBy(int steps) override;

Q_SIGNALS:
    void ValueSet(int value, bool isSpinning);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    [[nodiscard]] StepEnabled stepEnabled() const override;

private:
    enum class State { One, Several, None };

    void Present(State state, int value);
    void ForgetTyping();

    int least_ = 0;
    int most_ = 255;
    int one_ = 0;
    State state_ = State::None;
    bool isSpinning_ = false;
};

// A name that is told when Return is pressed or the field is left. It is never empty.
class NameField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit NameField(QWidget* parent = nullptr);

    void ShowName(const QString& name);

    // Tells what was typed.
    void TakeTyped();

Q_SIGNALS:
    void NameSet(const QString& name);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString shown_;
};

} // namespace Glyphor
