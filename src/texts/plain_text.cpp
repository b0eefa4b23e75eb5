#include "app/engine_texts.h"
#include "texts/text_cursor.h"
#include "texts/text_readers.h"

#include <algorithm>
#include <array>

namespace Glyphor {

namespace {

constexpr QByteArrayView CsvSeparators(",;\t");

// From a field's opening quote to beyond its closing one; doubled quotes stand for one.
void ReadQuotedField(TextCursor& cursor)
{
    const int firstLine = cursor.Line();
    cursor.Skip();
    while (cursor.Peek() != '"' || cursor.Peek(1) == '"') {
        if (cursor.IsAtEnd())
            cursor.Collector().Fail(Engine::tr("A field in quotes is not closed."), firstLine);
        if (cursor.Peek() == '"') {
            cursor.Collector().Add('"', cursor.Line());
            cursor.Skip(2);
        } else {
            const int line = cursor.Line();
            const auto part = cursor.SkipWhile([](char byte) { return byte != '"'; });
            cursor.Collector().AddUtf8(part, line);
        }
    }
    cursor.Skip();
}

char CsvSeparatorOf(QByteArrayView text)
{
    std::array<qsizetype, CsvSeparators.size()> counts{};
    bool isQuoted = false;
    for (const char byte : text) {
        if ((byte == '\n' || byte == '\r') && !isQuoted)
            break;
        if (byte == '"')
            isQuoted = !isQuoted;
        const qsizetype index = CsvSeparators.indexOf(byte);
        if (index >= 0 && !isQuoted)
            ++counts[static_cast<std::size_t>(index)];
    }
    return CsvSeparators[std::ranges::max_element(counts) - counts.begin()];
}

} // namespace

void ReadPlainText(QByteArrayView text, TextCollector& collector)
{
    collector.AddUtf8(text, 1);
}

void ReadCsvText(QByteArrayView text, TextCollector& collector)
{
    TextCursor cursor(text, collector);
    char separator = CsvSeparatorOf(text);
    constexpr QByteArrayView hint("sep=");
    if (text.startsWith(hint) && CsvSeparators.contains(cursor.Peek(hint.size()))) {
        cursor.Skip(hint.size());
        separator = cursor.Peek();
        cursor.Skip();
    }
    const auto isInField = [separator](char byte) {
        return byte != separator && byte != '\n' && byte != '\r';
    };
    while (!cursor.IsAtEnd()) {
        if (cursor.Peek() == '"')
            ReadQuotedField(cursor);
        const int line = cursor.Line();
        collector.AddUtf8(cursor.SkipWhile(isInField), line);
        cursor.Skip();
    }
}

} // namespace Glyphor
