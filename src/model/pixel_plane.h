#pragma once

#include "model/font_metrics.h"

#include <QByteArray>

namespace Glyphor {

// The size of a pixel plane. Rows follow one another from the top without padding between them; in
// a row the leftmost pixel has the most significant bits and unused bits at its end are 0:
//
//   1 bpp   01234567 89......        2 bpp   00112233 44......        4 bpp   00001111 2222....
struct PixelLayout
{
    int width = 0;
    int rows = 0;
    int bitsPerPixel = 1; // 1, 2, 4 or 8

    [[nodiscard]] int BytesPerLine() const { return Glyphor::BytesPerLine(width, bitsPerPixel); }
    [[nodiscard]] int Size() const { return BytesPerLine() * rows; }
    [[nodiscard]] int MaxIndex() const { return (1 << bitsPerPixel) - 1; }
};

// Edits of one plane's bytes. The layout is that of the plane before the edit, whose size the bytes
// have.
namespace PixelPlane {

[[nodiscard]] int GetPixel(const QByteArray& bytes, const PixelLayout& layout, int x, int y);
void SetPixel(QByteArray& bytes, const PixelLayout& layout, int x, int y, int index);

void InsertColumnRight(QByteArray& bytes, const PixelLayout& layout);
void InsertColumnLeft(QByteArray& bytes, const PixelLayout& layout);
void InsertRowTop(QByteArray& bytes, const PixelLayout& layout);
void InsertRowBottom(QByteArray& bytes, const PixelLayout& layout);
void DeleteColumnRight(QByteArray& bytes, const PixelLayout& layout);
void DeleteColumnLeft(QByteArray& bytes, const PixelLayout& layout);
void DeleteRowTop(QByteArray& bytes, const PixelLayout& layout);
void DeleteRowBottom(QByteArray& bytes, const PixelLayout& layout);

// Cuts what is beyond the other layout at the right and at the bottom, or adds empty pixels there.
void Resize(QByteArray& bytes, const PixelLayout& from, const PixelLayout& to);

// Sets the unused bits at the end of every row to 0.
void ClearPadding(QByteArray& bytes, const PixelLayout& layout);

// Rotations: what leaves at one edge comes back at the other.
void ShiftRight(QByteArray& bytes, const PixelLayout& layout);
void ShiftLeft(QByteArray& bytes, const PixelLayout& layout);
void ShiftUp(QByteArray& bytes, const PixelLayout& layout);
void ShiftDown(QByteArray& bytes, const PixelLayout& layout);

} // namespace PixelPlane

} // namespace Glyphor
