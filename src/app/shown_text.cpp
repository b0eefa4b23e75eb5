#include "app/shown_text.h"

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
    const auto code = uint(character.unicode());
    const QString digits = u"%1"_s.arg(code, code <= 0xFF ? 2 : 4, 16, QChar(u'0')).toUpper();
    return (code <= 0xFF ? u"\\x"_s : u"\\u"_s) + digits;
}

QString Escaped(QStringView text, bool (*isEscaped)(QChar))
{
    if (std::ranges::none_of(text, isEscaped))
        return text.toString();
    QString escaped;
    for (const QChar character : text) {
        if (isEscaped(character))
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

QString ShownLines(QStringView text)
{
    return Escaped(text, [](QChar character) {
        return character != u'\n' && character != u'\t' && HasEffect(character);
    });
}

} // namespace Glyphor
