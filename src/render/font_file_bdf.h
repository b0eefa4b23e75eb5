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
    // With a map, the characters that it names.
    explicit FontFileBDF(const QString& path, const CharacterMap& map = {});

    std::unique_ptr<Font> Read() override;

    // For a font that takes characters of the file. Throws a CriticalException where it is no BDF
    // file.
    [[nodiscard]] std::shared_ptr<FreeTypeFace> SourceFace() const;

private:
    void RenderCodes(Font& font);
    void RenderMapped(Font& font);
    void Check() const;

    FreeTypeFace_BDF face_;
    CharacterMap map_;
};

} // namespace Glyphor
