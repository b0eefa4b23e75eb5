#include "ui/support/value_fields.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

bool LeavesToWindow(const QEvent& event, const QLineEdit& line)
{
    if (event.type() != QEvent::ShortcutOverride)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return (key.matches(QKeySequence::Undo) && !line.isUndoAvailable()) ||
           (key.matches(QKeySequence::Redo) && !line.isRedoAvailable());
}

NumberField::NumberField(QWidget* parent) : QSpinBox(parent)
{
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus); // the wheel scrolls what the field stands in
    connect(this, &QSpinBox::valueChanged, this, [this](int value) {
        Q_EMIT ValueSet(value, isSpinning_);
        ForgetTyping();
    });
    ShowNone();
}

void NumberField::SetLimits(int least, int most)
{
    least_ = least;
    most_ = most;
}

void NumberField::ShowValue(std::optional<int> value, int one)
{
    one_ = one;
    Present(value ? State::One : State::Several, value.value_or(least_ - 1));
}

void NumberField::ShowNone()
{
    Present(State::None, least_ - 1);
}

// What is typed stays where the value is the same.
void NumberField::Present(State state, int value)
{
    const QSignalBlocker blocker(this);
    const bool isOne = state == State::One;
    const int least = isOne ? std::min(least_, value) : least_ - 1;
    const bool isSame = state == state_ && value == this->value() && least == minimum();
    state_ = state;
    if (isSame && maximum() == most_)
        return;
    setSpecialValueText(isOne ? QString() : state == State::Several ? tr("various") : u"–"_s);
    setRange(least, most_);
    setValue(value);
    ForgetTyping();
}

void NumberField::stepBy(int steps)
{
    const QScopedValueRollback spinning(isSpinning_, true);
    if (state_ == State::Several && value() == minimum())
        setValue(std::clamp(one_ + steps, least_, most_));
    else
        QSpinBox::stepBy(steps);
}

QAbstractSpinBox::StepEnabled NumberField::stepEnabled() const
{
    return state_ == State::Several ? StepUpEnabled | StepDownEnabled : QSpinBox::stepEnabled();
}

void NumberField::ForgetTyping()
{
    const QSignalBlocker blocker(lineEdit());
    lineEdit()->setText(lineEdit()->text());
}

bool NumberField::event(QEvent* event)
{
    if (!LeavesToWindow(*event, *lineEdit()))
        return QSpinBox::event(event);
    event->ignore();
    return true;
}

void NumberField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape)
        return QSpinBox::keyPressEvent(event);
    const bool isSpecial = !specialValueText().isEmpty() && value() == minimum();
    lineEdit()->setText(isSpecial ? specialValueText()
                                  : prefix() + textFromValue(value()) + suffix());
    selectAll();
}

void NumberField::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QSpinBox::wheelEvent(event);
    else
        event->ignore();
}

NameField::NameField(QWidget* parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::editingFinished, this, &NameField::TakeTyped);
}

void NameField::ShowName(const QString& name)
{
    if (name == shown_)
        return;
    shown_ = name;
    setText(name);
    setCursorPosition(0);
}

void NameField::TakeTyped()
{
    const QString name = text().simplified();
    if (name == shown_.simplified() || name.isEmpty())
        return setText(shown_);
    Q_EMIT NameSet(name);
    setText(shown_); // as it became
}

bool NameField::event(QEvent* event)
{
    if (!LeavesToWindow(*event, *this))
        return QLineEdit::event(event);
    event->ignore();
    return true;
}

void NameField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape)
        return QLineEdit::keyPressEvent(event);
    setText(shown_);
    selectAll();
}

} // namespace Glyphor
