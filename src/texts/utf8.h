#pragma once

#include <QByteArray>
#include <QChar>

#include <array>
#include <bit>

namespace Glyphor {

class TextCollector;

struct Utf8Character
{
    char32_t code = 0;
    int size = 0; // in bytes; 0 where the bytes are not UTF-8
};

// The character that the bytes begin with.
[[nodiscard]] inline Utf8Character FirstCharacter(QByteArrayView bytes)
{
    // The least code of each size; less is an overlong form.
    constexpr std::array<char32_t, 5> least = {0, 0, 0x80, 0x800, 0x10000};
    const auto first = static_cast<uchar>(bytes.front());
    if (first < 0x80)
        return {first, 1};
    const int size = std::countl_one(first);
    if (size < 2 || size > 4 || bytes.size() < size)
        return {};
    char32_t code = first & (0x7FU >> size);
    for (const char next : bytes.sliced(1, size - 1)) {
        if ((static_cast<uchar>(next) & 0xC0U) != 0x80)
            return {};
        code = code << 6 | (static_cast<uchar>(next) & 0x3FU);
    }
    if (code < least[static_cast<std::size_t>(size)] || code > QChar::LastValidCodePoint ||
        QChar::isSurrogate(code))
        return {};
    return {code, size};
}

// Whether the byte is the last one of its line: LF, or CR without LF.
[[nodiscard]] inline bool EndsLine(QByteArrayView text, qsizetype at)
{
    return text[at] == '\n' ||
           (text[at] == '\r' && (at + 1 == text.size() || text[at + 1] != '\n'));
}

// The line, counted from 1, of a place in the text.
[[nodiscard]] int LineAt(QByteArrayView text, qsizetype at);

// The contents of a file in valid UTF-8 without its byte order mark. Fails where they are neither
// that nor UTF-16 with a mark.
[[nodiscard]] QByteArray TextInUtf8(const QByteArray& contents, const TextCollector& collector);

} // namespace Glyphor
