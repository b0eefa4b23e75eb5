#include "model/pixel_plane.h"

#include <algorithm>

namespace Glyphor::PixelPlane {

namespace {

// Where a pixel lies in its byte, counted from the least significant bit.
int BitShift(const PixelLayout& layout, int x)
{
    const int pixelsPerByte = 8 / layout.bitsPerPixel;
    return (pixelsPerByte - 1 - x % pixelsPerByte) * layout.bitsPerPixel;
}

int GetInRow(const uchar* row, const PixelLayout& layout, int x)
{
    return row[x * layout.bitsPerPixel / 8] >> BitShift(layout, x) & layout.MaxIndex();
}

void SetInRow(uchar* row, const PixelLayout& layout, int x, int index)
{
    uchar& byte = row[x * layout.bitsPerPixel / 8];
    const int shift = BitShift(layout, x);
    byte = static_cast<uchar>((byte & ~(layout.MaxIndex() << shift)) | (index & layout.MaxIndex())
                                                                           << shift);
}

uchar* Row(QByteArray& bytes, const PixelLayout& layout, int y)
{
    return reinterpret_cast<uchar*>(bytes.data()) + y * layout.BytesPerLine();
}

void ClearColumn(QByteArray& bytes, const PixelLayout& layout, int x)
{
    for (int y = 0; y < layout.rows; ++y)
        SetInRow(Row(bytes, layout, y), layout, x, 0);
}

// Copies the rows into rows of another length, cut or filled with zero bytes.
QByteArray Repacked(const QByteArray& bytes, const PixelLayout& from, const PixelLayout& to)
{
    QByteArray result(to.Size(), '\0');
    const int common = std::min(from.BytesPerLine(), to.BytesPerLine());
    for (int y = 0; y < std::min(from.rows, to.rows); ++y) {
        std::copy_n(bytes.constData() + y * from.BytesPerLine(), common,
                    result.data() + y * to.BytesPerLine());
    }
    return result;
}

} // namespace

int GetPixel(const QByteArray& bytes, const PixelLayout& layout, int x, int y)
{
    if (x < 0 || y < 0)
        return 0;
    const qsizetype offset =
        qsizetype(layout.BytesPerLine()) * y + qsizetype(x) * layout.bitsPerPixel / 8;
    if (offset >= bytes.size())
        return 0;
    const auto* const data = reinterpret_cast<const uchar*>(bytes.constData());
    return GetInRow(data + qsizetype(layout.BytesPerLine()) * y, layout, x);
}

void SetPixel(QByteArray& bytes, const PixelLayout& layout, int x, int y, int index)
{
    if (x < 0 || y < 0 || x >= layout.width || y >= layout.rows)
        return;
    SetInRow(Row(bytes, layout, y), layout, x, index);
}

void InsertColumnRight(QByteArray& bytes, const PixelLayout& layout)
{
    PixelLayout wider = layout;
    ++wider.width;
    if (wider.Size() != layout.Size())
        bytes = Repacked(bytes, layout, wider);
    ClearColumn(bytes, wider, layout.width);
}

void InsertColumnLeft(QByteArray& bytes, const PixelLayout& layout)
{
    InsertColumnRight(bytes, layout);
    PixelLayout wider = layout;
    ++wider.width;
    ShiftRight(bytes, wider);
}

void InsertRowTop(QByteArray& bytes, const PixelLayout& layout)
{
    bytes.prepend(QByteArray(layout.BytesPerLine(), '\0'));
}

void InsertRowBottom(QByteArray& bytes, const PixelLayout& layout)
{
    bytes.append(layout.BytesPerLine(), '\0');
}

void DeleteColumnRight(QByteArray& bytes, const PixelLayout& layout)
{
    PixelLayout narrower = layout;
    --narrower.width;
    if (narrower.Size() == layout.Size())
        ClearColumn(bytes, layout, narrower.width);
    else
        bytes = Repacked(bytes, layout, narrower);
}

void DeleteColumnLeft(QByteArray& bytes, const PixelLayout& layout)
{
    ShiftLeft(bytes, layout);
    DeleteColumnRight(bytes, layout);
}

void DeleteRowTop(QByteArray& bytes, const PixelLayout& layout)
{
    bytes.remove(0, layout.BytesPerLine());
}

void DeleteRowBottom(QByteArray& bytes, const PixelLayout& layout)
{
    bytes.chop(layout.BytesPerLine());
}

void Resize(QByteArray& bytes, const PixelLayout& from, const PixelLayout& to)
{
    bytes = Repacked(bytes, from, to);
    ClearPadding(bytes, to);
}

void ClearPadding(QByteArray& bytes, const PixelLayout& layout)
{
    const int length = layout.BytesPerLine();
    const int unused = length * 8 - layout.width * layout.bitsPerPixel;
    if (unused == 0)
        return;
    uchar* last = Row(bytes, layout, 0) + length - 1;
    for (int y = 0; y < layout.rows; ++y, last += length)
        *last = static_cast<uchar>(*last & 0xFF << unused);
}

void ShiftRight(QByteArray& bytes, const PixelLayout& layout)
{
    if (layout.width == 0)
        return;
    const int bits = layout.bitsPerPixel;
    const int length = layout.BytesPerLine();
    const int lastShift = BitShift(layout, layout.width - 1);
    const int used = 0xFF << (length * 8 - layout.width * bits);
    uchar* row = Row(bytes, layout, 0);
    for (int y = 0; y < layout.rows; ++y, row += length) {
        int carry = row[length - 1] >> lastShift & layout.MaxIndex();
        for (int i = 0; i < length; ++i) {
            const int byte = row[i];
            row[i] = static_cast<uchar>(carry << (8 - bits) | byte >> bits);
            carry = byte;
        }
        row[length - 1] = static_cast<uchar>(row[length - 1] & used);
    }
}

void ShiftLeft(QByteArray& bytes, const PixelLayout& layout)
{
    if (layout.width == 0)
        return;
    const int bits = layout.bitsPerPixel;
    const int length = layout.BytesPerLine();
    const int lastShift = BitShift(layout, layout.width - 1);
    uchar* row = Row(bytes, layout, 0);
    for (int y = 0; y < layout.rows; ++y, row += length) {
        const int first = row[0] >> (8 - bits);
        for (int i = 0; i + 1 < length; ++i)
            row[i] = static_cast<uchar>(row[i] << bits | row[i + 1] >> (8 - bits));
        // What moved into the place of the last pixel was unused, and so is 0.
        row[length - 1] = static_cast<uchar>(row[length - 1] << bits | first << lastShift);
    }
}

void ShiftUp(QByteArray& bytes, const PixelLayout& layout)
{
    std::rotate(bytes.begin(),
                bytes.begin() + std::min<qsizetype>(layout.BytesPerLine(), bytes.size()),
                bytes.end());
}

void ShiftDown(QByteArray& bytes, const PixelLayout& layout)
{
    std::rotate(bytes.begin(),
                bytes.end() - std::min<qsizetype>(layout.BytesPerLine(), bytes.size()),
                bytes.end());
}

} // namespace Glyphor::PixelPlane
