#include "proof/png_writer.h"

#include <png.h>

#include <exception>
#include <new>

namespace Glyphor {

namespace {

// No exception may pass through the library: it is kept until the library is left.
struct PngTarget
{
    const File::Sink& sink;
    std::exception_ptr failure = nullptr;
};

void TakePngBytes(png_structp png, png_bytep bytes, png_size_t size)
{
    auto& target = *static_cast<PngTarget*>(png_get_io_ptr(png));
    if (target.failure)
        return;
    try {
        target.sink({reinterpret_cast<const char*>(bytes), qsizetype(size)});
    } catch (...) {
        target.failure = std::current_exception();
    }
}

void FlushNothing(png_structp) {}

[[noreturn]] void FailPng(png_structp png, png_const_charp)
{
    png_longjmp(png, 1);
}

void IgnoreWarning(png_structp, png_const_charp) {}

// Of plain data alone, since errors leave it by a jump.
bool WritePng(png_structp png, png_infop info, const Canvas& canvas, int level,
              const png_color* palette, const png_const_bytep* rows)
{
    if (setjmp(png_jmpbuf(png)) != 0)
        return false;
    constexpr int bitDepth = 8;
    png_set_IHDR(png, info, png_uint_32(canvas.Width()), png_uint_32(canvas.Height()), bitDepth,
                 PNG_COLOR_TYPE_PALETTE, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    png_set_PLTE(png, info, palette, ProofColour::Count);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_compression_level(png, level);
    png_write_info(png, info);
    for (int y = 0; y < canvas.Height(); ++y)
        png_write_row(png, rows[y]);
    png_write_end(png, info);
    return true;
}

} // namespace

void ComposePng(const Canvas& canvas, int level, const File::Sink& sink)
{
    std::array<png_color, ProofColour::Count> palette{};
    for (std::size_t index = 0; index < palette.size(); ++index) {
        const Rgb& colour = ProofPalette()[index];
        palette[index] = {colour.red, colour.green, colour.blue};
    }
    std::vector<png_const_bytep> rows;
    for (int y = 0; y < canvas.Height(); ++y)
        rows.push_back(canvas.Row(y).data());

    png_structp png =
        png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, FailPng, IgnoreWarning);
    png_infop info = png != nullptr ? png_create_info_struct(png) : nullptr;
    PngTarget target{sink};
    bool isWritten = false;
    if (info != nullptr) {
        png_set_write_fn(png, &target, TakePngBytes, FlushNothing);
        isWritten = WritePng(png, info, canvas, level, palette.data(), rows.data());
    }
    png_destroy_write_struct(&png, &info);
    if (target.failure)
        std::rethrow_exception(target.failure);
    if (!isWritten)
        throw std::bad_alloc(); // nothing else fails with such a picture
}

} // namespace Glyphor
