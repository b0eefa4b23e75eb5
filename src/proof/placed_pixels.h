#pragma once

#include "model/font.h"

namespace Glyphor {

// The pixels of a character where they stand: from the cursor, and from the top of the font.
class PlacedPixels
{
public:
    explicit PlacedPixels(const Character& character);

    [[nodiscard]] int Left() const { return left_; }
    [[nodiscard]] int Top() const { return top_; }
    [[nodiscard]] int Right() const { return left_ + layout_.width; }
    [[nodiscard]] int Bottom() const { return top_ + layout_.rows; }
    [[nodiscard]] bool IsFramed() const { return frame_ != nullptr; }

    // Ink from 0 to 15 for fonts of any depth; 0 outside.
    [[nodiscard]] int InkAt(int x, int y) const;

    // Whether the pixel is one of the frame.
    [[nodiscard]] bool HasFrameAt(int x, int y) const;

private:
    [[nodiscard]] int IndexAt(const QByteArray& plane, int x, int y) const;

    PixelLayout layout_;
    const QByteArray& data_;
    const QByteArray* frame_ = nullptr;
    int left_ = 0;
    int top_ = 0;
    int scale_ = 1;
};

} // namespace Glyphor
