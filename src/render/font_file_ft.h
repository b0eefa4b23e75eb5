#pragma once

#include "files/font_file.h"
#include "render/free_type_face.h"

namespace Glyphor {

// A font file that is read through FreeType, one rendered glyph after the other.
class FontFileFT : public FontFile
{
public:
    using FontFile::FontFile;

protected:
    // Sets the heights of "a" and "A", or the font's height where the face can't tell.
    static void MeasureReferenceHeights(const FreeTypeFace& face, Font& font);
};

// A metric as a byte; what does not fit, negative values included, becomes 255.
[[nodiscard]] quint8 ClampMetric(int value);

} // namespace Glyphor
