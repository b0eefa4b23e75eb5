#include "model/char_bitmap.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace Glyphor {

namespace {

// The C text of every byte value, with the comma and the blank behind it: Length characters, padded
// to a size that is copied in one move.
template <std::size_t Length>
using ByteTexts = std::array<std::array<char, (Length + 7) / 8 * 8>, 256>;

constexpr std::size_t PatternLength = 10;
constexpr std::size_t HexLength = 6;

constexpr ByteTexts<PatternLength> MakePatternTexts()
{
    ByteTexts<PatternLength> texts{};
    for (std::size_t byte = 0; byte < texts.size(); ++byte) {
        for (std::size_t bit = 0; bit < 8; ++bit)
            texts[byte][bit] = (byte >> (7 - bit) & 1) != 0 ? 'X' : '_';
        texts[byte][8] = ',';
        texts[byte][9] = ' ';
    }
    return texts;
}

constexpr ByteTexts<HexLength> MakeHexTexts()
{
    constexpr char digits[] = "0123456789ABCDEF";
    ByteTexts<HexLength> texts{};
    for (std::size_t byte = 0; byte < texts.size(); ++byte)
        texts[byte] = {'0', 'x', digits[byte >> 4], digits[byte & 15], ',', ' '};
    return texts;
}

constexpr ByteTexts<PatternLength> PatternTexts = MakePatternTexts();
constexpr ByteTexts<HexLength> HexTexts = MakeHexTexts();

template <std::size_t Length>
void AppendRows(const QByteArray& plane, const PixelLayout& layout, const ByteTexts<Length>& texts,
                QByteArray& out, QByteArrayView lineEnding)
{
    const int bytesPerLine = layout.BytesPerLine();
    const qsizetype lineLength = 2 + bytesPerLine * qsizetype(Length) + lineEnding.size();
    const qsizetype start = out.size();
    const qsizetype end = start + lineLength * layout.rows;
    constexpr qsizetype padding = sizeof(texts[0]) - Length;
    out.resize(end + padding);
    char* to = out.data() + start;
    const char* from = plane.constData();
    for (int y = 0; y < layout.rows; ++y) {
        *to++ = ' ';
        *to++ = ' ';
        for (int i = 0; i < bytesPerLine; ++i, to += Length) {
            const auto& text = texts[static_cast<uchar>(*from++)];
            std::memcpy(to, text.data(), text.size()); // what follows overwrites the padding
        }
        to = std::copy(lineEnding.begin(), lineEnding.end(), to);
    }
    out.resize(end);
}

} // namespace

CharBitmap::CharBitmap(CharInfo& info) : info_(info) {}

PixelLayout CharBitmap::Layout() const
{
    return {info_.width, info_.Rows(), info_.font.bitsPerPixel};
}

bool CharBitmap::InsertColumn(PlaneEdit edit)
{
    if (info_.width == CharInfo::MaxSize)
        return false;
    EditPlanes(edit);
    info_.SetWidth(static_cast<quint8>(info_.width + 1));
    return true;
}

bool CharBitmap::DeleteColumn(PlaneEdit edit)
{
    if (info_.width == 0)
        return false;
    EditPlanes(edit);
    info_.SetWidth(static_cast<quint8>(info_.width - 1));
    return true;
}

bool CharBitmap::InsertRow(PlaneEdit edit)
{
    if (IsLegacyFormat(info_.font.format) || info_.height == CharInfo::MaxSize)
        return false;
    EditPlanes(edit);
    ++info_.height;
    return true;
}

bool CharBitmap::DeleteRow(PlaneEdit edit)
{
    if (IsLegacyFormat(info_.font.format) || info_.height == 0)
        return false;
    EditPlanes(edit);
    --info_.height;
    return true;
}

bool CharBitmap::InsertRowTop()
{
    if (info_.yPos == CharInfo::MinOffset || !InsertRow(PixelPlane::InsertRowTop))
        return false;
    --info_.yPos;
    return true;
}

bool CharBitmap::DeleteRowTop()
{
    if (info_.yPos == CharInfo::MaxOffset || !DeleteRow(PixelPlane::DeleteRowTop))
        return false;
    ++info_.yPos;
    return true;
}

bool CharBitmap::SetSize(int width, int height)
{
    const auto isSize = [](int pixels) { return pixels >= 1 && pixels <= CharInfo::MaxSize; };
    const bool isHeightFixed = IsLegacyFormat(info_.font.format);
    if ((width != info_.width && !isSize(width)) ||
        (height != info_.Rows() && (isHeightFixed || !isSize(height))))
        return false;
    ResizePlanes({width, height, info_.font.bitsPerPixel});
    info_.SetWidth(static_cast<quint8>(width));
    info_.height = static_cast<quint8>(height);
    return true;
}

bool CharBitmap::ReadData(std::span<const uchar> source)
{
    const auto size = static_cast<std::size_t>(Layout().Size());
    if (source.size() < size)
        return false;
    data_ = QByteArray(reinterpret_cast<const char*>(source.data()), Layout().Size());
    PixelPlane::ClearPadding(data_, Layout());
    return true;
}

void CharBitmap::RenderData(const RenderedGlyph& glyph, const GlyphPlacement& placement)
{
    data_ = ConvertGlyph(glyph, placement, info_.font.bitsPerPixel);
}

void CharBitmap::AdjustData()
{
    data_ = Resized(std::move(data_), Layout().Size());
    PixelPlane::ClearPadding(data_, Layout());
}

void CharBitmap::Clear()
{
    info_.xPos = 0;
    info_.SetWidth(1);
    if (IsLegacyFormat(info_.font.format)) {
        info_.yPos = 0;
        info_.height = info_.font.height;
    } else {
        info_.yPos = static_cast<qint8>(std::min<int>(info_.font.baseline, CharInfo::MaxOffset));
        info_.height = 1;
    }
    data_ = QByteArray(Layout().Size(), '\0');
}

void CharBitmap::SetPixelIndex(int x, int y, int index)
{
    PixelPlane::SetPixel(data_, Layout(), x, y, index);
}

void CharBitmap::WriteBytes(QByteArray& text, QByteArrayView lineEnding) const
{
    WritePlaneBytes(data_, Layout(), text, lineEnding);
}

void CharBitmap::AssignData(const QByteArray& data)
{
    data_ = data;
    CharBitmap::AdjustData();
}

int CharBitmap::GetPixelIndex(int x, int y) const
{
    return PixelPlane::GetPixel(data_, Layout(), x, y);
}

QByteArray CharBitmap::Resized(QByteArray data, int size)
{
    if (data.size() < size)
        data.append(size - data.size(), '\0');
    else
        data.truncate(size);
    return data;
}

void CharBitmap::WritePlaneBytes(const QByteArray& plane, const PixelLayout& layout,
                                 QByteArray& text, QByteArrayView lineEnding)
{
    if (layout.bitsPerPixel == 1)
        AppendRows<PatternLength>(plane, layout, PatternTexts, text, lineEnding);
    else
        AppendRows<HexLength>(plane, layout, HexTexts, text, lineEnding);
}

} // namespace Glyphor
