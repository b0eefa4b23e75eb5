#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "texts/text_cursor.h"
#include "texts/text_readers.h"

#include <QJsonDocument>

#include <algorithm>
#include <cctype>

namespace Glyphor {

namespace {

void CheckJson(const QByteArray& text, const TextCollector& collector)
{
    QJsonParseError error;
    static_cast<void>(QJsonDocument::fromJson(text, &error));
    if (error.error != QJsonParseError::NoError)
        collector.Fail(Engine::tr("It is not valid JSON: %1").arg(Shown(error.errorString())),
                       LineAt(text, std::clamp<qsizetype>(error.offset, 0, text.size())));
}

// Of the four digits of an escape.
char16_t JsonUnit(QByteArrayView string, qsizetype at, const TextCollector& collector, int line)
{
    const QByteArrayView digits =
        string.sliced(at).first(std::min<qsizetype>(string.size() - at, 4));
    const bool areDigits = std::ranges::all_of(
        digits, [](char digit) { return std::isxdigit(static_cast<uchar>(digit)) != 0; });
    if (digits.size() < 4 || !areDigits)
        collector.Fail(Engine::tr("An escape sequence lacks its digits."), line);
    return digits.toUShort(nullptr, 16);
}

// The escape whose backslash the string has there; returns the place behind it.
qsizetype AddJsonEscape(QByteArrayView string, qsizetype at, TextCollector& collector, int line)
{
    constexpr QByteArrayView controls("bfnrt");
    constexpr QByteArrayView plain("\"\\/");
    const char kind = string[at + 1];
    if (plain.contains(kind))
        collector.Add(static_cast<uchar>(kind), line);
    else if (kind != 'u' && !controls.contains(kind))
        collector.Fail(Engine::tr("An escape sequence has no meaning."), line);
    if (kind != 'u')
        return at + 2;
    constexpr qsizetype size = 6;
    const char16_t unit = JsonUnit(string, at + 2, collector, line);
    if (!QChar::isSurrogate(unit)) {
        collector.Add(unit, line);
        return at + size;
    }
    const QByteArrayView next = string.sliced(at + size);
    const char16_t low = next.startsWith("\\u") ? JsonUnit(next, 2, collector, line) : u'\0';
    if (!QChar::isHighSurrogate(unit) || !QChar::isLowSurrogate(low))
        collector.Fail(Engine::tr("It holds one half of a surrogate pair."), line);
    collector.Add(QChar::surrogateToUcs4(unit, low), line);
    return at + 2 * size;
}

void AddJsonString(QByteArrayView string, TextCollector& collector, int line)
{
    for (qsizetype at = 0; at < string.size();) {
        const qsizetype escape = string.indexOf('\\', at);
        const qsizetype end = escape < 0 ? string.size() : escape;
        collector.AddUtf8(string.sliced(at, end - at), line);
        at = escape < 0 ? end : AddJsonEscape(string, escape, collector, line);
    }
}

bool IsEscaped(QByteArrayView text, qsizetype start, qsizetype quote)
{
    qsizetype before = quote;
    while (before > start && text[before - 1] == '\\')
        --before;
    return (quote - before) % 2 != 0;
}

// The place of the quote that closes the string, on its line.
qsizetype EndOfJsonString(QByteArrayView text, qsizetype start, const TextCollector& collector,
                          int line)
{
    qsizetype end = text.indexOf('"', start);
    while (end >= 0 && IsEscaped(text, start, end))
        end = text.indexOf('"', end + 1);
    const QByteArrayView string = text.sliced(start).first(std::max<qsizetype>(end - start, 0));
    if (end < 0 || string.contains('\n') || string.contains('\r'))
        collector.Fail(Engine::tr("A string is not closed."), line);
    return end;
}

bool IsJsonKey(QByteArrayView text, qsizetype behind)
{
    constexpr QByteArrayView blanks(" \t\r\n");
    while (behind < text.size() && blanks.contains(text[behind]))
        ++behind;
    return behind < text.size() && text[behind] == ':';
}

} // namespace

// The toolkit's reader knows no lines and keeps all that it reads, so it checks no more than what
// is around the values.
void ReadJsonText(QByteArrayView text, TextCollector& collector)
{
    QByteArray frame;
    frame.reserve(text.size());
    int line = 1;
    qsizetype end = 0;
    for (qsizetype at = text.indexOf('"'); at >= 0; at = text.indexOf('"', end + 1)) {
        line += LineAt(text.sliced(end), at - end) - 1;
        frame.append(text.sliced(end, at - end));
        end = EndOfJsonString(text, at + 1, collector, line);
        if (IsJsonKey(text, end + 1)) {
            frame.append(text.sliced(at, end - at));
        } else {
            frame.append('"');
            AddJsonString(text.sliced(at + 1, end - at - 1), collector, line);
        }
    }
    frame.append(text.sliced(end));
    CheckJson(frame, collector);
}

} // namespace Glyphor
