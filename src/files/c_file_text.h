#pragma once

#include "app/file.h"

#include <QByteArray>
#include <QStringList>

#include <algorithm>
#include <array>
#include <optional>

namespace Glyphor {

// What the settings and the history add to a generated C file.
struct CFileOptions
{
    QByteArray lineEnding = "\r\n";
    std::optional<QStringList> actionLog; // empty: the header has no log
};

// The name of a font as a part of C identifiers: cut at its last ".", and everything but ASCII
// letters, digits and "_" replaced by "_".
[[nodiscard]] QByteArray CName(const QString& fontName);

// A symbol that C takes: "_" in front of one that would begin with a digit.
[[nodiscard]] QByteArray CSymbol(const QByteArray& name);

// A line for a comment. Names and paths come from files and users; none may end the comment, open
// another one, break its line or turn its direction of writing.
[[nodiscard]] QString InComment(const QString& line);

// The text of a generated C file while it is composed, with the pieces that all such files share.
// It goes into the sink in pieces: the text of a large font is several times the font's size.
class CFileText
{
public:
    CFileText(const CFileOptions& options, const QString& filePath, const QString& fontName,
              const File::Sink& sink);

    // Adds the texts, one behind the other, and a line ending. Nothing is composed on the way: a
    // font has tens of thousands of lines.
    template <typename... Texts>
    void Line(const Texts&... texts)
    {
        Add(texts..., options_.lineEnding);
        if (bytes_.size() > PieceSize)
            Flush();
    }

    template <typename... Texts>
    void Add(const Texts&... texts)
    {
        const std::array<QByteArrayView, sizeof...(texts)> views = {QByteArrayView(texts)...};
        qsizetype size = bytes_.size();
        for (const QByteArrayView view : views)
            size += view.size();
        char* to = Extend(size);
        for (const QByteArrayView view : views)
            to = std::copy_n(view.data(), view.size(), to);
    }

    // What stands in front of the contents, for the name of a header with the start of its guard.
    void Begin(int fontHeight, QByteArrayView contentType);

    // What stands behind them; nothing may follow it.
    void End();

    // Three comment lines, the texts in the middle one.
    template <typename... Texts>
    void Triple(const Texts&... texts)
    {
        Line("//");
        Line("// ", texts...);
        Line("//");
    }

    // For text that is written straight into the file.
    [[nodiscard]] QByteArray& Bytes() { return bytes_; }
    [[nodiscard]] QByteArrayView LineEnding() const { return options_.lineEnding; }

private:
    static constexpr qsizetype PieceSize = 0x10000; // stays in the processor's cache

    void Flush();

    // Makes the text so long and returns its former end.
    char* Extend(qsizetype size)
    {
        const qsizetype end = bytes_.size();
        bytes_.resize(size);
        return bytes_.data() + end;
    }

    void BoxLine(const QString& text);
    void BoxRule();
    void CommentBox(int fontHeight, QByteArrayView contentType);

    CFileOptions options_;
    QString fileName_;
    QString fontName_;
    QByteArray guardSymbol_; // empty where the file has no guard
    QByteArray bytes_;       // not in the sink yet
    File::Sink sink_;
};

} // namespace Glyphor
