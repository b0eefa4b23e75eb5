#include "render/free_type_face.h"

#include "app/engine_texts.h"
#include "app/file_name.h"
#include "app/file_system.h"

#include FT_MULTIPLE_MASTERS_H
#include FT_OUTLINE_H
#include FT_SYNTHESIS_H
#include FT_TRUETYPE_TABLES_H

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace Glyphor {

namespace {

int ClampToInt(qint64 value)
{
    return static_cast<int>(std::clamp<qint64>(value, std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

// FreeType counts in 26.6 pixels; shifting rounds towards minus infinity.
int WholePixels(FT_Pos value)
{
    return ClampToInt(value >> 6);
}

// Only coverages of 8 bits: those of bitmaps that fonts carry are the designer's own.
void ApplyCurve(const std::array<quint8, 256>& curve, RenderedGlyph& glyph)
{
    if (glyph.bitsPerPixel != 8)
        return;
    std::ranges::transform(glyph.pixels, glyph.pixels.begin(),
                           [&curve](quint8 coverage) { return curve[coverage]; });
}

int BitsOf(const FT_Bitmap& bitmap)
{
    switch (bitmap.pixel_mode) {
    case FT_PIXEL_MODE_MONO:
        return 1;
    case FT_PIXEL_MODE_GRAY2:
        return 2;
    case FT_PIXEL_MODE_GRAY4:
        return 4;
    default:
        return 8;
    }
}

const TT_OS2* Os2Table(FT_Face face)
{
    return face != nullptr ? static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2))
                           : nullptr;
}

} // namespace

void CopyRows(const FT_Bitmap& bitmap, std::vector<quint8>& pixels)
{
    pixels.clear();
    if (bitmap.buffer == nullptr)
        return;
    const auto pitch = static_cast<std::size_t>(std::abs(bitmap.pitch));
    pixels.assign(bitmap.buffer, bitmap.buffer + pitch * bitmap.rows);
    // A negative pitch means that the last row stands first.
    for (std::size_t y = 0; bitmap.pitch < 0 && y < bitmap.rows / 2; ++y) {
        const auto row = pixels.begin() + std::ptrdiff_t(y * pitch);
        std::swap_ranges(row, row + std::ptrdiff_t(pitch),
                         pixels.end() - std::ptrdiff_t((y + 1) * pitch));
    }
}

FreeTypeFace::FreeTypeFace(const QString& path, FT_Long faceIndex, FontLibrary& library)
    : path_(path)
{
    Open(faceIndex, library);
}

void FreeTypeFace::Open(FT_Long faceIndex, FontLibrary& library)
{
    library.AllowFile(SizeOfFile(path_));
    FT_Face face = nullptr;
    openError_ = FT_New_Face(library.Get(), BytesOf(path_).constData(), faceIndex, &face);
    if (openError_ == 0)
        face_.reset(face, FT_Done_Face);
}

QString FreeTypeFace::OpenFault() const
{
    switch (FT_ERROR_BASE(openError_)) {
    case FT_Err_Ok:
        return {};
    case FT_Err_Cannot_Open_Resource:
        return Engine::tr("It could not be opened.");
    case FT_Err_Unknown_File_Format:
        return Engine::tr("It is not a font file.");
    case FT_Err_Out_Of_Memory:
        return Engine::tr("It claims more memory than a font of its size needs.");
    default:
        return Engine::tr("Its contents are damaged (FreeType error %1).").arg(openError_);
    }
}

int FreeTypeFace::MemberIndex() const
{
    return IsOpen() ? static_cast<int>(face_->face_index & 0xFFFF) : -1;
}

QString FreeTypeFace::FamilyName() const
{
    return IsOpen() ? QString::fromUtf8(face_->family_name) : QString();
}

QString FreeTypeFace::StyleName() const
{
    return IsOpen() ? QString::fromUtf8(face_->style_name) : QString();
}

int FreeTypeFace::SizeMetric(FT_Pos FT_Size_Metrics::*metric) const
{
    return IsOpen() ? WholePixels(face_->size->metrics.*metric) : 0;
}

int FreeTypeFace::EmSize() const
{
    return IsOpen() && face_->size != nullptr ? face_->size->metrics.y_ppem : 0;
}

double FreeTypeFace::GlyphExtent(FT_UInt index) const
{
    if (!IsOpen() || face_->units_per_EM == 0 ||
        FT_Load_Glyph(Handle(), index, FT_LOAD_NO_SCALE) != 0)
        return 0;
    const FT_Glyph_Metrics& metrics = face_->glyph->metrics;
    const bool hasInk = metrics.width > 0 && metrics.height > 0;
    const FT_Pos extent = std::max({metrics.width, metrics.height, metrics.horiAdvance});
    return hasInk ? double(extent) / face_->units_per_EM : 0;
}

QList<int> FreeTypeFace::StrikeHeights() const
{
    QList<int> heights;
    for (int index = 0; IsOpen() && index < face_->num_fixed_sizes; ++index)
        heights.append(face_->available_sizes[index].height);
    return heights;
}

int FreeTypeFace::GlyphHeight(quint16 code) const
{
    return LoadGlyph(code, FT_LOAD_DEFAULT) ? WholePixels(face_->glyph->metrics.height) : 0;
}

QStringList FreeTypeFace::NamedInstanceNames() const
{
    QStringList names;
    for (const NamedInstance& instance : NamedInstances()) {
        if (!instance.name.isEmpty())
            names.append(instance.name);
    }
    return names;
}

void FreeTypeFace::SetNamedInstance(int index)
{
    if (IsMultiMaster() && index >= 0 && index <= NamedInstanceCount())
        FT_Set_Named_Instance(Handle(), static_cast<FT_UInt>(index));
}

FaceStyle FreeTypeFace::Style() const
{
    FaceStyle style;
    if (IsMultiMaster()) {
        style.weight = InstanceWeightOf(Handle(), (face_->face_index >> 16) - 1);
        return style;
    }
    if (const TT_OS2* const os2 = Os2Table(Handle())) {
        constexpr int italicOrOblique = 0x201;
        style.weight = os2->usWeightClass;
        style.width = os2->usWidthClass;
        style.italic = (os2->fsSelection & italicOrOblique) != 0;
    }
    return style;
}

QList<quint32> FreeTypeFace::UnicodeRanges() const
{
    const TT_OS2* const os2 = Os2Table(Handle());
    if (os2 == nullptr)
        return {};
    QList<quint32> ranges;
    for (const FT_ULong range :
         {os2->ulUnicodeRange1, os2->ulUnicodeRange2, os2->ulUnicodeRange3, os2->ulUnicodeRange4})
        ranges.append(static_cast<quint32>(range));
    return ranges;
}

void FreeTypeFace::SetPixelSize(int height, bool useStrikes)
{
    const qsizetype strike = useStrikes ? StrikeHeights().indexOf(height) : -1;
    if (strike >= 0)
        SetSize({FaceSize::Kind::Strike, FT_Long(strike)});
    else
        SetSize({FaceSize::Kind::Box, FT_Long(height) * 64});
}

void FreeTypeFace::SetSize(const FaceSize& size)
{
    size_ = size;
    if (!IsOpen() || size.kind == FaceSize::Kind::None)
        return;
    if (size.kind == FaceSize::Kind::Strike) {
        FT_Select_Size(Handle(), static_cast<FT_Int>(size.value));
        return;
    }
    FT_Size_RequestRec request{};
    request.type =
        size.kind == FaceSize::Kind::Box ? FT_SIZE_REQUEST_TYPE_BBOX : FT_SIZE_REQUEST_TYPE_NOMINAL;
    request.height = size.value;
    FT_Request_Size(Handle(), &request);
}

void FreeTypeFace::MoveTo(const std::vector<AxisPosition>& positions)
{
    MoveAlongAxes(Handle(), positions);
    isMoved_ = isMoved_ || !positions.empty();
}

void FreeTypeFace::SetGamma(double gamma)
{
    coverages_.reset();
    if (gamma == 1)
        return;
    std::array<quint8, 256> curve{};
    for (std::size_t coverage = 0; coverage < curve.size(); ++coverage)
        curve[coverage] =
            static_cast<quint8>(std::lround(255 * std::pow(double(coverage) / 255, 1 / gamma)));
    coverages_ = std::make_shared<const std::array<quint8, 256>>(curve);
}

FT_UInt FreeTypeFace::GlyphIndex(char32_t code) const
{
    if (!IsOpen())
        return 0;
    return face_->charmap != nullptr ? FT_Get_Char_Index(Handle(), code) : code;
}

QByteArray FreeTypeFace::GlyphName(FT_UInt index) const
{
    constexpr FT_UInt longest = 128;
    std::array<char, longest> name{};
    const bool hasName = IsOpen() && FT_HAS_GLYPH_NAMES(face_.get()) &&
                         FT_Get_Glyph_Name(Handle(), index, name.data(), longest) == 0;
    return hasName ? QByteArray(name.data()) : QByteArray();
}

// The settings are kept without the handle, which belongs to one thread.
std::function<FreeTypeFace(FontLibrary&)> FreeTypeFace::Opener() const
{
    FreeTypeFace settings = *this;
    settings.face_.reset();
    const FT_Long index = IsOpen() ? face_->face_index : 0;
    const FT_Int charmap =
        IsOpen() && face_->charmap != nullptr ? FT_Get_Charmap_Index(face_->charmap) : -1;
    const std::vector<FT_Fixed> places =
        isMoved_ ? PlacesOnAxes(Handle()) : std::vector<FT_Fixed>();
    return [=](FontLibrary& library) {
        FreeTypeFace face = settings;
        face.Open(index, library);
        if (!face.IsOpen())
            return face;
        if (charmap >= 0 && charmap < face.face_->num_charmaps)
            FT_Set_Charmap(face.Handle(), face.face_->charmaps[charmap]);
        SetPlacesOnAxes(face.Handle(), places);
        face.SetSize(face.size_);
        return face;
    };
}

FT_Int32 FreeTypeFace::LoadFlags() const
{
    const FT_Int32 flags = monochrome_ ? FT_LOAD_MONOCHROME : FT_LOAD_DEFAULT;
    switch (hinting_) {
    case Hinting::Mono:
        return flags | FT_LOAD_TARGET_MONO;
    case Hinting::Light:
        return flags | FT_LOAD_TARGET_LIGHT;
    case Hinting::Auto:
        return flags | FT_LOAD_FORCE_AUTOHINT;
    case Hinting::None:
        return flags | FT_LOAD_NO_HINTING;
    default:
        return flags;
    }
}

bool FreeTypeFace::LoadGlyph(quint16 code, FT_Int32 loadFlags) const
{
    const FT_UInt index = GlyphIndex(code);
    return index != 0 && FT_Load_Glyph(Handle(), index, loadFlags) == 0;
}

bool FreeTypeFace::LoadWithEffects(FT_UInt index) const
{
    if (index == 0 || FT_Load_Glyph(Handle(), index, LoadFlags()) != 0)
        return false;
    if ((effects_ & BoldEffect) != 0)
        FT_GlyphSlot_Embolden(face_->glyph);
    if ((effects_ & ItalicEffect) != 0)
        FT_GlyphSlot_Oblique(face_->glyph);
    return true;
}

bool FreeTypeFace::LoadOutline(FT_UInt index) const
{
    return IsOpen() && LoadWithEffects(index) && face_->glyph->format == FT_GLYPH_FORMAT_OUTLINE;
}

bool FreeTypeFace::RenderIndex(FT_UInt index, RenderedGlyph& glyph) const
{
    if (!LoadWithEffects(index))
        return false;
    if (ExceedsLargestBitmap(glyph))
        return true;
    if (FT_Render_Glyph(face_->glyph, monochrome_ ? FT_RENDER_MODE_MONO : FT_RENDER_MODE_NORMAL) !=
        0)
        return false;
    FillGlyph(glyph);
    return true;
}

void FreeTypeFace::SetLargestBitmap(int width, int rows)
{
    largestWidth_ = width;
    largestRows_ = rows;
}

// The box of the outline is that of its bitmap, but for a pixel of rounding at each side.
bool FreeTypeFace::ExceedsLargestBitmap(RenderedGlyph& glyph) const
{
    const FT_GlyphSlot slot = face_->glyph;
    if (slot->format != FT_GLYPH_FORMAT_OUTLINE)
        return false;
    FT_BBox box{};
    FT_Outline_Get_CBox(&slot->outline, &box);
    constexpr qint64 rounding = 2;
    const int left = WholePixels(box.xMin);
    const int top = WholePixels(box.yMax);
    const qint64 width = qint64(WholePixels(box.xMax)) - left;
    const qint64 rows = qint64(top) - WholePixels(box.yMin);
    if (width <= largestWidth_ + rounding && rows <= largestRows_ + rounding)
        return false;
    glyph = {};
    glyph.xPos = left;
    glyph.yPos = ClampToInt(qint64(Ascent()) - top);
    glyph.cursorDistance = Advance();
    glyph.width = ClampToInt(width);
    glyph.rows = ClampToInt(rows);
    return true;
}

// FreeType rounds the advances of glyphs that it hints.
int FreeTypeFace::Advance() const
{
    const FT_Pos rounding = hinting_ == Hinting::None ? 32 : 0;
    return WholePixels(face_->glyph->advance.x + rounding);
}

void FreeTypeFace::FillGlyph(RenderedGlyph& glyph) const
{
    const FT_GlyphSlot slot = face_->glyph;
    const FT_Bitmap& bitmap = slot->bitmap;
    glyph.xPos = slot->bitmap_left;
    glyph.yPos = ClampToInt(qint64(Ascent()) - slot->bitmap_top);
    glyph.cursorDistance = Advance();
    glyph.width = static_cast<qint32>(bitmap.width);
    glyph.rows = static_cast<qint32>(bitmap.rows);
    glyph.pitch = std::abs(bitmap.pitch);
    glyph.bitsPerPixel = BitsOf(bitmap);
    CopyRows(bitmap, glyph.pixels);
    if (coverages_ != nullptr)
        ApplyCurve(*coverages_, glyph);
    glyph.size = static_cast<qint32>(glyph.pixels.size());
}

int FreeTypeFace::Kerning(quint16 left, quint16 right) const
{
    return HasKerning()
               ? GlyphKerning(FT_Get_Char_Index(Handle(), left), FT_Get_Char_Index(Handle(), right))
               : 0;
}

int FreeTypeFace::GlyphKerning(FT_UInt left, FT_UInt right) const
{
    FT_Vector distance{};
    const FT_Error error = FT_Get_Kerning(Handle(), left, right, FT_KERNING_DEFAULT, &distance);
    return error == 0 ? WholePixels(distance.x) : 0;
}

std::vector<KerningPair> FreeTypeFace::KerningPairs(quint16 left) const
{
    std::vector<KerningPair> pairs;
    if (!HasKerning())
        return pairs;
    WalkCharmap([&](quint16 right, FT_UInt) {
        if (const int distance = Kerning(left, right); distance != 0)
            pairs.push_back({right, distance});
        return true;
    });
    return pairs;
}

} // namespace Glyphor
