#ifndef DRAW_H
#define DRAW_H

#include "GUI.h"

/* Yours: blends a pixel of the display; 255 is ink, 0 is paper. */
void PutPixel(int x, int y, unsigned coverage);

/* Both draw with (x, y) at the top of the line, and return where the next character starts. */
int DrawChar(const GUI_FONT* font, int x, int y, U16 code);
int DrawText(const GUI_FONT* font, int x, int y, const char* utf8);

#endif
