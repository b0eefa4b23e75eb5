// Prints a generated font, which FONT_FILE names, as the firmware would find it.
#include <stdio.h>

#ifdef FONT_IS_HEADER
#include FONT_FILE
#include FONT_FILE // its guard must hold
#else
#include "GUI.h"
extern const GUI_FONT FONT_NAME;
#endif

static void bytes(const unsigned char* data, int count)
{
    while (count-- > 0)
        printf(" %02X", *data++);
    printf("\n");
}

static void legacy(const GUI_FONT* font, const GUI_FONT_PROP* prop)
{
    for (; prop != 0; prop = prop->pNext) {
        const GUI_CHARINFO* info = prop->paInfo;
        for (int code = prop->First; code <= prop->Last; ++code, ++info) {
            printf("%04X %d %d %d:", code, info->Width, info->Advance, info->BytesPerLine);
            bytes(info->pData, info->BytesPerLine * font->Height);
        }
    }
}

static void extended(int bits, int planes, const GUI_FONT_PROP_EXT* prop)
{
    for (; prop != 0; prop = prop->pNext) {
        const GUI_CHARINFO_EXT* info = prop->paInfo;
        for (int code = prop->First; code <= prop->Last; ++code, ++info) {
            printf("%04X %d %d %d %d %d:", code, info->Width, info->Height, info->XOffset,
                   info->YOffset, info->Advance);
            bytes(info->pData, (bits * info->Width + 7) / 8 * info->Height * planes);
        }
    }
}

int main(void)
{
    static const int bits[] = {1, 2, 4, 1, 1, 2, 4};
    const GUI_FONT* font = &FONT_NAME;
    printf("%d %d %d %d %d %d %d %d\n", font->Type, font->Height, font->LineDistance, font->MagX,
           font->MagY, font->Baseline, font->LowercaseHeight, font->CapitalHeight);
    if (font->Type <= GUI_FONTTYPE_PROP_AA4)
        legacy(font, font->Prop.pFirst);
    else
        extended(bits[font->Type], font->Type == GUI_FONTTYPE_PROP_FRM ? 2 : 1, font->Prop.pFirst);
    return 0;
}
