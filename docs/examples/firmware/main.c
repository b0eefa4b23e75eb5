/* Draws texts into a picture, as firmware would onto its display: firmware PICTURE.pgm */
#include "draw.h"
#include "Title24_Characters.h"

#include <stdio.h>

extern GUI_CONST_STORAGE GUI_FONT GUI_FontTitle24, GUI_FontSmall16;

enum { Width = 200, Height = 64 };

static U8 display[Height][Width];

void PutPixel(int x, int y, unsigned coverage)
{
    if (x >= 0 && x < Width && y >= 0 && y < Height)
        display[y][x] = (U8)coverage;
}

static int WritePicture(const char* path)
{
    FILE* file = fopen(path, "w");
    if (!file)
        return 1;
    fprintf(file, "P2\n%d %d\n255\n", Width, Height);
    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x)
            fprintf(file, "%d%c", 255 - display[y][x], x < Width - 1 ? ' ' : '\n');
    return fclose(file);
}

int main(int argc, char** argv)
{
    const GUI_FONT* title = &GUI_FontTitle24;
    const GUI_FONT* small = &GUI_FontSmall16;
    if (argc != 2) {
        fprintf(stderr, "usage: %s PICTURE.pgm\n", argv[0]);
        return 1;
    }
    DrawText(title, 4, 4, TITLE24_THERMOMETER_UTF8 " Außen: −5 °C");
    DrawText(title, 4, 4 + title->LineDistance, "Wewnątrz: 21 °C");
    DrawText(small, 4, 8 + 2 * title->LineDistance, "Speicher voll / Pamięć pełna");
    return WritePicture(argv[1]);
}
