#include "render/character_map.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/shown_text.h"

#include <QStringList>

#include <algorithm>
#include <optional>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr char32_t LastTarget = 0xFFFF;
constexpr char32_t LastSource = 0x10FFFF;

[[noreturn]] void RefuseMapping(const QString& mapping)
{
    throw CriticalException(
        Engine::tr("The mapping %1 is not usable: mappings are codes or ranges, decimal or "
                   "hexadecimal, with = and the code where they go (e.g. 0x20-0x7E, "
                   "0xF0000-0xF00FF=0xE100 or 0xF02D1=0xE001:heart).")
            .arg(Shown(mapping)));
}

QString HexCode(char32_t code)
{
    return u"0x"_s + QString::number(code, 16).toUpper();
}

char32_t CodeIn(QStringView text, const QString& mapping)
{
    const bool isHex = text.startsWith(u"0x", Qt::CaseInsensitive);
    const QStringView digits = isHex ? text.mid(2) : text;
    const bool onlyDigits = std::ranges::all_of(
        digits, [](QChar digit) { return digit < u'\x80' && digit.isLetterOrNumber(); });
    bool isNumber = false;
    const uint code = digits.toUInt(&isNumber, isHex ? 16 : 10);
    if (!onlyDigits || !isNumber || code > LastSource)
        RefuseMapping(mapping);
    return code;
}

// The codes of a range, which is one code where there is no second.
std::pair<char32_t, char32_t> RangeIn(QStringView text, const QString& mapping)
{
    if (text.compare(u"all", Qt::CaseInsensitive) == 0)
        return {0, LastTarget};
    const qsizetype dash = text.indexOf(u'-');
    const char32_t first = CodeIn(dash < 0 ? text : text.left(dash), mapping);
    const char32_t last = dash < 0 ? first : CodeIn(text.mid(dash + 1), mapping);
    if (last < first)
        RefuseMapping(mapping);
    return {first, last};
}

void CheckTarget(const CodeMapping& mapping, char32_t target, const QString& text)
{
    const char32_t count = mapping.last - mapping.first;
    if (count > LastTarget)
        throw CriticalException(
            Engine::tr("The mapping %1 has more codes than a font.").arg(Shown(text)));
    if (target + count <= LastTarget)
        return;
    constexpr char32_t privateUse = 0xE000;
    const QString sources = text.section(u'=', 0, 0);
    throw CriticalException(
        Engine::tr("The mapping %1 goes beyond 0xFFFF, where fonts have no characters: say where "
                   "they go, e.g. %2=%3.")
            .arg(Shown(text), Shown(sources),
                 HexCode(count <= LastTarget - privateUse ? privateUse : LastTarget - count)));
}

QString NameIn(const QString& name, const CodeMapping& mapping, const QString& text)
{
    if (!IsCharacterName(name) || mapping.first != mapping.last)
        throw CriticalException(
            Engine::tr("The mapping %1 is not usable: a name belongs to a single code, and has "
                       "letters of ASCII, digits and underscores.")
                .arg(Shown(text)));
    return name;
}

CodeMapping MappingIn(const QString& text)
{
    CodeMapping mapping;
    QString rest = text;
    mapping.onlyMissing = rest.startsWith(u'?');
    if (mapping.onlyMissing)
        rest.remove(0, 1);
    const qsizetype colon = rest.indexOf(u':');
    const std::optional<QString> name =
        colon < 0 ? std::nullopt : std::optional(rest.mid(colon + 1));
    if (colon >= 0)
        rest.truncate(colon);
    const qsizetype sign = rest.indexOf(u'=');
    const QStringView sources = QStringView(rest).left(sign < 0 ? rest.size() : sign);
    std::tie(mapping.first, mapping.last) = RangeIn(sources, text);
    const char32_t target =
        sign < 0 ? mapping.first : CodeIn(QStringView(rest).mid(sign + 1), text);
    CheckTarget(mapping, target, rest);
    mapping.target = static_cast<quint16>(target);
    if (name)
        mapping.name = NameIn(*name, mapping, text);
    return mapping;
}

} // namespace

bool IsCharacterName(const QString& name)
{
    return !name.isEmpty() && std::ranges::all_of(name, [](QChar character) {
        return character == u'_' || (character < u'\x80' && character.isLetterOrNumber());
    });
}

CharacterMap ParseCharacterMap(const QString& text)
{
    CharacterMap map;
    for (const QString& part : text.split(u','))
        map.push_back(MappingIn(part.trimmed()));
    return map;
}

QString TextOf(const CharacterMap& map)
{
    QStringList parts;
    for (const CodeMapping& mapping : map) {
        QString part = mapping.onlyMissing ? u"?"_s : QString();
        part += HexCode(mapping.first);
        if (mapping.last != mapping.first)
            part += u'-' + HexCode(mapping.last);
        if (mapping.target != mapping.first)
            part += u'=' + HexCode(mapping.target);
        if (!mapping.name.isEmpty())
            part += u':' + mapping.name;
        parts.append(part);
    }
    return parts.join(u',');
}

} // namespace Glyphor
