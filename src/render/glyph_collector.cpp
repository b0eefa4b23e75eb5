#include "render/glyph_collector.h"

#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "app/user_interface.h"
#include "model/code_text.h"

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

InkOverflow OverflowOf(const RenderedGlyph& glyph, const FontMetrics& font)
{
    if (glyph.yPos >= 0 && glyph.yPos + glyph.rows <= font.height)
        return {};
    const InkBox ink = InkOf(glyph, font.bitsPerPixel);
    if (ink.IsEmpty())
        return {};
    return {std::max(0, -(glyph.yPos + ink.top)),
            std::max(0, glyph.yPos + ink.bottom - int(font.height))};
}

bool IsNothing(const RenderedGlyph& glyph)
{
    return (glyph.width == 0 || glyph.rows == 0) && glyph.cursorDistance <= 0;
}

GlyphCollector::Prepared GlyphCollector::Prepare(const RenderedGlyph& glyph) const
{
    if (IsNothing(glyph))
        return {};
    Prepared prepared{false, font_.MakeRendered(glyph)};
    const FontMetrics& metrics = font_.Metrics();
    const bool isCell = IsLegacyFormat(metrics.format);
    if (isCell || !source_.isEmpty())
        prepared.overflow = OverflowOf(glyph, metrics);
    if (isCell && glyph.xPos < 0) {
        const InkBox ink = InkOf(glyph, metrics.bitsPerPixel);
        prepared.isLeftOfOrigin =
            !ink.IsEmpty() && (glyph.cursorDistance <= 0 || glyph.xPos + ink.right <= 0);
    }
    return prepared;
}

bool GlyphCollector::Add(quint16 code, Prepared glyph)
{
    if (glyph.isNothing)
        return false;
    const Font::AddResult result = font_.AddMade(code, std::move(glyph.character));
    if (result == Font::AddResult::DoesNotFit) {
        misfits_.push_back(code);
        font_.LeaveOut(code);
    }
    if (result != Font::AddResult::Added)
        return false;
    if (glyph.overflow.IsAny()) {
        overflow_.rows.Add(glyph.overflow);
        overflow_.codes.push_back(code);
        overflowing_.Set(code, true);
    }
    if (glyph.isLeftOfOrigin) {
        marks_.push_back(code);
        leftOfOrigin_.Set(code, true);
    }
    return true;
}

bool GlyphCollector::AddLike(quint16 code, quint16 same)
{
    if (font_.AddLike(code, *font_.FindChar(same)) != Font::AddResult::Added)
        return false;
    if (overflowing_.Test(same))
        overflow_.codes.push_back(code);
    if (leftOfOrigin_.Test(same))
        marks_.push_back(code);
    return true;
}

void GlyphCollector::Warn() const
{
    WarnOfMisfits();
    WarnOfOverflow();
    WarnOfMarks();
}

void GlyphCollector::WarnOfMisfits() const
{
    if (misfits_.empty())
        return;
    CurrentInterface().warning(
        Engine::tr("Characters left out"),
        Engine::tr("Characters left out: %1 (%2). They need more than a character can hold: 255 "
                   "pixels each "
                   "way, a cursor distance from 0 to 255, offsets from -128.")
            .arg(QString::number(misfits_.size()), FirstCodes(misfits_)));
}

void GlyphCollector::WarnOfOverflow() const
{
    if (overflow_.codes.empty())
        return;
    const QString count = QString::number(overflow_.codes.size());
    const QString above = QString::number(overflow_.rows.above);
    const QString below = QString::number(overflow_.rows.below);
    if (IsLegacyFormat(font_.Metrics().format))
        CurrentInterface().warning(
            Engine::tr("Characters cut"),
            Engine::tr("Characters cut: %1 (%2). They need up to %3 rows above the font's line and "
                       "%4 below it; -fit makes the line high enough.")
                .arg(count, FirstCodes(overflow_.codes), above, below));
    else
        CurrentInterface().warning(
            Engine::tr("Characters leave the line"),
            Engine::tr("Characters of %1 that leave the font's line: %2 (%3), by up to %4 rows "
                       "above it and %5 below it; -fit makes the line high enough.")
                .arg(source_, count, FirstCodes(overflow_.codes), above, below));
}

void GlyphCollector::WarnOfMarks() const
{
    if (marks_.empty())
        return;
    CurrentInterface().warning(
        Engine::tr("Characters moved"),
        Engine::tr("Characters that stand left of their origin: %1 (%2). The cells of legacy "
                   "fonts can't show them there.")
            .arg(QString::number(marks_.size()), FirstCodes(marks_)));
}

QString FirstCodes(const std::vector<quint16>& codes)
{
    constexpr std::size_t listed = 8;
    QStringList texts;
    for (std::size_t index = 0; index < std::min(listed, codes.size()); ++index)
        texts.append(u"0x"_s + Hex4Text(codes[index]));
    if (codes.size() > listed)
        texts.append(u"..."_s);
    return texts.join(u", "_s);
}

} // namespace Glyphor
