#pragma once

#include "model/code_set.h"

#include <QByteArray>

#include <optional>
#include <string>
#include <string_view>

namespace Glyphor {

// Takes the C text of a font in pieces and leaves out nearly all of it: comments, and the
// characters as generated files have them, each an array of bytes and a record that refers to it.
class CSkimmer
{
public:
    void Add(QByteArrayView piece);

    // What is left, once all was added. Nothing where that does not tell what the file holds: an
    // array was left out that no record refers to, braces do not match, or there are quotes, which
    // may enclose anything.
    [[nodiscard]] std::optional<QByteArray> Finish();

private:
    void Skim();
    void CopyTo(std::size_t end);
    std::size_t PassComment(std::size_t at);
    std::size_t PassBrace(std::size_t at);
    [[nodiscard]] bool IsBetweenDeclarations(std::size_t at);
    [[nodiscard]] std::size_t LineStart(std::size_t at) const;
    [[nodiscard]] std::size_t EndOfList(std::size_t at) const;
    [[nodiscard]] std::optional<quint16> CodeOfArray(std::string_view head);
    [[nodiscard]] std::optional<quint16> CodeOfRecord(std::string_view list) const;

    [[nodiscard]] std::string_view Text() const
    {
        return {text_.constData(), static_cast<std::size_t>(text_.size())};
    }

    QByteArray text_;      // that was not decided on yet
    bool isWhole_ = false; // nothing follows the text
    std::size_t at_ = 0;   // in the text: what is decided up to, and copied
    std::size_t copied_ = 0;
    int depth_ = 0;        // of braces
    bool isTable_ = false; // what the outermost brace holds
    std::string prefix_;   // of the names of arrays, up to the code
    bool isOdd_ = false;
    CodeSet arrays_;
    CodeSet records_;
    QByteArray rest_;
    qsizetype afterArray_ = 0; // in the rest: what stands behind the last array
};

} // namespace Glyphor
