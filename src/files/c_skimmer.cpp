#include "files/c_skimmer.h"

#include "files/c_scanner.h"

#include <algorithm>
#include <charconv>

namespace Glyphor {

namespace {

constexpr std::size_t CodeDigits = 4;

// Without branches, so that many characters are compared at once.
constexpr bool IsStop(char character)
{
    const auto is = [character](char other) { return static_cast<int>(character == other); };
    return (is('/') | is('{') | is('}') | is('"') | is('\'') | is('#')) != 0;
}

// The first character from a place on that may begin or end something, or the end.
std::size_t FindStop(std::string_view text, std::size_t at)
{
    constexpr std::size_t block = 64;
    for (; at + block <= text.size(); at += block) {
        const char* const start = text.data() + at;
        int any = 0;
        for (std::size_t index = 0; index < block; ++index)
            any |= static_cast<int>(IsStop(start[index]));
        if (any != 0)
            break;
    }
    while (at < text.size() && !IsStop(text[at]))
        ++at;
    return at;
}

// Whether a brace behind it opens the list of an array, and nothing else is to be seen.
bool IsHeadOfList(std::string_view head)
{
    const auto isPlain = [](char character) {
        return IsIdentifierCharacter(character) || character == ' ' || character == '[' ||
               character == ']' || character == '=';
    };
    return head.ends_with("] = ") && std::ranges::all_of(head, isPlain) &&
           std::ranges::count(head, '=') == 1;
}

bool IsHeadOfTable(std::string_view head)
{
    return head.starts_with("static GUI_CONST_STORAGE GUI_CHARINFO") && IsHeadOfList(head);
}

// Four digits as our files write them.
std::optional<quint16> CodeOf(std::string_view digits)
{
    quint16 code = 0;
    const char* const end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, code, 16);
    if (digits.size() != CodeDigits || result.ptr != end)
        return std::nullopt;
    return code;
}

} // namespace

void CSkimmer::Add(QByteArrayView piece)
{
    text_.append(piece);
    Skim();
}

std::optional<QByteArray> CSkimmer::Finish()
{
    isWhole_ = true;
    Skim();
    arrays_ -= records_;
    if (isOdd_ || depth_ != 0 || !arrays_.IsEmpty())
        return std::nullopt;
    return std::move(rest_);
}

// Up to the end of the text, or to a place where what follows has to be seen first. The line of
// that place is kept: it may be the head of an array.
void CSkimmer::Skim()
{
    const std::string_view text = Text();
    while ((at_ = FindStop(text, at_)) < text.size()) {
        if ((text[at_] == '"' || text[at_] == '\'') && text[LineStart(at_)] != '#')
            isOdd_ = true;
        if (text[at_] == '}' && --depth_ < 0)
            isOdd_ = true;
        const std::size_t next = text[at_] == '/'   ? PassComment(at_)
                                 : text[at_] == '{' ? PassBrace(at_)
                                                    : at_ + 1;
        if (next == at_)
            break;
        at_ = next;
    }
    const std::size_t end = isWhole_ ? text.size() : LineStart(at_);
    CopyTo(end);
    text_.remove(0, qsizetype(end));
    at_ -= std::min(at_, end);
    copied_ = 0;
}

void CSkimmer::CopyTo(std::size_t end)
{
    rest_.append(text_.constData() + copied_, qsizetype(end - copied_));
    copied_ = end;
}

// Lines that are longer than any of ours begin at the place itself.
std::size_t CSkimmer::LineStart(std::size_t at) const
{
    constexpr std::size_t longest = 512;
    const std::string_view text = Text();
    for (std::size_t start = at; start > copied_ && at - start < longest; --start) {
        if (IsLineEnd(text[start - 1]))
            return start;
    }
    return at - copied_ < longest ? copied_ : at;
}

std::size_t CSkimmer::PassComment(std::size_t at)
{
    const std::string_view text = Text();
    const std::size_t end = at + CommentSize(text.substr(at));
    if (!isWhole_ && std::max(end, at + 1) == text.size())
        return at;
    if (end == at)
        return at + 1;
    CopyTo(at);
    rest_.append(' ');
    for (; copied_ < end; ++copied_) {
        if (IsLineEnd(text[copied_]))
            rest_.append(text[copied_]);
    }
    return end;
}

std::size_t CSkimmer::PassBrace(std::size_t at)
{
    const std::string_view text = Text();
    const std::size_t end = EndOfList(at + 1);
    if (end + 1 >= text.size() && !isWhole_)
        return at;
    const std::string_view behind = text.substr(std::min(end, text.size()));
    const std::size_t start = LineStart(at);
    if (depth_ == 1 && isTable_ && behind.starts_with('}')) {
        if (const auto code = CodeOfRecord(text.substr(at + 1, end - at - 1))) {
            CopyTo(at);
            records_.Set(*code, true);
            return copied_ = end + 1;
        }
    } else if (depth_ == 0 && behind.starts_with("};") && IsBetweenDeclarations(start)) {
        if (const auto code = CodeOfArray(text.substr(start, at - start))) {
            CopyTo(start);
            afterArray_ = rest_.size();
            arrays_.Set(*code, true);
            return copied_ = end + 2;
        }
    }
    if (depth_ == 0)
        isTable_ = IsHeadOfTable(text.substr(start, at - start)) && IsBetweenDeclarations(start);
    ++depth_;
    return at + 1;
}

// Whether a declaration may begin at the place, whatever stands in front of it.
bool CSkimmer::IsBetweenDeclarations(std::size_t at)
{
    CopyTo(at);
    const std::string_view before =
        Trimmed({rest_.constData() + afterArray_, std::size_t(rest_.size() - afterArray_)});
    if (before.empty() || before.ends_with(';') || before.ends_with('}'))
        return true;
    const std::size_t line = before.find_last_of("\r\n") + 1;
    return before.substr(line).starts_with('#') && !before.ends_with('\\');
}

// The first stop from a place on that begins no comment, or the end.
std::size_t CSkimmer::EndOfList(std::size_t at) const
{
    const std::string_view text = Text();
    while ((at = FindStop(text, at)) < text.size() && text[at] == '/') {
        const std::size_t comment = CommentSize(text.substr(at));
        if (comment == 0)
            break;
        at += comment;
    }
    return at;
}

// The first array tells the prefix of all.
std::optional<quint16> CSkimmer::CodeOfArray(std::string_view head)
{
    constexpr std::string_view type = "static GUI_CONST_STORAGE unsigned char ";
    if (!head.starts_with(type) || !IsHeadOfList(head))
        return std::nullopt;
    head.remove_prefix(type.size());
    const std::string_view name = head.substr(0, head.find('['));
    if (name.size() <= CodeDigits || !std::ranges::all_of(name, IsIdentifierCharacter))
        return std::nullopt;
    const std::string_view prefix = name.substr(0, name.size() - CodeDigits);
    if (prefix_.empty() && prefix.ends_with('_'))
        prefix_ = prefix;
    return prefix == prefix_ ? CodeOf(name.substr(prefix.size())) : std::nullopt;
}

std::optional<quint16> CSkimmer::CodeOfRecord(std::string_view list) const
{
    const std::string_view record = Trimmed(list);
    const std::size_t nameSize = prefix_.size() + CodeDigits;
    if (prefix_.empty() || record.size() < nameSize)
        return std::nullopt;
    const std::string_view name = record.substr(record.size() - nameSize);
    const auto isOfNumbers = [](char character) {
        return (character >= '0' && character <= '9') || character == ' ' || character == ',' ||
               character == '-';
    };
    if (!name.starts_with(prefix_) ||
        !std::ranges::all_of(record.substr(0, record.size() - nameSize), isOfNumbers))
        return std::nullopt;
    return CodeOf(name.substr(prefix_.size()));
}

} // namespace Glyphor
