#include "render/font_file_scalable.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "app/user_interface.h"
#include "files/file_types.h"
#include "model/encoding.h"
#include "render/face_charmaps.h"
#include "render/font_assembly.h"
#include "render/kerning_index.h"
#include "render/size_search.h"

#include <QMultiHash>

#include <limits>
#include <optional>
#include <utility>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// Pairs are found by codes of 16 bits.
constexpr char32_t LastKernedCode = 0xFFFF;

// Pairs of a font speak of the font's own codes; characters that it can't encode have no pairs.
class PairEncoding
{
public:
    PairEncoding(const GlyphSource& own, const RenderOptions& options)
        : encoding_(options.encoding), isMapped_(!options.map.empty())
    {
        for (const PlannedGlyph& planned : own.Planned()) {
            if (isMapped_ && planned.faceCode <= LastKernedCode)
                codes_.insert(static_cast<quint16>(planned.faceCode), planned.code);
        }
    }

    [[nodiscard]] std::vector<KerningPair> Encoded(const std::vector<KerningPair>& pairs) const
    {
        const Encoding& unicode = EncodingFor(EncodingType::Unicode);
        std::vector<KerningPair> encoded;
        encoded.reserve(pairs.size());
        for (const KerningPair& pair : pairs) {
            if (isMapped_) {
                for (auto code = codes_.constFind(pair.right);
                     code != codes_.constEnd() && code.key() == pair.right; ++code)
                    encoded.push_back({*code, pair.distance});
            } else if (const auto right = unicode.Converted(encoding_, pair.right)) {
                encoded.push_back({*right, pair.distance});
            }
        }
        return encoded;
    }

private:
    EncodingType encoding_;
    bool isMapped_;
    QMultiHash<quint16, quint16> codes_; // of the font, by those of the face
};

// Opens another member of the file. The file is let go of first: it may have been unpacked into
// memory.
void Reopen(FreeTypeFace& face, int index)
{
    const QString path = face.Path();
    face = FreeTypeFace();
    face = FreeTypeFace(path, index, FreeTypeLibrary());
}

// No font needs as many pairs, but a damaged one can claim one for every two characters.
constexpr std::size_t MaxKerningPairs = 1'000'000;

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
    return {AxesOf(face_.Handle()), CharmapNames(face_.Handle()), HasOtherCharmaps(face_.Handle())};
}

int FontFileScalable::EmSize()
{
    SetUp();
    return face_.EmSize();
}

GlyphSource FontFileScalable::PlanOwn() const
{
    GlyphSource source(std::make_shared<FreeTypeFace>(face_), Shown(fileName()));
    if (options_.map.empty())
        source.Plan(options_.encoding, CharacterFilter());
    else
        source.Plan(options_.map, options_.encoding, CharacterFilter());
    return source;
}

GlyphSource FontFileScalable::Source()
{
    SetUp();
    GlyphSource source(std::make_shared<FreeTypeFace>(face_), Shown(fileName()));
    source.PlanGiven(options_.map, options_.encoding, CharacterFilter());
    return source;
}

std::unique_ptr<Font> FontFileScalable::Read()
{
    auto font = std::make_unique<Font>(options_.format, options_.encoding);
    SetUp();
    GlyphSource own = PlanOwn();
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
    const PairEncoding encoding(own, options_);
    std::optional<KerningIndex> kerning;
    if (font.HasKerning())
        kerning.emplace(face_);
    std::size_t pairCount = 0;
    FontAssembly assembly(font, own.Name());
    assembly.AddOwn(std::move(own));
    for (GlyphSource& other : others_)
        assembly.Add(std::move(other));
    others_.clear();
    if (options_.fitsInk)
        assembly.Fit();
    assembly.Render([&](const PlannedGlyph& planned) {
        if (!kerning || pairCount >= MaxKerningPairs || planned.faceCode > LastKernedCode)
            return;
        auto& pairs = font.FindChar(planned.code)->kerning;
        pairs = encoding.Encoded(kerning->PairsOf(static_cast<quint16>(planned.faceCode)));
        pairCount += pairs.size();
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
