#pragma once

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

inline constexpr int CharacterCount = 16890;
inline constexpr int BlockCount = 164;
inline constexpr int ShiftJisCount = 7038;

extern const char Names[];
extern const CharacterRecord Characters[CharacterCount];
extern const BlockRecord Blocks[BlockCount];
extern const ShiftJisRecord ShiftJis[ShiftJisCount];

} // namespace Glyphor::CharacterData
