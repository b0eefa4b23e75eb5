#include "render/free_type_library.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace Glyphor {

namespace {

// In front of every block stands its size, padded so that the block keeps its alignment.
constexpr std::size_t HeaderSize = alignof(std::max_align_t);
static_assert(HeaderSize >= sizeof(qint64));

void* HeaderOf(void* block)
{
    return static_cast<std::byte*>(block) - HeaderSize;
}

} // namespace

FontLibrary::FontLibrary()
{
    AllowFile(0);
    memory_ = {this, Allocate, Free, Reallocate};
    if (FT_New_Library(&memory_, &library_) != 0)
        return;
    FT_Add_Default_Modules(library_);
    FT_Set_Default_Properties(library_);
    idle_ = used_;
}

FontLibrary::~FontLibrary()
{
    FT_Done_Library(library_);
}

// Compressed fonts and bitmaps written as text unpack to a few times their size, and each glyph of
// a bitmap font has a record of a few dozen bytes.
void FontLibrary::AllowFile(qint64 fileSize)
{
    constexpr qint64 base = 64 * 1024 * 1024;
    constexpr qint64 perByte = 16;
    constexpr qint64 leftovers = 1024 * 1024; // of faces that were closed
    const qint64 needed = used_ + base + perByte * fileSize;
    limit_ = used_ <= idle_ + leftovers ? needed : std::max(limit_, needed);
}

void* FontLibrary::Allocate(FT_Memory memory, long size)
{
    return Reallocate(memory, 0, size, nullptr);
}

void FontLibrary::Free(FT_Memory memory, void* block)
{
    if (block == nullptr)
        return;
    auto& library = *static_cast<FontLibrary*>(memory->user);
    void* const header = HeaderOf(block);
    library.used_ -= *static_cast<const qint64*>(header);
    std::free(header);
}

void* FontLibrary::Reallocate(FT_Memory memory, long, long newSize, void* block)
{
    auto& library = *static_cast<FontLibrary*>(memory->user);
    void* const header = block != nullptr ? HeaderOf(block) : nullptr;
    const qint64 oldSize = header != nullptr ? *static_cast<const qint64*>(header) : 0;
    if (newSize < 0 || library.used_ + newSize - oldSize > library.limit_)
        return nullptr;
    void* const moved = std::realloc(header, HeaderSize + static_cast<std::size_t>(newSize));
    if (moved == nullptr)
        return nullptr;
    library.used_ += newSize - oldSize;
    *static_cast<qint64*>(moved) = newSize;
    return static_cast<std::byte*>(moved) + HeaderSize;
}

FontLibrary& FreeTypeLibrary()
{
    static FontLibrary library;
    return library;
}

QString FreeTypeVersion()
{
    int major = 0;
    int minor = 0;
    int patch = 0;
    FT_Library_Version(FreeTypeLibrary().Get(), &major, &minor, &patch);
    return QStringLiteral("%1.%2.%3").arg(major).arg(minor).arg(patch);
}

} // namespace Glyphor
