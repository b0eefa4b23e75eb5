// As much of the embedded library's header as a generated font needs.
#ifndef GUI_H
#define GUI_H

#include "GUI_patterns.h" // X_______ and its like, one constant for every byte

typedef unsigned char U8;
typedef signed char I8;
typedef unsigned short U16;
typedef unsigned long U32;

typedef struct
{
    U8 XSize, XDist, BytesPerLine;
    const unsigned char* pData;
} GUI_CHARINFO;

typedef struct
{
    U8 XSize, YSize;
    I8 XPos, YPos;
    U8 XDist;
    const unsigned char* pData;
} GUI_CHARINFO_EXT;

typedef struct GUI_FONT_PROP
{
    U16 First, Last;
    const GUI_CHARINFO* paCharInfo;
    const struct GUI_FONT_PROP* pNext;
} GUI_FONT_PROP;

typedef struct GUI_FONT_PROP_EXT
{
    U16 First, Last;
    const GUI_CHARINFO_EXT* paCharInfo;
    const struct GUI_FONT_PROP_EXT* pNext;
} GUI_FONT_PROP_EXT;

enum {
    GUI_FONTTYPE_PROP,
    GUI_FONTTYPE_PROP_AA2,
    GUI_FONTTYPE_PROP_AA4,
    GUI_FONTTYPE_PROP_EXT,
    GUI_FONTTYPE_PROP_FRM,
    GUI_FONTTYPE_PROP_AA2_EXT,
    GUI_FONTTYPE_PROP_AA4_EXT
};

typedef struct
{
    int Type;
    U8 YSize, YDist, XMag, YMag;
    union {
        const void* pProp;
    } p;
    U8 Baseline, LHeight, CHeight;
} GUI_FONT;

#endif
