#include "model/char_bitmap_framed.h"

#include <utility>

namespace Glyphor {

void CharBitmapFramed::EditPlanes(PlaneEdit edit)
{
    edit(frame_, Layout());
    CharBitmap::EditPlanes(edit);
}

void CharBitmapFramed::ResizePlanes(const PixelLayout& to)
{
    PixelPlane::Resize(frame_, Layout(), to);
    CharBitmap::ResizePlanes(to);
}

bool CharBitmapFramed::ReadData(std::span<const uchar> source)
{
    const auto size = static_cast<std::size_t>(Layout().Size());
    if (source.size() < 2 * size || !CharBitmap::ReadData(source))
        return false;
    frame_ = QByteArray(reinterpret_cast<const char*>(source.data() + size), Layout().Size());
    PixelPlane::ClearPadding(frame_, Layout());
    return true;
}

void CharBitmapFramed::RenderData(const RenderedGlyph& glyph, const GlyphPlacement& placement)
{
    CharBitmap::RenderData(glyph, placement);
    UpdateFrame();
}

void CharBitmapFramed::AdjustData()
{
    CharBitmap::AdjustData();
    frame_ = Resized(std::move(frame_), Layout().Size());
}

void CharBitmapFramed::Clear()
{
    CharBitmap::Clear();
    frame_ = QByteArray(Layout().Size(), '\0');
}

void CharBitmapFramed::SetPixelIndex(int x, int y, int index)
{
    CharBitmap::SetPixelIndex(x, y, index);
    UpdateFrame();
}

void CharBitmapFramed::WriteBytes(QByteArray& text, QByteArrayView lineEnding) const
{
    CharBitmap::WriteBytes(text, lineEnding);
    WritePlaneBytes(frame_, Layout(), text, lineEnding);
}

void CharBitmapFramed::AssignData(const QByteArray& data)
{
    CharBitmap::AssignData(data);
    UpdateFrame();
}

void CharBitmapFramed::ShareData(const CharBitmap& other)
{
    CharBitmap::ShareData(other);
    frame_ = static_cast<const CharBitmapFramed&>(other).frame_;
}

// The four direct neighbours of every set pixel that are not set themselves, eight pixels at a
// time. Those outside the bitmap are dropped: editing a pixel never changes the size.
void CharBitmapFramed::UpdateFrame()
{
    const PixelLayout layout = Layout();
    const int length = layout.BytesPerLine();
    const int unused = length * 8 - layout.width;
    const QByteArray empty(length, '\0');
    frame_ = QByteArray(layout.Size(), '\0');
    const auto rowOf = [&](int y) {
        const bool isInside = y >= 0 && y < layout.rows;
        return reinterpret_cast<const uchar*>(isInside ? Data().constData() + y * length
                                                       : empty.constData());
    };
    auto* to = reinterpret_cast<uchar*>(frame_.data());
    for (int y = 0; y < layout.rows; ++y) {
        const uchar* const row = rowOf(y);
        const uchar* const above = rowOf(y - 1);
        const uchar* const below = rowOf(y + 1);
        for (int i = 0; i < length; ++i) {
            const int before = i > 0 ? row[i - 1] : 0;
            const int after = i + 1 < length ? row[i + 1] : 0;
            const int fromLeft = before << 7 | row[i] >> 1;
            const int fromRight = row[i] << 1 | after >> 7;
            const int inside = i + 1 < length ? 0xFF : 0xFF << unused;
            *to++ =
                static_cast<uchar>((fromLeft | fromRight | above[i] | below[i]) & ~row[i] & inside);
        }
    }
}

} // namespace Glyphor
