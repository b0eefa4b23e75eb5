#pragma once

#include <QString>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_MODULE_H

namespace Glyphor {

// A FreeType library that a font file can't make take any amount of memory: sizes that a file
// merely claims make FreeType fail instead. Two threads need two of them.
class FontLibrary
{
public:
    FontLibrary();
    ~FontLibrary();
    FontLibrary(const FontLibrary&) = delete;
    FontLibrary& operator=(const FontLibrary&) = delete;

    [[nodiscard]] FT_Library Get() const { return library_; }

    // To be called before a face of a file with so many bytes is opened: from now on the library
    // may take as much more memory as any real font of that size needs.
    void AllowFile(qint64 fileSize);

private:
    static void* Allocate(FT_Memory memory, long size);
    static void Free(FT_Memory memory, void* block);
    static void* Reallocate(FT_Memory memory, long oldSize, long newSize, void* block);

    FT_MemoryRec_ memory_{};
    FT_Library library_ = nullptr;
    qint64 used_ = 0;
    qint64 idle_ = 0; // used without a face
    qint64 limit_ = 0;
};

// The one of the program's main thread, opened on first use.
[[nodiscard]] FontLibrary& FreeTypeLibrary();

// "2.12.1": of the library that is in use.
[[nodiscard]] QString FreeTypeVersion();

} // namespace Glyphor
