#include "draw.h"

static int BitsPerPixel(const GUI_FONT* font)
{
    switch (font->Type) {
    case GUI_FONTTYPE_PROP_AA2_EXT:
        return 2;
    case GUI_FONTTYPE_PROP_AA4_EXT:
        return 4;
    default:
        return 1; /* EXT and FRM */
    }
}

static const GUI_CHARINFO_EXT* Find(const GUI_FONT* font, U16 code)
{
    const GUI_FONT_PROP_EXT* block = font->Prop.pFirst;
    for (; block; block = block->pNext)
        if (code >= block->First && code <= block->Last)
            return &block->paInfo[code - block->First];
    return 0;
}

/* The index of a pixel: 0 to 1, 3 or 15. The leftmost pixel has the highest bits. */
static unsigned PixelIndex(const U8* row, int bits, int x)
{
    const int shift = 8 - bits - x * bits % 8;
    return row[x * bits / 8] >> shift & ((1u << bits) - 1);
}

int DrawChar(const GUI_FONT* font, int x, int y, U16 code)
{
    const GUI_CHARINFO_EXT* info = Find(font, code);
    const int bits = BitsPerPixel(font);
    if (!info)
        return x;
    const int bytes = (bits * info->Width + 7) / 8;
    const U8* ink = info->pData;
    const U8* frame = ink + bytes * info->Height; /* of FRM alone */
    for (int row = 0; row < info->Height; ++row, ink += bytes, frame += bytes)
        for (int column = 0; column < info->Width; ++column) {
            const unsigned index = PixelIndex(ink, bits, column);
            const int isFrame = font->Type == GUI_FONTTYPE_PROP_FRM && PixelIndex(frame, 1, column);
            if (index || isFrame)
                PutPixel(x + info->XOffset + column, y + info->YOffset + row,
                         index * 255 / ((1u << bits) - 1));
        }
    return x + info->Advance;
}

/* The next code of a text; fonts have none beyond 16 bits. */
static U16 NextCode(const char** text)
{
    const U8* byte = (const U8*)*text;
    unsigned code = *byte++;
    if (code >= 0xC0) {
        code &= code < 0xE0 ? 0x1F : code < 0xF0 ? 0x0F : 0x07;
        while ((*byte & 0xC0) == 0x80)
            code = code << 6 | (*byte++ & 0x3F);
    }
    *text = (const char*)byte;
    return code <= 0xFFFF ? (U16)code : 0xFFFD;
}

int DrawText(const GUI_FONT* font, int x, int y, const char* utf8)
{
    while (*utf8)
        x = DrawChar(font, x, y, NextCode(&utf8));
    return x;
}
