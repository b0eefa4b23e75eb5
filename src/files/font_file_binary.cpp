#include "files/font_file_binary.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/file_name.h"
#include "app/shown_text.h"

#include <QFileInfo>
#include <QtEndian>

#include <array>

namespace Glyphor {

namespace {

enum HeaderOffset : qint64 {
    HeightOffset = 4,
    BaselineOffset = 8,
    LowercaseOffset = 10,
    CapitalOffset = 12
};

} // namespace

bool LittleEndianBytes::Holds(qint64 offset, qint64 size) const
{
    return offset >= 0 && size >= 0 && offset <= Size() && size <= Size() - offset;
}

quint8 LittleEndianBytes::U8(qint64 offset) const
{
    return Holds(offset, 1) ? static_cast<quint8>(bytes_[offset]) : quint8(0);
}

quint16 LittleEndianBytes::U16(qint64 offset) const
{
    if (!Holds(offset, 2))
        return U8(offset);
    return qFromLittleEndian<quint16>(bytes_.data() + offset);
}

// One append for all of them: fonts have tens of thousands of records.
void FontFileBinary::Append16(QByteArray& bytes, std::initializer_list<int> values)
{
    std::array<uchar, 16> ordered{};
    uchar* to = ordered.data();
    for (const int value : values) {
        qToLittleEndian(static_cast<quint16>(value), to);
        to += sizeof(quint16);
    }
    bytes.append(reinterpret_cast<const char*>(ordered.data()), to - ordered.data());
}

void FontFileBinary::Append32(QByteArray& bytes, quint32 value)
{
    Append16(bytes, {static_cast<int>(value & 0xFFFF), static_cast<int>(value >> 16)});
}

void FontFileBinary::AppendHeader(QByteArray& bytes, QByteArrayView magic,
                                  const FontMetrics& metrics)
{
    bytes.append(magic);
    Append16(bytes, {metrics.height, metrics.height, metrics.baseline, metrics.lowercaseHeight,
                     metrics.capitalHeight});
}

void FontFileBinary::PassOn(QByteArray& bytes, const Sink& sink, qsizetype enough)
{
    if (bytes.size() < enough)
        return;
    sink(bytes);
    bytes.resize(0);
}

void FontFileBinary::AppendTrailer(QByteArray& bytes, QByteArrayView name, FontFormat format)
{
    bytes.append(name);
    bytes.append(static_cast<char>(format));
}

std::unique_ptr<Font> FontFileBinary::MakeFont(const LittleEndianBytes& bytes, FontFormat format,
                                               EncodingType encoding) const
{
    const auto metric = [&](HeaderOffset offset) {
        const int value = bytes.U16(offset);
        if (value > CharInfo::MaxSize)
            Fail(Engine::tr("Its header has a height of %1 pixels; 255 are possible.").arg(value));
        return static_cast<quint8>(value);
    };
    auto font = std::make_unique<Font>(format, encoding);
    font->SetName(
        WithoutRawBytes(QFileInfo(fileName()).completeBaseName(), QChar::ReplacementCharacter));
    font->SetHeight(metric(HeightOffset));
    font->SetBaseline(metric(BaselineOffset));
    font->SetReferenceHeights(metric(LowercaseOffset), metric(CapitalOffset));
    return font;
}

std::optional<FontFormat> FontFileBinary::TrailerFormat(const LittleEndianBytes& bytes,
                                                        QByteArrayView name) const
{
    const qint64 offset = bytes.Size() - TrailerSize;
    if (offset < 0 || bytes.Part(offset, name.size()) != name)
        return std::nullopt;
    const int format = bytes.U8(bytes.Size() - 1);
    if (format >= FormatCount)
        Fail(Engine::tr("It ends with the number %1, which is no font format.").arg(format));
    return static_cast<FontFormat>(format);
}

void FontFileBinary::AddChar(Font& font, quint16 code, const CharMetrics& metrics,
                             const LittleEndianBytes& bytes, qint64 offset) const
{
    if (!metrics.FitFields())
        FailAtChar(
            code,
            Engine::tr("The character 0x%1 has a size or an offset that no character can have."));
    const qint64 size = BitmapSize(metrics, font.Metrics());
    if (!bytes.Holds(offset, size))
        FailAtChar(code, Engine::tr("The character 0x%1 has pixels outside the file."));
    const QByteArrayView part = bytes.Part(offset, size);
    font.PutChar(code, metrics,
                 {reinterpret_cast<const uchar*>(part.data()), std::size_t(part.size())});
}

void FontFileBinary::CheckBytesPerLine(quint16 code, int bytesPerLine, int width,
                                       const Font& font) const
{
    if (bytesPerLine != BytesPerLine(width, font.Metrics().bitsPerPixel))
        Fail(Engine::tr("The character 0x%1 has rows of %2 bytes, which is not what its width of "
                        "%3 needs.")
                 .arg(Hex4Text(code), QString::number(bytesPerLine), QString::number(width)));
}

void FontFileBinary::Fail(const QString& reason) const
{
    throw CriticalException(
        FailureTitle(),
        Engine::tr("The file %1 can't be used as a font. %2").arg(Shown(fileName()), reason));
}

} // namespace Glyphor
