#pragma once

#include "app/place.h"
#include "model/code_range.h"
#include "model/code_set.h"
#include "model/font_format.h"

#include <QString>

#include <optional>
#include <vector>

namespace Glyphor {

class Font;

// What a font does not have of what was asked for, as a message.
struct DemandGap
{
    Place place; // where it was asked for first
    QString text;
    QString reason;              // in short: "not in the font"
    std::vector<char32_t> codes; // in Unicode where they have a counterpart there
};

// The characters that were asked for, and where.
class Demand
{
public:
    // Of the codes that select characters, before any is asked for: that of the font, but Unicode
    // for fonts that are rendered.
    void SetEncoding(EncodingType encoding) { encoding_ = encoding; }

    // A character in Unicode; control characters ask for nothing. What counts is where it is asked
    // for first. The code that selects it, if any.
    std::optional<quint16> Ask(char32_t character, const Place& place);

    // Codes that select characters, as patterns have them.
    void Ask(const CodeSet& codes, const Place& place);

    // Of a range one message tells, whatever is missing. What "all" asks for is never missing.
    void AskRange(CodeRange range, const Place& place);

    [[nodiscard]] bool IsEmpty() const { return characters_.empty() && ranges_.empty(); }

    // What the font does not have enabled of all this, in the order in which it was asked for. What
    // the selection was told to leave out again is not missed.
    [[nodiscard]] std::vector<DemandGap> MissingIn(const Font& font,
                                                   const std::optional<CodeSet>& selection) const;

private:
    struct Character
    {
        char32_t character;
        std::optional<quint16> code; // that selects it; nothing where none does
        Place place;
    };

    struct Range
    {
        CodeRange range;
        Place place;
    };

    // False where it was asked for before.
    bool IsFirst(char32_t character);

    std::vector<Character> characters_;
    std::vector<Range> ranges_;
    std::vector<bool> asked_; // by character, once there is one
    EncodingType encoding_ = EncodingType::Unicode;
};

// In the Unicode character database; empty where none is known, as above U+FFFF.
[[nodiscard]] QString NameOf(char32_t character);

} // namespace Glyphor
