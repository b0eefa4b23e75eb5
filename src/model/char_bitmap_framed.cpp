#include "model/char_bitmap_framed.h"

#include <array>
#include <utility>

namespace Glyphor {

bool CharBitmapFramed::EditFrame(bool done, PlaneEdit edit, const PixelLayout& before)
{
    if (done)
        edit(frame_, before);
    return done;
}

bool CharBitmapFramed::InsertColumnRight()
{
    const PixelLayout before = Layout();
    return EditFrame(CharBitmap::InsertColumnRight(), PixelPlane::InsertColumnRight, before);
}

bool CharBitmapFramed::InsertColumnLeft()
{
    const PixelLayout before = Layout();
    return EditFrame(CharBitmap::InsertColumnLeft(), PixelPlane::InsertColumnLeft, before);
}

bool CharBitmapFramed::InsertRowTop()
{
    const PixelLayout before = Layout();
    return EditFrame(CharBitmap::InsertRowTop(), PixelPlane::InsertRowTop, before);
}

bool CharBitmapFramed::InsertRowBottom()
{
    const PixelLayout before = Layout();
    return EditFrame(CharBitmap::InsertRowBottom(), PixelPlane::InsertRowBottom, before);
}

void CharBitmapFramed::ShiftRight()
{
    CharBitmap::ShiftRight();
    PixelPlane::ShiftRight(frame_, Layout());
}

void CharBitmapFramed::ShiftLeft()
{
    CharBitmap::ShiftLeft();
    PixelPlane::ShiftLeft(frame_, Layout());
}

void CharBitmapFramed::ShiftUp()
{
    CharBitmap::ShiftUp();
    PixelPlane::ShiftUp(frame_, Layout());
}

void CharBitmapFramed::ShiftDown()
{
    CharBitmap::ShiftDown();
    PixelPlane::ShiftDown(frame_, Layout());
}

bool CharBitmapFramed::ReadData(std::span<const uchar> source)
{
    const auto size = static_cast<std::size_t>(Layout().Size());
    if (source.size() < 2 * size || !CharBitmap::ReadData(source))
        return false;
    frame_ = QByteArray(reinterpret_cast<const char*>(source.data() + size), Layout().Size());
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

bool CharBitmapFramed::DeleteColumnRight()
{
    const PixelLayout before = Layout();
    return EditFrame(CharBitmap::DeleteColumnRight(), PixelPlane::DeleteColumnRight, before);
}

bool CharBitmapFramed::DeleteColumnLeft()
{
    const PixelLayout before = Layout();
    return EditFrame(CharBitmap::DeleteColumnLeft(), PixelPlane::DeleteColumnLeft, before);
}

bool CharBitmapFramed::DeleteRowTop()
{
    const PixelLayout before = Layout();
    return EditFrame(CharBitmap::DeleteRowTop(), PixelPlane::DeleteRowTop, before);
}

bool CharBitmapFramed::DeleteRowBottom()
{
    const PixelLayout before = Layout();
    return EditFrame(CharBitmap::DeleteRowBottom(), PixelPlane::DeleteRowBottom, before);
}

void CharBitmapFramed::SetPixelIndex(int x, int y, int index)
{
    CharBitmap::SetPixelIndex(x, y, index);
    UpdateFrame();
}

void CharBitmapFramed::IncPixelIndex(int x, int y)
{
    CharBitmap::IncPixelIndex(x, y);
    UpdateFrame();
}

void CharBitmapFramed::DecPixelIndex(int x, int y)
{
    CharBitmap::DecPixelIndex(x, y);
    UpdateFrame();
}

void CharBitmapFramed::InvertPixelIndex(int x, int y)
{
    CharBitmap::InvertPixelIndex(x, y);
    UpdateFrame();
}

void CharBitmapFramed::Write(QByteArray& stream) const
{
    CharBitmap::Write(stream);
    stream.append(frame_);
}

void CharBitmapFramed::WriteBytes(QByteArray& text, QByteArrayView lineEnding) const
{
    CharBitmap::WriteBytes(text, lineEnding);
    WritePlaneBytes(frame_, Layout(), text, lineEnding);
}

QByteArray CharBitmapFramed::DataAsList() const
{
    return Data() + frame_;
}

void CharBitmapFramed::AssignData(const QByteArray& data)
{
    CharBitmap::AssignData(data);
    UpdateFrame();
}

// The four direct neighbours of every set pixel that are not set themselves. Those outside the
// bitmap are dropped: editing a pixel never changes the size.
void CharBitmapFramed::UpdateFrame()
{
    static constexpr std::array<std::pair<int, int>, 4> neighbours = {
        {{-1, 0}, {1, 0}, {0, -1}, {0, 1}}};
    const PixelLayout layout = Layout();
    frame_ = QByteArray(layout.Size(), '\0');
    for (int y = 0; y < layout.rows; ++y) {
        for (int x = 0; x < layout.width; ++x) {
            if (GetPixelIndex(x, y) == 0)
                continue;
            for (const auto& [dx, dy] : neighbours) {
                if (GetPixelIndex(x + dx, y + dy) == 0)
                    PixelPlane::SetPixel(frame_, layout, x + dx, y + dy, 1);
            }
        }
    }
}

} // namespace Glyphor
