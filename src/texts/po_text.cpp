#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "texts/string_literal.h"
#include "texts/text_readers.h"

#include <algorithm>

namespace Glyphor {

namespace {

class PoReader
{
public:
    PoReader(QByteArrayView text, TextCollector& collector) : cursor_(text, collector) {}

    void Read()
    {
        while (!cursor_.IsAtEnd()) {
            cursor_.SkipBlanks();
            if (cursor_.Peek() == '#')
                ReadComment();
            else if (cursor_.Peek() == '"')
                ReadString();
            else if (cursor_.IsAtLineEnd())
                cursor_.Skip();
            else
                ReadKeyword();
        }
        EndEntry();
    }

private:
    enum class Part { None, Domain, Context, Id, Translation };

    // Flags stand before the first keyword of their entry.
    void EndEntry()
    {
        if (part_ == Part::Context || part_ == Part::Id)
            cursor_.Fail(Engine::tr("A message lacks its translation."));
        if (part_ == Part::Translation)
            isFuzzy_ = false;
        part_ = Part::None;
    }

    // Obsolete entries are comments, but their flags look like those of others.
    void ReadComment()
    {
        if (part_ == Part::Translation)
            EndEntry();
        const QByteArrayView comment =
            cursor_.SkipWhile([](char byte) { return byte != '\n' && byte != '\r'; });
        if (comment.startsWith("#~"))
            isFuzzy_ = false;
        if (!comment.startsWith("#,"))
            return;
        for (const QByteArray& flag : comment.sliced(2).toByteArray().split(',')) {
            if (flag.trimmed() == "fuzzy")
                isFuzzy_ = true;
        }
    }

    void ReadKeyword()
    {
        const QByteArrayView keyword = cursor_.SkipWhile(
            [](char byte) { return (byte >= 'a' && byte <= 'z') || byte == '_'; });
        if (keyword == "msgstr") {
            if (part_ != Part::Id && part_ != Part::Translation)
                cursor_.Fail(Engine::tr("A translation lacks its message."));
            part_ = Part::Translation;
            cursor_.SkipWhile([](char byte) { return byte != '"' && byte != '\n'; });
        } else if (keyword == "msgid_plural" && part_ == Part::Id) {
            isHeader_ = false;
        } else if (keyword == "msgid" && part_ == Part::Context) {
            part_ = Part::Id;
        } else if (keyword == "msgid" || keyword == "msgctxt" || keyword == "domain") {
            EndEntry();
            part_ = keyword == "msgid"     ? Part::Id
                    : keyword == "msgctxt" ? Part::Context
                                           : Part::Domain;
            isHeader_ = keyword == "msgid";
        } else {
            cursor_.Fail(Engine::tr("It is no catalogue of gettext."));
        }
    }

    void ReadString()
    {
        if (part_ == Part::None)
            cursor_.Fail(Engine::tr("A string lacks its keyword."));
        const StringLiteral string(cursor_, StringLiteral::Elements::Bytes);
        if (part_ == Part::Id)
            isHeader_ = isHeader_ && string.IsEmpty();
        if (part_ == Part::Translation && !isHeader_ && !isFuzzy_)
            string.AddTo(cursor_.Collector());
    }

    TextCursor cursor_;
    Part part_ = Part::None;
    bool isFuzzy_ = false;
    bool isHeader_ = true; // for as long as the message is empty and has no context
};

// What the header says, empty where it says nothing.
QByteArrayView PoCharset(QByteArrayView contents)
{
    constexpr QByteArrayView field("Content-Type:");
    constexpr QByteArrayView parameter("charset=");
    const qsizetype start = contents.indexOf(field);
    if (start < 0)
        return {};
    QByteArrayView line = contents.sliced(start);
    if (const qsizetype end = line.indexOf('\n'); end >= 0)
        line.truncate(end);
    const qsizetype value = line.indexOf(parameter);
    if (value < 0)
        return {};
    line = line.sliced(value + parameter.size());
    const auto* const end = std::ranges::find_if(
        line, [](char byte) { return QByteArrayView(" ;\\\"\r").contains(byte); });
    return line.first(end - line.begin());
}

} // namespace

void CheckPoCharset(QByteArrayView contents, const TextCollector& collector)
{
    constexpr char escape = '\x1B'; // begins other characters in 7-bit encodings
    const bool isAscii = std::ranges::all_of(
        contents, [](char byte) { return static_cast<uchar>(byte) < 0x80 && byte != escape; });
    const QByteArrayView charset = PoCharset(contents);
    // "CHARSET" stands in templates.
    const bool isOurs = charset.isEmpty() || charset == "CHARSET" ||
                        charset.compare("UTF-8", Qt::CaseInsensitive) == 0 ||
                        charset.compare("UTF8", Qt::CaseInsensitive) == 0;
    if (!isAscii && !isOurs)
        collector.Fail(Engine::tr("It is in the encoding %1; convert it to UTF-8.")
                           .arg(Shown(QString::fromLatin1(charset))),
                       LineAt(contents, charset.data() - contents.data()));
}

void ReadPoText(QByteArrayView text, TextCollector& collector)
{
    PoReader(text, collector).Read();
}

} // namespace Glyphor
