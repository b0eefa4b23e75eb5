#include "files/character_header.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "app/version.h"
#include "model/code_text.h"

#include <algorithm>
#include <set>
#include <vector>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

struct NamedCode
{
    QByteArray macro;
    quint16 code;
    QByteArray origin;
    QByteArray text; // the character as a string of C; empty where it has none
};

bool IsUpper(char character)
{
    return character >= 'A' && character <= 'Z';
}

bool IsLower(char character)
{
    return character >= 'a' && character <= 'z';
}

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

// Words begin at the capitals of "UiIcon" and at the second I of "UIIcon".
bool BeginsWord(const QByteArray& name, qsizetype at)
{
    if (at == 0 || !IsUpper(name[at]))
        return false;
    return IsLower(name[at - 1]) || (at + 1 < name.size() && IsLower(name[at + 1]));
}

// Each byte as an escape, so that none depends on the compiler's character set.
QByteArray Escaped(const QByteArray& bytes)
{
    const QByteArray hex = bytes.toHex().toUpper();
    QByteArray text;
    for (qsizetype at = 0; at < hex.size(); at += 2)
        text += "\\x" + hex.mid(at, 2);
    return '"' + text + '"';
}

// Strings end at 0, and surrogates are no characters.
QByteArray StringOf(quint16 code, EncodingType encoding)
{
    if (code == 0)
        return {};
    if (encoding == EncodingType::Unicode) {
        const QChar character(code);
        return character.isSurrogate() ? QByteArray() : Escaped(QString(character).toUtf8());
    }
    QByteArray bytes;
    if (code > 0xFF)
        bytes.append(static_cast<char>(code >> 8));
    bytes.append(static_cast<char>(code & 0xFF));
    return Escaped(bytes);
}

QByteArray Prefix(const Font& font)
{
    const QByteArray name = MacroName(CName(font.Name()));
    return CSymbol(name.isEmpty() ? QByteArray("FONT") : name) + '_';
}

// Names are given once; what has the name of another gets its code behind it.
class MacroNames
{
public:
    MacroNames(const QByteArray& prefix, const QByteArray& suffix, const QByteArray& guard)
        : prefix_(prefix), suffix_(suffix), given_{guard}
    {}

    QByteArray Give(const CharacterLabel& label, quint16 code)
    {
        const auto digits = Hex4(code);
        const QByteArray hex(digits.data(), digits.size());
        QByteArray macro = prefix_ + MacroName(label.name.toLatin1());
        if (macro == prefix_)
            macro += 'U' + hex;
        while (given_.contains(macro) || given_.contains(macro + suffix_))
            macro += '_' + hex;
        given_.insert(macro);
        given_.insert(macro + suffix_);
        return macro;
    }

private:
    QByteArray prefix_;
    QByteArray suffix_; // of the macro with the string
    std::set<QByteArray> given_;
};

std::vector<NamedCode> NamedCodes(const Font& font, MacroNames names)
{
    std::vector<NamedCode> named;
    font.ForEachEnabled([&](quint16 code, const Character& character) {
        if (character.label != nullptr)
            named.push_back({names.Give(*character.label, code), code,
                             InComment(character.label->origin).toUtf8(),
                             StringOf(code, font.Metrics().encoding)});
    });
    return named;
}

qsizetype LongestName(const std::vector<NamedCode>& codes)
{
    qsizetype longest = 0;
    for (const NamedCode& named : codes)
        longest = std::max(longest, named.macro.size());
    return longest;
}

} // namespace

QByteArray MacroName(const QByteArray& name)
{
    QByteArray macro;
    for (qsizetype at = 0; at < name.size(); ++at) {
        const char character = name[at];
        const bool isKept = IsUpper(character) || IsLower(character) || IsDigit(character);
        const bool endsWord = !isKept || BeginsWord(name, at);
        if (endsWord && !macro.isEmpty() && !macro.endsWith('_'))
            macro.append('_');
        if (isKept)
            macro.append(IsLower(character) ? static_cast<char>(character - 'a' + 'A') : character);
    }
    while (macro.endsWith('_'))
        macro.chop(1);
    return macro;
}

bool HasNamedChars(const Font& font)
{
    bool hasNamed = false;
    font.ForEachEnabled([&](quint16, const Character& character) {
        hasNamed = hasNamed || character.label != nullptr;
    });
    return hasNamed;
}

bool IsCHeaderName(QStringView fileName)
{
    return fileName.endsWith(".h"_L1, Qt::CaseInsensitive);
}

void ThrowNoHeaderName(const QString& path)
{
    throw CriticalException(
        Engine::tr("Invalid file format!"),
        Engine::tr("-header writes a C header: the name %1 does not end in .h.").arg(Shown(path)));
}

void CharacterHeader::Write(const Font& font)
{
    const QByteArray prefix = Prefix(font);
    const QByteArray guard = prefix + "CHARACTERS_H";
    const bool isUnicode = font.Metrics().encoding == EncodingType::Unicode;
    const QByteArray suffix = isUnicode ? "_UTF8" : "_SJIS";
    const std::vector<NamedCode> codes = NamedCodes(font, {prefix, suffix, guard});
    const qsizetype width = LongestName(codes) + suffix.size() + 2;
    const QByteArray& end = options_.lineEnding;
    QByteArray text = "/* Characters of the font " + InComment(font.Name()).toUtf8() +
                      ", generated by " + Program::Name.data() + ' ' + Program::Version.data() +
                      " */" + end + end;
    text += "#ifndef " + guard + end + "#define " + guard + end + end;
    for (const NamedCode& named : codes) {
        const auto digits = Hex4(named.code);
        text += "#define " + named.macro.leftJustified(width) + "0x" +
                QByteArray(digits.data(), digits.size()) + " /* " + named.origin + " */" + end;
        if (!named.text.isEmpty())
            text += "#define " + (named.macro + suffix).leftJustified(width) + named.text + end;
    }
    text += (codes.empty() ? QByteArray() : end) + "#endif" + end;
    Replace(text);
}

} // namespace Glyphor
