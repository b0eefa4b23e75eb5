#pragma once

#include <QtGlobal>

#include <array>
#include <bit>
#include <cstddef>
#include <numeric>

namespace Glyphor {

// One bit for each of the 65,536 character codes.
class CodeSet
{
public:
    static constexpr int Limit = 0x10000;

    // Walks the codes whose bits are set, in ascending order.
    class Iterator
    {
    public:
        using value_type = quint16;
        using difference_type = std::ptrdiff_t;

        Iterator() = default;
        Iterator(const CodeSet& set, int code) : set_(&set), code_(code) {}

        [[nodiscard]] quint16 operator*() const { return static_cast<quint16>(code_); }
        Iterator& operator++()
        {
            code_ = set_->Next(code_ + 1);
            return *this;
        }
        Iterator operator++(int)
        {
            const Iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(const Iterator&) const = default;

    private:
        const CodeSet* set_ = nullptr;
        int code_ = Limit;
    };

    [[nodiscard]] Iterator begin() const { return {*this, Next(0)}; }
    [[nodiscard]] Iterator end() const { return {*this, Limit}; }

    [[nodiscard]] bool IsEmpty() const { return Next(0) == Limit; }

    [[nodiscard]] int Count() const
    {
        return std::accumulate(words_.begin(), words_.end(), 0,
                               [](int sum, quint64 word) { return sum + std::popcount(word); });
    }

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

    // The first code at or after `from` (0 to Limit) whose bit has the state; Limit if there is
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
        return Limit;
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
    static constexpr int WordCount = Limit / WordBits;

    std::array<quint64, WordCount> words_{};
};

} // namespace Glyphor
