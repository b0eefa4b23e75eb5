// Measures the kerning pairs of all of a font against the rendering of its characters,
// and the time that those of GPOS tables take.
//
// Usage: bench_kerning [FONT]

#include "app/user_interface.h"
#include "render/kerning_index.h"
#include "render/layout_kerning.h"
#include "timing.h"

#include <QString>

#include <cstdio>
#include <vector>

using namespace Glyphor;

namespace {

struct LayoutRow
{
    const char* path;
    std::size_t characters; // the first ones of the charmap
};

// The pairs of a GPOS table, with opening it.
void MeasureLayout(const LayoutRow& row)
{
    FreeTypeFace face(QString::fromLatin1(row.path), 0, FreeTypeLibrary());
    const HarfBuzz* const library = HarfBuzz::Loaded();
    if (!face.IsOpen() || library == nullptr) {
        std::printf("  %s is not here\n", row.path);
        return;
    }
    face.SetPixelSize(32);
    std::vector<ShownGlyph> characters;
    CodeSet visited;
    face.WalkCharmap([&](quint16 code, FT_UInt glyph) {
        if (!visited.Test(code))
            characters.push_back({code, glyph});
        visited.Set(code, true);
        return characters.size() < row.characters;
    });
    std::size_t pairs = 0;
    const auto gather = [&] {
        pairs = 0;
        LayoutKerning kerning(face, *library);
        kerning.FindPairs(characters, [&](std::size_t, const std::vector<KerningPair>& found) {
            pairs += found.size();
            return true;
        });
    };
    std::vector<double> gatherings;
    for (int run = 0; run < 5; ++run)
        gatherings.push_back(Seconds(gather));
    std::printf("  %s, %zu characters: %zu pairs in %.1f ms\n", row.path, characters.size(), pairs,
                Median(gatherings) * 1e3);
}

void MeasureLayouts()
{
    class Silent : public UserInterface
    {
    } interface;
    const InterfaceScope scope(interface);
    std::printf("Kerning of GPOS tables at 32px\n");
    std::printf("  loading the library %.2f ms\n", Seconds([] { (void)HarfBuzz::Loaded(); }) * 1e3);
    const char* const inter = "/usr/share/fonts/opentype/inter/Inter-Regular.otf";
    const char* const cjk = "/usr/share/fonts/opentype/noto/NotoSansCJK-Regular.ttc";
    for (const LayoutRow& row : {LayoutRow{inter, 95}, LayoutRow{inter, 1000},
                                 LayoutRow{inter, 65536}, LayoutRow{cjk, 65536}})
        MeasureLayout(row);
}

} // namespace

int main(int argc, char** argv)
{
    const QString path = QString::fromLocal8Bit(
        argc > 1 ? argv[1] : "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
    FreeTypeFace face(path, 0, FreeTypeLibrary());
    face.SetPixelSize(32);

    std::vector<quint16> codes;
    face.WalkCharmap([&](quint16 code, FT_UInt) {
        codes.push_back(code);
        return true;
    });
    const auto render = [&] {
        RenderedGlyph glyph;
        for (const quint16 code : codes)
            face.RenderGlyph(code, glyph);
    };
    std::size_t pairs = 0;
    const auto gather = [&] {
        const KerningIndex index(face);
        pairs = 0;
        for (const quint16 code : codes)
            pairs += index.PairsOf(code).size();
    };
    render();
    gather();
    std::vector<double> renderings;
    std::vector<double> gatherings;
    for (int run = 0; run < 15; ++run) {
        renderings.push_back(Seconds(render));
        gatherings.push_back(Seconds(gather));
    }
    const double rendering = Median(renderings);
    const double gathering = Median(gatherings);
    std::printf("Kerning of %s at 32px\n", qUtf8Printable(path));
    std::printf("  rendering %.1f ms, its %zu pairs %.2f ms: %.1f %%\n", rendering * 1e3, pairs,
                gathering * 1e3, 100 * gathering / rendering);
    if (argc <= 1)
        MeasureLayouts();
    return 0;
}
