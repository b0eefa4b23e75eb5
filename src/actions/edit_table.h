#pragma once

#include "app/action_type.h"
#include "model/font.h"

#include <QLatin1StringView>

#include <span>

namespace Glyphor {

// What an edit changes, and so what it needs.
enum class EditTarget { Character, Font, Pixel };

// Whether undoing an edit brings back everything. Where it loses pixels, the font counts as changed
// from then on; those that only a legacy font keeps in its characters are lost there alone.
enum class Undo { Exact, LosesPixels, LosesPixelsOfLegacyFonts };

// One edit of the pixels or metrics of a font: all that there is to know about it, but for its menu
// entry. Functions return false where they are refused, and then change nothing.
struct Edit
{
    ActionType type;
    EditTarget target;
    QLatin1StringView keyword; // of -editchar or -editfont; empty for edits of the window alone
    QLatin1StringView help;    // in the usage text
    const char* log;           // see LogEntry; null where it is that of another edit
    Undo undo = Undo::Exact;
    bool notForLegacy = false; // whose characters have the font's height, and no offsets

    bool (*apply)(Character&) = nullptr;  // of a character
    bool (*revert)(Character&) = nullptr; // null: undo puts back what was there

    // In the place of both: once, with a value that counts no steps and may be negative. Characters
    // of legacy formats are not asked where the edit is not for them.
    bool (*applyValue)(Character&, int value) = nullptr;

    // Nothing is edited: characters go to other codes, of which the value is the first one's.
    bool copies = false;

    // As often of an edit without `revert` leaves everything as it was; 0 for never.
    int period = 0;

    // Of a font. `grown` gets, or tells, which characters got a row of their own; see
    // Font::InsertRowTop(). `room` is how many steps are possible.
    bool (*applyToFont)(Font&, CodeSet& grown) = nullptr;
    bool (*revertFont)(Font&, const CodeSet& grown) = nullptr;
    int (*room)(const Font&) = nullptr;

    void (*applyToPixel)(CharBitmap&, int x, int y, int index) = nullptr;
    int index = -1; // that a pixel is set to; -1 for edits that do not set one
};

// True where the value that goes with the edit counts no steps, and can't be left out.
[[nodiscard]] inline bool NeedsValue(const Edit& edit)
{
    return edit.applyValue != nullptr || edit.copies;
}

// In the order in which the usage text lists keywords.
[[nodiscard]] std::span<const Edit> EditTable();

// Null for a type that is no edit.
[[nodiscard]] const Edit* EditOf(ActionType type);

// False where undoing the edit leaves pixels of the font lost.
[[nodiscard]] bool CanBeUndone(const Edit& edit, const Font& font);

// The edit that sets a pixel to an index, which must be 0 to 15.
[[nodiscard]] const Edit& EditThatSets(int index);

} // namespace Glyphor
