#include "files/copied_characters.h"

#include "files/font_file.h"
#include "files/font_file_binary.h"

#include <QtEndian>

namespace Glyphor {

namespace {

constexpr QByteArrayView Magic = "GlyphorChars\x01";
constexpr qint64 HeaderSize = 4;    // format, encoding, height, baseline
constexpr qint64 CharacterSize = 9; // code, five metrics, number of pairs
constexpr qint64 PairSize = 6;      // code, distance

template <typename Number>
void Append(QByteArray& bytes, Number number)
{
    const Number little = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

// Takes the bytes from front to back.
class Reader
{
public:
    explicit Reader(QByteArrayView bytes) : bytes_(bytes) {}

    [[nodiscard]] bool Has(qint64 size) const { return bytes_.Holds(at_, size); }
    [[nodiscard]] bool IsAtEnd() const { return at_ == bytes_.Size(); }

    // These must be there.
    quint8 U8() { return bytes_.U8(Advance(1)); }
    quint16 U16() { return bytes_.U16(Advance(2)); }
    quint32 U32() { return bytes_.U32(Advance(4)); }
    QByteArrayView Part(qint64 size) { return bytes_.Part(Advance(size), size); }

private:
    qint64 Advance(qint64 size) { return std::exchange(at_, at_ + size); }

    LittleEndianBytes bytes_;
    qint64 at_ = 0;
};

bool ReadFontData(Reader& reader, CopiedCharacters& copied)
{
    if (!reader.Has(Magic.size() + HeaderSize) || reader.Part(Magic.size()) != Magic)
        return false;
    const int format = reader.U8();
    const int encoding = reader.U8();
    if (format >= FormatCount || encoding > int(EncodingType::ShiftJis))
        return false;
    copied.format = FontFormat(format);
    copied.encoding = EncodingType(encoding);
    copied.height = reader.U8();
    copied.baseline = reader.U8();
    return IsValidCombination(copied.format, copied.encoding);
}

bool ReadCharacter(Reader& reader, const FontMetrics& font, CopiedCharacter& character)
{
    if (!reader.Has(CharacterSize))
        return false;
    character.code = reader.U16();
    CharMetrics& metrics = character.metrics;
    metrics.width = reader.U8();
    metrics.height = reader.U8();
    metrics.xPos = qint8(reader.U8());
    metrics.yPos = qint8(reader.U8());
    metrics.cursorDistance = reader.U8();
    const int pairs = reader.U16();
    const qint64 size = BitmapSize(metrics, font);
    if ((IsLegacyFormat(font.format) && metrics.height != font.height) ||
        !reader.Has(pairs * PairSize + size))
        return false;
    for (int pair = 0; pair < pairs; ++pair) {
        const quint16 right = reader.U16();
        character.kerning.push_back({right, qint32(reader.U32())});
    }
    character.bytes = reader.Part(size).toByteArray();
    return true;
}

} // namespace

FontMetrics CopiedCharacters::Metrics() const
{
    FontMetrics metrics;
    metrics.format = format;
    metrics.bitsPerPixel = quint8(BitsPerPixel(format));
    metrics.encoding = encoding;
    metrics.height = height;
    metrics.baseline = baseline;
    return metrics;
}

CopiedCharacters CopyCharacters(const Font& font, const CodeSet& codes)
{
    const FontMetrics& metrics = font.Metrics();
    CopiedCharacters copied = {
        metrics.format, metrics.encoding, metrics.height, metrics.baseline, {}};
    for (const quint16 code : codes) {
        const Character& character = *font.FindChar(code);
        copied.characters.push_back(
            {code, character.info.Metrics(), character.bitmap->DataAsList(), character.kerning});
    }
    return copied;
}

QByteArray BytesOf(const CopiedCharacters& copied)
{
    QByteArray bytes = Magic.toByteArray();
    for (const int value :
         {int(copied.format), int(copied.encoding), int(copied.height), int(copied.baseline)})
        Append(bytes, quint8(value));
    for (const CopiedCharacter& character : copied.characters) {
        const CharMetrics& metrics = character.metrics;
        const auto pairs = std::min<std::size_t>(character.kerning.size(), 0xFFFF);
        Append(bytes, character.code);
        for (const int value :
             {metrics.width, metrics.height, metrics.xPos, metrics.yPos, metrics.cursorDistance})
            Append(bytes, quint8(value));
        Append(bytes, quint16(pairs));
        for (std::size_t pair = 0; pair < pairs; ++pair) {
            Append(bytes, character.kerning[pair].right);
            Append(bytes, character.kerning[pair].distance);
        }
        bytes += character.bytes;
    }
    return bytes;
}

std::optional<CopiedCharacters> CharactersIn(const QByteArray& bytes)
{
    Reader reader(bytes);
    CopiedCharacters copied;
    if (!ReadFontData(reader, copied))
        return std::nullopt;
    const FontMetrics font = copied.Metrics();
    for (int last = -1; !reader.IsAtEnd(); last = copied.characters.back().code) {
        CopiedCharacter& character = copied.characters.emplace_back();
        if (!ReadCharacter(reader, font, character) || character.code <= last)
            return std::nullopt;
    }
    return copied.characters.empty() ? std::nullopt : std::optional(std::move(copied));
}

} // namespace Glyphor
