#pragma once

#include "model/char_info.h"

#include <QString>

#include <vector>

namespace Glyphor {

class Font;
struct Character;

// A value of the font as a whole that differs.
struct ValueDifference
{
    QString what;
    QString before;
    QString after;
};

// A character that differs, or that only one of two fonts has.
struct CharacterDifference
{
    int code = 0;                      // see FontComparison
    const Character* before = nullptr; // null where it was added
    const Character* after = nullptr;  // null where it is gone
    CharMetrics change = {};           // after less before
    int pixels = 0;                    // that differ, at their places on the baseline
    bool hasOtherKerning = false;

    [[nodiscard]] bool IsChange() const { return before != nullptr && after != nullptr; }
};

// What differs between the enabled characters of two fonts, which it refers to. Codes are those of
// the fonts, or of Unicode where one of them is in Shift JIS alone; characters without a
// counterpart there have their own code above NoUnicode.
struct FontComparison
{
    static constexpr int NoUnicode = 0x10000;

    std::vector<ValueDifference> values;
    std::vector<CharacterDifference> characters; // by code
    int sameCharacters = 0;
    bool isUnicode = true;

    [[nodiscard]] bool IsEqual() const { return values.empty() && characters.empty(); }
};

// Grey levels of different depths are equal where they are the same part of full ink. Frames count
// where both fonts have them, kerning where both come from faces with kerning, and the places and
// sizes of bitmaps unless one font alone is in a legacy format. Names count where they are told.
[[nodiscard]] FontComparison CompareFonts(const Font& before, const Font& after,
                                          bool comparesNames);

// A line for each value and for each run of characters that differ in the same way, and a last one
// with the numbers of all, with their ends. The name is that of the other font.
[[nodiscard]] QString ComparisonText(const FontComparison& comparison, const QString& name);

} // namespace Glyphor
