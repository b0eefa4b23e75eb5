#include "actions/edit_actions.h"

#include "actions/session.h"

#include <algorithm>
#include <array>
#include <type_traits>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// An edit of the bitmap as a step; false where the bitmap refuses it.
template <auto Edit>
bool EditBitmap(Character& character)
{
    CharBitmap& bitmap = *character.bitmap;
    if constexpr (std::is_same_v<decltype((bitmap.*Edit)()), bool>) {
        return (bitmap.*Edit)();
    } else {
        (bitmap.*Edit)();
        return true;
    }
}

// The last column and the last row stay: a deletion leaves no character without pixels.
template <auto Edit>
bool DeleteColumn(Character& character)
{
    return character.info.width > 1 && EditBitmap<Edit>(character);
}

template <auto Edit>
bool DeleteRow(Character& character)
{
    return character.info.height > 1 && EditBitmap<Edit>(character);
}

// A metric changed by one as a step. Metrics wrap.
template <auto Metric>
bool Increase(Character& character)
{
    ++(character.info.*Metric);
    return true;
}

template <auto Metric>
bool Decrease(Character& character)
{
    --(character.info.*Metric);
    return true;
}

struct CharStep
{
    ActionType type;
    bool (*apply)(Character&);
    bool (*revert)(Character&); // deleted pixels come back empty
};

using Bitmap = CharBitmap;

// From InsertColumnRight on, without a gap.
constexpr std::array<CharStep, 18> CharSteps = {{
    {ActionType::InsertColumnRight, EditBitmap<&Bitmap::InsertColumnRight>,
     EditBitmap<&Bitmap::UndoInsertColumnRight>},
    {ActionType::InsertColumnLeft, EditBitmap<&Bitmap::InsertColumnLeft>,
     EditBitmap<&Bitmap::UndoInsertColumnLeft>},
    {ActionType::InsertRowTop, EditBitmap<&Bitmap::InsertRowTop>,
     EditBitmap<&Bitmap::UndoInsertRowTop>},
    {ActionType::InsertRowBottom, EditBitmap<&Bitmap::InsertRowBottom>,
     EditBitmap<&Bitmap::UndoInsertRowBottom>},
    {ActionType::ShiftRight, EditBitmap<&Bitmap::ShiftRight>, EditBitmap<&Bitmap::ShiftLeft>},
    {ActionType::ShiftLeft, EditBitmap<&Bitmap::ShiftLeft>, EditBitmap<&Bitmap::ShiftRight>},
    {ActionType::ShiftUp, EditBitmap<&Bitmap::ShiftUp>, EditBitmap<&Bitmap::ShiftDown>},
    {ActionType::ShiftDown, EditBitmap<&Bitmap::ShiftDown>, EditBitmap<&Bitmap::ShiftUp>},
    {ActionType::MoveRight, Increase<&CharInfo::xPos>, Decrease<&CharInfo::xPos>},
    {ActionType::MoveLeft, Decrease<&CharInfo::xPos>, Increase<&CharInfo::xPos>},
    {ActionType::MoveUp, Decrease<&CharInfo::yPos>, Increase<&CharInfo::yPos>},
    {ActionType::MoveDown, Increase<&CharInfo::yPos>, Decrease<&CharInfo::yPos>},
    {ActionType::IncreaseCursorDistance, Increase<&CharInfo::cursorDistance>,
     Decrease<&CharInfo::cursorDistance>},
    {ActionType::DecreaseCursorDistance, Decrease<&CharInfo::cursorDistance>,
     Increase<&CharInfo::cursorDistance>},
    {ActionType::DeleteColumnRight, DeleteColumn<&Bitmap::DeleteColumnRight>,
     EditBitmap<&Bitmap::UndoDeleteColumnRight>},
    {ActionType::DeleteColumnLeft, DeleteColumn<&Bitmap::DeleteColumnLeft>,
     EditBitmap<&Bitmap::InsertColumnLeft>},
    {ActionType::DeleteRowTop, DeleteRow<&Bitmap::DeleteRowTop>,
     EditBitmap<&Bitmap::UndoDeleteRowTop>},
    {ActionType::DeleteRowBottom, DeleteRow<&Bitmap::DeleteRowBottom>,
     EditBitmap<&Bitmap::InsertRowBottom>},
}};

const CharStep& StepOf(ActionType type)
{
    const int index = static_cast<int>(type) - static_cast<int>(CharSteps.front().type);
    return CharSteps.at(static_cast<std::size_t>(index));
}

CodeSet RangeOf(quint16 first, quint16 last)
{
    CodeSet codes;
    codes.SetRange(first, last, true);
    return codes;
}

// `grown` gets what undoing an insertion at the top has to know.
void ApplyFontStep(ActionType type, Font& font, CodeSet* grown = nullptr)
{
    switch (type) {
    case ActionType::FontInsertRowTop:
        font.InsertRowTop(grown);
        break;
    case ActionType::FontInsertRowBottom:
        font.InsertRowBottom();
        break;
    case ActionType::FontDeleteRowTop:
        font.DeleteRowTop();
        break;
    default:
        font.DeleteRowBottom();
        break;
    }
}

// Not for an insertion at the top.
ActionType OppositeFontStep(ActionType type)
{
    switch (type) {
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

bool ActionChar::Execute()
{
    if (CurrentFont() == nullptr)
        return false;
    target_ = !CurrentFont()->IsEnabled(Args().first);
    return true;
}

void ActionChar::RedoOnce()
{
    if (Type() == ActionType::Toggle) {
        CodeSet codes = CurrentFont()->EnabledCodes();
        ForEachChar([&codes](quint16 code, Character&) { codes.Set(code, !codes.Test(code)); });
        CurrentFont()->SetEnabledCodes(codes);
        return;
    }
    const auto apply = StepOf(Type()).apply;
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
    if (Type() >= ActionType::DeleteColumnRight)
        CurrentSession().MarkChanged(); // as deleted pixels come back empty
    const auto revert = StepOf(Type()).revert;
    ForEachChar([&](quint16 code, Character& character) {
        const auto refused = refused_.find(code);
        if (refused == refused_.end()) {
            if (!revert(character))
                CurrentSession().MarkChanged();
        } else if (--*refused == 0) {
            refused_.erase(refused);
        }
    });
}

CodeSet ActionChar::AffectedCodes() const
{
    return RangeOf(Args().first, Args().last);
}

QString ActionChar::LogText() const
{
    QString message = MessageFor();
    if (Type() == ActionType::Toggle)
        message = message.arg(target_ ? u"Enabled"_s : u"Disabled"_s);
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
    const int minimum = IsLegacyFormat(font->Metrics().format) ? 1 : 0;
    const bool atTop =
        Type() == ActionType::FontInsertRowTop || Type() == ActionType::FontDeleteRowTop;
    int possible = isInsertion ? CharInfo::MaxSize - height : height - minimum;
    if (atTop)
        possible = std::min(possible, font->TopRowRoom(isInsertion));
    SetRepeat(std::min(Repeat(), possible));
    return possible > 0;
}

void ActionFont::RedoOnce()
{
    CodeSet* grown = nullptr;
    if (Type() == ActionType::FontInsertRowTop)
        grown = &grown_.emplace_back();
    ApplyFontStep(Type(), *CurrentFont(), grown);
}

void ActionFont::UndoOnce()
{
    if (Type() == ActionType::FontInsertRowTop) {
        CurrentFont()->UndoInsertRowTop(grown_.back());
        grown_.pop_back();
        return;
    }
    if (Type() >= ActionType::FontDeleteRowTop && IsLegacyFormat(CurrentFont()->Metrics().format))
        CurrentSession().MarkChanged(); // as deleted pixels come back empty
    ApplyFontStep(OppositeFontStep(Type()), *CurrentFont());
}

CodeSet ActionPixelIndex::AffectedCodes() const
{
    return RangeOf(Args().code, Args().code);
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
    SetRepeat(1);
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
    framedBefore_ = FramedBytes();
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
QString ActionPixelIndex::LogText() const
{
    const QString text =
        MessageFor(IsSet() ? ActionType::SetPixelIndex0 : Type()).arg(Args().code).arg(Args().x);
    return IsSet() ? text.arg(Args().y) : text;
}

ActionCharState::ActionCharState(Session& session, ActionType type) : ActionWithArgs(session, type)
{
    if (type == ActionType::DisableAll)
        Args().last = CodeSet::Count - 1;
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
    for (int code = created_.Next(0); code < CodeSet::Count; code = created_.Next(code + 1))
        font.RemoveChar(static_cast<quint16>(code));
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

QString ActionCharState::LogText() const
{
    QString message = MessageFor();
    if (Type() == ActionType::Toggle)
        message = message.arg(target_ ? u"Enabled"_s : u"Disabled"_s);
    return RangePrefix(Args().first, Args().last) + message;
}

bool ActionCharDelete::Execute()
{
    SetRepeat(1);
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
