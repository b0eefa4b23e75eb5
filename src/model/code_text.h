#pragma once

#include <QString>

#include <algorithm>
#include <array>
#include <charconv>

namespace Glyphor {

// A character code as all texts show it: four upper-case hexadecimal digits.
[[nodiscard]] constexpr std::array<char, 4> Hex4(quint16 code)
{
    constexpr char digits[] = "0123456789ABCDEF";
    return {digits[code >> 12], digits[code >> 8 & 15], digits[code >> 4 & 15], digits[code & 15]};
}

[[nodiscard]] inline QString Hex4Text(quint16 code)
{
    const auto digits = Hex4(code);
    return QString::fromLatin1(digits.data(), digits.size());
}

// A character of Unicode as messages name it, "U+20AC".
[[nodiscard]] inline QString UnicodeNotation(char32_t character)
{
    return QStringLiteral("U+") +
           QString::number(character, 16).toUpper().rightJustified(4, QLatin1Char('0'));
}

// A character code as the window shows it, by the user's choice.
[[nodiscard]] inline QString ShownCode(quint16 code, bool isHexadecimal)
{
    return isHexadecimal ? Hex4Text(code).prepend(u"0x") : QString::number(code);
}

// A decimal number as text, without a trip to the heap.
class Decimal
{
public:
    // Right-aligned in a field of at least `width` (up to 8) characters.
    explicit Decimal(int value, int width = 0)
    {
        char digits[12];
        const auto length = std::to_chars(digits, digits + sizeof digits, value).ptr - digits;
        char* to = text_;
        for (auto blanks = width - length; blanks > 0; --blanks)
            *to++ = ' ';
        size_ = std::copy_n(digits, length, to) - text_;
    }

    // Of the number's own text, which must outlive the view.
    operator QByteArrayView() const { return {text_, size_}; }

private:
    char text_[20];
    qsizetype size_;
};

} // namespace Glyphor
