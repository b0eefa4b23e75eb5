#include "render/font_file_ft.h"

#include "model/unicode_table.h"

#include <algorithm>

namespace Glyphor {

namespace {

quint8 ReferenceHeight(const FreeTypeFace& face, CharacterCategory category, quint8 fallback)
{
    const CharacterData::CharacterRecord* const reference = FirstOfCategory(category);
    const int height = reference != nullptr ? face.GlyphHeight(reference->code) : 0;
    return height != 0 ? ClampMetric(height) : fallback;
}

} // namespace

quint8 ClampMetric(int value)
{
    return static_cast<quint8>(std::min<unsigned>(static_cast<unsigned>(value), 255));
}

void FontFileFT::MeasureReferenceHeights(const FreeTypeFace& face, Font& font)
{
    const quint8 height = font.Metrics().height;
    font.SetReferenceHeights(ReferenceHeight(face, CharacterCategory::LowercaseLetter, height),
                             ReferenceHeight(face, CharacterCategory::UppercaseLetter, height));
}

} // namespace Glyphor
