#!/usr/bin/env python3
"""Makes the small fonts that the tests read, into the folder given as the only argument.

    outlines.ttf    boxes of known sizes, a kern table, codes beyond 0xFFFF
    variable.ttf    a weight axis with the default instance and two named ones
    collection.ttc  two faces
    black.ttf       one more style of the collection's family
    strike.ttf      outlines and a 1-bit strike of 10 pixels that has only "A"
    hostile.ttf     a few bytes that map 4 billion codes to one glyph, which kerns with itself
    damaged.ttf     outlines that are huge at any height
    packed.woff     unpacks to a thousand times its size
    symbol.ttf      codes of its own from 0xF020, in a charmap of symbols
    roman.ttf       a charmap of Mac Roman alone, and no names of glyphs
    layout.ttf      a GPOS table with all that kerning is made of, a GSUB table with features
    contexts.ttf    kerning that depends on what stands around a pair
    moving.ttf      kerning that grows along the weight axis
    loose.ttf       a GPOS table that is cut off, and a GSUB table of noise
    unclassed.ttf   layout.ttf with classes of glyphs that nobody knows
    everything.ttf  a small GPOS table that claims to kern every glyph with every other
    bitmap.bdf      letters, a blank that moves the cursor, one that does not
"""

import os
import struct
import sys
import zlib

from fontTools.feaLib.builder import addOpenTypeFeaturesFromString
from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import TTCollection, newTable
from fontTools.ttLib.tables.DefaultTable import DefaultTable
from fontTools.ttLib.tables._c_m_a_p import CmapSubtable
from fontTools.ttLib.tables._k_e_r_n import KernTable_format_0
from fontTools.ttLib.tables.TupleVariation import TupleVariation

EM = 1000


def box(left, bottom, right, top):
    pen = TTGlyphPen(None)
    if right > left:
        pen.moveTo((left, bottom))
        pen.lineTo((left, top))
        pen.lineTo((right, top))
        pen.lineTo((right, bottom))
        pen.closePath()
    return pen.glyph()


def build(family, style, glyphs, cmap, weight=400, selection=0x40):
    """glyphs: name -> (advance, left, bottom, right, top), in em units, 1000 to the em."""
    builder = FontBuilder(EM, isTTF=True)
    order = [".notdef"] + list(glyphs)
    builder.setupGlyphOrder(order)
    builder.setupCharacterMap(cmap)
    boxes = {".notdef": (500, 0, 0, 0, 0), **glyphs}
    builder.setupGlyf({name: box(*boxes[name][1:]) for name in order})
    builder.setupHorizontalMetrics({name: (boxes[name][0], boxes[name][1]) for name in order})
    builder.setupHorizontalHeader(ascent=800, descent=-200)
    builder.setupNameTable({"familyName": family, "styleName": style})
    builder.setupOS2(sTypoAscender=800, sTypoDescender=-200, usWinAscent=800, usWinDescent=200,
                     usWeightClass=weight, fsSelection=selection, ulUnicodeRange1=1,
                     ulUnicodeRange2=2, ulUnicodeRange3=3, ulUnicodeRange4=4)
    builder.setupPost()
    return builder


LETTERS = {
    "A": (600, 50, 0, 550, 700),
    "a": (500, 50, 0, 450, 500),
    "V": (600, 0, 0, 600, 700),
}


def outlines(folder):
    glyphs = {
        **LETTERS,
        "space": (300, 0, 0, 0, 0),
        "mark": (0, 0, 0, 0, 0),  # empty, and does not move the cursor
        "left": (400, -200, 0, 100, 700),  # starts before the cursor
        "wide": (20000, 0, 0, 300, 300),
        "far": (900, 0, 0, 9000, 300),
        "high": (500, 0, -200, 300, 800),
    }
    cmap = {0x20: "space", 0x41: "A", 0x61: "a", 0x56: "V", 0x300: "mark", 0x6C: "left",
            0x57: "wide", 0x46: "far", 0x48: "high", 0x391: "A", 0x4E9C: "V",
            0x10041: "a", 0x1F600: "a"}
    builder = build("Test Outlines", "Regular", glyphs, cmap)
    kern = newTable("kern")
    kern.version = 0
    kern.kernTables = []
    for pairs in ({("A", "V"): -100, ("V", "A"): -120, ("A", "A"): 1, ("V", "space"): 80,
                   ("a", "left"): -500},
                  {("A", "V"): -50, ("left", "V"): 90}):
        table = KernTable_format_0()
        table.coverage = 1
        table.version = 0
        table.tupleIndex = None
        table.kernTable = pairs
        kern.kernTables.append(table)
    builder.font["kern"] = kern
    builder.save(os.path.join(folder, "outlines.ttf"))


def variable(folder):
    glyphs = {"A": (600, 50, 0, 250, 700)}
    builder = build("Test Variable", "Regular", glyphs, {0x41: "A"})
    builder.setupFvar(
        axes=[("wght", 400, 400, 900, "Weight")],
        instances=[{"location": {"wght": 400}, "stylename": "Plain"},
                   {"location": {"wght": 900}, "stylename": "Heavy"}])
    # The right edge moves by 300 units from the lightest to the heaviest.
    deltas = [(0, 0), (0, 0), (300, 0), (300, 0), (0, 0), (300, 0), (0, 0), (0, 0)]
    builder.setupGvar({"A": [TupleVariation({"wght": (0.0, 1.0, 1.0)}, deltas)]})
    builder.save(os.path.join(folder, "variable.ttf"))


def collection(folder):
    fonts = TTCollection()
    for style, weight, selection in (("Regular", 400, 0x40), ("Oblique", 700, 0x200)):
        glyphs = {"A": (600, 50, 0, 550 if weight == 400 else 350, 700)}
        fonts.fonts.append(
            build("Test Collection", style, glyphs, {0x41: "A"}, weight, selection).font)
    fonts.save(os.path.join(folder, "collection.ttc"))
    black = build("Test Collection", "Black", {"A": LETTERS["A"]}, {0x41: "A"}, 900)
    black.save(os.path.join(folder, "black.ttf"))


def line_metrics(direction):
    values = (("ascender", 8), ("descender", -2), ("widthMax", 7), ("caretSlopeNumerator", 0),
              ("caretSlopeDenominator", 0), ("caretOffset", 0), ("minOriginSB", 0),
              ("minAdvanceSB", 0), ("maxBeforeBL", 8), ("minAfterBL", -2), ("pad1", 0), ("pad2", 0))
    rows = "".join(f'<{name} value="{value}"/>' for name, value in values)
    return f'<sbitLineMetrics direction="{direction}">{rows}</sbitLineMetrics>'


def strike(folder):
    """The strike's "A" is 6 x 8 pixels, a chequered pattern that no outline gives."""
    rows = "a854" * 4
    xml = f"""<?xml version="1.0" encoding="UTF-8"?>
<ttFont>
  <EBLC>
    <header version="2.0"/>
    <strike index="0">
      <bitmapSizeTable>
        {line_metrics("hori")}{line_metrics("vert")}
        <colorRef value="0"/><startGlyphIndex value="1"/><endGlyphIndex value="1"/>
        <ppemX value="10"/><ppemY value="10"/><bitDepth value="1"/><flags value="1"/>
      </bitmapSizeTable>
      <eblc_index_sub_table_1 imageFormat="1" firstGlyphIndex="1" lastGlyphIndex="1">
        <glyphLoc name="A"/>
      </eblc_index_sub_table_1>
    </strike>
  </EBLC>
  <EBDT>
    <header version="2.0"/>
    <strikedata index="0">
      <ebdt_bitmap_format_1 name="A">
        <SmallGlyphMetrics>
          <height value="8"/><width value="6"/><BearingX value="1"/><BearingY value="8"/>
          <Advance value="7"/>
        </SmallGlyphMetrics>
        <rawimagedata>{rows}</rawimagedata>
      </ebdt_bitmap_format_1>
    </strikedata>
  </EBDT>
</ttFont>
"""
    path = os.path.join(folder, "strike.ttx")
    with open(path, "w", encoding="utf-8") as out:
        out.write(xml)
    font = build("Test Strike", "Regular", LETTERS, {0x41: "A", 0x61: "a", 0x56: "V"}).font
    font.importXML(path)
    os.remove(path)
    font.save(os.path.join(folder, "strike.ttf"))


def hostile(folder):
    font = build("Test Hostile", "Regular", {"A": LETTERS["A"]}, {0x41: "A"}).font
    group = struct.pack(">III", 0, 0xFFFFFFFE, 1)
    subtable = struct.pack(">HHIII", 13, 0, 16 + len(group), 0, 1) + group
    font["cmap"] = DefaultTable("cmap")
    font["cmap"].data = struct.pack(">HHHHI", 0, 1, 3, 10, 12) + subtable
    pair = struct.pack(">HHh", 1, 1, -500)
    font["kern"] = DefaultTable("kern")
    font["kern"].data = struct.pack(">HHHHHHHHH", 0, 1, 0, 14 + len(pair), 1, 1, 6, 0, 0) + pair
    font.save(os.path.join(folder, "hostile.ttf"))


def change_table(font, path, table, offset, numbers, *values):
    """Saves the font with other numbers in one of its tables."""
    font.save(path)
    with open(path, "rb") as file:
        contents = bytearray(file.read())
    entry = contents.index(table)
    start = struct.unpack_from(">I", contents, entry + 8)[0]
    struct.pack_into(numbers, contents, start + offset, *values)
    with open(path, "wb") as file:
        file.write(contents)


def damaged(folder):
    """Its head table claims a box of 20 units, so any height makes its outlines huge."""
    font = build("Test Damaged", "Regular", LETTERS, {0x41: "A", 0x61: "a", 0x56: "V"}).font
    change_table(font, os.path.join(folder, "damaged.ttf"), b"head", 36, ">hhhh", 0, 0, 20, 20)


def packed(folder):
    """A few hundred kB that claim to unpack to 400 MB, and do."""
    size = 400 * 1024 * 1024
    block = bytes(1024 * 1024)
    packer = zlib.compressobj(9)
    data = b"".join(packer.compress(block) for _ in range(size // len(block))) + packer.flush()
    start = 44 + 20
    table = struct.pack(">4sIIII", b"glyf", start, len(data), size, 0)
    data += bytes(-len(data) % 4)
    header = struct.pack(">4sIIHHIHHIIIII", b"wOFF", 0x00010000, start + len(data), 1, 0,
                         12 + 16 + size, 1, 0, 0, 0, 0, 0, 0)
    with open(os.path.join(folder, "packed.woff"), "wb") as file:
        file.write(header + table + data)


def charmaps(folder):
    """Fonts without a charmap of Unicode."""
    for name, platform, encoding, code in (("symbol", 3, 0, 0xF041), ("roman", 1, 0, 0x41)):
        builder = build("Test " + name.title(), "Regular", LETTERS, {0x41: "A"})
        table = CmapSubtable.newSubtable(4 if platform == 3 else 0)
        table.platformID, table.platEncID, table.language = platform, encoding, 0
        table.cmap = {code: "A", code + 1: "V"}
        builder.font["cmap"].tables = [table]
        builder.setupPost(keepGlyphNames=False)
        builder.save(os.path.join(folder, name + ".ttf"))


LAYOUT_LETTERS = {
    **LETTERS,
    "T": (600, 50, 0, 550, 700), "o": (500, 50, 0, 450, 500), "comma": (300, 50, -100, 200, 150),
    "acute": (300, 50, 500, 250, 700), "Alpha": (600, 50, 0, 550, 700),
    "Tau": (600, 50, 0, 550, 700), "alef": (300, 50, 0, 250, 700), "bet": (500, 50, 0, 450, 600),
    "hyphen": (400, 50, 200, 350, 300), "E": (550, 50, 0, 500, 700),
    "zero": (560, 50, 0, 500, 700), "one": (400, 50, 0, 350, 700),
    "zero.slash": (560, 50, 0, 510, 700), "zero.slash.tab": (600, 50, 0, 550, 700),
    "zero.tab": (600, 50, 0, 540, 700), "one.tab": (600, 50, 0, 350, 700),
    "a.round": (520, 50, 0, 460, 500), "a.tall": (540, 50, 0, 480, 600),
    "a.small": (300, 50, 0, 280, 300), "A_V": (1100, 50, 0, 1050, 700),
}
LAYOUT_CMAP = {0x41: "A", 0x61: "a", 0x56: "V", 0x54: "T", 0x6F: "o", 0x2C: "comma", 0x301: "acute",
               0x391: "Alpha", 0x3A4: "Tau", 0x5D0: "alef", 0x5D1: "bet", 0x2D: "hyphen",
               0x45: "E", 0xC6: "E", 0x415: "E", 0x30: "zero", 0x31: "one"}
LAYOUT_SYSTEMS = """
languagesystem DFLT dflt; languagesystem latn dflt; languagesystem latn TRK;
languagesystem grek dflt; languagesystem hebr dflt;
table GDEF { GlyphClassDef [A a V T o comma Alpha Tau E zero one], , [acute], ; } GDEF;
"""
LAYOUT_FEATURES = LAYOUT_SYSTEMS + """
feature zero { sub zero by zero.slash; } zero;
feature tnum { sub zero by zero.tab; sub one by one.tab; sub zero.slash by zero.slash.tab; } tnum;
feature salt { sub a from [a.round a.tall]; } salt;
feature liga { sub A V by A_V; } liga;
feature c2sc { script latn; language TRK exclude_dflt; sub a by a.small; } c2sc;
lookup SINGLE { pos A V -100; pos V A -120; pos A acute -300; pos one.tab one.tab -200; } SINGLE;
lookup SECOND { pos A <0 0 -50 0> T <40 0 60 0>; pos T A <-30 0 -90 0>; } SECOND;
lookup CLASSES { lookupflag IgnoreMarks; pos [T V] [a o] -80; pos [T V] [comma] -140; } CLASSES;
lookup PLACES { pos comma <40 0 0 0>; } PLACES;
lookup GREEK { pos Alpha Tau -110; pos hyphen Tau -70; pos Tau hyphen -60; } GREEK;
lookup LATIN { pos hyphen T -60; pos T hyphen -55; pos hyphen hyphen 64; } LATIN;
lookup HEBREW { pos alef bet <-90 0 -90 0>; pos bet hyphen <-45 0 -45 0>; } HEBREW;
feature kern {
    lookup SINGLE; lookup SECOND; lookup CLASSES; lookup PLACES;
    script latn; lookup SINGLE; lookup SECOND; lookup CLASSES; lookup PLACES; lookup LATIN;
    language TRK; pos A A -333;
    script grek; lookup GREEK;
    script hebr; lookup HEBREW;
} kern;
feature cpsp { pos A <5 0 10 0>; } cpsp;
"""


def with_features(name, features, axes=None):
    font = build(name, "Regular", LAYOUT_LETTERS, LAYOUT_CMAP)
    if axes is not None:
        font.setupFvar(axes=axes, instances=[{"location": {"wght": 900}, "stylename": "Heavy"}])
        font.setupGvar({})
    addOpenTypeFeaturesFromString(font.font, features)
    return font.font


def pair_classes(font):
    for lookup in font["GPOS"].table.LookupList.Lookup:
        for subtable in lookup.SubTable:
            if getattr(subtable, "LookupType", 0) == 2 and subtable.Format == 2:
                yield subtable


def layout(folder):
    font = with_features("Test Layout", LAYOUT_FEATURES)
    for subtable in pair_classes(font):  # glyphs that are in no class kern as well
        subtable.Class1Record[0].Class2Record[0].Value1.XAdvance = -50
    font.save(os.path.join(folder, "layout.ttf"))


def contexts(folder):
    font = with_features("Test Contexts", LAYOUT_SYSTEMS + """
lookup NEAR { pos T -130; } NEAR;
lookup FAR { pos T -70; } FAR;
feature kern {
    pos T' lookup NEAR o;
    pos A T' lookup FAR;
    pos T' lookup FAR [acute V] A;
    pos A V -100;
} kern;
""")
    font.save(os.path.join(folder, "contexts.ttf"))


def moving(folder):
    font = with_features("Test Moving", LAYOUT_SYSTEMS + """
feature kern { pos A V (wght=400:-60 wght=900:-260); pos V A -100; } kern;
""", axes=[("wght", 400, 400, 900, "Weight")])
    font.save(os.path.join(folder, "moving.ttf"))


def unclassed(folder):
    font = with_features("Test Unclassed", LAYOUT_FEATURES)
    classes = font["GDEF"].table.GlyphClassDef.classDefs
    classes.update((glyph, 0x0A01) for glyph in font.getGlyphOrder())
    font.save(os.path.join(folder, "unclassed.ttf"))


def loose(folder):
    font = with_features("Test Loose", LAYOUT_FEATURES)
    data = font.getTableData("GPOS")
    font["GPOS"] = DefaultTable("GPOS")
    font["GPOS"].data = data[:len(data) * 2 // 3]
    font["GSUB"] = DefaultTable("GSUB")
    font["GSUB"].data = bytes(range(1, 251)) * 4
    font.save(os.path.join(folder, "loose.ttf"))


def everything(folder):
    """It claims 65,535 glyphs as well."""
    count = 0xFFFF
    scripts = struct.pack(">H4sHHHHHHH", 1, b"DFLT", 8, 4, 0, 0, 0xFFFF, 1, 0)
    features = struct.pack(">H4sHHHH", 1, b"kern", 8, 0, 1, 0)
    coverage = struct.pack(">HHHHH", 2, 1, 0, count - 1, 0)
    classes = struct.pack(">HHHHH", 2, 1, 0, count - 1, 1)
    start = 16 + 2 * 2 * 2
    subtables = 2000
    pairs = struct.pack(">HHHHHHHH", 2, start, 4, 0, start + 10, start + 20, 2, 2)
    pairs += struct.pack(">hhhh", 0, 0, 0, 0) + coverage + classes + classes
    lookups = struct.pack(">HHHHH", 1, 4, 2, 0, subtables)
    lookups += struct.pack(">H", 6 + 2 * subtables) * subtables + pairs
    place = 10
    header = [1, 0, place, place + len(scripts), place + len(scripts) + len(features)]
    data = struct.pack(">HHHHH", *header) + scripts + features + lookups
    font = build("Test Everything", "Regular", {"A": LETTERS["A"]}, {0x41: "A"}).font
    font["GPOS"] = DefaultTable("GPOS")
    font["GPOS"].data = data
    change_table(font, os.path.join(folder, "everything.ttf"), b"maxp", 4, ">H", count)


def bdf_text(properties, characters):
    lines = ["STARTFONT 2.1", "FONT -test-Bitmap-Bold-R-Normal--12-120-75-75-C-80-ISO10646-1",
             "SIZE 12 75 75", "FONTBOUNDINGBOX 8 12 0 -3", f"STARTPROPERTIES {len(properties)}"]
    lines += properties + ["ENDPROPERTIES", f"CHARS {len(characters)}"]
    for code, advance, box, rows in characters:
        lines += [f"STARTCHAR c{code}", f"ENCODING {code}", "SWIDTH 500 0", f"DWIDTH {advance} 0",
                  "BBX " + " ".join(map(str, box)), "BITMAP", *rows, "ENDCHAR"]
    return "\n".join(lines + ["ENDFONT", ""])


def bitmap(folder):
    """A BDF font: letters, a blank that moves the cursor, one that does not, a code above 16 bits."""
    properties = ['FAMILY_NAME "Test Bitmap"', 'WEIGHT_NAME "Bold"', 'CHARSET_REGISTRY "ISO10646"',
                  'CHARSET_ENCODING "1"', "FONT_ASCENT 9", "FONT_DESCENT 3"]
    characters = [
        (0x20, 4, (0, 0, 0, 0), []),
        (0x21, 0, (0, 0, 0, 0), []),
        (0x41, 8, (7, 9, 0, 0), "10 28 28 44 44 7C 82 82 82".split()),
        (0x61, 7, (5, 6, 1, 0), "70 08 78 88 88 78".split()),
        (0x67, 7, (6, 9, -1, -3), "74 8C 84 84 8C 74 04 88 70".split()),
        (0x1F600, 8, (2, 1, 0, 0), ["C0"]),
    ]
    with open(os.path.join(folder, "bitmap.bdf"), "w", encoding="ascii") as out:
        out.write(bdf_text(properties, characters))


def main():
    folder = sys.argv[1]
    os.makedirs(folder, exist_ok=True)
    for make in (outlines, variable, collection, strike, hostile, damaged, packed, charmaps, layout,
                 contexts, moving, unclassed, loose, everything, bitmap):
        make(folder)


if __name__ == "__main__":
    main()
