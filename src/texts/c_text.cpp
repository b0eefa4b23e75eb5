#include "app/engine_texts.h"
#include "texts/string_literal.h"
#include "texts/text_readers.h"

namespace Glyphor {

namespace {

bool IsDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

bool IsWordByte(char byte)
{
    const char letter = static_cast<char>(byte | 0x20);
    return (letter >= 'a' && letter <= 'z') || IsDigit(byte) || byte == '_' ||
           static_cast<uchar>(byte) >= 0x80;
}

// Reads the tokens of a source far enough to tell strings from what is like them.
class CTextReader
{
public:
    CTextReader(QByteArrayView text, TextCollector& collector) : cursor_(text, collector) {}

    void Read()
    {
        while (!cursor_.IsAtEnd()) {
            if (!SkipSpace() && !SkipComment())
                ReadToken();
        }
    }

private:
    bool SkipSpace()
    {
        const char byte = cursor_.Peek();
        if (cursor_.IsAtEnd())
            return false;
        if (cursor_.IsAtLineEnd())
            isAtLineStart_ = true;
        else if (byte != ' ' && byte != '\t' && byte != '\f' && byte != '\v')
            return false;
        cursor_.Skip();
        return true;
    }

    bool SkipComment()
    {
        if (cursor_.Peek() != '/')
            return false;
        if (cursor_.Peek(1) == '/') {
            while (!cursor_.IsAtLineEnd())
                SkipSpliced();
            return true;
        }
        if (cursor_.Peek(1) != '*')
            return false;
        const int firstLine = cursor_.Line();
        const qsizetype end = cursor_.Rest().indexOf("*/", 2);
        if (end < 0)
            cursor_.Collector().Fail(Engine::tr("A comment is not closed."), firstLine);
        cursor_.Skip(end + 2);
        return true;
    }

    // One byte, or a backslash with the line end that it hides.
    void SkipSpliced()
    {
        if (cursor_.Peek() == '\\' && cursor_.Peek(1) == '\r' && cursor_.Peek(2) == '\n')
            cursor_.Skip(3);
        else
            cursor_.Skip(cursor_.Peek() == '\\' ? 2 : 1);
    }

    void ReadToken()
    {
        const bool isDirective = cursor_.Peek() == '#' && isAtLineStart_;
        const bool isAfterExtern = isAfterExtern_;
        isAtLineStart_ = false;
        isAfterExtern_ = false;
        if (isDirective)
            ReadDirective();
        else if (cursor_.Peek() == '"')
            ReadString(StringLiteral::Elements::Bytes, isAfterExtern);
        else if (cursor_.Peek() == '\'')
            SkipCharacterLiteral();
        else if (IsDigit(cursor_.Peek()))
            SkipNumber();
        else if (IsWordByte(cursor_.Peek()))
            ReadWord();
        else
            cursor_.Skip();
    }

    // The language after "extern" is no text.
    void ReadString(StringLiteral::Elements elements, bool isLanguage)
    {
        const StringLiteral string(cursor_, elements);
        if (!isLanguage)
            string.AddTo(cursor_.Collector());
    }

    void SkipCharacterLiteral()
    {
        const int firstLine = cursor_.Line();
        cursor_.Skip();
        while (cursor_.Peek() != '\'') {
            if (cursor_.IsAtLineEnd())
                cursor_.Collector().Fail(Engine::tr("A character literal is not closed."),
                                         firstLine);
            SkipSpliced();
        }
        cursor_.Skip();
    }

    // With its digit separators.
    void SkipNumber()
    {
        while (IsWordByte(cursor_.Peek()) || cursor_.Peek() == '.' ||
               (cursor_.Peek() == '\'' && IsWordByte(cursor_.Peek(1))))
            cursor_.Skip();
    }

    void ReadWord()
    {
        const QByteArrayView word = cursor_.SkipWhile(IsWordByte);
        isAfterExtern_ = word == "extern";
        if (cursor_.Peek() != '"')
            return;
        if (word == "u" || word == "U" || word == "L")
            ReadString(StringLiteral::Elements::Codes, false);
        else if (word == "R" || word == "u8R" || word == "uR" || word == "UR" || word == "LR")
            ReadRawString();
    }

    void ReadRawString()
    {
        constexpr qsizetype mostDelimiter = 16;
        const int firstLine = cursor_.Line();
        cursor_.Skip();
        const QByteArray delimiter =
            cursor_.SkipWhile([](char byte) { return byte != '(' && byte != '"' && byte != '\n'; })
                .toByteArray();
        const QByteArray closing = ')' + delimiter + '"';
        const qsizetype size = delimiter.size() <= mostDelimiter && cursor_.Peek() == '('
                                   ? cursor_.Rest().indexOf(closing)
                                   : -1;
        if (size < 0)
            cursor_.Collector().Fail(Engine::tr("A string is not closed."), firstLine);
        cursor_.Skip();
        cursor_.Collector().AddUtf8(cursor_.Rest().first(size - 1), cursor_.Line());
        cursor_.Skip(size - 1 + closing.size());
    }

    QByteArrayView SkipDirectiveName()
    {
        cursor_.Skip();
        cursor_.SkipBlanks();
        return cursor_.SkipWhile(IsWordByte);
    }

    void ReadDirective()
    {
        const QByteArrayView name = SkipDirectiveName();
        for (const char* other :
             {"include", "include_next", "import", "embed", "line", "error", "warning", "pragma"}) {
            if (name == other)
                SkipLine();
        }
        if (name != "if")
            return;
        cursor_.SkipBlanks();
        if (cursor_.SkipWhile(IsWordByte) == "0") {
            cursor_.SkipBlanks();
            if (cursor_.IsAtLineEnd() || cursor_.Peek() == '/')
                SkipGroup();
        }
    }

    // The rest of the line, where quotes need not be closed.
    void SkipLine()
    {
        while (!cursor_.IsAtLineEnd()) {
            if (cursor_.Peek() == '"')
                SkipQuoted();
            else if (!SkipComment())
                SkipSpliced();
        }
    }

    void SkipQuoted()
    {
        cursor_.Skip();
        while (!cursor_.IsAtLineEnd() && cursor_.Peek() != '"')
            SkipSpliced();
        cursor_.Skip(cursor_.Peek() == '"' ? 1 : 0);
    }

    // What "#if 0" disables, up to its "#else" or "#endif".
    void SkipGroup()
    {
        for (int depth = 1; depth > 0 && !cursor_.IsAtEnd();) {
            SkipLine();
            while (SkipSpace() || SkipComment()) {
            }
            if (cursor_.Peek() != '#')
                continue;
            const QByteArrayView name = SkipDirectiveName();
            if (name.startsWith("if"))
                ++depth;
            else if (name == "endif" || (depth == 1 && name.startsWith("el")))
                --depth;
        }
    }

    TextCursor cursor_;
    bool isAtLineStart_ = true;
    bool isAfterExtern_ = false;
};

} // namespace

void ReadCText(QByteArrayView text, TextCollector& collector)
{
    CTextReader(text, collector).Read();
}

} // namespace Glyphor
