#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "texts/text_cursor.h"
#include "texts/text_readers.h"

#include <QJsonDocument>

namespace Glyphor {

namespace {

void CheckJson(QByteArrayView text, const TextCollector& collector)
{
    QJsonParseError error;
    static_cast<void>(
        QJsonDocument::fromJson(QByteArray::fromRawData(text.data(), text.size()), &error));
    if (error.error != QJsonParseError::NoError)
        collector.Fail(Engine::tr("It is not valid JSON: %1").arg(Shown(error.errorString())),
                       LineAt(text, std::clamp<qsizetype>(error.offset, 0, text.size())));
}

// Of the four digits of an escape.
char16_t JsonUnit(QByteArrayView string, qsizetype at)
{
    return static_cast<char16_t>(string.sliced(at, 4).toUShort(nullptr, 16));
}

// The escape whose backslash the string has there; returns the place behind it.
qsizetype AddJsonEscape(QByteArrayView string, qsizetype at, TextCollector& collector, int line)
{
    constexpr QByteArrayView controls("bfnrt");
    const char kind = string[at + 1];
    if (kind != 'u') {
        collector.Add(controls.contains(kind) ? U'\n' : static_cast<uchar>(kind), line);
        return at + 2;
    }
    constexpr qsizetype size = 6;
    const char16_t unit = JsonUnit(string, at + 2);
    if (!QChar::isSurrogate(unit)) {
        collector.Add(unit, line);
        return at + size;
    }
    const QByteArrayView next = string.sliced(at + size);
    const char16_t low = next.startsWith("\\u") ? JsonUnit(next, 2) : u'\0';
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

// The place of the quote that closes the string in valid JSON.
qsizetype EndOfJsonString(QByteArrayView text, qsizetype start)
{
    qsizetype end = start;
    while (text[end] != '"')
        end += text[end] == '\\' ? 2 : 1;
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

// The toolkit's reader knows no lines, so it checks the text, and what is valid is easy to walk.
void ReadJsonText(QByteArrayView text, TextCollector& collector)
{
    CheckJson(text, collector);
    int line = 1;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (EndsLine(text, at))
            ++line;
        if (text[at] != '"')
            continue;
        const qsizetype end = EndOfJsonString(text, at + 1);
        if (!IsJsonKey(text, end + 1))
            AddJsonString(text.sliced(at + 1, end - at - 1), collector, line);
        at = end;
    }
}

} // namespace Glyphor
