#pragma once

#include "model/character_data.h"

#include <QLatin1StringView>

#include <span>
#include <utility>

namespace Glyphor {

// General categories, numbered in the alphabetical order of their two-letter names.
enum class CharacterCategory : quint8 { LowercaseLetter = 4, UppercaseLetter = 8 };

// All assigned codes of the Basic Multilingual Plane, in ascending order.
[[nodiscard]] std::span<const CharacterData::CharacterRecord> CharacterRecords();

// Empty for a code that is not assigned.
[[nodiscard]] QLatin1StringView CharacterName(quint16 code);

// The first record of the category in table order, or null.
[[nodiscard]] const CharacterData::CharacterRecord* FirstOfCategory(CharacterCategory category);

// Empty, -1 and (0, 0) for a code outside every block.
[[nodiscard]] QLatin1StringView BlockName(quint16 code);
[[nodiscard]] int BlockIndex(quint16 code);
[[nodiscard]] std::pair<quint16, quint16> BlockRange(quint16 code);

} // namespace Glyphor
