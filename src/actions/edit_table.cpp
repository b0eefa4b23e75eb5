#include "actions/edit_table.h"

#include "app/engine_texts.h"
#include "model/pixel_block.h"

#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

using Bitmap = CharBitmap;

// An edit of the bitmap as a step; false where the bitmap refuses it.
template <auto Function>
bool Bits(Character& character)
{
    Bitmap& bitmap = *character.bitmap;
    if constexpr (std::is_same_v<decltype((bitmap.*Function)()), bool>) {
        return (bitmap.*Function)();
    } else {
        (bitmap.*Function)();
        return true;
    }
}

// The last column and the last row stay: a deletion leaves no character without pixels.
template <auto Function>
bool Column(Character& character)
{
    return character.info.width > 1 && Bits<Function>(character);
}

template <auto Function>
bool Row(Character& character)
{
    return character.info.height > 1 && Bits<Function>(character);
}

// A metric changed by one as a step. Metrics wrap.
template <auto Metric>
bool More(Character& character)
{
    ++(character.info.*Metric);
    return true;
}

template <auto Metric>
bool Less(Character& character)
{
    --(character.info.*Metric);
    return true;
}

// A metric set to a value that it can hold.
template <auto Metric>
bool Set(Character& character, int value)
{
    auto& metric = character.info.*Metric;
    using Field = std::remove_reference_t<decltype(metric)>;
    if (!std::in_range<Field>(value))
        return false;
    metric = static_cast<Field>(value);
    return true;
}

bool SetWidth(Character& character, int width)
{
    return character.bitmap->SetSize(width, character.info.Rows());
}

bool SetHeight(Character& character, int height)
{
    return character.bitmap->SetSize(character.info.width, height);
}

constexpr bool NotForLegacy = true;

constexpr Edit OfCharacter(ActionType type, QLatin1StringView keyword, QLatin1StringView help,
                           const char* log, bool (*apply)(Character&), bool (*revert)(Character&),
                           bool notForLegacy = false, Undo undo = Undo::Exact)
{
    return {.type = type,
            .target = EditTarget::Character,
            .keyword = keyword,
            .help = help,
            .log = log,
            .undo = undo,
            .notForLegacy = notForLegacy,
            .apply = apply,
            .revert = revert};
}

constexpr Edit OfValue(ActionType type, QLatin1StringView keyword, QLatin1StringView help,
                       const char* log, bool (*apply)(Character&, int), bool notForLegacy = false)
{
    return {.type = type,
            .target = EditTarget::Character,
            .keyword = keyword,
            .help = help,
            .log = log,
            .notForLegacy = notForLegacy,
            .applyValue = apply};
}

// Its undo puts back what was there.
constexpr Edit OfTurn(ActionType type, QLatin1StringView keyword, QLatin1StringView help,
                      const char* log, bool (*apply)(Character&), int period)
{
    return {.type = type,
            .target = EditTarget::Character,
            .keyword = keyword,
            .help = help,
            .log = log,
            .apply = apply,
            .period = period};
}

// How many rows a font can gain, or lose: some of a legacy font stay.
int RowsToGain(const Font& font)
{
    return CharInfo::MaxSize - font.Metrics().height;
}

int RowsToLose(const Font& font)
{
    return font.Metrics().height - (IsLegacyFormat(font.Metrics().format) ? 1 : 0);
}

constexpr Edit OfFont(ActionType type, QLatin1StringView keyword, QLatin1StringView help,
                      const char* log, bool (*apply)(Font&, CodeSet&),
                      bool (*revert)(Font&, const CodeSet&), int (*room)(const Font&),
                      Undo undo = Undo::Exact)
{
    return {.type = type,
            .target = EditTarget::Font,
            .keyword = keyword,
            .help = help,
            .log = log,
            .undo = undo,
            .applyToFont = apply,
            .revertFont = revert,
            .room = room};
}

constexpr Edit OfPixel(ActionType type, const char* log,
                       void (*apply)(CharBitmap&, int x, int y, int index), int index = -1)
{
    return {.type = type,
            .target = EditTarget::Pixel,
            .keyword = {},
            .help = {},
            .log = log,
            .applyToPixel = apply,
            .index = index};
}

// They have the log message of the first one.
constexpr Edit SettingPixel(ActionType type, int index)
{
    constexpr auto set = [](CharBitmap& bitmap, int x, int y, int value) {
        bitmap.SetPixelIndex(x, y, value);
    };
    const char* const log =
        index == 0 ? QT_TRANSLATE_NOOP("Engine", "Set pixel index (%2,%3) to %4.") : nullptr;
    return OfPixel(type, log, set, index);
}

// In the order in which the usage text lists keywords.
constexpr auto Edits = std::to_array<Edit>({
    OfCharacter(ActionType::ShiftRight, "SHIFTR"_L1,
                "Shifts pixel data of character range to the right by <value> px."_L1,
                QT_TRANSLATE_NOOP("Engine", "Pixel data shifted to the right."),
                Bits<&Bitmap::ShiftRight>, Bits<&Bitmap::ShiftLeft>),
    OfCharacter(ActionType::ShiftLeft, "SHIFTL"_L1,
                "Shifts pixel data of character range to the left by <value> px."_L1,
                QT_TRANSLATE_NOOP("Engine", "Pixel data shifted to the left."),
                Bits<&Bitmap::ShiftLeft>, Bits<&Bitmap::ShiftRight>),
    OfCharacter(ActionType::ShiftUp, "SHIFTU"_L1,
                "Shifts pixel data of character range up by <value> px."_L1,
                QT_TRANSLATE_NOOP("Engine", "Pixel data shifted up."), Bits<&Bitmap::ShiftUp>,
                Bits<&Bitmap::ShiftDown>),
    OfCharacter(ActionType::ShiftDown, "SHIFTD"_L1,
                "Shifts pixel data of character range down by <value> px."_L1,
                QT_TRANSLATE_NOOP("Engine", "Pixel data shifted down."), Bits<&Bitmap::ShiftDown>,
                Bits<&Bitmap::ShiftUp>),
    OfCharacter(ActionType::MoveRight, "MOVER"_L1,
                "Moves the character range by <value> pixels to the right."_L1,
                QT_TRANSLATE_NOOP("Engine", "Moved 1 pixel to the right."), More<&CharInfo::xPos>,
                Less<&CharInfo::xPos>, NotForLegacy),
    OfCharacter(ActionType::MoveLeft, "MOVEL"_L1,
                "Moves the character range by <value> pixels to the left."_L1,
                QT_TRANSLATE_NOOP("Engine", "Moved 1 pixel to the left."), Less<&CharInfo::xPos>,
                More<&CharInfo::xPos>, NotForLegacy),
    OfCharacter(ActionType::MoveUp, "MOVEU"_L1,
                "Moves the character range by <value> pixels up."_L1,
                QT_TRANSLATE_NOOP("Engine", "Moved 1 pixel up."), Less<&CharInfo::yPos>,
                More<&CharInfo::yPos>, NotForLegacy),
    OfCharacter(ActionType::MoveDown, "MOVED"_L1,
                "Moves the character range by <value> pixels down."_L1,
                QT_TRANSLATE_NOOP("Engine", "Moved 1 pixel down."), More<&CharInfo::yPos>,
                Less<&CharInfo::yPos>, NotForLegacy),
    OfCharacter(ActionType::InsertRowTop, "INST"_L1,
                "Insert <value> rows at the top of the character range."_L1,
                QT_TRANSLATE_NOOP("Engine", "Inserted a row at the top edge."),
                Bits<&Bitmap::InsertRowTop>, Bits<&Bitmap::UndoInsertRowTop>, NotForLegacy),
    OfCharacter(ActionType::InsertRowBottom, "INSB"_L1,
                "Insert <value> rows at the bottom of the character range."_L1,
                QT_TRANSLATE_NOOP("Engine", "Inserted a row at the bottom edge."),
                Bits<&Bitmap::InsertRowBottom>, Bits<&Bitmap::UndoInsertRowBottom>, NotForLegacy),
    OfCharacter(ActionType::InsertColumnLeft, "INSL"_L1,
                "Insert <value> columns on the left of the character range."_L1,
                QT_TRANSLATE_NOOP("Engine", "Inserted a column at the left edge."),
                Bits<&Bitmap::InsertColumnLeft>, Bits<&Bitmap::UndoInsertColumnLeft>),
    OfCharacter(ActionType::InsertColumnRight, "INSR"_L1,
                "Insert <value> columns on the right of the character range."_L1,
                QT_TRANSLATE_NOOP("Engine", "Inserted a column at the right edge."),
                Bits<&Bitmap::InsertColumnRight>, Bits<&Bitmap::UndoInsertColumnRight>),
    OfCharacter(ActionType::DeleteRowTop, "DELT"_L1,
                "Delete <value> rows from the top of the character range."_L1,
                QT_TRANSLATE_NOOP("Engine", "Deleted a row from the top edge."),
                Row<&Bitmap::DeleteRowTop>, Bits<&Bitmap::UndoDeleteRowTop>, NotForLegacy,
                Undo::LosesPixels),
    OfCharacter(ActionType::DeleteRowBottom, "DELB"_L1,
                "Delete <value> rows from the bottom of the character range."_L1,
                QT_TRANSLATE_NOOP("Engine", "Deleted a row from the bottom edge."),
                Row<&Bitmap::DeleteRowBottom>, Bits<&Bitmap::InsertRowBottom>, NotForLegacy,
                Undo::LosesPixels),
    OfCharacter(ActionType::DeleteColumnLeft, "DELL"_L1,
                "Delete <value> columns from the left of the character range."_L1,
                QT_TRANSLATE_NOOP("Engine", "Deleted a column from the left edge."),
                Column<&Bitmap::DeleteColumnLeft>, Bits<&Bitmap::InsertColumnLeft>, false,
                Undo::LosesPixels),
    OfCharacter(ActionType::DeleteColumnRight, "DELR"_L1,
                "Delete <value> columns from the right of the character range."_L1,
                QT_TRANSLATE_NOOP("Engine", "Deleted a column from the right edge."),
                Column<&Bitmap::DeleteColumnRight>, Bits<&Bitmap::UndoDeleteColumnRight>, false,
                Undo::LosesPixels),
    OfCharacter(ActionType::IncreaseCursorDistance, "CINC"_L1,
                "Increments the cursor distance for the given range <value> times."_L1,
                QT_TRANSLATE_NOOP("Engine", "Increased cursor distance."),
                More<&CharInfo::cursorDistance>, Less<&CharInfo::cursorDistance>),
    OfCharacter(ActionType::DecreaseCursorDistance, "CDEC"_L1,
                "Decrements the cursor distance for the given range <value> times."_L1,
                QT_TRANSLATE_NOOP("Engine", "Decreased cursor distance."),
                Less<&CharInfo::cursorDistance>, More<&CharInfo::cursorDistance>),
    OfValue(ActionType::SetXPos, "SETX"_L1,
            "Sets the left edge of the character range to <value> px (-128 to 127)."_L1,
            QT_TRANSLATE_NOOP("Engine", "Left edge set to %2."), Set<&CharInfo::xPos>,
            NotForLegacy),
    OfValue(ActionType::SetYPos, "SETY"_L1,
            "Sets the top row of the character range to <value> px (-128 to 127)."_L1,
            QT_TRANSLATE_NOOP("Engine", "Top row set to %2."), Set<&CharInfo::yPos>, NotForLegacy),
    OfValue(ActionType::SetCursorDistance, "SETADV"_L1,
            "Sets the cursor distance of the character range to <value> px (0 to 255)."_L1,
            QT_TRANSLATE_NOOP("Engine", "Cursor distance set to %2."),
            Set<&CharInfo::cursorDistance>),
    OfValue(ActionType::SetWidth, {}, {}, QT_TRANSLATE_NOOP("Engine", "Width set to %2."),
            SetWidth),
    OfValue(ActionType::SetHeight, {}, {}, QT_TRANSLATE_NOOP("Engine", "Height set to %2."),
            SetHeight, NotForLegacy),
    OfFont(
        ActionType::FontInsertRowTop, "INSTOP"_L1, "Inserts a row at the top of the font."_L1,
        QT_TRANSLATE_NOOP("Engine", "[Font]: Inserted a row at the top of the font."),
        [](Font& font, CodeSet& grown) { return font.InsertRowTop(&grown); },
        [](Font& font, const CodeSet& grown) { return font.UndoInsertRowTop(grown); },
        [](const Font& font) { return std::min(RowsToGain(font), font.TopRowRoom(true)); }),
    OfFont(
        ActionType::FontInsertRowBottom, "INSBOTTOM"_L1,
        "Inserts a row at the bottom of the font."_L1,
        QT_TRANSLATE_NOOP("Engine", "[Font]: Inserted a row at the bottom of the font."),
        [](Font& font, CodeSet&) { return font.InsertRowBottom(); },
        [](Font& font, const CodeSet&) { return font.DeleteRowBottom(); }, RowsToGain),
    OfFont(
        ActionType::FontDeleteRowTop, "DELTOP"_L1, "Deletes a row at the top of the font."_L1,
        QT_TRANSLATE_NOOP("Engine", "[Font]: Deleted a row from the top of the font."),
        [](Font& font, CodeSet&) { return font.DeleteRowTop(); },
        [](Font& font, const CodeSet&) { return font.InsertRowTop(); },
        [](const Font& font) { return std::min(RowsToLose(font), font.TopRowRoom(false)); },
        Undo::LosesPixelsOfLegacyFonts),
    OfFont(
        ActionType::FontDeleteRowBottom, "DELBOTTOM"_L1,
        "Deletes a row at the bottom of the font."_L1,
        QT_TRANSLATE_NOOP("Engine", "[Font]: Deleted a row from the bottom of the font."),
        [](Font& font, CodeSet&) { return font.DeleteRowBottom(); },
        [](Font& font, const CodeSet&) { return font.InsertRowBottom(); }, RowsToLose,
        Undo::LosesPixelsOfLegacyFonts),
    OfPixel(ActionType::IncreasePixelIndex,
            QT_TRANSLATE_NOOP("Engine", "Increased pixel index (%2,%3)."),
            [](Bitmap& bitmap, int x, int y, int) { bitmap.IncPixelIndex(x, y); }),
    OfPixel(ActionType::DecreasePixelIndex,
            QT_TRANSLATE_NOOP("Engine", "Decreased pixel index (%2,%3)."),
            [](Bitmap& bitmap, int x, int y, int) { bitmap.DecPixelIndex(x, y); }),
    OfPixel(ActionType::InvertPixelIndex,
            QT_TRANSLATE_NOOP("Engine", "Inverted pixel index (%2,%3)."),
            [](Bitmap& bitmap, int x, int y, int) { bitmap.InvertPixelIndex(x, y); }),
    SettingPixel(ActionType::SetPixelIndex0, 0),
    SettingPixel(ActionType::SetPixelIndex1, 1),
    SettingPixel(ActionType::SetPixelIndex2, 2),
    SettingPixel(ActionType::SetPixelIndex3, 3),
    SettingPixel(ActionType::SetPixelIndex4, 4),
    SettingPixel(ActionType::SetPixelIndex5, 5),
    SettingPixel(ActionType::SetPixelIndex6, 6),
    SettingPixel(ActionType::SetPixelIndex7, 7),
    SettingPixel(ActionType::SetPixelIndex8, 8),
    SettingPixel(ActionType::SetPixelIndex9, 9),
    SettingPixel(ActionType::SetPixelIndex10, 10),
    SettingPixel(ActionType::SetPixelIndex11, 11),
    SettingPixel(ActionType::SetPixelIndex12, 12),
    SettingPixel(ActionType::SetPixelIndex13, 13),
    SettingPixel(ActionType::SetPixelIndex14, 14),
    SettingPixel(ActionType::SetPixelIndex15, 15),
    OfTurn(ActionType::FlipHorizontally, "FLIPH"_L1,
           "Flips the pixel data of the character range horizontally."_L1,
           QT_TRANSLATE_NOOP("Engine", "Flipped horizontally."), FlipHorizontally, 2),
    OfTurn(ActionType::FlipVertically, "FLIPV"_L1,
           "Flips the pixel data of the character range vertically."_L1,
           QT_TRANSLATE_NOOP("Engine", "Flipped vertically."), FlipVertically, 2),
    OfTurn(ActionType::RotateRight, "ROTR"_L1,
           "Rotates the characters of the range to the right <value> times by 90 degrees."_L1,
           QT_TRANSLATE_NOOP("Engine", "Rotated to the right."), RotateRight, 4),
    OfTurn(ActionType::RotateLeft, "ROTL"_L1,
           "Rotates the characters of the range to the left <value> times by 90 degrees."_L1,
           QT_TRANSLATE_NOOP("Engine", "Rotated to the left."), RotateLeft, 4),
    {.type = ActionType::CopyTo,
     .target = EditTarget::Character,
     .keyword = "COPY"_L1,
     .help = "Copies the character range to the codes from <value> on."_L1,
     .log = QT_TRANSLATE_NOOP("Engine", "Copied to 0x%2."),
     .copies = true},
});

} // namespace

std::span<const Edit> EditTable()
{
    return Edits;
}

const Edit* EditOf(ActionType type)
{
    const auto* const edit = std::ranges::find(Edits, type, &Edit::type);
    return edit != Edits.end() ? edit : nullptr;
}

const Edit& EditThatSets(int index)
{
    return *std::ranges::find(Edits, index, &Edit::index);
}

bool CanBeUndone(const Edit& edit, const Font& font)
{
    return edit.undo == Undo::Exact ||
           (edit.undo == Undo::LosesPixelsOfLegacyFonts && !IsLegacyFormat(font.Metrics().format));
}

} // namespace Glyphor
