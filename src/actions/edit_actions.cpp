#include "actions/edit_actions.h"

#include "actions/session.h"

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// One elementary step on one character; false where it is refused.
bool ApplyStep(ActionType type, Character& character)
{
    CharBitmap& bitmap = *character.bitmap;
    CharInfo& info = character.info;
    switch (type) {
    case ActionType::InsertColumnRight:
        return bitmap.InsertColumnRight();
    case ActionType::InsertColumnLeft:
        return bitmap.InsertColumnLeft();
    case ActionType::InsertRowTop:
        return bitmap.InsertRowTop();
    case ActionType::InsertRowBottom:
        return bitmap.InsertRowBottom();
    case ActionType::ShiftRight:
        bitmap.ShiftRight();
        return true;
    case ActionType::ShiftLeft:
        bitmap.ShiftLeft();
        return true;
    case ActionType::ShiftUp:
        bitmap.ShiftUp();
        return true;
    case ActionType::ShiftDown:
        bitmap.ShiftDown();
        return true;
    case ActionType::MoveRight:
        ++info.xPos;
        return true;
    case ActionType::MoveLeft:
        --info.xPos;
        return true;
    case ActionType::MoveUp:
        --info.yPos;
        return true;
    case ActionType::MoveDown:
        ++info.yPos;
        return true;
    case ActionType::IncreaseCursorDistance:
        ++info.cursorDistance;
        return true;
    case ActionType::DecreaseCursorDistance:
        --info.cursorDistance;
        return true;
    case ActionType::DeleteColumnRight:
        return bitmap.DeleteColumnRight();
    case ActionType::DeleteColumnLeft:
        return bitmap.DeleteColumnLeft();
    case ActionType::DeleteRowTop:
        return bitmap.DeleteRowTop();
    case ActionType::DeleteRowBottom:
        return bitmap.DeleteRowBottom();
    default:
        return false;
    }
}

// What reverts a step. Deleted pixels come back empty.
void RevertStep(ActionType type, Character& character)
{
    CharBitmap& bitmap = *character.bitmap;
    const auto apply = [&character](ActionType opposite) { ApplyStep(opposite, character); };
    switch (type) {
    case ActionType::InsertColumnRight:
        bitmap.UndoInsertColumnRight();
        break;
    case ActionType::InsertColumnLeft:
        bitmap.UndoInsertColumnLeft();
        break;
    case ActionType::InsertRowTop:
        bitmap.UndoInsertRowTop();
        break;
    case ActionType::InsertRowBottom:
        bitmap.UndoInsertRowBottom();
        break;
    case ActionType::ShiftRight:
        apply(ActionType::ShiftLeft);
        break;
    case ActionType::ShiftLeft:
        apply(ActionType::ShiftRight);
        break;
    case ActionType::ShiftUp:
        apply(ActionType::ShiftDown);
        break;
    case ActionType::ShiftDown:
        apply(ActionType::ShiftUp);
        break;
    case ActionType::MoveRight:
        apply(ActionType::MoveLeft);
        break;
    case ActionType::MoveLeft:
        apply(ActionType::MoveRight);
        break;
    case ActionType::MoveUp:
        apply(ActionType::MoveDown);
        break;
    case ActionType::MoveDown:
        apply(ActionType::MoveUp);
        break;
    case ActionType::IncreaseCursorDistance:
        apply(ActionType::DecreaseCursorDistance);
        break;
    case ActionType::DecreaseCursorDistance:
        apply(ActionType::IncreaseCursorDistance);
        break;
    case ActionType::DeleteColumnRight:
        bitmap.UndoDeleteColumnRight();
        break;
    case ActionType::DeleteColumnLeft:
        apply(ActionType::InsertColumnLeft);
        break;
    case ActionType::DeleteRowTop:
        bitmap.UndoDeleteRowTop();
        break;
    case ActionType::DeleteRowBottom:
        apply(ActionType::InsertRowBottom);
        break;
    default:
        break;
    }
}

bool ApplyFontStep(ActionType type, Font& font)
{
    switch (type) {
    case ActionType::FontInsertRowTop:
        return font.InsertRowTop();
    case ActionType::FontInsertRowBottom:
        return font.InsertRowBottom();
    case ActionType::FontDeleteRowTop:
        return font.DeleteRowTop();
    default:
        return font.DeleteRowBottom();
    }
}

ActionType OppositeFontStep(ActionType type)
{
    switch (type) {
    case ActionType::FontInsertRowTop:
        return ActionType::FontDeleteRowTop;
    case ActionType::FontInsertRowBottom:
        return ActionType::FontDeleteRowBottom;
    case ActionType::FontDeleteRowTop:
        return ActionType::FontInsertRowTop;
    default:
        return ActionType::FontInsertRowBottom;
    }
}

} // namespace

ActionChar::ActionChar(Session& session, ActionType type, quint16 code)
    : ActionWithArgs(session, type)
{
    Args() = {code, code};
}

template <typename Visit>
void ActionChar::ForEachChar(Visit visit)
{
    Font& font = *CurrentFont();
    const CodeSet& existing = font.ExistingCodes();
    for (int code = existing.Next(Args().first); code <= Args().last;
         code = existing.Next(code + 1))
        visit(static_cast<quint16>(code), *font.FindChar(static_cast<quint16>(code)));
}

void ActionChar::RedoOnce()
{
    if (Type() == ActionType::Toggle) {
        CodeSet codes = CurrentFont()->EnabledCodes();
        ForEachChar([&codes](quint16 code, Character&) { codes.Set(code, !codes.Test(code)); });
        CurrentFont()->SetEnabledCodes(codes);
        return;
    }
    ForEachChar([this](quint16 code, Character& character) {
        if (!ApplyStep(Type(), character))
            ++refused_[code];
    });
}

void ActionChar::UndoOnce()
{
    if (Type() == ActionType::Toggle) {
        RedoOnce();
        return;
    }
    ForEachChar([this](quint16 code, Character& character) {
        const auto refused = refused_.find(code);
        if (refused == refused_.end())
            RevertStep(Type(), character);
        else if (--*refused == 0)
            refused_.erase(refused);
    });
}

QString ActionChar::LogText() const
{
    QString message = MessageFor();
    if (Type() == ActionType::Toggle)
        message =
            message.arg(CurrentFont()->IsEnabled(Args().first) ? u"Enabled"_s : u"Disabled"_s);
    return RangePrefix(Args().first, Args().last) + message;
}

bool ActionFont::Execute()
{
    const Font* const font = CurrentFont();
    if (font == nullptr)
        return false;
    const bool isInsertion =
        Type() == ActionType::FontInsertRowTop || Type() == ActionType::FontInsertRowBottom;
    const int height = font->Metrics().height;
    const int possible = isInsertion ? CharInfo::MaxSize - height : height;
    SetRepeat(std::min(Repeat(), possible));
    return possible > 0;
}

void ActionFont::RedoOnce()
{
    if (!ApplyFontStep(Type(), *CurrentFont()))
        ++refused_;
}

void ActionFont::UndoOnce()
{
    if (refused_ > 0)
        --refused_;
    else
        ApplyFontStep(OppositeFontStep(Type()), *CurrentFont());
}

int ActionPixelIndex::IndexToSet() const
{
    return static_cast<int>(Type()) - static_cast<int>(ActionType::SetPixelIndex0);
}

CharBitmap& ActionPixelIndex::Bitmap() const
{
    return *CurrentFont()->FindChar(Args().code)->bitmap;
}

bool ActionPixelIndex::Execute()
{
    if (CurrentFont() == nullptr || CurrentFont()->FindChar(Args().code) == nullptr)
        return false;
    return !IsSet() || Bitmap().GetPixelIndex(Args().x, Args().y) != IndexToSet();
}

void ActionPixelIndex::RedoOnce()
{
    CharBitmap& bitmap = Bitmap();
    const int x = Args().x;
    const int y = Args().y;
    Args().previousIndex = bitmap.GetPixelIndex(x, y);
    switch (Type()) {
    case ActionType::IncreasePixelIndex:
        bitmap.IncPixelIndex(x, y);
        break;
    case ActionType::DecreasePixelIndex:
        bitmap.DecPixelIndex(x, y);
        break;
    case ActionType::InvertPixelIndex:
        bitmap.InvertPixelIndex(x, y);
        break;
    default:
        bitmap.SetPixelIndex(x, y, IndexToSet());
        break;
    }
}

void ActionPixelIndex::UndoOnce()
{
    Bitmap().SetPixelIndex(Args().x, Args().y, Args().previousIndex);
}

// The messages begin at %2, so the code fills that, x comes next, and the index finds no place.
QString ActionPixelIndex::LogText() const
{
    QString text = MessageFor(IsSet() ? ActionType::SetPixelIndex0 : Type())
                       .arg(Args().code)
                       .arg(Args().x)
                       .arg(Args().y);
    return text;
}

ActionCharState::ActionCharState(Session& session, ActionType type) : ActionWithArgs(session, type)
{
    if (type == ActionType::DisableAll)
        Args().last = CodeSet::Count - 1;
}

bool ActionCharState::Execute()
{
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
    for (int code = created_.Next(0); code < CodeSet::Count; code = created_.Next(code + 1))
        font.RemoveChar(static_cast<quint16>(code));
    font.SetEnabledCodes(Args().previousCodes);
}

void ActionCharState::ApplyTo(CodeSet& codes) const
{
    codes.SetRange(Args().first, Args().last, target_);
}

QString ActionCharState::LogText() const
{
    QString message = MessageFor();
    if (Type() == ActionType::Toggle)
        message = message.arg(target_ ? u"Enabled"_s : u"Disabled"_s);
    return RangePrefix(Args().first, Args().last) + message;
}

bool ActionCharDelete::Execute()
{
    if (CurrentFont() == nullptr)
        return false;
    codes_ &= CurrentFont()->ExistingCodes();
    return codes_.Next(0) < CodeSet::Count;
}

void ActionCharDelete::RedoOnce()
{
    Font& font = *CurrentFont();
    previousCodes_ = font.EnabledCodes();
    CodeSet enabled = previousCodes_;
    enabled -= codes_;
    for (int code = codes_.Next(0); code < CodeSet::Count; code = codes_.Next(code + 1))
        removed_[static_cast<quint16>(code)] = font.RemoveChar(static_cast<quint16>(code));
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

QString ActionCharDelete::LogText() const
{
    const int first = codes_.Next(0);
    int last = first;
    for (int code = first; code < CodeSet::Count; code = codes_.Next(code + 1))
        last = code;
    return RangePrefix(static_cast<quint16>(first), static_cast<quint16>(last)) + u"Deleted."_s;
}

} // namespace Glyphor
