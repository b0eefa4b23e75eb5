#include "actions/demand.h"

#include "app/engine_texts.h"
#include "model/code_text.h"
#include "model/encoding.h"
#include "model/font.h"

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr char32_t LastCode = 0xFFFF;

const QString NotInFont = u"not in the font"_s;
constexpr std::size_t CharacterLimit = 0x110000;

// Line ends and their like, of which no font has a picture.
bool HasNoShape(char32_t character)
{
    constexpr char32_t byteOrderMark = 0xFEFF;
    return QChar::category(character) == QChar::Other_Control || character == byteOrderMark;
}

char32_t InUnicode(quint16 code, EncodingType encoding)
{
    return EncodingFor(encoding).Converted(EncodingType::Unicode, code).value_or(code);
}

// Nothing where fonts of the encoding can't have the character.
std::optional<quint16> CodeIn(EncodingType encoding, char32_t character)
{
    if (character > LastCode)
        return std::nullopt;
    return EncodingFor(EncodingType::Unicode).Converted(encoding, static_cast<quint16>(character));
}

struct Reason
{
    QString inShort;
    QString text; // with a place for the character
};

Reason ReasonOf(char32_t character, EncodingType encoding)
{
    if (character > LastCode)
        return {u"above U+FFFF"_s,
                Engine::tr("%1 is above U+FFFF, where fonts have no characters: use one of U+E000 "
                           "to U+F8FF in its place, where -map and -source can put it")};
    if (!CodeIn(encoding, character))
        return {u"not in Shift JIS"_s, Engine::tr("%1 is not in Shift JIS")};
    return {NotInFont, Engine::tr("%1 is not in the font")};
}

// "U+20AC EURO SIGN"
QString NamedCharacter(char32_t character)
{
    const QString code = UnicodeNotation(character);
    const QString name = NameOf(character);
    return name.isEmpty() ? code : code + u' ' + name;
}

DemandGap MissingCharacter(char32_t character, EncodingType encoding, const Place& place)
{
    const Reason reason = ReasonOf(character, encoding);
    return {place, reason.text.arg(NamedCharacter(character)), reason.inShort, {character}};
}

QString MissingRangeText(const CodeRange& range, const std::vector<quint16>& codes)
{
    constexpr std::size_t shown = 5;
    QStringList first;
    for (std::size_t index = 0; index < std::min(shown, codes.size()); ++index)
        first.append(u"0x"_s + Hex4Text(codes[index]));
    if (codes.size() > shown)
        first.append(u"..."_s);
    return Engine::tr("%1 of the %2 characters 0x%3-0x%4 are not in the font: %5")
        .arg(QString::number(codes.size()), QString::number(range.last - range.first + 1),
             Hex4Text(range.first), Hex4Text(range.last), first.join(u", "_s));
}

} // namespace

QString NameOf(char32_t character)
{
    return character > LastCode
               ? QString()
               : QString(EncodingFor(EncodingType::Unicode).CharName(quint16(character)));
}

bool Demand::IsFirst(char32_t character)
{
    asked_.resize(CharacterLimit);
    const bool isFirst = !asked_[character];
    asked_[character] = true;
    return isFirst;
}

std::optional<quint16> Demand::Ask(char32_t character, const Place& place)
{
    if (HasNoShape(character))
        return std::nullopt;
    const auto code = CodeIn(encoding_, character);
    if (IsFirst(character))
        characters_.push_back({character, code, place});
    return code;
}

void Demand::Ask(const CodeSet& codes, const Place& place)
{
    for (const quint16 code : codes) {
        const char32_t character = InUnicode(code, encoding_);
        if (!HasNoShape(character) && IsFirst(character))
            characters_.push_back({character, code, place});
    }
}

void Demand::AskRange(CodeRange range, const Place& place)
{
    const bool isAll = range.first == 0 && range.last == LastCode;
    if (!isAll)
        ranges_.push_back({range, place});
}

std::vector<DemandGap> Demand::MissingIn(const Font& font,
                                         const std::optional<CodeSet>& selection) const
{
    const CodeSet saved = font.SavedCodes();
    const EncodingType encoding = font.Metrics().encoding;
    const auto isMissing = [&](char32_t character) {
        const auto code = CodeIn(encoding, character);
        return !code || !saved.Test(*code);
    };
    const auto isSelected = [&](quint16 code) { return !selection || selection->Test(code); };

    std::vector<DemandGap> found;
    for (const auto& [character, code, place] : characters_) {
        if ((!code || isSelected(*code)) && isMissing(character))
            found.push_back(MissingCharacter(character, encoding, place));
    }
    for (const auto& [range, place] : ranges_) {
        std::vector<quint16> codes;
        std::vector<char32_t> characters;
        for (int code = range.first; code <= range.last; ++code) {
            const char32_t character = InUnicode(static_cast<quint16>(code), encoding_);
            if (!isSelected(static_cast<quint16>(code)) || HasNoShape(character) ||
                !isMissing(character))
                continue;
            codes.push_back(static_cast<quint16>(code));
            characters.push_back(character);
        }
        if (!codes.empty())
            found.push_back({place, MissingRangeText(range, codes), NotInFont, characters});
    }
    return found;
}

} // namespace Glyphor
