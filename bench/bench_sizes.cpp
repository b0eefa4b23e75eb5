// Measures the search for the em at which letters have the height that was asked for, over the
// heights that are usual, beside the least that it could take: to set one size and render a letter.

#include "app/critical_exception.h"
#include "render/size_search.h"
#include "timing.h"

#include <QString>

#include <cstdio>

using namespace Glyphor;

namespace {

void MeasureSizes(const char* path, FontFormat format)
{
    FreeTypeFace face(QString::fromLatin1(path), 0, FreeTypeLibrary());
    if (!face.IsOpen()) {
        std::printf("  %s is not here\n", path);
        return;
    }
    face.SetMonochrome(BitsPerPixel(format) == 1);
    RenderOptions options;
    options.format = format;
    options.heightUnit = HeightUnit::Capital;
    std::vector<double> searches;
    double slowest = 0;
    int refused = 0;
    for (options.height = 7; options.height <= 40; ++options.height) {
        searches.push_back(Seconds([&] {
            try {
                SetFaceSize(face, options);
            } catch (const CriticalException&) {
                ++refused;
            }
        }));
        slowest = std::max(slowest, searches.back());
    }
    RenderedGlyph glyph;
    const double one = Seconds([&] {
        face.SetPixelSize(31);
        face.RenderGlyph('H', glyph);
    });
    std::printf(
        "  %-58s %d bits: median %.3f ms, slowest %.3f ms, %d refused; one letter %.3f ms\n", path,
        BitsPerPixel(format), Median(searches) * 1e3, slowest * 1e3, refused, one * 1e3);
}

} // namespace

int main()
{
    std::printf("The em of capitals of 7 to 40 rows\n");
    for (const char* const path :
         {"/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
          "/usr/share/fonts/opentype/inter/Inter-Regular.otf",
          "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf",
          "/usr/share/fonts/opentype/noto/NotoSansCJK-Regular.ttc"}) {
        for (const FontFormat format : {FontFormat::Standard, FontFormat::AA4})
            MeasureSizes(path, format);
    }
}
