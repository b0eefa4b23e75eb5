#pragma once

#include "render/free_type_face.h"
#include "render/harfbuzz.h"

namespace Glyphor {

// What HarfBuzz does not tell of a lookup.
struct LookupHead
{
    static constexpr int Unknown = 0;

    int type = Unknown; // as the table counts types
    int subtables = 1;
};

// A face as HarfBuzz sees it: one of its layout tables (GSUB or GPOS), at its size and its place on
// the axes, neither of which may change afterwards.
class LayoutFace
{
public:
    LayoutFace(const FreeTypeFace& face, hb_tag_t table, const HarfBuzz& harfBuzz);
    LayoutFace(const LayoutFace&) = delete;
    LayoutFace& operator=(const LayoutFace&) = delete;

    [[nodiscard]] const HarfBuzz& Library() const { return harfBuzz_; }
    [[nodiscard]] hb_face_t* Face() const { return hbFace_.get(); }
    [[nodiscard]] hb_font_t* Font() const { return hbFont_.get(); }

    // The tags of the table's features, ascending and each once.
    [[nodiscard]] std::vector<hb_tag_t> Features() const;

    [[nodiscard]] LookupHead HeadOf(unsigned lookup) const;

private:
    static hb_blob_t* ReadTable(hb_face_t*, hb_tag_t tag, void* layoutFace) noexcept;
    void TakeSize();
    void TakeAxes();

    FreeTypeFace face_;
    hb_tag_t table_;
    std::vector<quint8> bytes_; // of the table
    const HarfBuzz& harfBuzz_;
    HarfBuzzOwner<hb_face_t> hbFace_;
    HarfBuzzOwner<hb_font_t> hbFont_;
};

} // namespace Glyphor
