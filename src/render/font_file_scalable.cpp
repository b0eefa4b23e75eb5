#include "render/font_file_scalable.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "app/user_interface.h"
#include "files/file_types.h"
#include "render/face_charmaps.h"
#include "render/font_assembly.h"
#include "render/font_kerning.h"
#include "render/glyph_outlines.h"
#include "render/glyph_substitution.h"
#include "render/kerning_index.h"
#include "render/size_search.h"

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

void FontFileScalable::SetUp()
{
    face_.SetMonochrome(BitsPerPixel(options_.format) == 1);
    // Legacy characters are cut to the font's height, whatever that of the glyph.
    face_.SetLargestBitmap(CharInfo::MaxSize, IsLegacyFormat(options_.format)
                                                  ? std::numeric_limits<int>::max() / 2
                                                  : CharInfo::MaxSize);
    face_.SetEffects(options_.effects);
    face_.SetHinting(options_.hinting);
    face_.SetGamma(options_.gamma);
    if (!face_.IsOpen())
        return;
    face_.MoveTo(options_.axes);
    SelectCharmap(face_.Handle(), options_.charmapIndex);
    SetFaceSize(face_, options_);
}

FaceTraits FontFileScalable::Traits() const
{
    if (!face_.IsOpen())
        return {};
    CodeSet codes;
    face_.WalkAllCodes([&codes](char32_t code, FT_UInt) {
        if (code < CodeSet::Limit)
            codes.Set(quint16(code), true);
        return true;
    });
    return {AxesOf(face_.Handle()), CharmapNames(face_.Handle()), HasOtherCharmaps(face_.Handle()),
            codes};
}

int FontFileScalable::EmSize()
{
    SetUp();
    return face_.EmSize();
}

GlyphSource FontFileScalable::PlanOwn(bool warnsOfUnused) const
{
    GlyphSource source(std::make_shared<FreeTypeFace>(face_), Shown(fileName()));
    if (options_.map.empty())
        source.Plan(options_.encoding, CharacterFilter());
    else
        source.Plan(options_.map, options_.encoding, CharacterFilter());
    if (!options_.features.empty()) {
        GlyphSubstitution substitution(face_, options_.features);
        source.ReplaceGlyphs([&](FT_UInt glyph) { return substitution.Replacement(glyph); });
        if (warnsOfUnused)
            substitution.WarnOfUnused();
    }
    return source;
}

GlyphSource FontFileScalable::Source()
{
    SetUp();
    GlyphSource source(std::make_shared<FreeTypeFace>(face_), Shown(fileName()));
    source.PlanGiven(options_.map, options_.encoding, CharacterFilter());
    return source;
}

std::unique_ptr<GlyphOutlines> FontFileScalable::Outlines()
{
    SetUp();
    return std::make_unique<GlyphOutlines>(PlanOwn(false));
}

std::unique_ptr<Font> FontFileScalable::Read()
{
    auto font = std::make_unique<Font>(options_.format, options_.encoding);
    SetUp();
    GlyphSource own = PlanOwn(true);
    RefuseUselessHeight(own);
    font->SetName(FontName());
    SetMetrics(*font);
    if (font->Metrics().height == 0)
        WarnOfMissingSize();
    if (face_.GlyphCount() == 0 || font->Metrics().height == 0)
        return font;
    TellOfCodes(own, options_.map.empty() && !CharacterFilter());
    font->SetHasKerning(face_.HasKerning());
    RenderAll(*font, std::move(own));
    return font;
}

// A height at which every character is left out only takes time.
void FontFileScalable::RefuseUselessHeight(const GlyphSource& own) const
{
    constexpr double largestSide = 255.5; // with rounding
    constexpr int ordinaryEm = 4 * 255;
    const int em = face_.EmSize();
    if (em <= ordinaryEm || !face_.HasOutlines())
        return;
    double largestEm = 0;
    for (const PlannedGlyph& planned : own.Planned()) {
        const double extent = face_.GlyphExtent(planned.glyph);
        if (extent > 0)
            largestEm = std::max(largestEm, largestSide / extent);
        if (largestEm >= em)
            return;
    }
    if (largestEm > 0)
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
    if (!options_.axes.empty())
        effects.append(TextOf(options_.axes));
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

void FontFileScalable::RenderAll(Font& font, GlyphSource own)
{
    const CodesInFont codes(own, options_);
    std::optional<KerningIndex> kerning;
    if (font.HasKerning())
        kerning.emplace(face_);
    FontAssembly assembly(font, own.Name(), options_.threads);
    assembly.AddOwn(std::move(own));
    for (GlyphSource& other : others_)
        assembly.Add(std::move(other));
    others_.clear();
    for (PictureGlyph& picture : pictures_)
        assembly.Add(std::move(picture));
    pictures_.clear();
    if (options_.fitsInk)
        assembly.Fit();
    std::size_t pairCount = 0;
    std::vector<ShownGlyph> shown; // each code once
    CodeSet isShown;
    assembly.Render([&](const PlannedGlyph& planned) {
        if (planned.faceCode > CodesInFont::LastFaceCode)
            return;
        const auto faceCode = static_cast<quint16>(planned.faceCode);
        if (kerning && pairCount < MaxKerningPairs) {
            auto& pairs = font.FindChar(planned.code)->kerning;
            pairs = codes.Encoded(kerning->PairsOf(faceCode));
            pairCount += pairs.size();
        }
        if (!isShown.Test(faceCode))
            shown.push_back({faceCode, planned.glyph});
        isShown.Set(faceCode, true);
    });
    if (pairCount >= MaxKerningPairs)
        WarnOfTooManyPairs();
    if (options_.findsLayoutKerning && MayHaveLayoutKerning(face_))
        AddLayoutKerning(font, face_, shown, codes);
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

FaceTraits TraitsOf(const QString& path, int faceIndex)
{
    RenderOptions options;
    options.faceIndex = faceIndex;
    return MakeScalableFontFile(path, options)->Traits();
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
