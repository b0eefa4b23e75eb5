/* As much of the library's header as generated fonts need; use the library's own where there is
 * one. */
#ifndef GUI_H
#define GUI_H

#include "GUI_patterns.h" /* XX______ and its like, a name for every byte */

#define GUI_CONST_STORAGE const

typedef unsigned char U8;
typedef signed char I8;
typedef unsigned short U16;
typedef unsigned int U32;

typedef struct /* legacy formats: LEG, LEG_AA2, LEG_AA4 */
{
    U8 Width;        /* pixels of a row */
    U8 Advance;      /* cursor distance: where the next character starts */
    U8 BytesPerLine; /* bytes of a row */
    const U8* pData; /* the rows; as many as the font is high */
} GUI_CHARINFO;

typedef struct /* standard formats: STD, AA2, AA4, FRM */
{
    U8 Width, Height; /* pixels of the character's own box */
    I8 XOffset;       /* left edge of the box, from the cursor */
    I8 YOffset;       /* top edge of the box, from the top of the line */
    U8 Advance;       /* cursor distance */
    const U8* pData;  /* the rows; FRM: all rows of ink, then all rows of frame */
} GUI_CHARINFO_EXT;

typedef struct GUI_FONT_PROP /* a run of codes without a gap */
{
    U16 First, Last;            /* codes, both inclusive */
    const GUI_CHARINFO* paInfo; /* entry of First; those of the others follow */
    const struct GUI_FONT_PROP* pNext;
} GUI_FONT_PROP;

typedef struct GUI_FONT_PROP_EXT
{
    U16 First, Last;
    const GUI_CHARINFO_EXT* paInfo;
    const struct GUI_FONT_PROP_EXT* pNext;
} GUI_FONT_PROP_EXT;

typedef enum {
    GUI_FONTTYPE_PROP,
    GUI_FONTTYPE_PROP_AA2,
    GUI_FONTTYPE_PROP_AA4,
    GUI_FONTTYPE_PROP_EXT,
    GUI_FONTTYPE_PROP_FRM,
    GUI_FONTTYPE_PROP_AA2_EXT,
    GUI_FONTTYPE_PROP_AA4_EXT,
    GUI_FONTTYPE_PROP_SJIS,
    GUI_FONTTYPE_PROP_AA2_SJIS,
    GUI_FONTTYPE_PROP_AA4_SJIS
} GUI_FONTTYPE;

typedef struct
{
    GUI_FONTTYPE Type;
    U8 Height;       /* rows of a line of text */
    U8 LineDistance; /* from line to line; Glyphor writes the height */
    U8 MagX, MagY;   /* always 1 */
    struct
    {
        const void* pFirst; /* GUI_FONT_PROP or GUI_FONT_PROP_EXT, after Type */
    } Prop;
    U8 Baseline;                       /* rows above the baseline */
    U8 LowercaseHeight, CapitalHeight; /* of "a" and "A", in pixels */
} GUI_FONT;

#endif
