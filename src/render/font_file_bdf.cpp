#include "render/font_file_bdf.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/progress.h"
#include "app/shown_text.h"
#include "render/font_assembly.h"

#include FT_BDF_H
#include FT_FONT_FORMATS_H

#include <algorithm>
#include <cstring>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// The suffix alone says that a file is of this kind; FreeType opens any.
bool IsBdf(const FreeTypeFace& face)
{
    const char* const format = face.IsOpen() ? FT_Get_Font_Format(face.Handle()) : nullptr;
    return format != nullptr && std::strcmp(format, "BDF") == 0;
}

} // namespace

int FreeTypeFace_BDF::Ascent() const
{
    BDF_PropertyRec property{};
    const bool isInteger = IsOpen() &&
                           FT_Get_BDF_Property(Handle(), "FONT_ASCENT", &property) == 0 &&
                           property.type == BDF_PROPERTY_TYPE_INTEGER;
    return isInteger ? property.u.integer : -1;
}

// Some releases of FreeType know it before a glyph is loaded, others only from then on.
int FreeTypeFace_BDF::VerticalAdvance() const
{
    const FT_Pos& advance = Handle()->glyph->metrics.vertAdvance;
    if (advance == 0)
        (void)FT_Load_Glyph(Handle(), 0, FT_LOAD_DEFAULT);
    return static_cast<int>(advance >> 6);
}

FontFileBDF::FontFileBDF(const QString& path, const CharacterMap& map)
    : FontFileFT(path), face_(path, 0, FreeTypeLibrary()), map_(map)
{
    if (!IsBdf(face_))
        return;
    if (face_.Handle()->num_charmaps > 0)
        FT_Set_Charmap(face_.Handle(), face_.Handle()->charmaps[0]);
    face_.SetMonochrome(true);
}

void FontFileBDF::Check() const
{
    if (!IsBdf(face_))
        throw CriticalException(Engine::tr("Error reading file"),
                                Engine::tr("BDF font file could not be read!"));
}

std::shared_ptr<FreeTypeFace> FontFileBDF::SourceFace() const
{
    Check();
    return std::make_shared<FreeTypeFace_BDF>(face_);
}

std::unique_ptr<Font> FontFileBDF::Read()
{
    Check();
    auto font = std::make_unique<Font>(FontFormat::Standard, EncodingType::Unicode);
    font->SetName(u"%1 %2"_s.arg(face_.FamilyName(), face_.StyleName()));
    font->SetHeight(static_cast<quint8>(face_.VerticalAdvance()));
    font->SetBaseline(static_cast<quint8>(face_.Ascent()));
    MeasureReferenceHeights(face_, *font);
    if (map_.empty())
        RenderCodes(*font);
    else
        RenderMapped(*font);
    return font;
}

void FontFileBDF::RenderMapped(Font& font)
{
    GlyphSource source(SourceFace(), Shown(fileName()));
    source.Plan(map_, EncodingType::Unicode, std::nullopt);
    TellOfCodes(source, false);
    FontAssembly assembly(font, source.Name(), 1);
    assembly.AddOwn(std::move(source));
    assembly.Render([&font](const PlannedGlyph& planned) {
        const quint8 width = font.FindChar(planned.code)->info.width;
        font.SetMaxWidth(std::max(font.Metrics().maxWidth, width));
    });
}

void FontFileBDF::RenderCodes(Font& font)
{
    Progress progress(Engine::tr("Loading font..."), CodeSet::Limit - 1);
    RenderedGlyph glyph;
    GlyphCollector collector(font);
    quint8 maxWidth = 0;
    for (int index = 0; index < CodeSet::Limit; ++index) {
        progress.SetValue(index);
        const auto code = static_cast<quint16>(index);
        if (face_.RenderGlyph(code, glyph) && collector.Add(code, glyph))
            maxWidth = std::max(maxWidth, font.FindChar(code)->info.width);
    }
    font.SetMaxWidth(maxWidth);
    collector.Warn();
}

} // namespace Glyphor
