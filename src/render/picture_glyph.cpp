#include "render/picture_glyph.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/file.h"
#include "app/file_system.h"
#include "app/shown_text.h"
#include "model/char_info.h"

#include <QtEndian>

#include <png.h>

#include <algorithm>

namespace Glyphor {

namespace {

// More than any picture of so few pixels needs.
constexpr qint64 LargestFile = 0x1000000;

[[noreturn]] void RefusePicture(const QString& path, const QString& text)
{
    throw CriticalException(Engine::tr("Font creation failed!"), text, {path, 0, {}});
}

// True where a chunk says that it is longer than what is left of the file: libpng takes the memory
// before it looks.
bool IsCutOff(QByteArrayView png)
{
    constexpr qsizetype signature = 8;
    constexpr qsizetype frame = 12; // length, type and checksum
    if (png.size() < signature ||
        png_sig_cmp(reinterpret_cast<png_const_bytep>(png.data()), 0, signature) != 0)
        return false;
    for (qsizetype at = signature; png.size() - at >= frame;) {
        const qsizetype length = qFromBigEndian<quint32>(png.data() + at);
        if (length > png.size() - at - frame)
            return true;
        at += frame + length;
    }
    return false;
}

// A picture of libpng's simplified interface, freed in any case.
class PngImage
{
public:
    PngImage(QByteArrayView png, const QString& path) : path_(path)
    {
        image_.version = PNG_IMAGE_VERSION;
        if (png_image_begin_read_from_memory(&image_, png.data(), std::size_t(png.size())) == 0)
            Refuse();
    }
    ~PngImage() { png_image_free(&image_); }
    PngImage(const PngImage&) = delete;
    PngImage& operator=(const PngImage&) = delete;

    [[nodiscard]] png_uint_32 Width() const { return image_.width; }
    [[nodiscard]] png_uint_32 Height() const { return image_.height; }

    // Two bytes for each pixel: its brightness and its opacity.
    [[nodiscard]] std::vector<quint8> Pixels()
    {
        image_.format = PNG_FORMAT_GA;
        std::vector<quint8> pixels(PNG_IMAGE_SIZE(image_));
        if (png_image_finish_read(&image_, nullptr, pixels.data(), 0, nullptr) == 0)
            Refuse();
        return pixels;
    }

private:
    [[noreturn]] void Refuse() const
    {
        RefusePicture(path_, Engine::tr("The file %1 is no PNG file that can be read: %2.")
                                 .arg(Shown(path_), Shown(QString::fromLatin1(image_.message))));
    }

    QString path_;
    png_image image_{};
};

quint8 CoverageOf(quint8 brightness, quint8 opacity, int threshold)
{
    const int coverage = ((255 - brightness) * opacity + 127) / 255;
    if (threshold == 0)
        return static_cast<quint8>(coverage);
    return coverage >= threshold ? 255 : 0;
}

} // namespace

RenderedGlyph GlyphOfPng(QByteArrayView png, const QString& path, int threshold)
{
    if (IsCutOff(png))
        RefusePicture(path,
                      Engine::tr("The file %1 is no PNG file that can be read: it is cut off.")
                          .arg(Shown(path)));
    PngImage image(png, path);
    constexpr png_uint_32 largest = CharInfo::MaxSize;
    if (image.Width() > largest || image.Height() > largest)
        RefusePicture(path, Engine::tr("The picture %1 has %2 x %3 pixels; a character has 255 x "
                                       "255 at most.")
                                .arg(Shown(path), QString::number(image.Width()),
                                     QString::number(image.Height())));
    const std::vector<quint8> pixels = image.Pixels();
    RenderedGlyph glyph;
    glyph.width = static_cast<qint32>(image.Width());
    glyph.rows = static_cast<qint32>(image.Height());
    glyph.pitch = glyph.width;
    glyph.size = glyph.pitch * glyph.rows;
    glyph.bitsPerPixel = 8;
    glyph.yPos = -glyph.rows;
    glyph.cursorDistance = std::min(glyph.width + 1, CharInfo::MaxSize);
    glyph.pixels.reserve(std::size_t(glyph.size));
    for (std::size_t at = 0; at + 1 < pixels.size(); at += 2)
        glyph.pixels.push_back(CoverageOf(pixels[at], pixels[at + 1], threshold));
    return glyph;
}

RenderedGlyph ReadPicture(const QString& path, int threshold)
{
    if (SizeOfFile(path) > LargestFile)
        RefusePicture(path,
                      Engine::tr("The file %1 is larger than any picture of 255 x 255 pixels.")
                          .arg(Shown(path)));
    return GlyphOfPng(File(path).Contents(), path, threshold);
}

bool HasInk(const RenderedGlyph& glyph)
{
    return std::ranges::any_of(glyph.pixels, [](quint8 coverage) { return coverage != 0; });
}

} // namespace Glyphor
