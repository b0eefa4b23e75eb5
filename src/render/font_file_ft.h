#pragma once

#include "files/font_file.h"
#include "render/free_type_face.h"

#include <vector>

namespace Glyphor {

// A font file that is read through FreeType, one rendered glyph after the other.
class FontFileFT : public FontFile
{
public:
    using FontFile::FontFile;

protected:
    // Sets the heights of "a" and "A", or the font's height where the face can't tell.
    static void MeasureReferenceHeights(const FreeTypeFace& face, Font& font);

    // Adds a rendered glyph. Empty glyphs that do not move the cursor are no characters, and those
    // that no character can hold are remembered for the warning. True if the font has a new one.
    bool AddGlyph(Font& font, quint16 code, const RenderedGlyph& glyph);

    // Tells the user which characters were left out, if any.
    void WarnOfMisfits() const;

private:
    std::vector<quint16> misfits_;
};

// A metric as a byte; what does not fit, negative values included, becomes 255.
[[nodiscard]] quint8 ClampMetric(int value);

} // namespace Glyphor
