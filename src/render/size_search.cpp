#include "render/size_search.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "model/glyph_conversion.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr FT_Long One = 64; // pixel

[[noreturn]] void RefuseSize(const QString& text)
{
    throw CriticalException(Engine::tr("Font creation failed!"), text);
}

// Tries sizes of a face and tells how high what was asked for comes out.
class SizeSearch
{
public:
    SizeSearch(FreeTypeFace& face, const RenderOptions& options)
        : face_(face), options_(options), letter_(LetterOf(options.heightUnit))
    {
        if (letter_ != 0 && face_.GlyphIndex(letter_) == 0)
            RefuseSize(Engine::tr("A height of %1 needs the letter %2, which the face does not "
                                  "have. Give another height, e.g. em:16px.")
                           .arg(Asked(), QChar(letter_)));
    }

    void Run()
    {
        const auto found = face_.HasOutlines() ? FindEm() : FindStrike();
        if (!found)
            RefuseSize(Refusal());
        face_.SetSize(*found);
    }

private:
    static char16_t LetterOf(HeightUnit unit)
    {
        return unit == HeightUnit::Capital ? u'H' : unit == HeightUnit::LowercaseX ? u'x' : u'\0';
    }

    [[nodiscard]] QString Asked() const
    {
        const QString unit = options_.heightUnit == HeightUnit::Capital      ? u"cap"_s
                             : options_.heightUnit == HeightUnit::LowercaseX ? u"x"_s
                                                                             : u"line"_s;
        return u"%1:%2px"_s.arg(unit).arg(options_.height);
    }

    // True where the size gives the height.
    bool Try(const FaceSize& size)
    {
        face_.SetSize(size);
        const int height = Height();
        if (height > 0)
            heights_.try_emplace(height, size);
        return height == options_.height;
    }

    [[nodiscard]] int Height()
    {
        if (letter_ == 0)
            return face_.LineHeight();
        return face_.RenderIndex(face_.GlyphIndex(letter_), glyph_)
                   ? InkOf(glyph_, BitsPerPixel(options_.format)).Rows()
                   : 0;
    }

    // Where the outline itself has the height, in 64ths of a pixel; 0 where it has none.
    [[nodiscard]] double IdealEm() const
    {
        const FT_Face face = face_.Handle();
        FT_Pos units = face->height;
        if (letter_ != 0)
            units = FT_Load_Glyph(face, face_.GlyphIndex(letter_), FT_LOAD_NO_SCALE) == 0
                        ? face->glyph->metrics.height
                        : 0;
        return units > 0 ? double(options_.height) * One * face->units_per_EM / double(units) : 0;
    }

    // Whole pixels first, since faces are made for them; then sizes between them. The nearest to
    // where the outline has the height comes first.
    std::optional<FaceSize> FindEm()
    {
        constexpr FT_Long fineStep = 8;
        constexpr FT_Long largestEm = FT_Long(0xFFFF) * One;
        const double ideal = IdealEm();
        if (ideal < 1 || ideal > double(largestEm))
            return std::nullopt;
        const double reach = 1.1 * ideal / options_.height + One / 2.0; // a row more or less
        for (const FT_Long step : {One, fineStep}) {
            const FT_Long nearest = std::lround(ideal / double(step)) * step;
            const FT_Long end = std::lround(reach / double(step)) * step;
            for (FT_Long offset = 0; offset <= end; offset += step) {
                for (const FT_Long em : {nearest - offset, nearest + offset}) {
                    const FaceSize size{FaceSize::Kind::Em, em};
                    if (em > 0 && (offset > 0 || em == nearest) && Try(size))
                        return size;
                }
            }
        }
        return std::nullopt;
    }

    std::optional<FaceSize> FindStrike()
    {
        const auto count = face_.StrikeHeights().size();
        for (qsizetype index = 0; index < count; ++index) {
            const FaceSize size{FaceSize::Kind::Strike, FT_Long(index)};
            if (Try(size))
                return size;
        }
        return std::nullopt;
    }

    [[nodiscard]] QString Refusal() const
    {
        const auto above = heights_.upper_bound(options_.height);
        QStringList nearest;
        if (above != heights_.begin())
            nearest.append(QString::number(std::prev(above)->first));
        if (above != heights_.end())
            nearest.append(QString::number(above->first));
        const QString text = Engine::tr("No size of the face gives the height %1.").arg(Asked());
        return nearest.isEmpty() ? text
                                 : text + u' ' +
                                       Engine::tr("The nearest that can be had: %1 px.")
                                           .arg(nearest.join(u", "_s));
    }

    FreeTypeFace& face_;
    const RenderOptions& options_;
    char16_t letter_;                 // that is measured; none for the line
    std::map<int, FaceSize> heights_; // that came out
    RenderedGlyph glyph_;
};

} // namespace

void SetFaceSize(FreeTypeFace& face, const RenderOptions& options)
{
    if (!face.IsOpen())
        return;
    switch (options.heightUnit) {
    case HeightUnit::Box:
        face.SetPixelSize(options.height, options.useStrikes);
        break;
    case HeightUnit::Em:
        face.SetSize({FaceSize::Kind::Em, FT_Long(options.height) * One + options.sixtyFourths});
        break;
    default:
        SizeSearch(face, options).Run();
        break;
    }
}

} // namespace Glyphor
