#include "render/layout_face.h"

#include "render/sfnt_table.h"

#include FT_MULTIPLE_MASTERS_H

#include <algorithm>
#include <array>

namespace Glyphor {

// The tables of other ways to lay glyphs out are none of HarfBuzz's business here.
hb_blob_t* LayoutFace::ReadTable(hb_face_t*, hb_tag_t tag, void* layoutFace) noexcept
{
    const LayoutFace& self = *static_cast<const LayoutFace*>(layoutFace);
    const std::array known = {self.table_, HB_OT_TAG_GDEF, HB_TAG('f', 'v', 'a', 'r'),
                              HB_TAG('a', 'v', 'a', 'r')};
    auto table = std::make_unique<std::vector<quint8>>();
    if (std::ranges::find(known, tag) != known.end())
        *table = SfntTable(self.face_.Handle(), tag);
    if (table->empty())
        return self.harfBuzz_.hb_blob_get_empty();
    const auto* const bytes = reinterpret_cast<const char*>(table->data());
    const auto size = static_cast<unsigned>(table->size());
    return self.harfBuzz_.hb_blob_create(
        bytes, size, HB_MEMORY_MODE_WRITABLE, table.release(),
        [](void* owned) { delete static_cast<std::vector<quint8>*>(owned); });
}

LayoutFace::LayoutFace(const FreeTypeFace& face, hb_tag_t table, const HarfBuzz& harfBuzz)
    : face_(face),
      table_(table),
      bytes_(SfntTable(face.Handle(), table)),
      harfBuzz_(harfBuzz),
      hbFace_(harfBuzz.hb_face_create_for_tables(ReadTable, this, nullptr),
              harfBuzz.hb_face_destroy),
      hbFont_(nullptr, harfBuzz.hb_font_destroy)
{
    harfBuzz.hb_face_set_upem(Face(), face.Handle()->units_per_EM);
    harfBuzz.hb_face_set_glyph_count(Face(), static_cast<unsigned>(face.GlyphCount()));
    hbFont_.reset(harfBuzz.hb_font_create(Face()));
    TakeSize();
    TakeAxes();
}

// In 64ths of a pixel.
void LayoutFace::TakeSize()
{
    const FT_Size_Metrics& metrics = face_.Handle()->size->metrics;
    const FT_Long em = face_.Handle()->units_per_EM;
    const bool isScaled = face_.HasOutlines();
    harfBuzz_.hb_font_set_scale(
        Font(), static_cast<int>(isScaled ? FT_MulFix(em, metrics.x_scale) : metrics.x_ppem * 64),
        static_cast<int>(isScaled ? FT_MulFix(em, metrics.y_scale) : metrics.y_ppem * 64));
}

void LayoutFace::TakeAxes()
{
    FT_MM_Var* variations = nullptr;
    if (FT_Get_MM_Var(face_.Handle(), &variations) != 0)
        return;
    std::vector<FT_Fixed> places(variations->num_axis);
    FT_Done_MM_Var(face_.Handle()->glyph->library, variations);
    if (FT_Get_Var_Design_Coordinates(face_.Handle(), FT_UInt(places.size()), places.data()) != 0)
        return;
    std::vector<float> coordinates;
    coordinates.reserve(places.size());
    for (const FT_Fixed place : places)
        coordinates.push_back(static_cast<float>(double(place) / 65536));
    harfBuzz_.hb_font_set_var_coords_design(Font(), coordinates.data(),
                                            static_cast<unsigned>(coordinates.size()));
}

// A lookup is its type, its flags, how many subtables it has, and their offsets. A subtable of the
// type for far ones has the true type as its second number.
LookupHead LayoutFace::HeadOf(unsigned lookup) const
{
    const std::size_t farType = table_ == HB_OT_TAG_GSUB ? 7 : 9;
    const auto number = [this](std::size_t offset) -> std::size_t {
        return offset + 2 <= bytes_.size() ? Number(bytes_, offset) : 0;
    };
    const std::size_t list = number(8);
    const std::size_t start = list + number(list + 2 + 2 * std::size_t(lookup));
    std::size_t type = number(start);
    if (type == farType)
        type = number(start + number(start + 6) + 2);
    return {int(type), int(number(start + 4))};
}

std::vector<hb_tag_t> LayoutFace::Features() const
{
    unsigned none = 0;
    unsigned count =
        harfBuzz_.hb_ot_layout_table_get_feature_tags(Face(), table_, 0, &none, nullptr);
    std::vector<hb_tag_t> tags(count);
    harfBuzz_.hb_ot_layout_table_get_feature_tags(Face(), table_, 0, &count, tags.data());
    tags.resize(count);
    std::ranges::sort(tags);
    tags.erase(std::unique(tags.begin(), tags.end()), tags.end());
    return tags;
}

} // namespace Glyphor
