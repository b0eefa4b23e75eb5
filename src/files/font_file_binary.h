#pragma once

#include "files/font_file.h"
#include "model/code_text.h"

#include <initializer_list>

namespace Glyphor {

// The bytes of a file, whose numbers are little-endian. What lies outside of it reads as 0.
class LittleEndianBytes
{
public:
    explicit LittleEndianBytes(QByteArrayView bytes) : bytes_(bytes) {}

    [[nodiscard]] qint64 Size() const { return bytes_.size(); }
    [[nodiscard]] bool Holds(qint64 offset, qint64 size) const;
    [[nodiscard]] quint8 U8(qint64 offset) const;
    [[nodiscard]] quint16 U16(qint64 offset) const;
    [[nodiscard]] qint16 I16(qint64 offset) const { return qint16(U16(offset)); }
    [[nodiscard]] quint32 U32(qint64 offset) const
    {
        return U16(offset) | quint32(U16(offset + 2)) << 16;
    }

    // These must be in the file.
    [[nodiscard]] QByteArrayView Part(qint64 offset, qint64 size) const
    {
        return bytes_.sliced(offset, size);
    }

private:
    QByteArrayView bytes_;
};

// A font as a binary image that the embedded library reads as it stands.
class FontFileBinary : public FontFile
{
public:
    explicit FontFileBinary(const QString& path, const FormatAnswer& answer = {})
        : FontFile(path), answer_(answer)
    {}

protected:
    static constexpr qint64 MagicSize = 4;
    static constexpr qint64 TrailerSize = 4; // a name of three letters and the format's number

    [[nodiscard]] const FormatAnswer& Answer() const { return answer_; }

    // The magic and the metrics that all kinds begin with.
    static void AppendHeader(QByteArray& bytes, QByteArrayView magic, const FontMetrics& metrics);
    static void AppendTrailer(QByteArray& bytes, QByteArrayView name, FontFormat format);

    // Numbers of 16 bits, eight at most, and one of 32 bits.
    static void Append16(QByteArray& bytes, std::initializer_list<int> values);
    static void Append32(QByteArray& bytes, quint32 value);

    // Hands the bytes over where there are enough of them to be worth it, and keeps their room.
    static void PassOn(QByteArray& bytes, const Sink& sink, qsizetype enough = 0x10000);

    // An empty font with the metrics of the header.
    [[nodiscard]] std::unique_ptr<Font> MakeFont(const LittleEndianBytes& bytes, FontFormat format,
                                                 EncodingType encoding) const;

    // The format that the trailer tells; nothing where there is no trailer of this name.
    [[nodiscard]] std::optional<FontFormat> TrailerFormat(const LittleEndianBytes& bytes,
                                                          QByteArrayView name) const;

    // Adds a character whose bitmap begins at the offset.
    void AddChar(Font& font, quint16 code, const CharMetrics& metrics,
                 const LittleEndianBytes& bytes, qint64 offset) const;

    // Fails where a record's bytes of a pixel row are not those of its width.
    void CheckBytesPerLine(quint16 code, int bytesPerLine, int width, const Font& font) const;

    // Throws the failure of this kind; the text names the file.
    [[noreturn]] void Fail(const QString& reason) const;
    [[noreturn]] void FailAtChar(quint16 code, const QString& reason) const
    {
        Fail(reason.arg(Hex4Text(code)));
    }

    [[nodiscard]] virtual QString FailureTitle() const = 0;

private:
    FormatAnswer answer_;
};

} // namespace Glyphor
