#pragma once

#include "model/font.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace Glyphor {

// A character on its way to another code, or to another font.
struct CopiedCharacter
{
    quint16 code = 0;
    CharMetrics metrics;
    QByteArray bytes; // of all planes
    std::vector<KerningPair> kerning;

    bool operator==(const CopiedCharacter&) const = default;
};

// Characters, by ascending codes, with what their font says of them.
struct CopiedCharacters
{
    FontFormat format = FontFormat::Unknown;
    EncodingType encoding = EncodingType::Unicode;
    quint8 height = 0;
    quint8 baseline = 0;
    std::vector<CopiedCharacter> characters;

    [[nodiscard]] FontMetrics Metrics() const;

    bool operator==(const CopiedCharacters&) const = default;
};

// All of the codes must have a character.
[[nodiscard]] CopiedCharacters CopyCharacters(const Font& font, const CodeSet& codes);

// As bytes that another process can read. They begin with the number of their layout; change it
// with them.
[[nodiscard]] QByteArray BytesOf(const CopiedCharacters& copied);

// Nothing where the bytes are no such characters, whoever wrote them.
[[nodiscard]] std::optional<CopiedCharacters> CharactersIn(const QByteArray& bytes);

} // namespace Glyphor
