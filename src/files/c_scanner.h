#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

namespace Glyphor {

// The text of a C file that holds a font, without its comments, and a place in it. Every failure is
// a CriticalException that tells the line and the column.
class CScanner
{
public:
    // Comments, tabs and the like become blanks, so that places stay what they were.
    explicit CScanner(QByteArray text);
    CScanner(const CScanner&) = delete;
    CScanner& operator=(const CScanner&) = delete;

    [[nodiscard]] std::string_view Text() const { return view_; }

    [[nodiscard]] std::size_t Position() const { return position_; }
    void SetPosition(std::size_t position) { position_ = position; }

    // Moves behind the next occurrence of a whole word or of a text that need not be one. False,
    // and no move, where there is none.
    bool FindWord(std::string_view word);
    bool FindText(std::string_view text);

    // The identifier at the place, which moves behind it; empty where none is there.
    std::string_view Identifier();

    // The character at the place; '\0' at the end.
    [[nodiscard]] char Current() const
    {
        return position_ < view_.size() ? view_[position_] : '\0';
    }
    void SkipBlanks();     // of one line
    void SkipWhitespace(); // line ends too

    // The next integer that follows a blank, a comma or a line end.
    int Integer();

    // What stands before the next `end` character, which must be in front of the next `limit`
    // characters if there are any; moves behind it. Not found: an empty view without data.
    std::string_view Until(char end, std::string_view limits);

    // A number as it stands in an element of a list; "0x" and "0" tell its base.
    [[nodiscard]] int Number(std::string_view element) const;

    [[noreturn]] void Fail(const QString& message) const { FailAt(position_, message); }
    [[noreturn]] void FailAtEnd(const QString& message) const { FailAt(view_.size(), message); }
    [[noreturn]] void FailAt(std::size_t position, const QString& message) const;
    [[nodiscard]] std::size_t PositionOf(std::string_view part) const
    {
        return static_cast<std::size_t>(part.data() - view_.data());
    }

private:
    QByteArray text_;
    std::string_view view_;
    std::size_t position_ = 0;
};

[[nodiscard]] constexpr bool IsIdentifierCharacter(char character)
{
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z') || character == '_';
}

[[nodiscard]] constexpr bool IsLineEnd(char character)
{
    return character == '\n' || character == '\r';
}

[[nodiscard]] constexpr bool IsWhitespace(char character)
{
    return character == ' ' || character == '\n' || character == '\r';
}

// The length of the comment that the text begins with; 0 where it begins with none. The line end
// behind it is no part of it.
[[nodiscard]] std::size_t CommentSize(std::string_view text);

// Without the white space at both ends.
[[nodiscard]] std::string_view Trimmed(std::string_view text);

} // namespace Glyphor
