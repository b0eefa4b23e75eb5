#pragma once

#include <QString>

#include <vector>

namespace Glyphor {

// Characters of a face, and where they stand in the font.
struct CodeMapping
{
    char32_t first = 0; // of the face
    char32_t last = 0;
    quint16 target = 0;       // of the first one; the others follow
    bool onlyMissing = false; // gives what no other source gives
    QString name;             // what firmware calls a single character; empty for none

    bool operator==(const CodeMapping&) const = default;

    [[nodiscard]] quint16 TargetOf(char32_t code) const
    {
        return static_cast<quint16>(target + (code - first));
    }
};

using CharacterMap = std::vector<CodeMapping>;

// "0x20-0x7E,0xF02D1=0xE001:heart,?0x400-0x4FF": codes or ranges of them, decimal or hexadecimal,
// with "=" and the code where the first one goes, ":" and a name, and "?" in front of those that
// only fill gaps; "all" is 0-0xFFFF. Throws a CriticalException for anything else.
[[nodiscard]] CharacterMap ParseCharacterMap(const QString& text);

// Letters of ASCII, digits and underscores, at least one of them.
[[nodiscard]] bool IsCharacterName(const QString& name);

// The text that gives the map again.
[[nodiscard]] QString TextOf(const CharacterMap& map);

} // namespace Glyphor
