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

// The pixels of a canvas as the file has them, with the colours alone that are there: two in a byte
// where there are no more than 16.
class PackedPicture
{
public:
    explicit PackedPicture(const Canvas& canvas)
    {
        std::array<bool, ProofColour::Count> isUsed{};
        for (int y = 0; y < canvas.Height(); ++y) {
            for (const quint8 colour : canvas.Row(y))
                isUsed[colour] = true;
        }
        std::array<quint8, ProofColour::Count> places{};
        for (std::size_t index = 0; index < places.size(); ++index) {
            if (!isUsed[index])
                continue;
            places[index] = quint8(palette.size());
            const Rgb& colour = ProofPalette()[index];
            palette.push_back({colour.red, colour.green, colour.blue});
        }
        constexpr std::size_t mostInHalfByte = 16;
        bitDepth = palette.size() <= mostInHalfByte ? 4 : 8;
        const auto perByte = std::size_t(8 / bitDepth);
        bytesPerRow = (std::size_t(canvas.Width()) + perByte - 1) / perByte;
        bytes.resize(bytesPerRow * std::size_t(canvas.Height()));
        for (int y = 0; y < canvas.Height(); ++y)
            Pack(canvas.Row(y), places, bytes.data() + std::size_t(y) * bytesPerRow);
    }

    std::vector<png_color> palette;
    std::vector<png_byte> bytes;
    std::size_t bytesPerRow = 0;
    int bitDepth = 8;

private:
    void Pack(std::span<const quint8> row, const std::array<quint8, ProofColour::Count>& places,
              png_byte* to) const
    {
        if (bitDepth == 8) {
            for (const quint8 colour : row)
                *to++ = places[colour];
            return;
        }
        for (std::size_t x = 0; x < row.size(); x += 2) {
            const unsigned right = x + 1 < row.size() ? places[row[x + 1]] : 0;
            *to++ = png_byte(unsigned(places[row[x]]) << 4 | right);
        }
    }
};

// Of plain data alone, since errors leave it by a jump.
bool WritePng(png_structp png, png_infop info, const Canvas& canvas, int level,
              const PackedPicture& picture)
{
    if (setjmp(png_jmpbuf(png)) != 0)
        return false;
    png_set_IHDR(png, info, png_uint_32(canvas.Width()), png_uint_32(canvas.Height()),
                 picture.bitDepth, PNG_COLOR_TYPE_PALETTE, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_PLTE(png, info, picture.palette.data(), int(picture.palette.size()));
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_compression_level(png, level);
    png_write_info(png, info);
    for (int y = 0; y < canvas.Height(); ++y)
        png_write_row(png, picture.bytes.data() + std::size_t(y) * picture.bytesPerRow);
    png_write_end(png, info);
    return true;
}

} // namespace

void ComposePng(const Canvas& canvas, int level, const File::Sink& sink)
{
    const PackedPicture picture(canvas);
    png_structp png =
        png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, FailPng, IgnoreWarning);
    png_infop info = png != nullptr ? png_create_info_struct(png) : nullptr;
    PngTarget target{sink};
    bool isWritten = false;
    if (info != nullptr) {
        png_set_write_fn(png, &target, TakePngBytes, FlushNothing);
        isWritten = WritePng(png, info, canvas, level, picture);
    }
    png_destroy_write_struct(&png, &info);
    if (target.failure)
        std::rethrow_exception(target.failure);
    if (!isWritten)
        throw std::bad_alloc(); // nothing else fails with such a picture
}

} // namespace Glyphor
