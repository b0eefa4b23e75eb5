#include "render/font_file_scalable.h"

#include "app/engine_texts.h"
#include "app/progress.h"
#include "app/user_interface.h"
#include "model/encoding.h"
#include "render/kerning_index.h"

#include <optional>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// Pairs of a font speak of the font's own codes; characters that it can't encode have no pairs.
std::vector<KerningPair> Encoded(const std::vector<KerningPair>& pairs, EncodingType encoding)
{
    std::vector<KerningPair> encoded;
    encoded.reserve(pairs.size());
    for (KerningPair pair : pairs) {
        if (EncodingFor(EncodingType::Unicode).Convert(encoding, pair.right))
            encoded.push_back(pair);
    }
    return encoded;
}

// No font needs as many pairs, but a damaged one can claim one for every two characters.
constexpr std::size_t MaxKerningPairs = 1'000'000;

} // namespace

FontFileScalable::FontFileScalable(const QString& path, const RenderOptions& options)
    : FontFileFT(path), options_(options)
{}

void FontFileScalable::UseFace(const FreeTypeFace& face)
{
    face_ = face;
    face_.SetMonochrome(BitsPerPixel(options_.format) == 1);
    face_.SetPixelSize(options_.size);
}

std::unique_ptr<Font> FontFileScalable::Read()
{
    auto font = std::make_unique<Font>(options_.format, options_.encoding);
    face_.SetPixelSize(options_.size);
    face_.SetEffects(options_.effects);
    font->SetName(FontName());
    SetMetrics(*font);
    if (font->Metrics().height == 0)
        WarnOfMissingSize();
    if (face_.GlyphCount() == 0 || font->Metrics().height == 0)
        return font;
    font->SetHasKerning(face_.HasKerning());
    RenderCharmap(*font);
    WarnOfMisfits();
    return font;
}

QString FontFileScalable::FontName() const
{
    QStringList effects;
    if ((options_.effects & BoldEffect) != 0)
        effects.append(u"Bold"_s);
    if ((options_.effects & ItalicEffect) != 0)
        effects.append(u"Italic"_s);
    QString name = u"%1 %2"_s.arg(face_.FamilyName(), face_.StyleName());
    if (!effects.isEmpty())
        name += u" ("_s + effects.join(u", "_s) + u')';
    return name;
}

void FontFileScalable::SetMetrics(Font& font) const
{
    font.SetBaseline(ClampMetric(face_.Ascent()));
    font.SetHeight(ClampMetric(face_.LineHeight()));
    font.SetMaxWidth(ClampMetric(face_.MaxAdvance()));
    MeasureReferenceHeights(face_, font);
}

void FontFileScalable::RenderCharmap(Font& font)
{
    const Encoding& unicode = EncodingFor(EncodingType::Unicode);
    std::optional<KerningIndex> kerning;
    if (font.HasKerning())
        kerning.emplace(face_);
    Progress progress(Engine::tr("Rendering font..."), face_.GlyphCount());
    RenderedGlyph glyph;
    std::size_t pairCount = 0;
    CodeSet visited; // a code that comes up again gives the same glyph again
    int notVisited = CodeSet::Count;
    face_.WalkCharmap([&](quint16 faceCode, FT_UInt glyphIndex) {
        if (visited.Test(faceCode))
            return true;
        visited.Set(faceCode, true);
        --notVisited;
        quint16 code = faceCode;
        const bool isWanted = !CharacterFilter() || CharacterFilter()->Test(faceCode);
        if (isWanted && unicode.Convert(options_.encoding, code) &&
            face_.RenderIndex(glyphIndex, glyph) && AddGlyph(font, code, glyph)) {
            if (kerning && pairCount < MaxKerningPairs) {
                auto& pairs = font.FindChar(code)->kerning;
                pairs = Encoded(kerning->PairsOf(faceCode), options_.encoding);
                pairCount += pairs.size();
            }
            progress.Advance();
        }
        return notVisited > 0;
    });
    if (pairCount >= MaxKerningPairs)
        CurrentInterface().warning(
            Engine::tr("Kerning left out"),
            Engine::tr("The font has too many kerning pairs; some were left out."));
}

// A face of bitmaps only has no other size than theirs.
void FontFileScalable::WarnOfMissingSize() const
{
    const QList<int> heights = face_.StrikeHeights();
    if (heights.isEmpty() || face_.HasOutlines())
        return;
    QStringList texts;
    for (const int height : heights)
        texts.append(QString::number(height));
    CurrentInterface().warning(Engine::tr("Font has no outlines"),
                               Engine::tr("The font has bitmaps only, which are %1 pixels high.")
                                   .arg(texts.join(u", "_s)));
}

FontFileTTF::FontFileTTF(const QString& path, const RenderOptions& options)
    : FontFileScalable(path, options)
{
    FreeTypeFace probe(path, 0, FreeTypeLibrary());
    if (probe.IsMultiMaster()) {
        faceCount_ = probe.NamedInstanceCount() + 1;
        probe.SetNamedInstance(options.faceIndex);
        UseFace(probe);
    } else {
        faceCount_ = probe.FaceCount();
        UseFace(FreeTypeFace(path, options.faceIndex, FreeTypeLibrary()));
    }
}

FontFileTTC::FontFileTTC(const QString& path, const RenderOptions& options)
    : FontFileTTF(path, options), faceCount_(FreeTypeFace(path, -1, FreeTypeLibrary()).FaceCount())
{
    UseFace(FreeTypeFace(path, options.faceIndex, FreeTypeLibrary()));
}

QList<FaceDescription> FontFileTTC::FaceDescriptions() const
{
    QList<FaceDescription> descriptions;
    for (int index = 0; index < faceCount_; ++index) {
        const FreeTypeFace face(fileName(), index, FreeTypeLibrary());
        descriptions.append({face.FamilyName(), face.StyleName(), face.Style()});
    }
    return descriptions;
}

QStringList FontFileTTC::FamilyNames() const
{
    QStringList names;
    for (const FaceDescription& description : FaceDescriptions())
        names.append(description.familyName);
    return names;
}

} // namespace Glyphor
