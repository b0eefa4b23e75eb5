#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Glyphor {

class Font;

struct SampleText
{
    QString title;
    QStringList lines;
    bool isGiven = false; // by the user, who wants every character of it
};

// The built-in texts of whose characters the font has more than half.
[[nodiscard]] std::vector<SampleText> BuiltInTexts(const Font& font);

// The lines of a text file as it is, in UTF-8 or in UTF-16 with a byte order mark. Throws a
// CriticalException with the place where it can't be read, is no text or longer than a proof is
// for.
[[nodiscard]] SampleText ReadSampleText(const QString& path);

// The code that the font has for a character; nothing where its encoding has none.
[[nodiscard]] std::optional<quint16> CodeFor(const Font& font, char32_t character);

// Whether texts show nothing in its place: a line end or its like.
[[nodiscard]] bool IsControl(char32_t character);

} // namespace Glyphor
