#pragma once

#include "model/char_bitmap.h"

namespace Glyphor {

// A character of the framed format: a second plane of the same layout marks the pixels around the
// ink. Pixel edits compute it anew; edits of rows and columns treat both planes alike.
class CharBitmapFramed final : public CharBitmap
{
public:
    using CharBitmap::CharBitmap;

    // The source holds the data plane, then the frame plane.
    bool ReadData(std::span<const uchar> source) override;
    void RenderData(const RenderedGlyph& glyph, const GlyphPlacement& placement) override;
    void AdjustData() override;
    void Clear() override;

    void SetPixelIndex(int x, int y, int index) override;

    // The data plane, then the frame plane.
    void Write(QByteArray& stream) const override { stream.append(DataAsList()); }
    void WriteBytes(QByteArray& text, QByteArrayView lineEnding) const override;
    [[nodiscard]] QByteArray DataAsList() const override { return Data() + frame_; }

    // Takes the data plane and computes the frame.
    void AssignData(const QByteArray& data) override;

    // The other one must be framed as well.
    void ShareData(const CharBitmap& other) override;

    [[nodiscard]] const QByteArray& Frame() const { return frame_; }

protected:
    void EditPlanes(PlaneEdit edit) override;
    void ResizePlanes(const PixelLayout& to) override;

private:
    void UpdateFrame();

    QByteArray frame_;
};

} // namespace Glyphor
