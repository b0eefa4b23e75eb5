#pragma once

#include "model/font.h"
#include "model/rendered_glyph.h"
#include "render/face_variations.h"
#include "render/free_type_library.h"
#include "render/render_options.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

namespace Glyphor {

// How heavy and wide a face is, in the units of the OS/2 table, and whether it slants.
struct FaceStyle
{
    quint32 weight = 0;
    quint32 width = 5;
    bool italic = false;

    bool operator==(const FaceStyle&) const = default;
};

struct NamedInstance
{
    QString name; // empty where it can't be read
    FaceStyle style;
};

// What a face's size was set to.
struct FaceSize
{
    enum class Kind { None, Strike, Box, Em };

    Kind kind = Kind::None;
    FT_Long value = 0; // the index of the strike, else 64ths of a pixel
};

// The rows of a bitmap from the top, whichever way FreeType stores them.
void CopyRows(const FT_Bitmap& bitmap, std::vector<quint8>& pixels);

// A handle to an open FreeType face. Copies share the face. Without a face every query answers 0,
// nothing or false.
class FreeTypeFace
{
public:
    FreeTypeFace() = default;

    // Opens the face; on failure the handle stays empty and OpenFault() tells why.
    FreeTypeFace(const QString& path, FT_Long faceIndex, FontLibrary& library);
    virtual ~FreeTypeFace() = default;

    // Opens the same face, set up alike, on another library. Any thread may call what is returned.
    [[nodiscard]] std::function<FreeTypeFace(FontLibrary&)> Opener() const;

    // The baseline, in pixels from the top of the font.
    [[nodiscard]] virtual int Ascent() const { return SizeMetric(&FT_Size_Metrics::ascender); }

    [[nodiscard]] bool IsOpen() const { return face_ != nullptr; }
    [[nodiscard]] const QString& Path() const { return path_; }
    [[nodiscard]] QString OpenFault() const;

    [[nodiscard]] int FaceCount() const { return IsOpen() ? int(face_->num_faces) : 0; }

    // Which face of its file this is, whatever named instance was chosen; -1 without a face.
    [[nodiscard]] int MemberIndex() const;
    [[nodiscard]] int GlyphCount() const { return IsOpen() ? int(face_->num_glyphs) : 0; }
    [[nodiscard]] bool HasKerning() const { return IsOpen() && FT_HAS_KERNING(face_); }
    [[nodiscard]] QString FamilyName() const;
    [[nodiscard]] QString StyleName() const;
    [[nodiscard]] int LineHeight() const { return SizeMetric(&FT_Size_Metrics::height); }
    [[nodiscard]] int MaxAdvance() const { return SizeMetric(&FT_Size_Metrics::max_advance); }

    // In pixels, at the current size.
    [[nodiscard]] int EmSize() const;

    // The larger one of a glyph's sides, or its advance where that is larger still, as a fraction
    // of the em; 0 for a glyph without ink.
    [[nodiscard]] double GlyphExtent(FT_UInt index) const;
    [[nodiscard]] FaceStyle Style() const;

    // The heights in pixels of the bitmaps that the face carries.
    [[nodiscard]] QList<int> StrikeHeights() const;

    // False for a face that has only bitmaps.
    [[nodiscard]] bool HasOutlines() const { return IsOpen() && FT_IS_SCALABLE(face_); }

    // The height of the glyph's box at the current size; 0 where it can't be loaded.
    [[nodiscard]] int GlyphHeight(quint16 code) const;

    [[nodiscard]] bool IsMultiMaster() const { return HasVariations(Handle()); }
    [[nodiscard]] QStringList NamedInstanceNames() const;

    // All of them, the first one with the index 1. Cheaper than asking one by one.
    [[nodiscard]] std::vector<NamedInstance> NamedInstances() const
    {
        return NamedInstancesOf(Handle());
    }

    // How many named instances there are, whether or not their names can be read.
    [[nodiscard]] int NamedInstanceCount() const { return NamedInstanceCountOf(Handle()); }

    // 0 is the default instance, 1 the first named one; other indices do nothing.
    void SetNamedInstance(int index);

    // Throws a CriticalException for a position that the face does not have.
    void MoveTo(const std::vector<AxisPosition>& positions);

    void SetEffects(quint32 effects) { effects_ = effects; }
    void SetMonochrome(bool monochrome) { monochrome_ = monochrome; }
    void SetHinting(Hinting hinting) { hinting_ = hinting; }

    // Coverage c from 0 to 1 becomes c to the power of 1/gamma.
    void SetGamma(double gamma);

    // Outlines that need a larger bitmap, in pixels, are not rendered: they give the metrics of
    // that bitmap, and no pixels.
    void SetLargestBitmap(int width, int rows);

    // Selects an embedded strike of just this height where strikes may be used, or scales the face
    // so that its bounding box has the height.
    void SetPixelSize(int height, bool useStrikes = true);

    // Scales the em, or the box of the face, to so many 64ths of a pixel.
    void SetSize(const FaceSize& size);

    bool LoadGlyph(quint16 code, FT_Int32 loadFlags) const;

    // Loads, emboldens, slants and renders the glyph. The record keeps its buffer from call to
    // call.
    bool RenderGlyph(quint16 code, RenderedGlyph& glyph) const
    {
        return RenderIndex(GlyphIndex(code), glyph);
    }

    // The same for a glyph whose index is known; 0 fails.
    bool RenderIndex(FT_UInt index, RenderedGlyph& glyph) const;

    // Loads, emboldens and slants the outline of a glyph into the slot of the face; false for a
    // bitmap, and as above.
    bool LoadOutline(FT_UInt index) const;

    // By how many whole pixels a pair stands closer (negative) or further apart.
    [[nodiscard]] int Kerning(quint16 left, quint16 right) const;

    // The same for the glyphs of an open face.
    [[nodiscard]] int GlyphKerning(FT_UInt left, FT_UInt right) const;

    // The pairs of one character, found by asking for every character of the charmap.
    [[nodiscard]] std::vector<KerningPair> KerningPairs(quint16 left) const;

    // 0 where the face has no such character; without a charmap the code is the index.
    [[nodiscard]] FT_UInt GlyphIndex(char32_t code) const;

    // Empty where the face has no names.
    [[nodiscard]] QByteArray GlyphName(FT_UInt index) const;

    // Calls visit(code, glyph) for the characters of the charmap, in its order, until it returns
    // false. The code is the low 16 bits of the charmap's, so one can come up more than once; the
    // glyph is that of these 16 bits.
    template <typename Visit>
    void WalkCharmap(Visit visit) const;

    // The same with the whole code of each.
    template <typename Visit>
    void WalkAllCodes(Visit visit) const;

    // The four words of the OS/2 table; nothing where the face has none.
    [[nodiscard]] QList<quint32> UnicodeRanges() const;

    [[nodiscard]] FT_Face Handle() const { return face_.get(); }

private:
    static constexpr int AnySize = std::numeric_limits<int>::max();

    void Open(FT_Long faceIndex, FontLibrary& library);
    [[nodiscard]] FT_Int32 LoadFlags() const;
    bool LoadWithEffects(FT_UInt index) const;
    [[nodiscard]] int Advance() const;
    [[nodiscard]] int SizeMetric(FT_Pos FT_Size_Metrics::*metric) const;
    [[nodiscard]] bool ExceedsLargestBitmap(RenderedGlyph& glyph) const;
    void FillGlyph(RenderedGlyph& glyph) const;

    std::shared_ptr<FT_FaceRec> face_;
    QString path_;
    quint32 effects_ = 0;
    bool monochrome_ = false;
    Hinting hinting_ = Hinting::Default;
    std::shared_ptr<const std::array<quint8, 256>> coverages_; // null where they stay
    FaceSize size_;
    bool isMoved_ = false; // along its axes
    int largestWidth_ = AnySize;
    int largestRows_ = AnySize;
    FT_Error openError_ = 0;
};

template <typename Visit>
void FreeTypeFace::WalkAllCodes(Visit visit) const
{
    // Damaged tables claim billions of codes behind the last one there is.
    constexpr FT_ULong lastCharacter = 0x10FFFF;
    FT_UInt glyph = 0;
    if (!IsOpen())
        return;
    for (FT_ULong code = FT_Get_First_Char(Handle(), &glyph); glyph != 0 && code <= lastCharacter;
         code = FT_Get_Next_Char(Handle(), code, &glyph)) {
        if (!visit(static_cast<char32_t>(code), glyph))
            return;
    }
}

template <typename Visit>
void FreeTypeFace::WalkCharmap(Visit visit) const
{
    WalkAllCodes([&](char32_t code, FT_UInt glyph) {
        const auto code16 = static_cast<quint16>(code);
        return visit(code16, code16 == code ? glyph : FT_Get_Char_Index(Handle(), code16));
    });
}

} // namespace Glyphor
