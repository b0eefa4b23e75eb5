#pragma once

#include "model/char_info.h"
#include "model/glyph_conversion.h"
#include "model/pixel_plane.h"

#include <QByteArray>

#include <span>

namespace Glyphor {

// The pixels of one character and every edit of them. Edits keep the character's metrics in step.
//
// An edit that returns bool is refused, and changes nothing, where there is nothing to delete,
// where the bitmap would become larger than 255 pixels, where an offset would leave its range, and
// for single rows of a legacy character, whose height is the font's.
class CharBitmap
{
public:
    // The metrics stay the owner's and must outlive the bitmap. There are no pixels yet.
    explicit CharBitmap(CharInfo& info);
    CharBitmap(const CharBitmap&) = delete;
    CharBitmap& operator=(const CharBitmap&) = delete;

    virtual bool InsertColumnRight() { return InsertColumn(PixelPlane::InsertColumnRight); }
    virtual bool InsertColumnLeft() { return InsertColumn(PixelPlane::InsertColumnLeft); }
    virtual bool InsertRowTop();
    virtual bool InsertRowBottom() { return InsertRow(PixelPlane::InsertRowBottom); }

    virtual void ShiftRight() { EditPlanes(PixelPlane::ShiftRight); }
    virtual void ShiftLeft() { EditPlanes(PixelPlane::ShiftLeft); }
    virtual void ShiftUp() { EditPlanes(PixelPlane::ShiftUp); }
    virtual void ShiftDown() { EditPlanes(PixelPlane::ShiftDown); }

    // Takes as many bytes as the metrics ask for; false, and no change, where the source has fewer.
    virtual bool ReadData(std::span<const uchar> source);

    // Takes the pixels of a glyph. The metrics must already be those of the placement.
    virtual void RenderData(const RenderedGlyph& glyph, const GlyphPlacement& placement);

    // Cuts the data to the size that the metrics ask for, or fills it up with empty pixels.
    virtual void AdjustData();

    // Leaves one empty column of the font's height, or one empty pixel on the baseline.
    virtual void Clear();

    virtual ~CharBitmap() = default;

    virtual bool DeleteColumnRight() { return DeleteColumn(PixelPlane::DeleteColumnRight); }
    virtual bool DeleteColumnLeft() { return DeleteColumn(PixelPlane::DeleteColumnLeft); }
    virtual bool DeleteRowTop();
    virtual bool DeleteRowBottom() { return DeleteRow(PixelPlane::DeleteRowBottom); }

    // Cuts pixels at the right and at the bottom, or adds empty ones there. Each way a character
    // has 1 to 255 pixels.
    bool SetSize(int width, int height);

    // What undo calls: deleted pixels come back empty.
    virtual bool UndoInsertColumnRight() { return DeleteColumnRight(); }
    virtual bool UndoInsertColumnLeft() { return DeleteColumnLeft(); }
    virtual bool UndoInsertRowTop() { return DeleteRowTop(); }
    virtual bool UndoInsertRowBottom() { return DeleteRowBottom(); }
    virtual bool UndoDeleteRowTop() { return InsertRowTop(); }
    virtual bool UndoDeleteColumnRight() { return InsertColumnRight(); }

    // Indices are masked to the font's depth, so they wrap; pixels outside are ignored.
    virtual void SetPixelIndex(int x, int y, int index);
    virtual void IncPixelIndex(int x, int y) { SetPixelIndex(x, y, GetPixelIndex(x, y) + 1); }
    virtual void DecPixelIndex(int x, int y) { SetPixelIndex(x, y, GetPixelIndex(x, y) - 1); }
    virtual void InvertPixelIndex(int x, int y) { SetPixelIndex(x, y, ~GetPixelIndex(x, y)); }

    // Appends the packed bytes.
    virtual void Write(QByteArray& stream) const { stream.append(data_); }

    // Appends the bytes as C text, a line for each row: patterns of "X" and "_" for 1 bit per
    // pixel, hexadecimal numbers for 2 and 4.
    virtual void WriteBytes(QByteArray& text, QByteArrayView lineEnding) const;

    [[nodiscard]] virtual QByteArray DataAsList() const { return data_; }

    // Replaces the bytes; they are adjusted to the size that the metrics ask for.
    virtual void AssignData(const QByteArray& data);

    // Takes the pixels of a character of the same metrics; the bytes are shared until one is
    // edited.
    virtual void ShareData(const CharBitmap& other) { data_ = other.data_; }

    // 0 outside the data.
    [[nodiscard]] int GetPixelIndex(int x, int y) const;

    // Rows that the font gains or loses as a whole; for legacy characters only.
    void InsertFontRowTop() { EditPlanes(PixelPlane::InsertRowTop); }
    void InsertFontRowBottom() { EditPlanes(PixelPlane::InsertRowBottom); }
    void DeleteFontRowTop() { EditPlanes(PixelPlane::DeleteRowTop); }
    void DeleteFontRowBottom() { EditPlanes(PixelPlane::DeleteRowBottom); }

    [[nodiscard]] const CharInfo& Info() const { return info_; }
    [[nodiscard]] const QByteArray& Data() const { return data_; }

protected:
    using PlaneEdit = void (*)(QByteArray&, const PixelLayout&);

    // Applies an edit of rows or columns to the pixels, whose metrics are still those before it.
    virtual void EditPlanes(PlaneEdit edit) { edit(data_, Layout()); }

    virtual void ResizePlanes(const PixelLayout& to) { PixelPlane::Resize(data_, Layout(), to); }

    // Of one plane, after the metrics.
    [[nodiscard]] PixelLayout Layout() const;

    [[nodiscard]] static QByteArray Resized(QByteArray data, int size);
    static void WritePlaneBytes(const QByteArray& plane, const PixelLayout& layout,
                                QByteArray& text, QByteArrayView lineEnding);

private:
    bool InsertColumn(PlaneEdit edit);
    bool DeleteColumn(PlaneEdit edit);
    bool InsertRow(PlaneEdit edit);
    bool DeleteRow(PlaneEdit edit);

    CharInfo& info_;
    QByteArray data_;
};

} // namespace Glyphor
