#pragma once

#include "texts/text_cursor.h"

namespace Glyphor {

// A string in double quotes with the escapes of C.
class StringLiteral
{
public:
    // What the elements of a string are, and with them the numbers of escapes like \xE4.
    enum class Elements { Bytes, Codes };

    // Reads from the opening quote to beyond the closing one. Fails where the string is not closed
    // on its line, which a backslash at the end of the line continues.
    StringLiteral(TextCursor& cursor, Elements elements);

    [[nodiscard]] bool IsEmpty() const { return units_.empty(); }

    // Hands over the characters. A byte that is not UTF-8 stands for the code of its value, as in
    // texts of 8-bit characters.
    void AddTo(TextCollector& collector) const;

private:
    void ReadEscape(TextCursor& cursor);
    void AddNumber(TextCursor& cursor, char32_t number);
    void AddCode(TextCursor& cursor, char32_t code);
    void AddUnit(char32_t unit, int line) { units_.push_back({unit, line}); }

    Elements elements_;
    std::vector<TextCharacter> units_;
};

} // namespace Glyphor
