#pragma once

#include "model/character_data.h"
#include "model/code_set.h"

#include <QLatin1StringView>
#include <QString>

#include <span>

namespace Glyphor {

// A named set of characters: those of a standard, or those that texts in a language need.
using Charset = CharacterData::CharsetRecord;

// Those of the standards come first, then those of the languages by code.
[[nodiscard]] std::span<const Charset> Charsets();

// Null for an unknown name. The case of letters does not matter, and "_" stands for "-" as well.
[[nodiscard]] const Charset* FindCharset(QStringView name);

[[nodiscard]] QLatin1StringView CharsetName(const Charset& charset);
[[nodiscard]] QString CharsetDescription(const Charset& charset);
[[nodiscard]] CodeSet CodesOf(const Charset& charset);

} // namespace Glyphor
