#pragma once

#include "model/char_bitmap.h"

namespace Glyphor {

// A character of the framed format: a second plane of the same layout marks the pixels around the
// ink. Pixel edits compute it anew; edits of rows and columns treat both planes alike.
class CharBitmapFramed final : public CharBitmap
{
public:
    using CharBitmap::CharBitmap;

    bool InsertColumnRight() override;
    bool InsertColumnLeft() override;
    bool InsertRowTop() override;
    bool InsertRowBottom() override;
    void ShiftRight() override;
    void ShiftLeft() override;
    void ShiftUp() override;
    void ShiftDown() override;

    // The source holds the data plane, then the frame plane.
    bool ReadData(std::span<const uchar> source) override;
    void RenderData(const RenderedGlyph& glyph, const GlyphPlacement& placement) override;
    void AdjustData() override;
    void Clear() override;

    bool DeleteColumnRight() override;
    bool DeleteColumnLeft() override;
    bool DeleteRowTop() override;
    bool DeleteRowBottom() override;
    void SetPixelIndex(int x, int y, int index) override;
    void IncPixelIndex(int x, int y) override;
    void DecPixelIndex(int x, int y) override;
    void InvertPixelIndex(int x, int y) override;

    // The data plane, then the frame plane.
    void Write(QByteArray& stream) const override;
    void WriteBytes(QByteArray& text, QByteArrayView lineEnding) const override;
    [[nodiscard]] QByteArray DataAsList() const override;

    // Takes the data plane and computes the frame.
    void AssignData(const QByteArray& data) override;

    // The other one must be framed as well.
    void ShareData(const CharBitmap& other) override;

    [[nodiscard]] const QByteArray& Frame() const { return frame_; }

private:
    using PlaneEdit = void (*)(QByteArray&, const PixelLayout&);

    // Applies to the frame what was done to the data, unless that was refused.
    bool EditFrame(bool done, PlaneEdit edit, const PixelLayout& before);

    void UpdateFrame();

    QByteArray frame_;
};

} // namespace Glyphor
