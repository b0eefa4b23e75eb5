// Measures the kerning pairs of all of a font against the rendering of its characters.
//
// Usage: bench_kerning [FONT]

#include "render/kerning_index.h"

#include <QString>

#include <chrono>
#include <cstdio>

using namespace Glyphor;

namespace {

template <typename Work>
double Seconds(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

int main(int argc, char** argv)
{
    const QString path = QString::fromLocal8Bit(
        argc > 1 ? argv[1] : "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
    FreeTypeFace face(path, 0, FreeTypeLibrary());
    face.SetPixelSize({32, false});

    const auto render = [&] {
        RenderedGlyph glyph;
        face.WalkCharmap([&](quint16 code) {
            face.RenderGlyph(code, glyph);
            return true;
        });
    };
    std::size_t pairs = 0;
    const auto gather = [&] {
        const KerningIndex index(face);
        pairs = 0;
        face.WalkCharmap([&](quint16 code) {
            pairs += index.PairsOf(code).size();
            return true;
        });
    };
    render();
    gather();
    for (int run = 0; run < 5; ++run) {
        const double rendering = Seconds(render);
        const double kerning = Seconds(gather);
        std::printf("rendering %.1f ms, %zu kerning pairs %.2f ms: %.1f %%\n", rendering * 1e3,
                    pairs, kerning * 1e3, 100 * kerning / rendering);
    }
    return 0;
}
