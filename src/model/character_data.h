#pragma once

#include "model/code_range.h"

#include <QtGlobal>

// The raw constant tables that make_tables writes. Names are offsets into Names and end with a NUL;
// an offset of 0 is the empty name.
namespace Glyphor::CharacterData {

struct CharacterRecord
{
    quint16 code;
    quint8 category;
    quint32 name;
};

struct BlockRecord
{
    quint16 first;
    quint16 last;
    quint32 name;
};

struct ShiftJisRecord
{
    quint16 shiftJis;
    quint16 unicode;
    quint32 name;
};

struct CharsetRecord
{
    quint32 name;
    quint32 description;
    quint32 firstRange;
    quint32 rangeCount;
};

inline constexpr int CharacterCount = 16890;
inline constexpr int BlockCount = 164;
inline constexpr int ShiftJisCount = 7038;
inline constexpr int CharsetCount = 253;
inline constexpr int CharsetRangeCount = 13623;

extern const char Names[];
extern const CharacterRecord Characters[CharacterCount];
extern const BlockRecord Blocks[BlockCount];
extern const ShiftJisRecord ShiftJis[ShiftJisCount];
extern const CharsetRecord Charsets[CharsetCount];
extern const CodeRange CharsetRanges[CharsetRangeCount];

} // namespace Glyphor::CharacterData
