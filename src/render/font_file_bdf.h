#pragma once

#include "render/font_file_ft.h"

namespace Glyphor {

// A face of bitmaps that tells its baseline by a property.
class FreeTypeFace_BDF final : public FreeTypeFace
{
public:
    using FreeTypeFace::FreeTypeFace;

    // The property FONT_ASCENT; -1 where it is missing or no integer.
    [[nodiscard]] int Ascent() const override;

    // The line height that the glyphs have in common.
    [[nodiscard]] int VerticalAdvance() const;
};

// A font in the Glyph Bitmap Distribution Format. It has a fixed size and gives a standard font of
// 1 bit per pixel in Unicode, without kerning.
class FontFileBDF final : public FontFileFT
{
public:
    explicit FontFileBDF(const QString& path);

    std::unique_ptr<Font> Read() override;

private:
    void RenderCodes(Font& font);

    FreeTypeFace_BDF face_;
};

} // namespace Glyphor
