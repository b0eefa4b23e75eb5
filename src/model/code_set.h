#pragma once

#include <QtGlobal>

#include <array>
#include <bit>

namespace Glyphor {

// One bit for each of the 65,536 character codes.
class CodeSet
{
public:
    static constexpr int Count = 0x10000;

    [[nodiscard]] bool Test(quint16 code) const
    {
        return (words_[code / WordBits] >> (code % WordBits) & 1) != 0;
    }

    void Set(quint16 code, bool state)
    {
        const quint64 bit = quint64(1) << (code % WordBits);
        quint64& word = words_[code / WordBits];
        word = state ? word | bit : word & ~bit;
    }

    void SetRange(quint16 first, quint16 last, bool state)
    {
        for (int code = first; code <= last; ++code)
            Set(static_cast<quint16>(code), state);
    }

    // The first code at or after `from` (0 to Count) whose bit has the state; Count if there is
    // none.
    [[nodiscard]] int Next(int from, bool state = true) const
    {
        const quint64 flip = state ? 0 : ~quint64(0);
        for (int index = from / WordBits; index < WordCount; ++index) {
            quint64 word = words_[static_cast<std::size_t>(index)] ^ flip;
            if (index == from / WordBits)
                word &= ~quint64(0) << (from % WordBits);
            if (word != 0)
                return index * WordBits + std::countr_zero(word);
        }
        return Count;
    }

    CodeSet& operator&=(const CodeSet& other)
    {
        for (std::size_t index = 0; index < words_.size(); ++index)
            words_[index] &= other.words_[index];
        return *this;
    }

    CodeSet& operator|=(const CodeSet& other)
    {
        for (std::size_t index = 0; index < words_.size(); ++index)
            words_[index] |= other.words_[index];
        return *this;
    }

    // Leaves out the codes of the other set.
    CodeSet& operator-=(const CodeSet& other)
    {
        for (std::size_t index = 0; index < words_.size(); ++index)
            words_[index] &= ~other.words_[index];
        return *this;
    }

    bool operator==(const CodeSet&) const = default;

private:
    static constexpr int WordBits = 64;
    static constexpr int WordCount = Count / WordBits;

    std::array<quint64, WordCount> words_{};
};

} // namespace Glyphor
