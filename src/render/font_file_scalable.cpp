#include "render/font_file_scalable.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/progress.h"
#include "app/user_interface.h"
#include "files/file_types.h"
#include "model/encoding.h"
#include "render/font_kerning.h"
#include "render/glyph_substitution.h"
#include "render/kerning_index.h"

#include <limits>
#include <optional>
#include <utility>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// Opens another member of the file. The file is let go of first: it may have been unpacked into
// memory.
void Reopen(FreeTypeFace& face, int index)
{
    const QString path = face.Path();
    face = FreeTypeFace();
    face = FreeTypeFace(path, index, FreeTypeLibrary());
}

} // namespace

FontFileScalable::FontFileScalable(const QString& path, const RenderOptions& options)
    : FontFileFT(path), options_(options)
{}

void FontFileScalable::UseFace(const FreeTypeFace& face)
{
    face_ = face;
    face_.SetMonochrome(BitsPerPixel(options_.format) == 1);
    // Legacy characters are cut to the font's height, whatever that of the glyph.
    face_.SetLargestBitmap(CharInfo::MaxSize, IsLegacyFormat(options_.format)
                                                  ? std::numeric_limits<int>::max() / 2
                                                  : CharInfo::MaxSize);
    face_.SetPixelSize(options_.height, options_.useStrikes);
}

std::unique_ptr<Font> FontFileScalable::Read()
{
    auto font = std::make_unique<Font>(options_.format, options_.encoding);
    face_.SetPixelSize(options_.height, options_.useStrikes);
    face_.SetEffects(options_.effects);
    RefuseUselessHeight();
    font->SetName(FontName());
    SetMetrics(*font);
    if (font->Metrics().height == 0)
        WarnOfMissingSize();
    if (face_.GlyphCount() == 0 || font->Metrics().height == 0)
        return font;
    font->SetHasKerning(face_.HasKerning());
    rendered_.clear();
    RenderCharmap(*font);
    WarnOfMisfits();
    return font;
}

// A height at which every character is left out only takes time.
void FontFileScalable::RefuseUselessHeight() const
{
    constexpr double largestSide = 255.5; // with rounding
    constexpr int ordinaryEm = 4 * 255;
    const int em = face_.EmSize();
    if (em <= ordinaryEm || !face_.HasOutlines())
        return;
    double largestEm = 0;
    face_.WalkCharmap([&](quint16 faceCode, FT_UInt glyphIndex) {
        const bool isWanted = !CharacterFilter() || CharacterFilter()->Test(faceCode);
        const double extent = isWanted ? face_.GlyphExtent(glyphIndex) : 0;
        if (extent > 0)
            largestEm = std::max(largestEm, largestSide / extent);
        return largestEm < em;
    });
    if (largestEm > 0 && largestEm < em)
        throw CriticalException(
            Engine::tr("Font creation failed!"),
            Engine::tr("At a height of %1 pixels every character is larger than 255 pixels: the "
                       "largest height that gives a character is about %2 pixels.")
                .arg(QString::number(options_.height),
                     QString::number(int(options_.height * largestEm / em))));
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
    std::optional<GlyphSubstitution> substitution;
    if (!options_.features.empty())
        substitution.emplace(face_, options_.features);
    std::vector<ShownGlyph> shown;
    Progress progress(Engine::tr("Rendering font..."), face_.GlyphCount());
    std::size_t pairCount = 0;
    CodeSet visited; // a code that comes up again gives the same glyph again
    int notVisited = CodeSet::Limit;
    face_.WalkCharmap([&](quint16 faceCode, FT_UInt glyphIndex) {
        if (visited.Test(faceCode))
            return true;
        visited.Set(faceCode, true);
        --notVisited;
        progress.LookedAt();
        const bool isWanted = !CharacterFilter() || CharacterFilter()->Test(faceCode);
        const auto code = isWanted ? unicode.Converted(options_.encoding, faceCode) : std::nullopt;
        if (code && substitution)
            glyphIndex = substitution->Replacement(glyphIndex);
        if (code && AddCharacter(font, *code, glyphIndex)) {
            if (kerning && pairCount < MaxKerningPairs) {
                auto& pairs = font.FindChar(*code)->kerning;
                pairs = EncodedPairs(kerning->PairsOf(faceCode), options_.encoding);
                pairCount += pairs.size();
            }
            shown.push_back({faceCode, glyphIndex});
            progress.Advance();
        }
        return notVisited > 0;
    });
    if (substitution)
        substitution->WarnOfUnused();
    if (pairCount >= MaxKerningPairs)
        WarnOfTooManyPairs();
    if (options_.findsLayoutKerning && MayHaveLayoutKerning(face_))
        AddLayoutKerning(font, face_, shown);
}

// Codes with the same glyph share its pixels.
bool FontFileScalable::AddCharacter(Font& font, quint16 code, FT_UInt glyphIndex)
{
    if (const auto rendered = rendered_.constFind(glyphIndex); rendered != rendered_.constEnd())
        return font.AddLike(code, *font.FindChar(*rendered)) == Font::AddResult::Added;
    if (!face_.RenderIndex(glyphIndex, glyph_) || !AddGlyph(font, code, glyph_))
        return false;
    rendered_.insert(glyphIndex, code);
    return true;
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
    FreeTypeFace face(path, 0, FreeTypeLibrary());
    const bool isMultiMaster = face.IsMultiMaster();
    faceCount_ = isMultiMaster ? face.NamedInstanceCount() + 1 : face.FaceCount();
    if (isMultiMaster)
        face.SetNamedInstance(options.faceIndex);
    else if (options.faceIndex != 0)
        Reopen(face, options.faceIndex);
    UseFace(face);
}

FontFileTTC::FontFileTTC(const QString& path, const RenderOptions& options)
    : FontFileTTF(path, options), faceCount_(Face().FaceCount())
{
    if (!Face().IsOpen())
        faceCount_ = FreeTypeFace(path, -1, FreeTypeLibrary()).FaceCount();
    // Where the first member is a multi-master face, the index was taken for that of an instance.
    if (options.faceIndex == Face().MemberIndex())
        return;
    FreeTypeFace face = std::exchange(Face(), {});
    Reopen(face, options.faceIndex);
    UseFace(face);
}

QStringList FontFileTTC::FaceNames() const
{
    QStringList names;
    for (int index = 0; index < faceCount_; ++index) {
        const FreeTypeFace face(fileName(), index, FreeTypeLibrary());
        names.append(face.FamilyName() + u' ' + face.StyleName());
    }
    return names;
}

std::unique_ptr<FontFileScalable> MakeScalableFontFile(const QString& path,
                                                       const RenderOptions& options)
{
    if (FileTypeOf(path) == FileType::TrueTypeCollection)
        return std::make_unique<FontFileTTC>(path, options);
    return std::make_unique<FontFileTTF>(path, options);
}

QStringList FaceNames(const QString& path)
{
    if (FileTypeOf(path) == FileType::TrueTypeCollection)
        return FontFileTTC(path, {}).FaceNames();
    const FreeTypeFace face(path, 0, FreeTypeLibrary());
    if (!face.IsOpen())
        return {};
    QStringList names = {face.StyleName()};
    for (const NamedInstance& instance : face.NamedInstances())
        names.append(instance.name);
    return names;
}

} // namespace Glyphor
