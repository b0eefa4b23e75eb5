#include "files/c_scanner.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <string>

namespace Glyphor {

namespace {

void Blank(char* first, const char* last)
{
    std::replace_if(
        first, const_cast<char*>(last), [](char character) { return !IsLineEnd(character); }, ' ');
}

void BlankComments(QByteArray& text)
{
    char* const end = text.data() + text.size();
    char* at = text.data();
    while ((at = static_cast<char*>(std::memchr(at, '/', static_cast<std::size_t>(end - at))))) {
        char* const commentEnd = at + CommentSize({at, static_cast<std::size_t>(end - at)});
        Blank(at, commentEnd);
        at = std::max(at + 1, commentEnd);
    }
}

void BlankTabs(QByteArray& text)
{
    for (char& character : text)
        character = character == '\t' || character == '\v' || character == '\f' ? ' ' : character;
}

// An integer of automatic base; false for anything else.
bool ParseInteger(std::string_view text, int& value)
{
    const bool isNegative = text.starts_with('-');
    std::string_view digits = text.substr(isNegative ? 1 : 0);
    int base = 10;
    if (digits.starts_with("0x") || digits.starts_with("0X")) {
        base = 16;
        digits.remove_prefix(2);
    } else if (digits.size() > 1 && digits.starts_with('0')) {
        base = 8;
    }
    while (!digits.empty() && std::strchr("uUlL", digits.back()) != nullptr)
        digits.remove_suffix(1);
    if (digits.starts_with('-'))
        return false;
    const char* const end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, value, base);
    value = isNegative ? -value : value;
    return result.ec == std::errc() && result.ptr == end;
}

} // namespace

std::size_t CommentSize(std::string_view text)
{
    if (text.starts_with("//"))
        return static_cast<std::size_t>(std::ranges::find_if(text, IsLineEnd) - text.begin());
    if (!text.starts_with("/*"))
        return 0;
    constexpr std::string_view mark = "*/";
    const std::size_t close = text.find(mark, 2);
    return close == std::string_view::npos ? text.size() : close + mark.size();
}

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && IsWhitespace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsWhitespace(text.back()))
        text.remove_suffix(1);
    return text;
}

CScanner::CScanner(QByteArray text) : text_(std::move(text))
{
    BlankComments(text_);
    BlankTabs(text_);
    view_ = {text_.constData(), static_cast<std::size_t>(text_.size())};
}

bool CScanner::FindText(std::string_view text)
{
    const std::size_t found = view_.find(text, position_);
    if (found == std::string_view::npos)
        return false;
    position_ = found + text.size();
    return true;
}

bool CScanner::FindWord(std::string_view word)
{
    const std::size_t before = position_;
    while (FindText(word)) {
        const std::size_t start = position_ - word.size();
        const bool beginsWord = start == 0 || !IsIdentifierCharacter(view_[start - 1]);
        if (beginsWord && !IsIdentifierCharacter(Current()))
            return true;
    }
    position_ = before;
    return false;
}

std::string_view CScanner::Identifier()
{
    const std::size_t start = position_;
    while (IsIdentifierCharacter(Current()))
        ++position_;
    return view_.substr(start, position_ - start);
}

void CScanner::SkipBlanks()
{
    while (Current() == ' ')
        ++position_;
}

void CScanner::SkipWhitespace()
{
    while (IsWhitespace(Current()))
        ++position_;
}

int CScanner::Integer()
{
    const auto startsInteger = [](char character) {
        return (character >= '0' && character <= '9') || character == '-';
    };
    char previous = position_ > 0 ? view_[position_ - 1] : ' ';
    while (!(startsInteger(Current()) && (IsWhitespace(previous) || previous == ','))) {
        if (position_ >= view_.size())
            FailAtEnd(Engine::tr("Integer not found!"));
        previous = view_[position_++];
    }
    const std::size_t start = position_;
    while (Current() == '-' || IsIdentifierCharacter(Current()))
        ++position_;
    return Number(view_.substr(start, position_ - start));
}

std::string_view CScanner::Until(char end, std::string_view limits)
{
    const std::size_t at = view_.find_first_of(std::string(limits) + end, position_);
    if (at == std::string_view::npos || view_[at] != end)
        return {};
    const std::string_view part = view_.substr(position_, at - position_);
    position_ = at + 1;
    return part;
}

int CScanner::Number(std::string_view element) const
{
    int value = 0;
    if (!ParseInteger(element, value))
        FailAt(PositionOf(element), Engine::tr("Error parsing integer!"));
    return value;
}

void CScanner::FailAt(std::size_t position, const QString& message) const
{
    int line = 1;
    std::size_t lineStart = 0;
    for (std::size_t at = 0; at < std::min(position, view_.size()); ++at) {
        const bool isPair = view_[at] == '\r' && at + 1 < view_.size() && view_[at + 1] == '\n';
        if (IsLineEnd(view_[at]) && !isPair) {
            ++line;
            lineStart = at + 1;
        }
    }
    throw CriticalException(
        Engine::tr("Error reading C file!"),
        Engine::tr("%1\n\nError occured in:\nLine: %2\nColumn: %3")
            .arg(message, QString::number(line), QString::number(position - lineStart + 1)));
}

} // namespace Glyphor
