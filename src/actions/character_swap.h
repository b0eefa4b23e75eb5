#pragma once

#include "model/code_set.h"
#include "model/font.h"

#include <map>
#include <memory>
#include <optional>

namespace Glyphor {

// Characters, and the enabled codes, that take the places of those of a font, and then keep what
// stood there: an undo step of changes that no opposite reverts.
class CharacterSwap
{
public:
    // Null for no character. It refers to the metrics of the font that it goes to.
    void Put(quint16 code, std::unique_ptr<Character> character)
    {
        characters_[code] = std::move(character);
    }

    void SetEnabledCodes(const CodeSet& codes) { enabled_ = codes; }

    // Whether the font has kerning then; where nobody says so, it stays as it is.
    void SetHasKerning(bool hasKerning) { hasKerning_ = hasKerning; }

    // Whether the characters have other pairs than those of the font.
    [[nodiscard]] bool ChangesKerning(const Font& font) const;
    [[nodiscard]] bool HasKerning() const;

    [[nodiscard]] bool IsEmpty() const { return characters_.empty(); }

    // Null for codes that were not put, or as none.
    [[nodiscard]] Character* Find(quint16 code) const;
    [[nodiscard]] CodeSet Codes() const;

    // Forgets characters that are those of the font already, and so change nothing.
    void DropEqual(const Font& font);

    // Must not throw.
    void SwapWith(Font& font);

private:
    std::map<quint16, std::unique_ptr<Character>> characters_;
    CodeSet enabled_;
    std::optional<bool> hasKerning_;
};

} // namespace Glyphor
