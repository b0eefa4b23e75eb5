#pragma once

#include "model/font_format.h"

#include <QLatin1StringView>

#include <optional>

namespace Glyphor {

// What a character code means in one of the two encodings: its counterpart in the other one, the
// character's name and its Unicode block.
class Encoding
{
public:
    Encoding() = default;
    Encoding(const Encoding&) = delete;
    Encoding& operator=(const Encoding&) = delete;

    // Turns a code of this encoding into that of the target, in place. False where there is no
    // counterpart; the code is then left as it was.
    virtual bool Convert(EncodingType target, quint16& code) const = 0;

    // The counterpart; nothing where there is none.
    [[nodiscard]] std::optional<quint16> Converted(EncodingType target, quint16 code) const
    {
        return Convert(target, code) ? std::optional(code) : std::nullopt;
    }

    // The character's name in the Unicode character database; empty where none is known.
    [[nodiscard]] virtual QLatin1StringView CharName(quint16 code) const = 0;

    // The Unicode block that holds the code; empty where none does.
    [[nodiscard]] virtual QLatin1StringView BlockName(quint16 code) const = 0;

    virtual ~Encoding() = default;
};

class UnicodeEncoding final : public Encoding
{
public:
    bool Convert(EncodingType target, quint16& code) const override;
    [[nodiscard]] QLatin1StringView CharName(quint16 code) const override;
    [[nodiscard]] QLatin1StringView BlockName(quint16 code) const override;
};

class ShiftJisEncoding final : public Encoding
{
public:
    bool Convert(EncodingType target, quint16& code) const override;
    [[nodiscard]] QLatin1StringView CharName(quint16 code) const override;

    // Shift JIS has no blocks: always null.
    [[nodiscard]] QLatin1StringView BlockName(quint16 code) const override;
};

// The program's one instance for the encoding; safe to use from any thread.
[[nodiscard]] const Encoding& EncodingFor(EncodingType type);

} // namespace Glyphor
