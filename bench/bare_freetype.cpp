// What a conversion can't do without: opens a face, sets its size as Glyphor does, and renders
// every character of the charmap, anti-aliased, to throw it away.
//
// Usage: bare_freetype FONT FACE HEIGHT

#include <ft2build.h>
#include FT_FREETYPE_H

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    if (argc != 4)
        return EXIT_FAILURE;
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    FT_Init_FreeType(&library);
    if (FT_New_Face(library, argv[1], std::atol(argv[2]), &face) != 0)
        return EXIT_FAILURE;
    FT_Size_RequestRec request = {FT_SIZE_REQUEST_TYPE_BBOX, 0, std::atol(argv[3]) * 64, 0, 0};
    FT_Request_Size(face, &request);

    int count = 0;
    FT_UInt glyph = 0;
    for (FT_ULong code = FT_Get_First_Char(face, &glyph); glyph != 0;
         code = FT_Get_Next_Char(face, code, &glyph)) {
        // Codes beyond 16 bits are not in a font of Glyphor's.
        if (code <= 0xFFFF && FT_Load_Glyph(face, glyph, FT_LOAD_DEFAULT) == 0 &&
            FT_Render_Glyph(face->glyph, FT_RENDER_MODE_NORMAL) == 0)
            ++count;
    }
    std::printf("%d glyphs\n", count);
    FT_Done_FreeType(library);
    return EXIT_SUCCESS;
}
