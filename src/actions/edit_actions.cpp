#include "actions/edit_actions.h"

#include "actions/edit_table.h"
#include "actions/paste_action.h"
#include "actions/session.h"
#include "app/engine_texts.h"
#include "model/code_text.h"

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

CodeSet RangeOf(quint16 first, quint16 last)
{
    CodeSet codes;
    codes.SetRange(first, last, true);
    return codes;
}

// Toggling tells the state that it led to.
template <typename RangeAction>
LogEntry EntryOf(const RangeAction& action, bool isEnabled)
{
    const ActionType state = isEnabled ? ActionType::Enable : ActionType::Disable;
    const bool isToggle = action.Type() == ActionType::Toggle;
    return LogEntry(action.MessageFor(isToggle ? state : ActionType::None))
        .About(RangePrefix(action.Args().first, action.Args().last));
}

} // namespace

ActionChar::ActionChar(Session& session, ActionType type, quint16 code)
    : ActionWithArgs(session, type)
{
    Args() = {.first = code, .last = code};
}

template <typename Visit>
void ActionChar::ForEachChar(Visit visit) const
{
    Font& font = *CurrentFont();
    const CodeSet& existing = font.ExistingCodes();
    for (int code = existing.Next(Args().first); code <= Args().last;
         code = existing.Next(code + 1))
        visit(static_cast<quint16>(code), *font.FindChar(static_cast<quint16>(code)));
}

bool ActionChar::Execute()
{
    if (CurrentFont() == nullptr)
        return false;
    target_ = !CurrentFont()->IsEnabled(Args().first);
    if (Type() == ActionType::Toggle)
        return true;
    const Edit& edit = *EditOf(Type());
    if (edit.copies)
        PrepareCopies();
    else if (edit.revert == nullptr)
        PrepareSwap(edit);
    return stepsOfSwap_ > 0 && (edit.applyValue == nullptr || !swap_->IsEmpty());
}

// The others do nothing there that a file would hold.
bool ActionChar::IsRefusedByFormat(const Edit& edit) const
{
    return edit.applyValue != nullptr && edit.notForLegacy &&
           IsLegacyFormat(CurrentFont()->Metrics().format);
}

// Makes all steps one.
void ActionChar::PrepareSwap(const Edit& edit)
{
    const bool hasValue = edit.applyValue != nullptr;
    stepsOfSwap_ = hasValue ? 1 : edit.period > 0 ? Repeat() % edit.period : Repeat();
    SetRepeat(1);
    const Font& font = *CurrentFont();
    swap_ = std::make_unique<CharacterSwap>();
    swap_->SetEnabledCodes(font.EnabledCodes());
    if (IsRefusedByFormat(edit))
        return;
    ForEachChar([&](quint16 code, const Character& character) {
        std::unique_ptr<Character> copy = CopyOf(character, font.Metrics());
        for (int step = 0; step < stepsOfSwap_; ++step) {
            if (!(hasValue ? edit.applyValue(*copy, Args().value) : edit.apply(*copy)))
                ++refused_[code];
        }
        swap_->Put(code, std::move(copy));
    });
    swap_->DropEqual(font);
}

// The copies are enabled, as characters are that come from another font. They have no name in the
// header, where each stands for one code.
void ActionChar::PrepareCopies()
{
    SetRepeat(1);
    const Font& font = *CurrentFont();
    CodeSet enabled = font.EnabledCodes();
    swap_ = std::make_unique<CharacterSwap>();
    ForEachChar([&](quint16 code, const Character& character) {
        const int target = Args().value + code - Args().first;
        CheckTarget(code, target, font.Metrics().encoding);
        std::unique_ptr<Character> copy = CopyOf(character, font.Metrics());
        copy->label = nullptr;
        swap_->Put(quint16(target), std::move(copy));
        enabled.Set(quint16(target), true);
    });
    swap_->SetEnabledCodes(enabled);
}

void ActionChar::RedoOnce()
{
    if (swap_ != nullptr)
        return swap_->SwapWith(*CurrentFont());
    if (Type() == ActionType::Toggle) {
        CodeSet codes = CurrentFont()->EnabledCodes();
        ForEachChar([&codes](quint16 code, Character&) { codes.Set(code, !codes.Test(code)); });
        CurrentFont()->SetEnabledCodes(codes);
        return;
    }
    const auto apply = EditOf(Type())->apply;
    ForEachChar([&](quint16 code, Character& character) {
        if (!apply(character))
            ++refused_[code];
    });
}

void ActionChar::UndoOnce()
{
    if (Type() == ActionType::Toggle) {
        RedoOnce();
        return;
    }
    if (swap_ != nullptr)
        return swap_->SwapWith(*CurrentFont());
    const Edit& edit = *EditOf(Type());
    bool isExact = CanBeUndone(edit, *CurrentFont());
    ForEachChar([&](quint16 code, Character& character) {
        const auto refused = refused_.find(code);
        if (refused == refused_.end())
            isExact = edit.revert(character) && isExact;
        else if (--*refused == 0)
            refused_.erase(refused);
    });
    if (!isExact)
        CurrentSession().MarkChanged();
}

CodeSet ActionChar::AffectedCodes() const
{
    if (Type() == ActionType::CopyTo && swap_ != nullptr)
        return swap_->Codes();
    return RangeOf(Args().first, Args().last);
}

LogEntry ActionChar::Log() const
{
    const Edit* const edit = EditOf(Type());
    if (edit == nullptr || !NeedsValue(*edit))
        return EntryOf(*this, target_);
    const QString value =
        edit->copies ? Hex4Text(quint16(Args().value)) : QString::number(Args().value);
    return LogEntry(MessageFor(), {value}).About(RangePrefix(Args().first, Args().last));
}

int ActionChar::CharCount() const
{
    int count = 0;
    ForEachChar([&count](quint16, const Character&) { ++count; });
    return count;
}

int ActionChar::LoggedSteps() const
{
    const int steps = Applied() * stepsOfSwap_;
    if (refused_.isEmpty() || refused_.size() < CharCount())
        return steps;
    return std::max(0, steps - *std::ranges::min_element(refused_));
}

QString ActionChar::Shortfall() const
{
    const quint16 first = Args().first;
    const quint16 last = Args().last;
    const QString range = first == last ? u"0x"_s + Hex4Text(first)
                                        : u"0x%1-0x%2"_s.arg(Hex4Text(first), Hex4Text(last));
    const int count = CharCount();
    if (count == 0)
        return Engine::tr("%1: the font has no character there").arg(range);
    const Edit* const edit = EditOf(Type());
    if (edit != nullptr && IsRefusedByFormat(*edit))
        return Engine::tr("%1: characters of legacy formats have the font's height and no offsets")
            .arg(range);
    if (refused_.isEmpty())
        return {};
    if (edit != nullptr && edit->applyValue != nullptr)
        return Engine::tr("%1: %2 does not fit, so it was left out on %3 of %4 characters")
            .arg(range, QString::number(Args().value), QString::number(refused_.size()),
                 QString::number(count));
    const QString steps = QString::number(Repeat() * stepsOfSwap_);
    const QString leftOut = QString::number(*std::ranges::max_element(refused_));
    if (first == last)
        return Engine::tr("%1: %2 of %3 steps were left out").arg(range, leftOut, steps);
    return Engine::tr("%1: up to %2 of %3 steps were left out, on %4 of %5 characters")
        .arg(range, leftOut, steps, QString::number(refused_.size()), QString::number(count));
}

bool ActionFont::Execute()
{
    if (CurrentFont() == nullptr)
        return false;
    const int possible = EditOf(Type())->room(*CurrentFont());
    leftOut_ = std::max(0, Repeat() - possible);
    SetRepeat(std::min(Repeat(), possible));
    return possible > 0;
}

QString ActionFont::Shortfall() const
{
    if (leftOut_ == 0)
        return {};
    const int height = CurrentFont()->Metrics().height;
    return Engine::tr("[Font]: %1 of %2 steps were left out; its height is %3 now")
        .arg(QString::number(leftOut_), QString::number(leftOut_ + Applied()),
             QString::number(height));
}

void ActionFont::RedoOnce()
{
    EditOf(Type())->applyToFont(*CurrentFont(), grown_.emplace_back());
}

void ActionFont::UndoOnce()
{
    const Edit& edit = *EditOf(Type());
    if (!edit.revertFont(*CurrentFont(), grown_.back()) || !CanBeUndone(edit, *CurrentFont()))
        CurrentSession().MarkChanged();
    grown_.pop_back();
}

CodeSet ActionPixelIndex::AffectedCodes() const
{
    return RangeOf(Args().code, Args().code);
}

CharBitmap& ActionPixelIndex::Bitmap() const
{
    return *CurrentFont()->FindChar(Args().code)->bitmap;
}

bool ActionPixelIndex::Execute()
{
    SetRepeat(1);
    if (CurrentFont() == nullptr || CurrentFont()->FindChar(Args().code) == nullptr)
        return false;
    return Bitmap().GetPixelIndex(Args().x, Args().y) != EditOf(Type())->index;
}

void ActionPixelIndex::RedoOnce()
{
    CharBitmap& bitmap = Bitmap();
    const int x = Args().x;
    const int y = Args().y;
    Args().previousIndex = bitmap.GetPixelIndex(x, y);
    framedBefore_ = FramedBytes();
    const Edit& edit = *EditOf(Type());
    edit.applyToPixel(bitmap, x, y, edit.index);
}

void ActionPixelIndex::UndoOnce()
{
    Bitmap().SetPixelIndex(Args().x, Args().y, Args().previousIndex);
    // The frame that a file brought, or that edits of rows moved, may have been another one.
    if (FramedBytes() != framedBefore_)
        CurrentSession().MarkChanged();
}

QByteArray ActionPixelIndex::FramedBytes() const
{
    const bool isFramed = CurrentFont()->Metrics().format == FontFormat::Framed;
    return isFramed ? Bitmap().DataAsList() : QByteArray();
}

// The messages begin at %2, so the code fills that, x comes next, and the index finds no place.
LogEntry ActionPixelIndex::Log() const
{
    QStringList arguments = {QString::number(Args().code), QString::number(Args().x)};
    if (EditOf(Type())->index < 0)
        return LogEntry(MessageFor(), arguments);
    arguments.append(QString::number(Args().y));
    return LogEntry(EditThatSets(0).log, arguments);
}

ActionCharState::ActionCharState(Session& session, ActionType type) : ActionWithArgs(session, type)
{
    if (type == ActionType::DisableAll)
        Args().last = CodeSet::Limit - 1;
}

bool ActionCharState::Execute()
{
    SetRepeat(1);
    const Font* const font = CurrentFont();
    if (font == nullptr)
        return false;
    target_ = Type() == ActionType::Toggle ? !font->IsEnabled(Args().first)
                                           : Type() == ActionType::Enable;
    return font->EnabledCodes().Next(Args().first, !target_) <= Args().last;
}

void ActionCharState::RedoOnce()
{
    Font& font = *CurrentFont();
    Args().previousCodes = font.EnabledCodes();
    const CodeSet before = font.ExistingCodes();
    font.SetEnabled(Args().first, Args().last, target_);
    created_ = font.ExistingCodes();
    created_ -= before;
}

void ActionCharState::UndoOnce()
{
    Font& font = *CurrentFont();
    for (const quint16 code : created_)
        font.RemoveChar(code);
    font.SetEnabledCodes(Args().previousCodes);
}

CodeSet ActionCharState::AffectedCodes() const
{
    return Type() == ActionType::DisableAll ? CodeSet() : RangeOf(Args().first, Args().last);
}

void ActionCharState::ApplyTo(CodeSet& codes) const
{
    codes.SetRange(Args().first, Args().last, target_);
}

LogEntry ActionCharState::Log() const
{
    return EntryOf(*this, target_);
}

bool ActionCharDelete::Execute()
{
    SetRepeat(1);
    if (CurrentFont() == nullptr)
        return false;
    codes_ &= CurrentFont()->ExistingCodes();
    return !codes_.IsEmpty();
}

void ActionCharDelete::RedoOnce()
{
    Font& font = *CurrentFont();
    previousCodes_ = font.EnabledCodes();
    CodeSet enabled = previousCodes_;
    enabled -= codes_;
    for (const quint16 code : codes_)
        removed_[code] = font.RemoveChar(code);
    font.SetEnabledCodes(enabled);
}

void ActionCharDelete::UndoOnce()
{
    Font& font = *CurrentFont();
    for (auto& [code, character] : removed_)
        font.InsertChar(code, std::move(character));
    removed_.clear();
    font.SetEnabledCodes(previousCodes_);
}

LogEntry ActionCharDelete::Log() const
{
    quint16 last = 0;
    for (const quint16 code : codes_)
        last = code;
    return LogEntry(QT_TRANSLATE_NOOP("Engine", "Deleted."))
        .About(RangePrefix(*codes_.begin(), last));
}

} // namespace Glyphor
