#include "model/encoding.h"

#include "model/character_data.h"
#include "model/unicode_table.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace Glyphor {

namespace {

constexpr quint32 NoCounterpart = 0xFFFFFFFF;
constexpr std::size_t CodeCount = 0x10000;

// One entry per 16-bit code, so that a conversion is a single array access.
struct ConversionTables
{
    std::vector<quint32> unicodeToShiftJis = std::vector<quint32>(CodeCount, NoCounterpart);
    std::vector<quint32> shiftJisToUnicode = std::vector<quint32>(CodeCount, NoCounterpart);
    std::vector<quint32> shiftJisNames = std::vector<quint32>(CodeCount, 0);

    ConversionTables()
    {
        for (const CharacterData::ShiftJisRecord& record : CharacterData::ShiftJis) {
            unicodeToShiftJis[record.unicode] = record.shiftJis;
            shiftJisToUnicode[record.shiftJis] = record.unicode;
            shiftJisNames[record.shiftJis] = record.name;
        }
    }
};

// Filled when a Shift JIS font first asks, since most runs never do.
const ConversionTables& Tables()
{
    static const ConversionTables tables;
    return tables;
}

bool ConvertThrough(const std::vector<quint32>& table, quint16& code)
{
    const quint32 counterpart = table[code];
    if (counterpart == NoCounterpart)
        return false;
    code = static_cast<quint16>(counterpart);
    return true;
}

} // namespace

bool UnicodeEncoding::Convert(EncodingType target, quint16& code) const
{
    if (target == EncodingType::ShiftJis)
        return ConvertThrough(Tables().unicodeToShiftJis, code);
    return target == EncodingType::Unicode;
}

QLatin1StringView UnicodeEncoding::CharName(quint16 code) const
{
    return CharacterName(code);
}

QLatin1StringView UnicodeEncoding::BlockName(quint16 code) const
{
    return Glyphor::BlockName(code);
}

bool ShiftJisEncoding::Convert(EncodingType target, quint16& code) const
{
    if (target == EncodingType::Unicode)
        return ConvertThrough(Tables().shiftJisToUnicode, code);
    return target == EncodingType::ShiftJis;
}

QLatin1StringView ShiftJisEncoding::CharName(quint16 code) const
{
    return QLatin1StringView(CharacterData::Names + Tables().shiftJisNames[code]);
}

QLatin1StringView ShiftJisEncoding::BlockName(quint16) const
{
    return {};
}

const Encoding& EncodingFor(EncodingType type)
{
    static const UnicodeEncoding unicode;
    static const ShiftJisEncoding shiftJis;
    if (type == EncodingType::ShiftJis)
        return shiftJis;
    return unicode;
}

} // namespace Glyphor
