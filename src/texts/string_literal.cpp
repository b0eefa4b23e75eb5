#include "texts/string_literal.h"

#include "app/engine_texts.h"

#include <limits>

namespace Glyphor {

namespace {

int DigitOf(char digit, int base)
{
    const char letter = static_cast<char>(digit | 0x20);
    int value = base;
    if (digit >= '0' && digit <= '9')
        value = digit - '0';
    else if (letter >= 'a' && letter <= 'f')
        value = letter - 'a' + 10;
    return value < base ? value : -1;
}

// The number of at least one and at most so many digits.
char32_t ReadNumber(TextCursor& cursor, int base, qsizetype mostDigits)
{
    char32_t number = 0;
    qsizetype count = 0;
    for (; count < mostDigits && DigitOf(cursor.Peek(), base) >= 0; ++count, cursor.Skip()) {
        number = number * char32_t(base) + char32_t(DigitOf(cursor.Peek(), base));
        if (number > QChar::LastValidCodePoint)
            cursor.Fail(Engine::tr("The number of an escape sequence is too large."));
    }
    if (count == 0)
        cursor.Fail(Engine::tr("An escape sequence lacks its digits."));
    return number;
}

// The digits of \x, \u and \U may stand in braces.
char32_t ReadHexadecimal(TextCursor& cursor, qsizetype mostDigits)
{
    constexpr qsizetype anyCount = std::numeric_limits<qsizetype>::max();
    if (cursor.Peek() != '{')
        return ReadNumber(cursor, 16, mostDigits);
    cursor.Skip();
    const char32_t number = ReadNumber(cursor, 16, anyCount);
    cursor.Skip(cursor.Peek() == '}' ? 1 : 0);
    return number;
}

// Of the codes from the index on, which may be two halves of one.
Utf8Character JoinedSurrogates(const std::vector<TextCharacter>& units, std::size_t index)
{
    const char32_t code = units[index].code;
    if (!QChar::isSurrogate(code))
        return {code, 1};
    if (!QChar::isHighSurrogate(code) || index + 1 == units.size() ||
        !QChar::isLowSurrogate(units[index + 1].code))
        return {};
    return {QChar::surrogateToUcs4(char16_t(code), char16_t(units[index + 1].code)), 2};
}

} // namespace

StringLiteral::StringLiteral(TextCursor& cursor, Elements elements) : elements_(elements)
{
    const int firstLine = cursor.Line();
    cursor.Skip();
    while (cursor.Peek() != '"' || cursor.IsAtEnd()) {
        if (cursor.IsAtLineEnd())
            cursor.Collector().Fail(Engine::tr("A string is not closed."), firstLine);
        if (cursor.Peek() == '\\') {
            ReadEscape(cursor);
        } else if (elements_ == Elements::Bytes) {
            AddUnit(static_cast<uchar>(cursor.Peek()), cursor.Line());
            cursor.Skip();
        } else {
            const Utf8Character character = FirstCharacter(cursor.Rest());
            AddUnit(character.code, cursor.Line());
            cursor.Skip(character.size);
        }
    }
    cursor.Skip();
}

void StringLiteral::ReadEscape(TextCursor& cursor)
{
    constexpr QByteArrayView controls("abefnrtv");
    cursor.Skip();
    const char kind = cursor.Peek();
    if (kind == 'x') {
        cursor.Skip();
        AddNumber(cursor, ReadHexadecimal(cursor, std::numeric_limits<qsizetype>::max()));
    } else if (DigitOf(kind, 8) >= 0) {
        AddNumber(cursor, ReadNumber(cursor, 8, 3));
    } else if (kind == 'u' || kind == 'U') {
        cursor.Skip();
        AddCode(cursor, ReadHexadecimal(cursor, kind == 'u' ? 4 : 8));
    } else if (controls.contains(kind)) {
        AddUnit('\n', cursor.Line());
        cursor.Skip();
    } else if (kind == '\r' || kind == '\n') {
        cursor.Skip(kind == '\r' && cursor.Peek(1) == '\n' ? 2 : 1);
    } else if (!cursor.IsAtEnd() && static_cast<uchar>(kind) < 0x80) {
        AddUnit(static_cast<uchar>(kind), cursor.Line());
        cursor.Skip();
    }
}

void StringLiteral::AddNumber(TextCursor& cursor, char32_t number)
{
    if (elements_ == Elements::Bytes && number > 0xFF)
        cursor.Fail(Engine::tr("The number of an escape sequence is too large."));
    AddUnit(number, cursor.Line());
}

void StringLiteral::AddCode(TextCursor& cursor, char32_t code)
{
    if (elements_ == Elements::Codes) {
        AddUnit(code, cursor.Line());
        return;
    }
    if (QChar::isSurrogate(code))
        cursor.Fail(Engine::tr("It holds one half of a surrogate pair."));
    for (const char byte : QString::fromUcs4(&code, 1).toUtf8())
        AddUnit(static_cast<uchar>(byte), cursor.Line());
}

void StringLiteral::AddTo(TextCollector& collector) const
{
    QByteArray bytes;
    if (elements_ == Elements::Bytes) {
        for (const TextCharacter& unit : units_)
            bytes.append(static_cast<char>(unit.code));
    }
    for (std::size_t index = 0; index < units_.size();) {
        Utf8Character character =
            elements_ == Elements::Bytes
                ? FirstCharacter(QByteArrayView(bytes).sliced(qsizetype(index)))
                : JoinedSurrogates(units_, index);
        if (character.size == 0 && elements_ == Elements::Codes)
            collector.Fail(Engine::tr("It holds one half of a surrogate pair."),
                           units_[index].line);
        if (character.size == 0)
            character = {units_[index].code, 1};
        collector.Add(character.code, units_[index].line);
        index += static_cast<std::size_t>(character.size);
    }
}

} // namespace Glyphor
