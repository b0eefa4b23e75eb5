#include "render/font_file_ft.h"

#include "app/engine_texts.h"
#include "app/user_interface.h"
#include "model/code_text.h"
#include "model/unicode_table.h"

#include <QStringList>

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

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

bool FontFileFT::AddGlyph(Font& font, quint16 code, const RenderedGlyph& glyph)
{
    const bool isEmpty = glyph.width == 0 || glyph.rows == 0;
    if (isEmpty && glyph.cursorDistance <= 0)
        return false;
    const Font::AddResult result = font.AddRendered(code, glyph);
    if (result == Font::AddResult::DoesNotFit) {
        misfits_.push_back(code);
        font.LeaveOut(code);
    }
    return result == Font::AddResult::Added;
}

void FontFileFT::WarnOfMisfits() const
{
    constexpr std::size_t listed = 8;
    if (misfits_.empty())
        return;
    QStringList codes;
    for (std::size_t index = 0; index < std::min(listed, misfits_.size()); ++index)
        codes.append(u"0x"_s + Hex4Text(misfits_[index]));
    if (misfits_.size() > listed)
        codes.append(u"..."_s);
    CurrentInterface().warning(
        Engine::tr("Characters left out"),
        Engine::tr("Characters left out: %1 (%2). They need more than a character can hold: 255 "
                   "pixels each "
                   "way, a cursor distance from 0 to 255, offsets from -128.")
            .arg(QString::number(misfits_.size()), codes.join(u", "_s)));
}

} // namespace Glyphor
