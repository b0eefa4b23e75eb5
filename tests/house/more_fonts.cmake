
# Inputs that only Glyphor knows of, and what shells and CMake take for signs of their own.
glyphor_add_font(firmware SOURCE ${FONT} NAME Plain HEIGHT 32px KERNING
    CHARS "AV;$x" "'\"\\ #&")
glyphor_add_font(firmware SOURCE ${FONT} NAME Extra HEIGHT 32px KERNING WARNINGS_OK
    CHARS "AV;$x" "'\"\\ #&" "あ" OPTIONS @extra.options)
glyphor_add_font(firmware SOURCE ${FONT} NAME Whole HEIGHT 16px FORMAT LEG_AA2 ENCODING SJIS FACE 0
    BOLD ITALIC PATTERNS pattern.txt CHARSETS ascii ENABLE 0xA7 0xB0-0xB1 DISABLE 0x42 0x5C 0x7E)
