// Measures the kerning pairs of all of a font against the rendering of its characters.
//
// Usage: bench_kerning [FONT]

#include "render/kerning_index.h"
#include "timing.h"

#include <QString>

#include <cstdio>
#include <vector>

using namespace Glyphor;

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
    return 0;
}
