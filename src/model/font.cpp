#include "model/font.h"

#include "model/char_bitmap_framed.h"

#include <algorithm>

namespace Glyphor {

namespace {

// True where the top row can go without a change of the picture.
bool HasEmptyTopRow(const Character& character)
{
    const int length = character.info.bytesPerLine;
    const int planeSize = length * character.info.Rows();
    if (character.info.height <= 1 || planeSize == 0)
        return false;
    const QByteArray bytes = character.bitmap->DataAsList();
    for (qsizetype row = 0; row < bytes.size(); row += planeSize) {
        if (bytes.mid(row, length).count('\0') != length)
            return false;
    }
    return true;
}

} // namespace

Character::Character(const FontMetrics& font) : info{font}
{
    if (font.format == FontFormat::Framed)
        bitmap = std::make_unique<CharBitmapFramed>(info);
    else
        bitmap = std::make_unique<CharBitmap>(info);
}

bool Character::operator==(const Character& other) const
{
    const bool isLabelSame = label == other.label ||
                             (label != nullptr && other.label != nullptr && *label == *other.label);
    return isLabelSame && info.Metrics() == other.info.Metrics() && kerning == other.kerning &&
           bitmap->DataAsList() == other.bitmap->DataAsList();
}

std::unique_ptr<Character> CopyOf(const Character& character, const FontMetrics& font)
{
    auto copy = std::make_unique<Character>(font);
    copy->info.Set(character.info.Metrics());
    copy->bitmap->ShareData(*character.bitmap);
    copy->kerning = character.kerning;
    copy->label = character.label;
    return copy;
}

Font::Font(FontFormat format, EncodingType encoding)
{
    metrics_.format = format;
    metrics_.bitsPerPixel = static_cast<quint8>(BitsPerPixel(format));
    metrics_.encoding = encoding;
}

void Font::SetHeight(quint8 height)
{
    metrics_.height = height;
    metrics_.verticalSpace = height;
}

void Font::ChangeHeight(quint8 height)
{
    metrics_.verticalSpace = static_cast<quint8>(metrics_.verticalSpace + height - metrics_.height);
    metrics_.height = height;
    if (!IsLegacyFormat(metrics_.format))
        return;
    ForEachChar([height](quint16, Character& character) {
        character.info.height = height;
        character.bitmap->AdjustData();
    });
}

void Font::SetReferenceHeights(quint8 lowercase, quint8 capital)
{
    metrics_.lowercaseHeight = lowercase;
    metrics_.capitalHeight = capital;
}

Character* Font::FindChar(quint16 code)
{
    const auto& page = pages_[code / PageSize];
    return page ? (*page)[code % PageSize].get() : nullptr;
}

const Character* Font::FindChar(quint16 code) const
{
    const auto& page = pages_[code / PageSize];
    return page ? (*page)[code % PageSize].get() : nullptr;
}

std::unique_ptr<Character>& Font::Place(quint16 code)
{
    auto& page = pages_[code / PageSize];
    if (!page)
        page = std::make_unique<Page>();
    return (*page)[code % PageSize];
}

Character& Font::Create(quint16 code)
{
    auto& character = Place(code);
    character = std::make_unique<Character>(metrics_);
    existing_.Set(code, true);
    enabled_.Set(code, true);
    return *character;
}

std::unique_ptr<Character> Font::RemoveChar(quint16 code)
{
    if (!existing_.Test(code))
        return nullptr;
    existing_.Set(code, false);
    return std::move(Place(code));
}

void Font::InsertChar(quint16 code, std::unique_ptr<Character> character)
{
    existing_.Set(code, character != nullptr);
    Place(code) = std::move(character);
}

Character& Font::AddChar(quint16 code)
{
    if (Character* const existing = FindChar(code))
        return *existing;
    Character& character = Create(code);
    character.bitmap->Clear();
    return character;
}

Font::AddResult Font::AddRendered(quint16 code, const RenderedGlyph& glyph)
{
    return existing_.Test(code) ? AddResult::Exists : AddMade(code, MakeRendered(glyph));
}

std::unique_ptr<Character> Font::MakeRendered(const RenderedGlyph& glyph) const
{
    const auto placement = PlaceGlyph(glyph, metrics_);
    if (!placement)
        return nullptr;
    auto character = std::make_unique<Character>(metrics_);
    character->info.Set(*placement);
    character->bitmap->RenderData(glyph, *placement);
    return character;
}

Font::AddResult Font::AddMade(quint16 code, std::unique_ptr<Character> character)
{
    if (existing_.Test(code))
        return AddResult::Exists;
    if (character == nullptr)
        return AddResult::DoesNotFit;
    Place(code) = std::move(character);
    existing_.Set(code, true);
    enabled_.Set(code, true);
    return AddResult::Added;
}

Font::AddResult Font::AddLike(quint16 code, const Character& same)
{
    if (existing_.Test(code))
        return AddResult::Exists;
    Character& character = Create(code);
    character.info.Set(same.info.Metrics());
    character.bitmap->ShareData(*same.bitmap);
    return AddResult::Added;
}

Character& Font::PutChar(quint16 code, const CharMetrics& metrics, std::span<const uchar> bytes)
{
    Character& character = Create(code);
    character.info.Set(metrics);
    character.bitmap->ReadData(bytes);
    return character;
}

bool Font::IsEnabled(quint16 code) const
{
    return enabled_.Test(code) && existing_.Test(code);
}

void Font::SetEnabled(quint16 first, quint16 last, bool state)
{
    enabled_.SetRange(first, last, state);
    if (!state)
        return;
    for (int code = existing_.Next(first, false); code <= last; code = existing_.Next(code, false))
        AddChar(static_cast<quint16>(code));
}

CodeSet Font::SavedCodes() const
{
    CodeSet codes = enabled_;
    codes &= existing_;
    return codes;
}

std::vector<CodeRange> RunsOf(const CodeSet& codes)
{
    std::vector<CodeRange> runs;
    int end = 0;
    for (int first = codes.Next(0); first < CodeSet::Limit; first = codes.Next(end)) {
        end = codes.Next(first, false);
        runs.push_back({static_cast<quint16>(first), static_cast<quint16>(end - 1)});
    }
    return runs;
}

int Font::CharDataWidth(const Character& character) const
{
    return PlaneCount(metrics_.format) * character.info.bytesPerLine;
}

template <typename Edit>
void Font::ForEachChar(Edit edit) const
{
    for (const quint16 code : existing_)
        edit(code, *(*pages_[code / PageSize])[code % PageSize]);
}

int Font::TopRowRoom(bool insert) const
{
    int room = CharInfo::MaxSize;
    if (IsLegacyFormat(metrics_.format))
        return room;
    ForEachChar([&](quint16, const Character& character) {
        const CharInfo& info = character.info;
        // Beyond the largest offset empty rows are added to the bitmap.
        const int down = CharInfo::MaxOffset - info.yPos + CharInfo::MaxSize - info.height;
        room = std::min(room, insert ? down : info.yPos - CharInfo::MinOffset);
    });
    return room;
}

void Font::MoveDown(CodeSet& grown)
{
    ForEachChar([&](quint16 code, Character& character) {
        if (character.info.yPos == CharInfo::MaxOffset) {
            character.bitmap->InsertRowTop(); // which moves it up
            grown.Set(code, true);
        }
        ++character.info.yPos;
    });
}

template <typename HasRowAbove>
void Font::MoveUp(HasRowAbove hasRowAbove)
{
    ForEachChar([&](quint16 code, Character& character) {
        --character.info.yPos;
        if (hasRowAbove(code, character))
            character.bitmap->DeleteRowTop(); // which moves it down
    });
}

bool Font::EditRow(RowEdge edge, int change, void (CharBitmap::*legacyEdit)())
{
    const bool isLegacy = IsLegacyFormat(metrics_.format);
    const int height = metrics_.height + change;
    const bool atTop = edge == RowEdge::Top;
    if (atTop && TopRowRoom(change > 0) == 0)
        return false;
    if (height < (isLegacy ? 1 : 0) || height > CharInfo::MaxSize)
        return false;

    if (isLegacy) {
        ForEachChar([=](quint16, Character& character) {
            (character.bitmap.get()->*legacyEdit)();
            character.info.height = static_cast<quint8>(height);
        });
    }
    metrics_.height = static_cast<quint8>(height);
    metrics_.verticalSpace = static_cast<quint8>(metrics_.verticalSpace + change);
    if (atTop)
        metrics_.baseline = static_cast<quint8>(metrics_.baseline + change);
    return true;
}

// A legacy character has no offset: its rows moved instead.
bool Font::InsertRowTop(CodeSet* grown)
{
    if (!EditRow(RowEdge::Top, 1, &CharBitmap::InsertFontRowTop))
        return false;
    CodeSet own;
    if (!IsLegacyFormat(metrics_.format))
        MoveDown(grown != nullptr ? *grown : own);
    return true;
}

bool Font::UndoInsertRowTop(const CodeSet& grown)
{
    if (!EditRow(RowEdge::Top, -1, &CharBitmap::DeleteFontRowTop))
        return false;
    if (!IsLegacyFormat(metrics_.format))
        MoveUp([&grown](quint16 code, const Character&) { return grown.Test(code); });
    return true;
}

bool Font::InsertRowBottom()
{
    return EditRow(RowEdge::Bottom, 1, &CharBitmap::InsertFontRowBottom);
}

bool Font::DeleteRowTop()
{
    if (!EditRow(RowEdge::Top, -1, &CharBitmap::DeleteFontRowTop))
        return false;
    if (!IsLegacyFormat(metrics_.format))
        MoveUp([](quint16, const Character& character) {
            return character.info.yPos == CharInfo::MaxOffset - 1 && HasEmptyTopRow(character);
        });
    return true;
}

bool Font::DeleteRowBottom()
{
    return EditRow(RowEdge::Bottom, -1, &CharBitmap::DeleteFontRowBottom);
}

} // namespace Glyphor
