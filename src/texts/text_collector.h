#pragma once

#include "texts/text_file.h"

#include <QByteArrayView>

namespace Glyphor {

// Takes the characters of a text and keeps each once, with the line where it stood first. Also
// tells what is wrong with the text.
class TextCollector
{
public:
    explicit TextCollector(const QString& path) : path_(path) {}

    // Leaves out control characters and byte order marks.
    void Add(char32_t code, int line)
    {
        if (!seen_[code])
            AddNew(code, line);
    }

    // Valid UTF-8 that begins in the line; returns the line where it ends.
    int AddUtf8(QByteArrayView utf8, int line);

    [[noreturn]] void Fail(const QString& reason, int line) const;

    [[nodiscard]] const std::vector<TextCharacter>& Characters() const { return characters_; }

private:
    void AddNew(char32_t code, int line);

    QString path_;
    std::vector<bool> seen_ = std::vector<bool>(0x110000);
    std::vector<TextCharacter> characters_;
};

} // namespace Glyphor
