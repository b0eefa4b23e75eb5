#include "actions/paste_action.h"

#include "actions/session.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "model/code_text.h"
#include "model/encoding.h"
#include "model/pixel_block.h"

#include <algorithm>

namespace Glyphor {

namespace {

constexpr const char* Text = QT_TRANSLATE_NOOP("Engine", "Pasted.");

[[noreturn]] void Refuse(const QString& reason)
{
    throw CriticalException(Engine::tr("Characters can't be copied!"), reason);
}

[[noreturn]] void RefuseSize(quint16 code)
{
    Refuse(Engine::tr("The character for 0x%1 does not fit into the font.").arg(Hex4Text(code)));
}

bool HasSameLine(const CopiedCharacters& copied, const FontMetrics& font)
{
    return copied.height == font.height && copied.baseline == font.baseline;
}

// Null where an offset can't be had.
std::unique_ptr<Character> Moved(const CopiedCharacter& copied, int rows, const FontMetrics& font)
{
    CharMetrics metrics = copied.metrics;
    metrics.yPos += rows;
    if (!metrics.FitFields())
        return nullptr;
    auto character = std::make_unique<Character>(font);
    character->info.Set(metrics);
    character->bitmap->ReadData({reinterpret_cast<const uchar*>(copied.bytes.constData()),
                                 std::size_t(copied.bytes.size())});
    return character;
}

RenderedGlyph GlyphOf(const CopiedCharacter& copied, const FontMetrics& font)
{
    Character character(font);
    character.info.Set(copied.metrics);
    character.bitmap->ReadData({reinterpret_cast<const uchar*>(copied.bytes.constData()),
                                std::size_t(copied.bytes.size())});
    RenderedGlyph glyph;
    glyph.pixels = WithDepth(PixelsOf(*character.bitmap), font.bitsPerPixel, 8).indices;
    glyph.size = qint32(glyph.pixels.size());
    glyph.xPos = copied.metrics.xPos;
    glyph.yPos = copied.metrics.yPos;
    glyph.cursorDistance = copied.metrics.cursorDistance;
    glyph.width = copied.metrics.width;
    glyph.rows = copied.metrics.height;
    glyph.pitch = glyph.width;
    glyph.bitsPerPixel = 8;
    return glyph;
}

// Cells of a legacy font have no room beyond its line.
bool IsCut(const RenderedGlyph& glyph, const FontMetrics& font)
{
    const InkBox ink = InkOf(glyph, font.bitsPerPixel);
    return IsLegacyFormat(font.format) && !ink.IsEmpty() &&
           (glyph.yPos + ink.top < 0 || glyph.yPos + ink.bottom > font.height);
}

} // namespace

void CheckTarget(quint16 code, int target, EncodingType encoding)
{
    if (target >= CodeSet::Limit)
        Refuse(Engine::tr("0x%1 would get a code beyond 0xFFFF.").arg(Hex4Text(code)));
    if (!EncodingFor(encoding).Converted(EncodingType::Unicode, quint16(target)))
        Refuse(Engine::tr("0x%1 would get the code 0x%2, which the encoding of the font does not "
                          "have.")
                   .arg(Hex4Text(code), Hex4Text(quint16(target))));
}

PreparedPaste PreparePaste(Session& session, const CopiedCharacters& copied, quint16 code)
{
    const Font& font = *session.CurrentFont();
    const FontMetrics& metrics = font.Metrics();
    const FontMetrics theirs = copied.Metrics();
    const int rows = metrics.baseline - copied.baseline;
    const bool isSame = copied.format == metrics.format &&
                        (!IsLegacyFormat(metrics.format) || HasSameLine(copied, metrics));
    PreparedPaste paste = {std::make_shared<ActionReplaceChars>(session, Text)};
    for (const CopiedCharacter& each : copied.characters) {
        const int target = code + each.code - copied.characters.front().code;
        CheckTarget(each.code, target, metrics.encoding);
        std::unique_ptr<Character> character;
        if (isSame) {
            character = Moved(each, rows, metrics);
        } else {
            RenderedGlyph glyph = GlyphOf(each, theirs);
            glyph.yPos += rows;
            paste.cut += IsCut(glyph, metrics) ? 1 : 0;
            character = font.MakeRendered(glyph);
        }
        if (character == nullptr)
            RefuseSize(quint16(target));
        if (copied.encoding == metrics.encoding) // whose codes the pairs have
            character->kerning = each.kerning;
        paste.action->PutEnabled(quint16(target), std::move(character));
    }
    return paste;
}

PreparedPaste PreparePaste(Session& session, const RenderedGlyph& picture, quint16 code)
{
    const Font& font = *session.CurrentFont();
    const FontMetrics& metrics = font.Metrics();
    CheckTarget(code, code, metrics.encoding);
    RenderedGlyph glyph = picture;
    // Where it is too high to stand on the baseline, it begins as far above as can be.
    glyph.yPos = std::max(glyph.yPos + metrics.baseline, CharInfo::MinOffset);
    std::unique_ptr<Character> character = font.MakeRendered(glyph);
    if (character == nullptr)
        RefuseSize(code);
    PreparedPaste paste = {std::make_shared<ActionReplaceChars>(session, Text),
                           IsCut(glyph, metrics) ? 1 : 0};
    paste.action->PutEnabled(code, std::move(character));
    return paste;
}

} // namespace Glyphor
