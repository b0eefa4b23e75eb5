#include "actions/character_swap.h"

#include <algorithm>

namespace Glyphor {

Character* CharacterSwap::Find(quint16 code) const
{
    const auto found = characters_.find(code);
    return found != characters_.end() ? found->second.get() : nullptr;
}

CodeSet CharacterSwap::Codes() const
{
    CodeSet codes;
    for (const auto& [code, character] : characters_)
        codes.Set(code, true);
    return codes;
}

void CharacterSwap::DropEqual(const Font& font)
{
    std::erase_if(characters_, [&font](const auto& entry) {
        const Character* const own = font.FindChar(entry.first);
        const Character* const other = entry.second.get();
        if (own == nullptr || other == nullptr)
            return own == other;
        return *own == *other;
    });
}

bool CharacterSwap::ChangesKerning(const Font& font) const
{
    return std::ranges::any_of(characters_, [&font](const auto& entry) {
        const Character* const own = font.FindChar(entry.first);
        const Character* const other = entry.second.get();
        const bool hadPairs = own != nullptr && !own->kerning.empty();
        const bool hasPairs = other != nullptr && !other->kerning.empty();
        return hadPairs != hasPairs || (hadPairs && own->kerning != other->kerning);
    });
}

bool CharacterSwap::HasKerning() const
{
    return std::ranges::any_of(characters_, [](const auto& entry) {
        return entry.second != nullptr && !entry.second->kerning.empty();
    });
}

void CharacterSwap::SwapWith(Font& font)
{
    for (auto& [code, character] : characters_) {
        std::unique_ptr<Character> previous = font.RemoveChar(code);
        if (character != nullptr)
            font.InsertChar(code, std::move(character));
        character = std::move(previous);
    }
    const CodeSet previous = font.EnabledCodes();
    font.SetEnabledCodes(enabled_);
    enabled_ = previous;
    if (hasKerning_) {
        const bool hadKerning = font.HasKerning();
        font.SetHasKerning(*hasKerning_);
        hasKerning_ = hadKerning;
    }
}

} // namespace Glyphor
