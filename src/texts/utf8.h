#pragma once

#include <QByteArray>

namespace Glyphor {

class TextCollector;

struct Utf8Character
{
    char32_t code = 0;
    int size = 0; // in bytes; 0 where the bytes are not UTF-8
};

// The character that the bytes begin with.
[[nodiscard]] Utf8Character FirstMultibyteCharacter(QByteArrayView bytes);
[[nodiscard]] inline Utf8Character FirstCharacter(QByteArrayView bytes)
{
    const auto first = static_cast<uchar>(bytes.front());
    return first < 0x80 ? Utf8Character{first, 1} : FirstMultibyteCharacter(bytes);
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
