#include "app/shown_text.h"

#include "app/file_name.h"

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

bool HasEffect(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        break;
    }
    switch (character.direction()) {
    case QChar::DirLRE:
    case QChar::DirRLE:
    case QChar::DirLRO:
    case QChar::DirRLO:
    case QChar::DirPDF:
    case QChar::DirLRI:
    case QChar::DirRLI:
    case QChar::DirFSI:
    case QChar::DirPDI:
        return true;
    default:
        return false;
    }
}

QString Escape(QChar character)
{
    switch (character.unicode()) {
    case u'\n':
        return u"\\n"_s;
    case u'\r':
        return u"\\r"_s;
    case u'\t':
        return u"\\t"_s;
    default:
        break;
    }
    const bool isRaw = HasRawBytes(QStringView(&character, 1));
    const auto code = uint(isRaw ? character.unicode() & 0xFF : character.unicode());
    const bool isByte = isRaw || code < 0x80;
    const QString digits = u"%1"_s.arg(code, isByte ? 2 : 4, 16, QChar(u'0')).toUpper();
    return (isByte ? u"\\x"_s : u"\\u"_s) + digits;
}

// Halves of characters are always escaped.
QString Escaped(QStringView text, bool (*isEscaped)(QChar))
{
    const auto isSpecial = [isEscaped](QChar character) {
        return character.isSurrogate() || isEscaped(character);
    };
    if (std::ranges::none_of(text, isSpecial))
        return text.toString();
    QString escaped;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar character = text[at];
        const bool isPair =
            character.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        if (isPair)
            escaped += text.sliced(at++, 2);
        else if (isSpecial(character))
            escaped += Escape(character);
        else
            escaped += character;
    }
    return escaped;
}

} // namespace

QString Shown(QStringView name)
{
    return Escaped(name, HasEffect);
}

QString ShownBytes(QStringView text)
{
    return Escaped(text, [](QChar) { return false; });
}

QString ShownLines(QStringView text)
{
    return Escaped(text, [](QChar character) {
        return character != u'\n' && character != u'\t' && HasEffect(character);
    });
}

} // namespace Glyphor
