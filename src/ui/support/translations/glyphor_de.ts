<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Engine</name>
    <message>
        <source>Legacy, 1bpp</source>
        <translation>Legacy, 1bpp</translation>
    </message>
    <message>
        <source>Legacy, anti-aliased, 2bpp</source>
        <translation>Legacy, geglättet, 2bpp</translation>
    </message>
    <message>
        <source>Legacy, anti-aliased, 4bpp</source>
        <translation>Legacy, geglättet, 4bpp</translation>
    </message>
    <message>
        <source>Standard, 1bpp</source>
        <translation>Standard, 1bpp</translation>
    </message>
    <message>
        <source>Standard, framed</source>
        <translation>Standard, umrahmt</translation>
    </message>
    <message>
        <source>Standard, anti-aliased, 2bpp</source>
        <translation>Standard, geglättet, 2bpp</translation>
    </message>
    <message>
        <source>Standard, anti-aliased, 4bpp</source>
        <translation>Standard, geglättet, 4bpp</translation>
    </message>
    <message>
        <source>Extended, 1bpp</source>
        <translation>Erweitert, 1bpp</translation>
    </message>
    <message>
        <source>Extended, framed</source>
        <translation>Erweitert, umrahmt</translation>
    </message>
    <message>
        <source>Extended, anti-aliased, 2bpp</source>
        <translation>Erweitert, geglättet, 2bpp</translation>
    </message>
    <message>
        <source>Extended, anti-aliased, 4bpp</source>
        <translation>Erweitert, geglättet, 4bpp</translation>
    </message>
    <message>
        <source>Indexing font files...</source>
        <translation>Schriftdateien werden erfasst...</translation>
    </message>
    <message>
        <source>Loading font...</source>
        <translation>Schrift wird geladen...</translation>
    </message>
    <message>
        <source>Reading character table...</source>
        <translation>Zeichentabelle wird gelesen...</translation>
    </message>
    <message>
        <source>Reading characters...</source>
        <translation>Zeichen werden gelesen...</translation>
    </message>
    <message>
        <source>Rendering font...</source>
        <translation>Schrift wird gerastert...</translation>
    </message>
    <message>
        <source>Saving C file...</source>
        <translation>C-Datei wird gespeichert...</translation>
    </message>
    <message>
        <source>TrueType font formats</source>
        <translation>TrueType-Schriften</translation>
    </message>
    <message>
        <source>Glyph Bitmap Distribution Format</source>
        <translation>Glyph Bitmap Distribution Format</translation>
    </message>
    <message>
        <source>C fonts</source>
        <translation>C-Schriften</translation>
    </message>
    <message>
        <source>External Bitmap Fonts</source>
        <translation>External Bitmap Fonts</translation>
    </message>
    <message>
        <source>System Independent Fonts</source>
        <translation>System Independent Fonts</translation>
    </message>
    <message>
        <source>Kerning C files</source>
        <translation>C-Dateien mit Kerning</translation>
    </message>
    <message>
        <source>All supported file types</source>
        <translation>Alle unterstützten Dateitypen</translation>
    </message>
    <message>
        <source>[Font]: Initial height of font: %1px.</source>
        <translation>[Schrift]: Anfangshöhe der Schrift: %1px.</translation>
    </message>
    <message>
        <source>[Font]: Opened font file: %1</source>
        <translation>[Schrift]: Schriftdatei geöffnet: %1</translation>
    </message>
    <message>
        <source>[Font]: Font merged with: %1</source>
        <translation>[Schrift]: Gemischt mit: %1</translation>
    </message>
    <message>
        <source>Inserted a column at the right edge.</source>
        <translation>Rechts eine Spalte eingefügt.</translation>
    </message>
    <message>
        <source>Inserted a column at the left edge.</source>
        <translation>Links eine Spalte eingefügt.</translation>
    </message>
    <message>
        <source>Inserted a row at the top edge.</source>
        <translation>Oben eine Zeile eingefügt.</translation>
    </message>
    <message>
        <source>Inserted a row at the bottom edge.</source>
        <translation>Unten eine Zeile eingefügt.</translation>
    </message>
    <message>
        <source>Pixel data shifted to the right.</source>
        <translation>Pixel nach rechts geschoben.</translation>
    </message>
    <message>
        <source>Pixel data shifted to the left.</source>
        <translation>Pixel nach links geschoben.</translation>
    </message>
    <message>
        <source>Pixel data shifted up.</source>
        <translation>Pixel nach oben geschoben.</translation>
    </message>
    <message>
        <source>Pixel data shifted down.</source>
        <translation>Pixel nach unten geschoben.</translation>
    </message>
    <message>
        <source>Moved 1 pixel to the right.</source>
        <translation>1 Pixel nach rechts versetzt.</translation>
    </message>
    <message>
        <source>Moved 1 pixel to the left.</source>
        <translation>1 Pixel nach links versetzt.</translation>
    </message>
    <message>
        <source>Moved 1 pixel up.</source>
        <translation>1 Pixel nach oben versetzt.</translation>
    </message>
    <message>
        <source>Moved 1 pixel down.</source>
        <translation>1 Pixel nach unten versetzt.</translation>
    </message>
    <message>
        <source>Increased cursor distance.</source>
        <translation>Vorschub vergrößert.</translation>
    </message>
    <message>
        <source>Decreased cursor distance.</source>
        <translation>Vorschub verkleinert.</translation>
    </message>
    <message>
        <source>Deleted a column from the right edge.</source>
        <translation>Rechts eine Spalte gelöscht.</translation>
    </message>
    <message>
        <source>Deleted a column from the left edge.</source>
        <translation>Links eine Spalte gelöscht.</translation>
    </message>
    <message>
        <source>Deleted a row from the top edge.</source>
        <translation>Oben eine Zeile gelöscht.</translation>
    </message>
    <message>
        <source>Deleted a row from the bottom edge.</source>
        <translation>Unten eine Zeile gelöscht.</translation>
    </message>
    <message>
        <source>[Font]: Inserted a row at the top of the font.</source>
        <translation>[Schrift]: Oben an der Schrift eine Zeile eingefügt.</translation>
    </message>
    <message>
        <source>[Font]: Inserted a row at the bottom of the font.</source>
        <translation>[Schrift]: Unten an der Schrift eine Zeile eingefügt.</translation>
    </message>
    <message>
        <source>[Font]: Deleted a row from the top of the font.</source>
        <translation>[Schrift]: Oben an der Schrift eine Zeile gelöscht.</translation>
    </message>
    <message>
        <source>[Font]: Deleted a row from the bottom of the font.</source>
        <translation>[Schrift]: Unten an der Schrift eine Zeile gelöscht.</translation>
    </message>
    <message>
        <source>Enabled.</source>
        <translation>Aktiviert.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>Deaktiviert.</translation>
    </message>
    <message>
        <source>[Font]: Read pattern file: %1.</source>
        <translation>[Schrift]: Musterdatei gelesen: %1.</translation>
    </message>
    <message>
        <source>Increased pixel index (%2,%3).</source>
        <translation>Pixelindex erhöht (%2,%3).</translation>
    </message>
    <message>
        <source>Decreased pixel index (%2,%3).</source>
        <translation>Pixelindex verringert (%2,%3).</translation>
    </message>
    <message>
        <source>Inverted pixel index (%2,%3).</source>
        <translation>Pixelindex invertiert (%2,%3).</translation>
    </message>
    <message>
        <source>Set pixel index (%2,%3) to %4.</source>
        <translation>Pixelindex (%2,%3) auf %4 gesetzt.</translation>
    </message>
    <message>
        <source>Deleted.</source>
        <translation>Gelöscht.</translation>
    </message>
    <message>
        <source>Saved font file: %1</source>
        <translation>Schriftdatei gespeichert: %1</translation>
    </message>
    <message>
        <source>Saved kerning file: %1</source>
        <translation>Kerning-Datei gespeichert: %1</translation>
    </message>
    <message>
        <source>Font merging not possible!</source>
        <translation>Mischen nicht möglich!</translation>
    </message>
    <message>
        <source>The two fonts do not have the same format!
The current font with the format &quot;%1&quot; cannot be merged with the other font of the format &quot;%2&quot;.</source>
        <translation>Die beiden Schriften haben nicht dasselbe Format!
Die aktuelle Schrift im Format „%1“ kann nicht mit der anderen im Format „%2“ gemischt werden.</translation>
    </message>
    <message>
        <source>One of the two fonts is encoded in Unicode and the other one in Shift JIS: a code means different characters in them.</source>
        <translation>Eine der beiden Schriften ist in Unicode kodiert, die andere in Shift JIS: Ein Code bezeichnet in ihnen verschiedene Zeichen.</translation>
    </message>
    <message>
        <source>All characters of a font in a legacy format have the font&apos;s height: the current font is %1 pixels high and the other one %2.</source>
        <translation>Alle Zeichen einer Schrift im Legacy-Format haben die Höhe der Schrift: Die aktuelle Schrift ist %1 Pixel hoch, die andere %2.</translation>
    </message>
    <message>
        <source>There is no font to merge with.</source>
        <translation>Es gibt keine Schrift, in die gemischt werden kann.</translation>
    </message>
    <message>
        <source>Font creation failed!</source>
        <translation>Die Schrift konnte nicht erzeugt werden!</translation>
    </message>
    <message>
        <source>Height in points</source>
        <translation>Höhe in Punkt</translation>
    </message>
    <message>
        <source>A height in points needs the resolution of a desktop, which a run without a window does not have. Give the height in pixels (px).</source>
        <translation>Eine Höhe in Punkt braucht die Auflösung eines Bildschirms, die es ohne Fenster nicht gibt. Bitte die Höhe in Pixeln (px) angeben.</translation>
    </message>
    <message>
        <source>its only face has the index 0</source>
        <translation>der einzige Schnitt hat den Index 0</translation>
    </message>
    <message>
        <source>the indices of its faces are 0 to %1</source>
        <translation>die Schnitte haben die Indizes 0 bis %1</translation>
    </message>
    <message>
        <source>The file %1 has no face with the index %2: %3.</source>
        <translation>Die Datei %1 hat keinen Schnitt mit dem Index %2: %3.</translation>
    </message>
    <message>
        <source>Invalid combination of encoding and font format!</source>
        <translation>Kodierung und Schriftformat passen nicht zusammen!</translation>
    </message>
    <message>
        <source>SJIS fonts have to be in a legacy font format [LEG, LEG_AA2, LEG_AA4].</source>
        <translation>Schriften in SJIS müssen ein Legacy-Format haben [LEG, LEG_AA2, LEG_AA4].</translation>
    </message>
    <message>
        <source>The font file %1 can&apos;t be used: %2</source>
        <translation>Die Schriftdatei %1 ist nicht verwendbar: %2</translation>
    </message>
    <message>
        <source>Error opening file!</source>
        <translation>Fehler beim Öffnen der Datei!</translation>
    </message>
    <message>
        <source>The format of the font in %1 was not told, so it was not opened.</source>
        <translation>Das Format der Schrift in %1 wurde nicht genannt; sie wurde nicht geöffnet.</translation>
    </message>
    <message>
        <source>Font format</source>
        <translation>Schriftformat</translation>
    </message>
    <message>
        <source>The file %1 has the format &quot;%2&quot;; the format &quot;%3&quot; was not used.</source>
        <translation>Die Datei %1 hat das Format „%2“; das Format „%3“ wurde nicht verwendet.</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>The file %1 has an encoding of its own; the one given was not used.</source>
        <translation>Die Datei %1 hat eine eigene Kodierung; die angegebene wurde nicht verwendet.</translation>
    </message>
    <message>
        <source>Font has invalid metrics.</source>
        <translation>Die Maße der Schrift sind ungültig.</translation>
    </message>
    <message>
        <source>Invalid file format!</source>
        <translation>Ungültiges Dateiformat!</translation>
    </message>
    <message>
        <source>Legacy font formats cannot be saved in the XBF format.</source>
        <translation>Legacy-Formate können nicht im XBF-Format gespeichert werden.</translation>
    </message>
    <message>
        <source>Font is empty!</source>
        <translation>Die Schrift ist leer!</translation>
    </message>
    <message>
        <source>The font has no enabled characters that could be saved.</source>
        <translation>Die Schrift hat keine aktiven Zeichen, die gespeichert werden könnten.</translation>
    </message>
    <message>
        <source>No kerning data!</source>
        <translation>Keine Kerning-Daten!</translation>
    </message>
    <message>
        <source>The enabled characters don&apos;t have any kerning data that could be saved to a file.</source>
        <translation>Die aktiven Zeichen haben keine Kerning-Daten, die gespeichert werden könnten.</translation>
    </message>
    <message>
        <source>Given file does not exist!</source>
        <translation>Die angegebene Datei gibt es nicht!</translation>
    </message>
    <message>
        <source>The file %1 is a directory.</source>
        <translation>Die Datei %1 ist ein Verzeichnis.</translation>
    </message>
    <message>
        <source>The file %1 is not an ordinary file.</source>
        <translation>%1 ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>Die Datei %1 ist leer.</translation>
    </message>
    <message>
        <source>The file %1 could not be read: %2</source>
        <translation>Die Datei %1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The pattern file %1 could not be read: %2</source>
        <translation>Die Musterdatei %1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Wrong encoding in pattern file!</source>
        <translation>Falsche Kodierung der Musterdatei!</translation>
    </message>
    <message>
        <source>UTF-16 LE byte order mark was not found.</source>
        <translation>Die Bytereihenfolge-Marke von UTF-16 LE fehlt.</translation>
    </message>
    <message>
        <source>Pattern file</source>
        <translation>Musterdatei</translation>
    </message>
    <message>
        <source>The pattern file %1 ends in the middle of a character, which was left out.</source>
        <translation>Die Musterdatei %1 endet mitten in einem Zeichen, das ausgelassen wurde.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Sie ist zu groß.</translation>
    </message>
    <message>
        <source>It is a directory.</source>
        <translation>Sie ist ein Verzeichnis.</translation>
    </message>
    <message>
        <source>Error saving file!</source>
        <translation>Fehler beim Speichern der Datei!</translation>
    </message>
    <message>
        <source>The file %1 could not be written: %2</source>
        <translation>Die Datei %1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Its styles are: %1</source>
        <translation>Sie hat die Schnitte: %1</translation>
    </message>
    <message>
        <source>There are no fonts in the font directories.</source>
        <translation>In den Schriftverzeichnissen sind keine Schriften.</translation>
    </message>
    <message>
        <source>Families with a similar name: %1</source>
        <translation>Familien mit ähnlichem Namen: %1</translation>
    </message>
    <message>
        <source>Font %1 %2 could not be found!</source>
        <translation>Die Schrift %1 %2 wurde nicht gefunden!</translation>
    </message>
    <message>
        <source>The font height %1 is not usable: -height takes a whole number from 1 to %2, followed by px or pt (e.g. 24px).</source>
        <translation>Die Schrifthöhe %1 ist nicht verwendbar: -height nimmt eine ganze Zahl von 1 bis %2 mit px oder pt (z. B. 24px).</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Invalid measuring format, assuming px.</source>
        <translation>Unbekannte Einheit, px wird angenommen.</translation>
    </message>
    <message>
        <source>-face is not used with -create: the style tells the face.</source>
        <translation>-face gilt nicht mit -create: Der Stil bestimmt den Schnitt.</translation>
    </message>
    <message>
        <source>A scalable font needs a height: give -height (e.g. -height 24px).</source>
        <translation>Eine skalierbare Schrift braucht eine Höhe: bitte -height angeben (z. B. -height 24px).</translation>
    </message>
    <message>
        <source>The range 0x%1-0x%2 is reversed, assuming 0x%2-0x%1.</source>
        <translation>Der Bereich 0x%1-0x%2 ist verkehrt herum, 0x%2-0x%1 wird angenommen.</translation>
    </message>
    <message>
        <source>GUI_FONT structure not found!</source>
        <translation>Struktur GUI_FONT nicht gefunden!</translation>
    </message>
    <message>
        <source>Array identifier of GUI_FONT structure expected but not found!</source>
        <translation>Name des Feldes der Struktur GUI_FONT erwartet, aber nicht gefunden!</translation>
    </message>
    <message>
        <source>GUI_FONTTYPE not found!</source>
        <translation>GUI_FONTTYPE nicht gefunden!</translation>
    </message>
    <message>
        <source>Invalid font format!</source>
        <translation>Ungültiges Schriftformat!</translation>
    </message>
    <message>
        <source>A font metric of %1 is not possible: 0 to 255 are.</source>
        <translation>Ein Schriftmaß von %1 ist nicht möglich, nur 0 bis 255.</translation>
    </message>
    <message>
        <source>Error parsing integer!</source>
        <translation>Ganze Zahl nicht lesbar!</translation>
    </message>
    <message>
        <source>Invalid number of elements (%1) found in structure %2!</source>
        <translation>Falsche Anzahl von Elementen (%1) in der Struktur %2!</translation>
    </message>
    <message>
        <source>No character can have such a size or offset.</source>
        <translation>Kein Zeichen kann eine solche Größe oder einen solchen Versatz haben.</translation>
    </message>
    <message>
        <source>The bytes per line are not what the width needs.</source>
        <translation>Die Bytes je Zeile passen nicht zur Breite.</translation>
    </message>
    <message>
        <source>The property block points outside the character table.</source>
        <translation>Der Eigenschaftsblock zeigt aus der Zeichentabelle hinaus.</translation>
    </message>
    <message>
        <source>The property block has characters of another block.</source>
        <translation>Der Eigenschaftsblock enthält Zeichen eines anderen Blocks.</translation>
    </message>
    <message>
        <source>No property block tells the code of the character.</source>
        <translation>Kein Eigenschaftsblock nennt den Code des Zeichens.</translation>
    </message>
    <message>
        <source>Codes of characters</source>
        <translation>Codes der Zeichen</translation>
    </message>
    <message>
        <source>The property blocks and the array names do not agree on the codes of %1 characters (%2). Codes were taken from the blocks where there are any.</source>
        <translation>Eigenschaftsblöcke und Feldnamen nennen für %1 Zeichen verschiedene Codes (%2). Wo es Blöcke gibt, gelten deren Codes.</translation>
    </message>
    <message>
        <source>File ended before all character data could be read!</source>
        <translation>Die Datei endet, bevor alle Zeichen gelesen werden konnten!</translation>
    </message>
    <message>
        <source>The array belongs to too many characters.</source>
        <translation>Das Feld gehört zu zu vielen Zeichen.</translation>
    </message>
    <message>
        <source>Invalid amount of bytes read from character bitmap 0x%1</source>
        <translation>Falsche Anzahl von Bytes im Bitmap des Zeichens 0x%1</translation>
    </message>
    <message>
        <source>Pixels of characters</source>
        <translation>Pixel der Zeichen</translation>
    </message>
    <message>
        <source>Bytes that are neither numbers nor patterns of &quot;X&quot; and &quot;_&quot;: %1. What is not &quot;X&quot; in them was taken for an empty pixel.</source>
        <translation>Bytes, die weder Zahlen noch Muster aus „X“ und „_“ sind: %1. Was darin nicht „X“ ist, gilt als leeres Pixel.</translation>
    </message>
    <message>
        <source>Integer not found!</source>
        <translation>Ganze Zahl nicht gefunden!</translation>
    </message>
    <message>
        <source>Error reading C file!</source>
        <translation>Fehler beim Lesen der C-Datei!</translation>
    </message>
    <message>
        <source>Unsupported format!</source>
        <translation>Nicht unterstütztes Format!</translation>
    </message>
    <message>
        <source>Given file format is not supported!</source>
        <translation>Das Format dieser Datei wird nicht unterstützt!</translation>
    </message>
    <message>
        <source>Its header has a height of %1 pixels; 255 are possible.</source>
        <translation>Ihr Kopf nennt eine Höhe von %1 Pixeln; möglich sind 255.</translation>
    </message>
    <message>
        <source>It ends with the number %1, which is no font format.</source>
        <translation>Sie endet mit der Zahl %1, die kein Schriftformat ist.</translation>
    </message>
    <message>
        <source>The file %1 can&apos;t be used as a font. %2</source>
        <translation>Die Datei %1 ist nicht als Schrift verwendbar. %2</translation>
    </message>
    <message>
        <source>Reading of SIF file failed!</source>
        <translation>Die SIF-Datei konnte nicht gelesen werden!</translation>
    </message>
    <message>
        <source>It is too short for its %1 ranges of characters.</source>
        <translation>Sie ist zu kurz für ihre %1 Zeichenbereiche.</translation>
    </message>
    <message>
        <source>Its ranges of characters are not in ascending order.</source>
        <translation>Ihre Zeichenbereiche sind nicht aufsteigend geordnet.</translation>
    </message>
    <message>
        <source>It does not begin with &quot;GUIP&quot; and a header.</source>
        <translation>Sie beginnt nicht mit „GUIP“ und einem Kopf.</translation>
    </message>
    <message>
        <source>Error reading XBF file!</source>
        <translation>Fehler beim Lesen der XBF-Datei!</translation>
    </message>
    <message>
        <source>It is too short for its table of the codes 0x%1 to 0x%2.</source>
        <translation>Sie ist zu kurz für ihre Tabelle der Codes 0x%1 bis 0x%2.</translation>
    </message>
    <message>
        <source>Its characters overlap.</source>
        <translation>Ihre Zeichen überlappen sich.</translation>
    </message>
    <message>
        <source>It does not begin with &quot;GUIX&quot;.</source>
        <translation>Sie beginnt nicht mit „GUIX“.</translation>
    </message>
    <message>
        <source>It does not end with &quot;XBF&quot; and the font&apos;s format, so some of it may be missing.</source>
        <translation>Sie endet nicht mit „XBF“ und dem Schriftformat; vielleicht fehlt ein Teil.</translation>
    </message>
    <message>
        <source>Error reading file</source>
        <translation>Fehler beim Lesen der Datei</translation>
    </message>
    <message>
        <source>BDF font file could not be read!</source>
        <translation>Die BDF-Datei konnte nicht gelesen werden!</translation>
    </message>
    <message>
        <source>Characters left out</source>
        <translation>Ausgelassene Zeichen</translation>
    </message>
    <message>
        <source>Characters left out: %1 (%2). They need more than a character can hold: 255 pixels each way, a cursor distance from 0 to 255, offsets from -128.</source>
        <translation>Ausgelassene Zeichen: %1 (%2). Sie brauchen mehr, als ein Zeichen fassen kann: 255 Pixel in jeder Richtung, einen Vorschub von 0 bis 255, Versatz ab -128.</translation>
    </message>
    <message>
        <source>Kerning left out</source>
        <translation>Ausgelassenes Kerning</translation>
    </message>
    <message>
        <source>The font has too many kerning pairs; some were left out.</source>
        <translation>Die Schrift hat zu viele Kerning-Paare; einige wurden ausgelassen.</translation>
    </message>
    <message>
        <source>Font has no outlines</source>
        <translation>Schrift ohne Umrisse</translation>
    </message>
    <message>
        <source>The font has bitmaps only, which are %1 pixels high.</source>
        <translation>Die Schrift hat nur Bitmaps; sie sind %1 Pixel hoch.</translation>
    </message>
    <message>
        <source>It could not be opened.</source>
        <translation>Sie konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>It is not a font file.</source>
        <translation>Sie ist keine Schriftdatei.</translation>
    </message>
    <message>
        <source>Its contents are damaged (FreeType error %1).</source>
        <translation>Ihr Inhalt ist beschädigt (FreeType-Fehler %1).</translation>
    </message>
    <message>
        <source>Beside the font: %1</source>
        <translation>Neben der Schrift: %1</translation>
    </message>
    <message>
        <source>More than a font</source>
        <translation>Mehr als eine Schrift</translation>
    </message>
    <message>
        <source>The file %1 holds more than a font. Replace all of it?</source>
        <translation>Die Datei %1 enthält mehr als eine Schrift. Alles ersetzen?</translation>
    </message>
    <message>
        <source>The file %1 holds more than a font; save under another name.</source>
        <translation>Die Datei %1 enthält mehr als eine Schrift; bitte unter einem anderen Namen speichern.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Sie ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Harte Links</translation>
    </message>
    <message>
        <source>The file %1 had other names (hard links). They keep its old contents.</source>
        <translation>Die Datei %1 hatte weitere Namen (harte Links). Dort bleibt der alte Inhalt.</translation>
    </message>
    <message>
        <source>The file %1 is no log of this program, so no log was written.</source>
        <translation>Die Datei %1 ist kein Protokoll dieses Programms, daher wurde keines geschrieben.</translation>
    </message>
    <message>
        <source>The file holds more than its first font, which alone was read. Beside it: %1</source>
        <translation>Die Datei enthält mehr als ihre erste Schrift; nur diese wurde gelesen. Daneben: %1</translation>
    </message>
    <message>
        <source>The file %1 is encoded in UTF-16 or UTF-32. Save it in UTF-8 with an editor, and open it again.</source>
        <translation>Die Datei %1 ist in UTF-16 oder UTF-32 kodiert. Bitte in einem Editor als UTF-8 speichern und wieder öffnen.</translation>
    </message>
    <message>
        <source>It claims more memory than a font of its size needs.</source>
        <translation>Sie verlangt mehr Speicher, als eine Schrift ihrer Größe braucht.</translation>
    </message>
    <message>
        <source>%1 structure not found!</source>
        <translation>%1: Struktur nicht gefunden!</translation>
    </message>
    <message>
        <source>%1 entry not found!</source>
        <translation>%1: Eintrag nicht gefunden!</translation>
    </message>
    <message>
        <source>%1 entry did not end in the same line!</source>
        <translation>%1: Der Eintrag endet nicht in derselben Zeile!</translation>
    </message>
    <message>
        <source>%1

Error occured in:
Line: %2
Column: %3</source>
        <translation>%1

Stelle des Fehlers:
Zeile: %2
Spalte: %3</translation>
    </message>
    <message>
        <source>The character 0x%1 has a size or an offset that no character can have.</source>
        <translation>Das Zeichen 0x%1 hat eine Größe oder einen Versatz, den kein Zeichen haben kann.</translation>
    </message>
    <message>
        <source>The character 0x%1 has pixels outside the file.</source>
        <translation>Das Zeichen 0x%1 hat Pixel außerhalb der Datei.</translation>
    </message>
    <message>
        <source>The character 0x%1 has rows of %2 bytes, which is not what its width of %3 needs.</source>
        <translation>Das Zeichen 0x%1 hat Zeilen von %2 Byte, was nicht zu seiner Breite von %3 passt.</translation>
    </message>
    <message>
        <source>File size of input file: %1 bytes.<byte value="xd"/>
File size that was expected: %2 bytes.<byte value="xd"/>
<byte value="xd"/>
The previously entered font format may not be correct or the file may be corrupted.</source>
        <translation>Größe der Datei: %1 Byte.<byte value="xd"/>
Erwartete Größe: %2 Byte.<byte value="xd"/>
<byte value="xd"/>
Vielleicht ist das zuvor gewählte Schriftformat falsch oder die Datei beschädigt.</translation>
    </message>
    <message>
        <source>It may be corrupted.<byte value="xd"/>
File size of input file: %1 bytes.<byte value="xd"/>
File size that was expected: %2 bytes.</source>
        <translation>Sie ist vielleicht beschädigt.<byte value="xd"/>
Größe der Datei: %1 Byte.<byte value="xd"/>
Erwartete Größe: %2 Byte.</translation>
    </message>
    <message>
        <source>The character 0x%1 points to other pixels than its own.</source>
        <translation>Das Zeichen 0x%1 zeigt auf andere Pixel als seine eigenen.</translation>
    </message>
    <message>
        <source>The character 0x%1 lies outside the file.</source>
        <translation>Das Zeichen 0x%1 liegt außerhalb der Datei.</translation>
    </message>
    <message>
        <source>The character 0x%1 is too small.</source>
        <translation>Das Zeichen 0x%1 ist zu klein.</translation>
    </message>
    <message>
        <source>The character 0x%1 has a size in the table that is not the size of its pixels.</source>
        <translation>Das Zeichen 0x%1 hat in der Tabelle eine andere Größe als seine Pixel.</translation>
    </message>
    <message>
        <source>A comment is not closed.</source>
        <translation>Ein Kommentar ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>A character literal is not closed.</source>
        <translation>Eine Zeichenkonstante ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>A string is not closed.</source>
        <translation>Eine Zeichenkette ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>An escape sequence has no meaning.</source>
        <translation>Eine Escape-Sequenz hat keine Bedeutung.</translation>
    </message>
    <message>
        <source>It is not valid JSON: %1</source>
        <translation>Sie ist kein gültiges JSON: %1</translation>
    </message>
    <message>
        <source>It holds one half of a surrogate pair.</source>
        <translation>Sie enthält die eine Hälfte eines Ersatzpaares.</translation>
    </message>
    <message>
        <source>A field in quotes is not closed.</source>
        <translation>Ein Feld in Anführungszeichen ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>A message lacks its translation.</source>
        <translation>Einer Meldung fehlt ihre Übersetzung.</translation>
    </message>
    <message>
        <source>A translation lacks its message.</source>
        <translation>Einer Übersetzung fehlt ihre Meldung.</translation>
    </message>
    <message>
        <source>It is no catalogue of gettext.</source>
        <translation>Sie ist kein Katalog von gettext.</translation>
    </message>
    <message>
        <source>A string lacks its keyword.</source>
        <translation>Einer Zeichenkette fehlt ihr Schlüsselwort.</translation>
    </message>
    <message>
        <source>It is in the encoding %1; convert it to UTF-8.</source>
        <translation>Sie hat die Kodierung %1; wandeln Sie sie in UTF-8 um.</translation>
    </message>
    <message>
        <source>The number of an escape sequence is too large.</source>
        <translation>Die Zahl einer Escape-Sequenz ist zu groß.</translation>
    </message>
    <message>
        <source>An escape sequence lacks its digits.</source>
        <translation>Einer Escape-Sequenz fehlen ihre Ziffern.</translation>
    </message>
    <message>
        <source>It ends in the middle of a character.</source>
        <translation>Sie endet mitten in einem Zeichen.</translation>
    </message>
    <message>
        <source>It is not valid UTF-8.</source>
        <translation>Sie ist kein gültiges UTF-8.</translation>
    </message>
    <message>
        <source>It is in UTF-32; save it in UTF-8.</source>
        <translation>Sie ist in UTF-32; speichern Sie sie in UTF-8.</translation>
    </message>
    <message>
        <source>It seems to be in UTF-16, but it has no byte order mark.</source>
        <translation>Sie ist wohl in UTF-16, hat aber keine Bytereihenfolge-Marke.</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is no character.</source>
        <translation>Der Wert „%1“ ist kein Zeichen.</translation>
    </message>
    <message>
        <source>Its first element is not %1.</source>
        <translation>Ihr erstes Element ist nicht %1.</translation>
    </message>
    <message>
        <source>Error parsing range: %1</source>
        <translation>Fehler beim Lesen des Bereichs: %1</translation>
    </message>
    <message>
        <source>Invalid create string syntax: %1</source>
        <translation>Ungültige Angaben zum Erstellen der Schrift: %1</translation>
    </message>
    <message>
        <source>Invalid create string syntax: W%1</source>
        <translation>Ungültige Angaben zum Erstellen der Schrift: W%1</translation>
    </message>
    <message>
        <source>Invalid font format: %1</source>
        <translation>Ungültiges Schriftformat: %1</translation>
    </message>
    <message>
        <source>Invalid encoding type: %2</source>
        <translation>Ungültige Kodierung: %2</translation>
    </message>
    <message>
        <source>Font merging</source>
        <translation>Mischen von Schriften</translation>
    </message>
    <message>
        <source>The current font is %1 pixels high with its baseline at %2, the other one %3 with its baseline at %4: their characters do not stand on one line.</source>
        <translation>Die aktuelle Schrift ist %1 Pixel hoch und hat ihre Grundlinie bei %2, die andere ist %3 Pixel hoch mit der Grundlinie bei %4: Ihre Zeichen stehen nicht auf einer Zeile.</translation>
    </message>
    <message>
        <source>Font has no rows!</source>
        <translation>Die Schrift hat keine Zeilen!</translation>
    </message>
    <message>
        <source>All rows of the font were deleted, so it can&apos;t be saved.</source>
        <translation>Alle Zeilen der Schrift sind gelöscht; sie kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>%1 is not in Shift JIS</source>
        <translation>%1 gibt es in Shift JIS nicht</translation>
    </message>
    <message>
        <source>%1 is not in the font</source>
        <translation>%1 fehlt in der Schrift</translation>
    </message>
    <message>
        <source>%1 of the %2 characters 0x%3-0x%4 are not in the font: %5</source>
        <translation>%1 der %2 Zeichen 0x%3-0x%4 fehlen in der Schrift: %5</translation>
    </message>
    <message>
        <source>%1: the font has no character there</source>
        <translation>%1: Die Schrift hat dort kein Zeichen</translation>
    </message>
    <message>
        <source>%1: %2 of %3 steps were left out</source>
        <translation>%1: %2 von %3 Schritten blieben aus</translation>
    </message>
    <message>
        <source>%1: up to %2 of %3 steps were left out, on %4 of %5 characters</source>
        <translation>%1: Bis zu %2 von %3 Schritten blieben aus, bei %4 von %5 Zeichen</translation>
    </message>
    <message>
        <source>[Font]: %1 of %2 steps were left out; its height is %3 now</source>
        <translation>[Schrift]: %1 von %2 Schritten blieben aus; sie ist jetzt %3 Pixel hoch</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>0, 1 or 2</source>
        <translation>0, 1 oder 2</translation>
    </message>
    <message>
        <source>folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>The setting %1 can&apos;t be &quot;%2&quot;: it takes %3.</source>
        <translation>Die Einstellung %1 kann nicht „%2“ sein: Möglich ist %3.</translation>
    </message>
    <message>
        <source>%1 sets nothing: write KEY=VALUE.</source>
        <translation>%1 stellt nichts ein: Schreiben Sie SCHLÜSSEL=WERT.</translation>
    </message>
    <message>
        <source>There is no setting %1 that a run heeds. Those that there are: %2</source>
        <translation>Es gibt keine Einstellung %1, die beachtet würde. Es gibt: %2</translation>
    </message>
    <message>
        <source>Error reading arguments!</source>
        <translation>Fehler beim Lesen der Argumente!</translation>
    </message>
    <message>
        <source>The argument file %1 could not be read: %2</source>
        <translation>Die Argumentdatei %1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>It is no text in UTF-8.</source>
        <translation>Sie ist kein Text in UTF-8.</translation>
    </message>
    <message>
        <source>A quotation mark is missing.</source>
        <translation>Ein Anführungszeichen fehlt.</translation>
    </message>
    <message>
        <source>Argument files are nested deeper than %1.</source>
        <translation>Argumentdateien sind tiefer als %1 geschachtelt.</translation>
    </message>
    <message>
        <source>Option: %1</source>
        <translation>Option: %1</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Datei: %1</translation>
    </message>
    <message>
        <source>The %1 of -%2 has to be from 0 to %3.</source>
        <translation>%1 von -%2 muss zwischen 0 und %3 liegen.</translation>
    </message>
    <message>
        <source>The name %1 is not usable: -name takes letters of ASCII, digits and underscores, as in the identifiers of C.</source>
        <translation>Der Name %1 ist nicht verwendbar: -name nimmt ASCII-Buchstaben, Ziffern und Unterstriche, wie in Bezeichnern von C.</translation>
    </message>
    <message>
        <source>-check writes no font: it can&apos;t be given with -save or -kerning.</source>
        <translation>-check schreibt keine Schrift und kann nicht zusammen mit -save oder -kerning stehen.</translation>
    </message>
    <message>
        <source>-depfile needs a file that depends on others: give -save, -kerning or -report.</source>
        <translation>-depfile braucht eine Datei, die von anderen abhängt: Geben Sie -save, -kerning oder -report an.</translation>
    </message>
    <message>
        <source>There is no character set %1: -listcharsets lists them.</source>
        <translation>Es gibt keinen Zeichensatz %1: -listcharsets zählt sie auf.</translation>
    </message>
    <message>
        <source>Option without effect</source>
        <translation>Option ohne Wirkung</translation>
    </message>
    <message>
        <source>-%1 was not used: the file %2 is not rendered.</source>
        <translation>-%1 wurde nicht verwendet: Die Datei %2 wird nicht gerastert.</translation>
    </message>
    <message>
        <source>The name %1 has a line end, which dependency files can&apos;t have.</source>
        <translation>Der Name %1 enthält ein Zeilenende, was in Abhängigkeitsdateien nicht geht.</translation>
    </message>
    <message>
        <source>The font has all characters that were asked for.</source>
        <translation>Die Schrift hat alle verlangten Zeichen.</translation>
    </message>
    <message>
        <source>Characters that the font does not have: %1</source>
        <translation>Zeichen, die der Schrift fehlen: %1</translation>
    </message>
    <message>
        <source>At a height of %1 pixels every character is larger than 255 pixels: the largest height that gives a character is about %2 pixels.</source>
        <translation>Bei einer Höhe von %1 Pixeln ist jedes Zeichen größer als 255 Pixel: Die größte Höhe, die ein Zeichen ergibt, ist etwa %2 Pixel.</translation>
    </message>
    <message>
        <source>It is not valid XML: %1</source>
        <translation>Sie ist kein gültiges XML: %1</translation>
    </message>
    <message>
        <source>The font lacks characters that were asked for, so it was not saved.</source>
        <translation>Der Schrift fehlen verlangte Zeichen; sie wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>The font has no kerning, so it was not saved.</source>
        <translation>Die Schrift hat kein Kerning; sie wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>Characters that the font does not have</source>
        <translation>Zeichen, die der Schrift fehlen</translation>
    </message>
    <message>
        <source>The file %1 can&apos;t be a source of characters: -source takes TTF, TTC and BDF files.</source>
        <translation>Die Datei %1 kann keine Zeichen liefern: -source nimmt TTF-, TTC- und BDF-Dateien.</translation>
    </message>
    <message>
        <source>The source %1 needs a height, behind its mapping or with -height.</source>
        <translation>Die Quelle %1 braucht eine Höhe, hinter ihrer Zuordnung oder mit -height.</translation>
    </message>
    <message>
        <source>The gamma %1 is not usable: -gamma takes a number from 0.1 to 10 (e.g. 1.4).</source>
        <translation>Das Gamma %1 ist nicht verwendbar: -gamma nimmt eine Zahl von 0.1 bis 10 (z. B. 1.4).</translation>
    </message>
    <message>
        <source>The font height %1 is not usable: em: takes a number from 1/64 to %2, followed by px or pt (e.g. em:16.5px).</source>
        <translation>Die Schrifthöhe %1 ist nicht verwendbar: em: nimmt eine Zahl von 1/64 bis %2, gefolgt von px oder pt (z. B. em:16.5px).</translation>
    </message>
    <message>
        <source>The mapping %1 is not usable: mappings are codes or ranges, decimal or hexadecimal, with = and the code where they go (e.g. 0x20-0x7E, 0xF0000-0xF00FF=0xE100 or 0xF02D1=0xE001:heart).</source>
        <translation>Das Gamma %1 ist nicht brauchbar: -gamma nimmt eine Zahl von 0.1 bis 10 (z. B. 1.4).</translation>
    </message>
    <message>
        <source>The mapping %1 has more codes than a font.</source>
        <translation>Die Zuordnung %1 hat mehr Codes als eine Schrift.</translation>
    </message>
    <message>
        <source>The mapping %1 goes beyond 0xFFFF, where fonts have no characters: say where they go, e.g. %2=%3.</source>
        <translation>Die Zuordnung %1 reicht über 0xFFFF hinaus, wo Schriften keine Zeichen haben: Geben Sie an, wohin sie kommen, z. B. %2=%3.</translation>
    </message>
    <message>
        <source>The mapping %1 is not usable: a name belongs to a single code, and has letters of ASCII, digits and underscores.</source>
        <translation>Die Zuordnung %1 geht über 0xFFFF hinaus, wo Schriften keine Zeichen haben: Es fehlt, wohin sie kommen, z. B. %2=%3.</translation>
    </message>
    <message>
        <source>symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>one of the font&apos;s own</source>
        <translation>eine eigene der Schrift</translation>
    </message>
    <message>
        <source>platform %1, encoding %2</source>
        <translation>Plattform %1, Kodierung %2</translation>
    </message>
    <message>
        <source>%1: it has none, so nothing tells which glyph is which character.</source>
        <translation>%1: Er hat keine, also sagt nichts, welche Glyphe welches Zeichen ist.</translation>
    </message>
    <message>
        <source>%1: it has %2. -charmap chooses one by its index.</source>
        <translation>%1: Er hat %2. -charmap wählt eine nach ihrem Index.</translation>
    </message>
    <message>
        <source>The face has no usable charmap with the index %1</source>
        <translation>Der Schnitt hat keine brauchbare Zeichentabelle mit dem Index %1</translation>
    </message>
    <message>
        <source>The face has no charmap of Unicode</source>
        <translation>Der Schnitt hat keine Zeichentabelle für Unicode</translation>
    </message>
    <message>
        <source>%1 from %2 to %3</source>
        <translation>%1 von %2 bis %3</translation>
    </message>
    <message>
        <source>The face has no position %1 on its axes, which are: %2.</source>
        <translation>Der Schnitt hat keine Position %1 auf seinen Achsen. Diese sind: %2.</translation>
    </message>
    <message>
        <source>The face has no axes: it is not variable, and -axes can&apos;t be used.</source>
        <translation>Der Schnitt hat keine Achsen: Er ist nicht variabel, und -axes ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>The axes %1 are not usable: -axes takes tags of four letters with their values (e.g. wght=550,wdth=87).</source>
        <translation>Der Schnitt hat die Stelle %1 nicht auf seinen Achsen: %2.</translation>
    </message>
    <message>
        <source>The axes %1 name %2 twice.</source>
        <translation>Die Achsen %1 nennen %2 zweimal.</translation>
    </message>
    <message>
        <source>The ink of all characters needs a line of %1 rows; a font has 255 at most.</source>
        <translation>Die Pixel aller Zeichen brauchen eine Zeile von %1 Pixeln Höhe; eine Schrift hat höchstens 255.</translation>
    </message>
    <message>
        <source>Both %1 and %2 give the character 0x%3. A ? in front of a mapping has it fill gaps only.</source>
        <translation>Sowohl %1 als auch %2 geben das Zeichen 0x%3. Mit einem ? vor der Zuordnung füllt sie nur Lücken.</translation>
    </message>
    <message>
        <source>Characters above U+FFFF, which were left out: %1. -map brings them in, e.g. -map 0x%2-0x%3=0x%4.</source>
        <translation>Alle Zeichen ganz zu zeigen braucht eine Zeile aus %1 Pixelreihen; eine Schrift hat höchstens 255.</translation>
    </message>
    <message>
        <source>Characters cut</source>
        <translation>Abgeschnittene Zeichen</translation>
    </message>
    <message>
        <source>Characters cut: %1 (%2). They need up to %3 rows above the font&apos;s line and %4 below it; -fit makes the line high enough.</source>
        <translation>Abgeschnittene Zeichen: %1 (%2). Sie brauchen bis zu %3 Pixelreihen über der Zeile der Schrift und %4 darunter; -fit macht die Zeile hoch genug.</translation>
    </message>
    <message>
        <source>Characters leave the line</source>
        <translation>Zeichen verlassen die Zeile</translation>
    </message>
    <message>
        <source>Characters of %1 that leave the font&apos;s line: %2 (%3), by up to %4 rows above it and %5 below it; -fit makes the line high enough.</source>
        <translation>Zeichen aus %1, die die Zeile der Schrift verlassen: %2 (%3), um bis zu %4 Pixelreihen darüber und %5 darunter; -fit macht die Zeile hoch genug.</translation>
    </message>
    <message>
        <source>Characters moved</source>
        <translation>Verschobene Zeichen</translation>
    </message>
    <message>
        <source>Characters that stand left of their origin: %1 (%2). The cells of legacy fonts can&apos;t show them there.</source>
        <translation>Zeichen, die links von ihrem Ursprung stehen: %1 (%2). Die Zellen von Legacy-Schriften können sie dort nicht zeigen.</translation>
    </message>
    <message>
        <source>%1 is not in %2</source>
        <translation>%1 fehlt in %2</translation>
    </message>
    <message>
        <source>%1 of the %2 characters %3 to %4 are not in %5: %6</source>
        <translation>%1 ist nicht in %2</translation>
    </message>
    <message>
        <source>Measuring font...</source>
        <translation>Schrift wird vermessen...</translation>
    </message>
    <message>
        <source>A height of %1 needs the letter %2, which the face does not have. Give another height, e.g. em:16px.</source>
        <translation>Eine Höhe von %1 braucht den Buchstaben %2, den der Schnitt nicht hat. Bitte eine andere Höhe angeben, z. B. em:16px.</translation>
    </message>
    <message>
        <source>No size of the face gives the height %1.</source>
        <translation>Keine Größe des Schnitts ergibt die Höhe %1.</translation>
    </message>
    <message>
        <source>The nearest that can be had: %1 px.</source>
        <translation>Die nächsten möglichen: %1 px.</translation>
    </message>
    <message>
        <source>%1 is above U+FFFF, where fonts have no characters: use one of U+E000 to U+F8FF in its place, where -map and -source can put it</source>
        <translation>%1 liegt über U+FFFF, wo Schriften keine Zeichen haben: Nehmen Sie stattdessen eines von U+E000 bis U+F8FF, wohin -map und -source es legen können</translation>
    </message>
    <message>
        <source>The font lacks characters that were asked for.</source>
        <translation>Der Schrift fehlen Zeichen, die verlangt wurden.</translation>
    </message>
    <message>
        <source>The font differs from %1, which is an error with -werror.</source>
        <translation>Die Schrift unterscheidet sich von %1, was mit -werror ein Fehler ist.</translation>
    </message>
    <message>
        <source>-prooftext is for a proof: give -proof.</source>
        <translation>-prooftext ist für eine Schriftprobe: Geben Sie -proof an.</translation>
    </message>
    <message>
        <source>PDF files need the library libhpdf, which is not installed.</source>
        <translation>PDF-Dateien brauchen die Bibliothek libhpdf, die nicht installiert ist.</translation>
    </message>
    <message>
        <source>libhpdf could not make the PDF file: error %1.</source>
        <translation>libhpdf konnte die PDF-Datei nicht erzeugen: Fehler %1.</translation>
    </message>
    <message>
        <source>PNG pictures</source>
        <translation>PNG-Bilder</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF-Dateien</translation>
    </message>
    <message>
        <source>Writing proof...</source>
        <translation>Schriftprobe wird geschrieben...</translation>
    </message>
    <message>
        <source>The file %1 does not exist.</source>
        <translation>Die Datei %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>The file %1 is too long for a proof, which takes texts up to %2 bytes.</source>
        <translation>Die Datei %1 ist zu lang für eine Schriftprobe, die Texte bis %2 Bytes zeigt.</translation>
    </message>
    <message>
        <source>The features %1 are not usable: the option is %2, with tags of four letters or digits (e.g. tnum,zero,ss01) and numbers from 1 to %3.</source>
        <translation>Die Merkmale %1 sind nicht verwendbar: Die Option ist %2, mit Kürzeln aus vier Buchstaben oder Ziffern (z. B. tnum,zero,ss01) und Zahlen von 1 bis %3.</translation>
    </message>
    <message>
        <source>The font has no kerning here: HarfBuzz, which reads it, could not be loaded.</source>
        <translation>Die Schrift hat hier kein Kerning: HarfBuzz, das es liest, konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>Features of a font need HarfBuzz, which could not be loaded.</source>
        <translation>Merkmale einer Schrift brauchen HarfBuzz, das nicht geladen werden konnte.</translation>
    </message>
    <message>
        <source>The font has no feature %1: it has none.</source>
        <translation>Die Schrift hat kein Merkmal %1: Sie hat keine.</translation>
    </message>
    <message>
        <source>The font has no feature %1: it has %2.</source>
        <translation>Die Schrift hat kein Merkmal %1: Sie hat %2.</translation>
    </message>
    <message>
        <source>Feature without effect</source>
        <translation>Merkmal ohne Wirkung</translation>
    </message>
    <message>
        <source>The feature %1 replaces none of the characters with one other.</source>
        <translation>Das Merkmal %1 ersetzt keines der Zeichen durch ein anderes.</translation>
    </message>
    <message>
        <source>Finding kerning pairs...</source>
        <translation>Kerning-Paare werden gesucht...</translation>
    </message>
    <message>
        <source>Characters cut on the baseline of the current font: %1 (%2). They lose up to %3 rows of ink at the top and %4 at the bottom.</source>
        <translation>Auf der Grundlinie der aktuellen Schrift abgeschnittene Zeichen: %1 (%2). Sie verlieren oben bis zu %3 und unten bis zu %4 Zeilen mit gesetzten Pixeln.</translation>
    </message>
    <message>
        <source>Characters that leave the current font&apos;s line on its baseline: %1 (%2), by up to %3 rows above it and %4 below it.</source>
        <translation>Zeichen, die auf der Grundlinie der aktuellen Schrift deren Zeile verlassen: %1 (%2), oben um bis zu %3 und unten um bis zu %4 Pixelzeilen.</translation>
    </message>
    <message>
        <source>Put the other font&apos;s characters on the current baseline?</source>
        <translation>Die Zeichen der anderen Schrift auf die aktuelle Grundlinie stellen?</translation>
    </message>
    <message>
        <source>The baselines are %1 pixels apart; -align baseline puts the merged characters on that of the current font.</source>
        <translation>Die Grundlinien liegen %1 Pixel auseinander; -align baseline stellt die hinzugefügten Zeichen auf die der aktuellen Schrift.</translation>
    </message>
    <message>
        <source>On the baseline of the current font the character 0x%1 would need an offset below -128 or more than 255 rows.</source>
        <translation>Auf der Grundlinie der aktuellen Schrift bräuchte das Zeichen 0x%1 einen Versatz unter -128 oder mehr als 255 Zeilen.</translation>
    </message>
    <message>
        <source>The encoding of the font has no %1, which the picture %2 is to be.</source>
        <translation>Die Kodierung der Schrift hat kein %1, zu dem das Bild %2 werden soll.</translation>
    </message>
    <message>
        <source>Picture without ink</source>
        <translation>Leeres Bild</translation>
    </message>
    <message>
        <source>The picture %1 has no ink, so its character is empty: dark pixels are ink, white and transparent ones are none.</source>
        <translation>Im Bild %1 ist kein Pixel gesetzt, sein Zeichen ist also leer: Dunkle Pixel sind gesetzt, weiße und durchsichtige nicht.</translation>
    </message>
    <message>
        <source>No names</source>
        <translation>Keine Namen</translation>
    </message>
    <message>
        <source>No character of the font has a name: the header names those that -map and -source put elsewhere or name, and those of -image.</source>
        <translation>Kein Zeichen der Schrift hat einen Namen: Die Header-Datei nennt die, denen -map und -source einen anderen Platz oder einen Namen geben, und die von -image.</translation>
    </message>
    <message>
        <source>Saved header file: %1</source>
        <translation>Header-Datei gespeichert: %1</translation>
    </message>
    <message>
        <source>The font has no characters with names, so it was not saved.</source>
        <translation>Die Schrift hat keine Zeichen mit Namen, deshalb wurde sie nicht gespeichert.</translation>
    </message>
    <message>
        <source>The code %1 is not usable: -image takes one up to 0xFFFF, decimal or hexadecimal, and a name behind a colon (e.g. 0xE001:heart).</source>
        <translation>Der Code %1 ist nicht verwendbar: -image nimmt einen bis 0xFFFF, dezimal oder hexadezimal, und hinter einem Doppelpunkt einen Namen (z. B. 0xE001:heart).</translation>
    </message>
    <message>
        <source>The name in %1 is not usable: names have letters of ASCII, digits and underscores.</source>
        <translation>Der Name in %1 ist nicht verwendbar: Namen bestehen aus Buchstaben von ASCII, Ziffern und Unterstrichen.</translation>
    </message>
    <message>
        <source>The rows of -image have to be from -%1 to %1.</source>
        <translation>Die Zeilen von -image müssen von -%1 bis %1 reichen.</translation>
    </message>
    <message>
        <source>The threshold %1 is not usable: -threshold takes 1 to 255.</source>
        <translation>Der Schwellenwert %1 ist nicht verwendbar: -threshold nimmt 1 bis 255.</translation>
    </message>
    <message>
        <source>-check writes nothing of the font: it can&apos;t be given with -header.</source>
        <translation>-check schreibt nichts von der Schrift: Es kann nicht zusammen mit -header angegeben werden.</translation>
    </message>
    <message>
        <source>-header and -%1 can&apos;t write the same file %2.</source>
        <translation>-header und -%1 können nicht dieselbe Datei %2 schreiben.</translation>
    </message>
    <message>
        <source>-align was not used: no font is merged.</source>
        <translation>-align wurde nicht verwendet: Es wird keine Schrift hinzugefügt.</translation>
    </message>
    <message>
        <source>-threshold was not used: there is no -image.</source>
        <translation>-threshold wurde nicht verwendet: Es gibt kein -image.</translation>
    </message>
    <message>
        <source>-header writes a C header: the name %1 does not end in .h.</source>
        <translation>-header schreibt eine C-Header-Datei: Der Name %1 endet nicht auf .h.</translation>
    </message>
    <message>
        <source>Both %1 and %2 give the character 0x%3.</source>
        <translation>Sowohl %1 als auch %2 geben das Zeichen 0x%3.</translation>
    </message>
    <message>
        <source>The file %1 is no PNG file that can be read: %2.</source>
        <translation>Die Datei %1 ist keine lesbare PNG-Datei: %2.</translation>
    </message>
    <message>
        <source>The picture %1 has %2 x %3 pixels; a character has 255 x 255 at most.</source>
        <translation>Das Bild %1 hat %2 x %3 Pixel; ein Zeichen hat höchstens 255 x 255.</translation>
    </message>
    <message>
        <source>The file %1 is larger than any picture of 255 x 255 pixels.</source>
        <translation>Die Datei %1 ist größer als jedes Bild mit 255 x 255 Pixeln.</translation>
    </message>
    <message>
        <source>The file %1 is no PNG file that can be read: it is cut off.</source>
        <translation>Die Datei %1 ist keine lesbare PNG-Datei: Sie ist abgeschnitten.</translation>
    </message>
    <message>
        <source>The number %1 is not usable: -jobs takes 1 to 256 threads.</source>
        <translation>Die Zahl %1 ist nicht verwendbar: -jobs nimmt 1 bis 256 Threads.</translation>
    </message>
    <message>
        <source>%1: %2 does not fit, so it was left out on %3 of %4 characters</source>
        <translation>%1: %2 passt nicht und wurde bei %3 von %4 Zeichen ausgelassen</translation>
    </message>
    <message>
        <source>Cursor distance set to %2.</source>
        <translation>Cursorabstand auf %2 gesetzt.</translation>
    </message>
    <message>
        <source>Drew a stroke with index %1.</source>
        <translation>Strich mit Index %1 gezeichnet.</translation>
    </message>
    <message>
        <source>Inverted the pixels of a stroke.</source>
        <translation>Pixel eines Strichs invertiert.</translation>
    </message>
    <message>
        <source>Erased the pixels of a stroke.</source>
        <translation>Pixel eines Strichs radiert.</translation>
    </message>
    <message>
        <source>Drew a line with index %1 from (%2,%3) to (%4,%5).</source>
        <translation>Linie mit Index %1 von (%2,%3) nach (%4,%5) gezeichnet.</translation>
    </message>
    <message>
        <source>Drew a rectangle with index %1 from (%2,%3) to (%4,%5).</source>
        <translation>Rechteck mit Index %1 von (%2,%3) nach (%4,%5) gezeichnet.</translation>
    </message>
    <message>
        <source>Filled a rectangle with index %1 from (%2,%3) to (%4,%5).</source>
        <translation>Rechteck mit Index %1 von (%2,%3) nach (%4,%5) gefüllt.</translation>
    </message>
    <message>
        <source>Filled the area at (%2,%3) with index %1.</source>
        <translation>Fläche bei (%2,%3) mit Index %1 gefüllt.</translation>
    </message>
    <message>
        <source>Flipped horizontally.</source>
        <translation>Waagerecht gespiegelt.</translation>
    </message>
    <message>
        <source>Flipped vertically.</source>
        <translation>Senkrecht gespiegelt.</translation>
    </message>
    <message>
        <source>Rotated to the right.</source>
        <translation>Nach rechts gedreht.</translation>
    </message>
    <message>
        <source>Rotated to the left.</source>
        <translation>Nach links gedreht.</translation>
    </message>
    <message>
        <source>Copied to 0x%2.</source>
        <translation>Nach 0x%2 kopiert.</translation>
    </message>
    <message>
        <source>Pasted.</source>
        <translation>Eingefügt.</translation>
    </message>
    <message>
        <source>Characters can&apos;t be copied!</source>
        <translation>Zeichen können nicht kopiert werden!</translation>
    </message>
    <message>
        <source>The character for 0x%1 does not fit into the font.</source>
        <translation>Das Zeichen für 0x%1 passt nicht in die Schrift.</translation>
    </message>
    <message>
        <source>0x%1 would get a code beyond 0xFFFF.</source>
        <translation>0x%1 bekäme einen Code über 0xFFFF.</translation>
    </message>
    <message>
        <source>0x%1 would get the code 0x%2, which the encoding of the font does not have.</source>
        <translation>0x%1 bekäme den Code 0x%2, den die Kodierung der Schrift nicht hat.</translation>
    </message>
    <message>
        <source>Flipped pixels horizontally.</source>
        <translation>Pixel waagerecht gespiegelt.</translation>
    </message>
    <message>
        <source>Flipped pixels vertically.</source>
        <translation>Pixel senkrecht gespiegelt.</translation>
    </message>
    <message>
        <source>Rotated pixels to the right.</source>
        <translation>Pixel nach rechts gedreht.</translation>
    </message>
    <message>
        <source>Rotated pixels to the left.</source>
        <translation>Pixel nach links gedreht.</translation>
    </message>
    <message>
        <source>Filled pixels with index %2.</source>
        <translation>Pixel mit Index %2 gefüllt.</translation>
    </message>
    <message>
        <source>Deleted pixels.</source>
        <translation>Pixel gelöscht.</translation>
    </message>
    <message>
        <source>Changed the indices of pixels.</source>
        <translation>Indizes von Pixeln geändert.</translation>
    </message>
    <message>
        <source>Pasted pixels.</source>
        <translation>Pixel eingefügt.</translation>
    </message>
    <message>
        <source>Moved pixels.</source>
        <translation>Pixel verschoben.</translation>
    </message>
    <message>
        <source>[Font]: Height set to %1.</source>
        <translation>[Font]: Höhe auf %1 gesetzt.</translation>
    </message>
    <message>
        <source>[Font]: Baseline set to %1.</source>
        <translation>[Font]: Grundlinie auf %1 gesetzt.</translation>
    </message>
    <message>
        <source>[Font]: Height of lowercase characters set to %1.</source>
        <translation>[Font]: Höhe der Kleinbuchstaben auf %1 gesetzt.</translation>
    </message>
    <message>
        <source>[Font]: Height of capital characters set to %1.</source>
        <translation>[Font]: Höhe der Großbuchstaben auf %1 gesetzt.</translation>
    </message>
    <message>
        <source>[Font]: Name set to %1.</source>
        <translation>[Font]: Name auf %1 gesetzt.</translation>
    </message>
    <message>
        <source>%1: characters of legacy formats have the font&apos;s height and no offsets</source>
        <translation>%1: Zeichen von Legacy-Formaten haben die Höhe der Schrift und keinen Versatz</translation>
    </message>
    <message>
        <source>Left edge set to %2.</source>
        <translation>Linker Rand auf %2 gesetzt.</translation>
    </message>
    <message>
        <source>Top row set to %2.</source>
        <translation>Oberste Zeile auf %2 gesetzt.</translation>
    </message>
    <message>
        <source>Width set to %2.</source>
        <translation>Breite auf %2 gesetzt.</translation>
    </message>
    <message>
        <source>Height set to %2.</source>
        <translation>Höhe auf %2 gesetzt.</translation>
    </message>
    <message>
        <source>Kerning with 0x%2 set to %3.</source>
        <translation>Kerning mit 0x%2 auf %3 gesetzt.</translation>
    </message>
    <message>
        <source>Kerning with %2 removed.</source>
        <translation>Kerning mit %2 entfernt.</translation>
    </message>
    <message>
        <source>Restored unsaved changes: %1</source>
        <translation>Ungespeicherte Änderungen wiederhergestellt: %1</translation>
    </message>
</context>
<context>
    <name>Glyphor::CharBitmapView</name>
    <message>
        <source>Pixels of the character</source>
        <translation>Pixel des Zeichens</translation>
    </message>
    <message>
        <source>This character has no pixels.
Insert a row or a column to draw.</source>
        <translation>Dieses Zeichen hat keine Pixel.
Zum Zeichnen eine Zeile oder Spalte einfügen.</translation>
    </message>
    <message>
        <source>Index of pixel [%1, %2]: %3</source>
        <translation>Index des Pixels [%1, %2]: %3</translation>
    </message>
</context>
<context>
    <name>Glyphor::CharacterModel</name>
    <message>
        <source>%1, no character</source>
        <translation>%1, kein Zeichen</translation>
    </message>
    <message>
        <source>%1, enabled</source>
        <translation>%1, aktiviert</translation>
    </message>
    <message>
        <source>%1, disabled</source>
        <translation>%1, deaktiviert</translation>
    </message>
</context>
<context>
    <name>Glyphor::CharacterSelection</name>
    <message>
        <source>Unicode blocks</source>
        <translation>Unicode-Blöcke</translation>
    </message>
    <message>
        <source>Pattern file</source>
        <translation>Musterdatei</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Type or paste what the device has to show.</source>
        <translation>Hier eingeben oder einfügen, was das Gerät anzeigen soll.</translation>
    </message>
    <message>
        <source>A&amp;ll characters</source>
        <translation>A&amp;lle Zeichen</translation>
    </message>
    <message>
        <source>&amp;Unicode blocks</source>
        <translation>&amp;Unicode-Blöcke</translation>
    </message>
    <message>
        <source>&amp;Pattern file</source>
        <translation>&amp;Musterdatei</translation>
    </message>
    <message>
        <source>Characters of a te&amp;xt</source>
        <translation>Zeichen eines Te&amp;xts</translation>
    </message>
    <message>
        <source>A text file in UTF-16 LE with the characters.</source>
        <translation>Eine Textdatei in UTF-16 LE mit den Zeichen.</translation>
    </message>
    <message>
        <source>Read pattern file</source>
        <translation>Musterdatei lesen</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Textdateien (*.txt)</translation>
    </message>
    <message>
        <source>Choose a block.</source>
        <translation>Bitte einen Block wählen.</translation>
    </message>
    <message>
        <source>Choose a pattern file.</source>
        <translation>Bitte eine Musterdatei wählen.</translation>
    </message>
    <message>
        <source>Enter some characters.</source>
        <translation>Bitte Zeichen eingeben.</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>The file %1 does not exist.</source>
        <translation>Die Datei %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>Show blocks that the font has nothing of</source>
        <translation>Blöcke zeigen, von denen die Schrift nichts hat</translation>
    </message>
    <message>
        <source>%1 (%L2)</source>
        <translation>%1 (%L2)</translation>
    </message>
    <message>
        <source>All %L1 characters of the font</source>
        <translation>Alle %L1 Zeichen der Schrift</translation>
    </message>
    <message>
        <source>Chosen: %L1 codes, of which the font has %L2</source>
        <translation>Gewählt: %L1 Codes, davon in der Schrift: %L2</translation>
    </message>
</context>
<context>
    <name>Glyphor::CharacterTable</name>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
</context>
<context>
    <name>Glyphor::ClipboardCommands</name>
    <message>
        <source>Pasting is not possible!</source>
        <translation>Einfügen ist nicht möglich!</translation>
    </message>
    <message>
        <source>The clipboard has neither characters nor a picture.</source>
        <translation>In der Zwischenablage sind weder Zeichen noch ein Bild.</translation>
    </message>
    <message>
        <source>The picture on the clipboard has %1 x %2 pixels; a character has 255 x 255 at most.</source>
        <translation>Das Bild in der Zwischenablage hat %1 x %2 Pixel; ein Zeichen hat höchstens 255 x 255.</translation>
    </message>
    <message>
        <source>The picture on the clipboard can&apos;t be read.</source>
        <translation>Das Bild in der Zwischenablage kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The characters on the clipboard can&apos;t be read.</source>
        <translation>Die Zeichen in der Zwischenablage können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Copied pixels: %1 x %2.</source>
        <translation>Kopierte Pixel: %1 x %2.</translation>
    </message>
    <message>
        <source>Copied characters: %L1.</source>
        <translation>Kopierte Zeichen: %L1.</translation>
    </message>
    <message>
        <source>Pasted pixels: %1 x %2. The character has no room for all of them.</source>
        <translation>Eingefügte Pixel: %1 x %2. Das Zeichen hat nicht für alle Platz.</translation>
    </message>
    <message>
        <source>Pasted characters: %L1.</source>
        <translation>Eingefügte Zeichen: %L1.</translation>
    </message>
    <message>
        <source>Their pixels were converted from %1 to %2 bits.</source>
        <translation>Ihre Pixel wurden von %1 in %2 Bit umgewandelt.</translation>
    </message>
    <message>
        <source>Characters that lost ink beyond the line: %L1.</source>
        <translation>Zeichen, die jenseits der Zeile Pixel verloren: %L1.</translation>
    </message>
    <message>
        <source>Pasted a picture: %1 x %2.</source>
        <translation>Eingefügtes Bild: %1 x %2.</translation>
    </message>
    <message>
        <source>It lost ink beyond the line.</source>
        <translation>Jenseits der Zeile gingen Pixel verloren.</translation>
    </message>
</context>
<context>
    <name>Glyphor::CommandDialog</name>
    <message>
        <source>Command line options</source>
        <translation>Optionen der Befehlszeile</translation>
    </message>
</context>
<context>
    <name>Glyphor::Commands</name>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Aktivieren</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>&amp;Deaktivieren</translation>
    </message>
</context>
<context>
    <name>Glyphor::Document</name>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Textdateien (*.txt)</translation>
    </message>
    <message>
        <source>Instance %1</source>
        <translation>Instanz %1</translation>
    </message>
    <message>
        <source>Open font file</source>
        <translation>Schriftdatei öffnen</translation>
    </message>
    <message>
        <source>Save font file</source>
        <translation>Schriftdatei speichern</translation>
    </message>
    <message>
        <source>Save kerning file</source>
        <translation>Kerning-Datei speichern</translation>
    </message>
    <message>
        <source>Read pattern file</source>
        <translation>Musterdatei lesen</translation>
    </message>
    <message>
        <source>Save pattern file</source>
        <translation>Musterdatei speichern</translation>
    </message>
    <message>
        <source>The file %1 does not exist.</source>
        <translation>Die Datei %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>No recent files</source>
        <translation>Keine zuletzt geöffneten Dateien</translation>
    </message>
    <message>
        <source>Save file?</source>
        <translation>Datei speichern?</translation>
    </message>
    <message>
        <source>Save current file?</source>
        <translation>Aktuelle Datei speichern?</translation>
    </message>
    <message>
        <source>Load pattern file?</source>
        <translation>Musterdatei laden?</translation>
    </message>
    <message>
        <source>Apply the pattern file %1 to this font?</source>
        <translation>Die Musterdatei %1 auf diese Schrift anwenden?</translation>
    </message>
    <message>
        <source>C files call the font GUI_Font and then this.</source>
        <translation>C-Dateien nennen die Schrift GUI_Font und dann so.</translation>
    </message>
    <message>
        <source>&amp;Name in C files:</source>
        <translation>&amp;Name in C-Dateien:</translation>
    </message>
    <message>
        <source>Characters that the font does not have: %1</source>
        <translation>Zeichen, die der Schrift fehlen: %1</translation>
    </message>
    <message>
        <source>Export proof</source>
        <translation>Schriftprobe exportieren</translation>
    </message>
    <message>
        <source>Save kerning table?</source>
        <translation>Kerning-Tabelle speichern?</translation>
    </message>
    <message>
        <source>Save the kerning table? Its changes are in no font file.</source>
        <translation>Die Kerning-Tabelle speichern? Ihre Änderungen stehen in keiner Schriftdatei.</translation>
    </message>
    <message>
        <source>File is missing</source>
        <translation>Datei fehlt</translation>
    </message>
    <message>
        <source>The file %1 does not exist. Remove it from the recent files?</source>
        <translation>Die Datei %1 gibt es nicht. Aus den zuletzt benutzten Dateien entfernen?</translation>
    </message>
    <message>
        <source>Saved pattern file: %1</source>
        <translation>Musterdatei gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>Glyphor::DuplicateDialog</name>
    <message>
        <source>Duplicate to code</source>
        <translation>Auf Code duplizieren</translation>
    </message>
    <message>
        <source>A code (0x41, U+0041 or 65), or a character that is no digit</source>
        <translation>Ein Code (0x41, U+0041 oder 65) oder ein Zeichen, das keine Ziffer ist</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>&amp;Code:</translation>
    </message>
    <message>
        <source>A code is written as 0x41, U+0041 or 65; what is no digit can stand for itself.</source>
        <translation>Codes werden als 0x41, U+0041 oder 65 geschrieben; außer Ziffern kann jedes Zeichen für sich selbst stehen.</translation>
    </message>
    <message>
        <source>Characters to copy: %L1, of the font&apos;s own replaced: %L2</source>
        <translation>Zu kopierende Zeichen: %L1, davon ersetzen vorhandene: %L2</translation>
    </message>
    <message>
        <source>%1 would get a code beyond 0xFFFF.</source>
        <translation>%1 bekäme einen Code über 0xFFFF.</translation>
    </message>
    <message>
        <source>%1 would get the code %2, which the encoding does not have.</source>
        <translation>%1 bekäme den Code %2, den die Kodierung nicht hat.</translation>
    </message>
    <message>
        <source>This is the code that it has already.</source>
        <translation>Diesen Code hat es bereits.</translation>
    </message>
</context>
<context>
    <name>Glyphor::EditCommands</name>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>Selection: %1</source>
        <translation>Auswahl: %1</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>Schritte rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Steps redone: %1</source>
        <translation>Schritte wiederholt: %1</translation>
    </message>
</context>
<context>
    <name>Glyphor::EnableRangeDialog</name>
    <message>
        <source>Codes as entered</source>
        <translation>Codes wie eingegeben</translation>
    </message>
    <message>
        <source>&amp;First:</source>
        <translation>&amp;Erstes:</translation>
    </message>
    <message>
        <source>&amp;Last:</source>
        <translation>&amp;Letztes:</translation>
    </message>
    <message>
        <source>&amp;Block:</source>
        <translation>&amp;Block:</translation>
    </message>
    <message>
        <source>The last code is before the first one.</source>
        <translation>Der letzte Code liegt vor dem ersten.</translation>
    </message>
    <message>
        <source>Enable range of characters</source>
        <translation>Zeichenbereich aktivieren</translation>
    </message>
    <message>
        <source>Disable range of characters</source>
        <translation>Zeichenbereich deaktivieren</translation>
    </message>
    <message>
        <source>A code (0x41, U+0041 or 65), or a character that is no digit</source>
        <translation>Ein Code (0x41, U+0041 oder 65) oder ein Zeichen, das keine Ziffer ist</translation>
    </message>
    <message>
        <source>A code is written as 0x41, U+0041 or 65; what is no digit can stand for itself.</source>
        <translation>Codes werden als 0x41, U+0041 oder 65 geschrieben; außer Ziffern kann jedes Zeichen für sich selbst stehen.</translation>
    </message>
    <message>
        <source>Codes: %L1, in the font: %L2</source>
        <translation>Codes: %L1, in der Schrift: %L2</translation>
    </message>
    <message>
        <source>The others are added as characters without pixels.</source>
        <translation>Die übrigen kommen als Zeichen ohne Pixel dazu.</translation>
    </message>
</context>
<context>
    <name>Glyphor::EncodingBox</name>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Shift JIS</source>
        <translation>Shift JIS</translation>
    </message>
</context>
<context>
    <name>Glyphor::FaceSample</name>
    <message>
        <source>The quick brown fox 0123456789</source>
        <translation>Zwölf Boxkämpfer jagen 0123456789</translation>
    </message>
</context>
<context>
    <name>Glyphor::FileWatch</name>
    <message>
        <source>File has changed</source>
        <translation>Datei wurde geändert</translation>
    </message>
    <message>
        <source>The file %1 was changed on the disk since it was opened. Replace it?</source>
        <translation>Die Datei %1 wurde seit dem Öffnen auf der Platte geändert. Ersetzen?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>The file %1 is no longer there.</source>
        <translation>Die Datei %1 ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The file %1 was changed on the disk.</source>
        <translation>Die Datei %1 wurde auf der Platte geändert.</translation>
    </message>
    <message>
        <source>The file %1 was changed on the disk. Load it again?</source>
        <translation>Die Datei %1 wurde auf der Platte geändert. Neu laden?</translation>
    </message>
</context>
<context>
    <name>Glyphor::FontDialog</name>
    <message>
        <source>Inde&amp;x again</source>
        <translation>Neu e&amp;rfassen</translation>
    </message>
    <message>
        <source>New font</source>
        <translation>Neue Schrift</translation>
    </message>
    <message>
        <source>Font &amp;directories...</source>
        <translation>Schrift&amp;verzeichnisse...</translation>
    </message>
    <message>
        <source>All scripts</source>
        <translation>Alle Schriftsysteme</translation>
    </message>
    <message>
        <source>A part of the name</source>
        <translation>Ein Teil des Namens</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Slant</source>
        <translation>Lage</translation>
    </message>
    <message>
        <source>Families</source>
        <translation>Familien</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Schnitte</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Suche:</translation>
    </message>
    <message>
        <source>S&amp;cript:</source>
        <translation>Schrifts&amp;ystem:</translation>
    </message>
    <message>
        <source>&amp;Families:</source>
        <translation>&amp;Familien:</translation>
    </message>
    <message>
        <source>S&amp;tyles:</source>
        <translation>Schni&amp;tte:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>kursiv</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>aufrecht</translation>
    </message>
    <message>
        <source>Stop inde&amp;xing</source>
        <translation>E&amp;rfassen abbrechen</translation>
    </message>
    <message>
        <source>Families: %L1 of %L2</source>
        <translation>Familien: %L1 von %L2</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
</context>
<context>
    <name>Glyphor::FontGenerationDialog</name>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>Kursi&amp;v</translation>
    </message>
    <message>
        <source>Font generation: %1</source>
        <translation>Schrift erzeugen: %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>F&amp;ormat:</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Kodierung:</translation>
    </message>
    <message>
        <source>F&amp;ace:</source>
        <translation>S&amp;chnitt:</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>Effekte:</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>The quick brown fox 0123456789</source>
        <translation>Zwölf Boxkämpfer jagen 0123456789</translation>
    </message>
    <message>
        <source>Cop&amp;y as command line</source>
        <translation>Als Befehl&amp;szeile kopieren</translation>
    </message>
    <message>
        <source>Copies a line for a shell that makes this font without a window.</source>
        <translation>Kopiert eine Zeile für eine Shell, die diese Schrift ohne Fenster erzeugt.</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Mapping</source>
        <translation>Zuordnung</translation>
    </message>
    <message>
        <source>The line is in the clipboard.</source>
        <translation>Die Zeile ist in der Zwischenablage.</translation>
    </message>
</context>
<context>
    <name>Glyphor::FontSizeBox</name>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>Unit of the height</source>
        <translation>Einheit der Höhe</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>of the box</source>
        <translation>des Rahmens</translation>
    </message>
    <message>
        <source>of capitals</source>
        <translation>der Versalien</translation>
    </message>
    <message>
        <source>of small letters</source>
        <translation>der Kleinbuchstaben</translation>
    </message>
    <message>
        <source>of the line</source>
        <translation>der Zeile</translation>
    </message>
    <message>
        <source>of the em</source>
        <translation>des Gevierts</translation>
    </message>
    <message>
        <source>What has this height: the box around all characters, the letter H, the letter x, the line of the font, or the em of the face.</source>
        <translation>Was diese Höhe hat: der Rahmen um alle Zeichen, der Buchstabe H, der Buchstabe x, die Zeile der Schrift oder das Geviert des Schnitts.</translation>
    </message>
    <message>
        <source>What the height is the height of</source>
        <translation>Wovon die Höhe ist</translation>
    </message>
</context>
<context>
    <name>Glyphor::FormatBox</name>
    <message>
        <source>Standard formats</source>
        <translation>Standardformate</translation>
    </message>
    <message>
        <source>Legacy formats</source>
        <translation>Legacy-Formate</translation>
    </message>
    <message>
        <source>Known as &lt;b&gt;%1&lt;/b&gt; before Tavix V6.36.</source>
        <translation>Vor Tavix V6.36 als &lt;b&gt;%1&lt;/b&gt; bekannt.</translation>
    </message>
</context>
<context>
    <name>Glyphor::FormatDialog</name>
    <message>
        <source>Select font format</source>
        <translation>Schriftformat wählen</translation>
    </message>
    <message>
        <source>Font format could not be read in file. Please select format and encoding manually.</source>
        <translation>Die Datei nennt ihr Schriftformat nicht. Bitte Format und Kodierung wählen.</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>F&amp;ormat:</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Kodierung:</translation>
    </message>
</context>
<context>
    <name>Glyphor::GenerationPreview</name>
    <message>
        <source>&amp;Sample:</source>
        <translation>&amp;Probe:</translation>
    </message>
    <message>
        <source>Line height: %1 px, em size: %2 px</source>
        <translation>Zeilenhöhe: %1 px, Geviert: %2 px</translation>
    </message>
    <message>
        <source>Line height: %1 px, em size: %2 px, characters: %L3, flash: %L4 bytes</source>
        <translation>Zeilenhöhe: %1 px, Geviert: %2 px, Zeichen: %L3, Flash: %L4 Byte</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Speicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>The font has none of these characters.</source>
        <translation>Die Schrift hat keines dieser Zeichen.</translation>
    </message>
    <message>
        <source>Not in the font: %1</source>
        <translation>Nicht in der Schrift: %1</translation>
    </message>
    <message>
        <source>Sample, light on dark</source>
        <translation>Probe, hell auf dunkel</translation>
    </message>
</context>
<context>
    <name>Glyphor::GoToDialog</name>
    <message>
        <source>Go to character</source>
        <translation>Zu Zeichen springen</translation>
    </message>
    <message>
        <source>0x41, 65, A or a part of the name</source>
        <translation>0x41, 65, A oder ein Teil des Namens</translation>
    </message>
    <message>
        <source>Characters found</source>
        <translation>Gefundene Zeichen</translation>
    </message>
    <message>
        <source>&amp;Code, character or name:</source>
        <translation>&amp;Code, Zeichen oder Name:</translation>
    </message>
    <message>
        <source>No character that the table shows matches.</source>
        <translation>Kein Zeichen der Tabelle passt dazu.</translation>
    </message>
</context>
<context>
    <name>Glyphor::Guarded</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Speicher reicht nicht aus.</translation>
    </message>
</context>
<context>
    <name>Glyphor::HistoryModel</name>
    <message>
        <source>Beginning</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>Glyphor::HistoryView</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
</context>
<context>
    <name>Glyphor::IndexPalette</name>
    <message>
        <source>Index to paint with</source>
        <translation>Index, mit dem gemalt wird</translation>
    </message>
    <message>
        <source>Index %1</source>
        <translation>Index %1</translation>
    </message>
    <message>
        <source>Paint with index %1</source>
        <translation>Mit Index %1 malen</translation>
    </message>
</context>
<context>
    <name>Glyphor::InfoPanel</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Cursor distance</source>
        <translation>Vorschub</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Kerning pairs</source>
        <translation>Kerning-Paare</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Font name</source>
        <translation>Schriftname</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Baseline</source>
        <translation>Grundlinie</translation>
    </message>
    <message>
        <source>Lowercase height</source>
        <translation>Kleinbuchstabenhöhe</translation>
    </message>
    <message>
        <source>Capital height</source>
        <translation>Versalhöhe</translation>
    </message>
    <message>
        <source>Enabled characters</source>
        <translation>Aktive Zeichen</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Shift JIS</source>
        <translation>Shift JIS</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%L1 bytes</source>
        <translation>%L1 Byte</translation>
    </message>
    <message>
        <source>no character</source>
        <translation>kein Zeichen</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>%1 B a line, %2 B in all</source>
        <translation>%1 B je Zeile, %2 B gesamt</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height of the character</source>
        <translation>Höhe des Zeichens</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Top row</source>
        <translation>Oberste Zeile</translation>
    </message>
    <message>
        <source>Height of the font</source>
        <translation>Höhe der Schrift</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Character (%1 selected)</source>
        <translation>Zeichen (%1 ausgewählt)</translation>
    </message>
    <message>
        <source>In legacy formats characters have no offset.</source>
        <translation>In Legacy-Formaten haben Zeichen keinen Versatz.</translation>
    </message>
    <message>
        <source>Columns come and go at the right</source>
        <translation>Spalten kommen und gehen rechts</translation>
    </message>
    <message>
        <source>In legacy formats all characters have the height of the font.</source>
        <translation>In Legacy-Formaten haben alle Zeichen die Höhe der Schrift.</translation>
    </message>
    <message>
        <source>Rows come and go at the bottom</source>
        <translation>Zeilen kommen und gehen unten</translation>
    </message>
    <message>
        <source>From the cursor position</source>
        <translation>Von der Cursorposition aus</translation>
    </message>
    <message>
        <source>From the top of the font</source>
        <translation>Vom oberen Rand der Schrift aus</translation>
    </message>
    <message>
        <source>From one character to the next</source>
        <translation>Von einem Zeichen zum nächsten</translation>
    </message>
    <message>
        <source>In legacy formats the characters get or lose rows at the bottom.</source>
        <translation>In Legacy-Formaten bekommen oder verlieren die Zeichen unten Zeilen.</translation>
    </message>
    <message>
        <source>The distance between lines changes as much</source>
        <translation>Der Zeilenabstand ändert sich ebenso</translation>
    </message>
    <message>
        <source>Names the font in C files; XBF and SIF files are called by their own name</source>
        <translation>Benennt die Schrift in C-Dateien; XBF- und SIF-Dateien heißen nach ihrem eigenen Namen</translation>
    </message>
</context>
<context>
    <name>Glyphor::KerningModel</name>
    <message>
        <source>The character is not enabled, so the pair is not saved.</source>
        <translation>Das Zeichen ist nicht aktiv, darum wird das Paar nicht gespeichert.</translation>
    </message>
    <message>
        <source>Next character</source>
        <translation>Nächstes Zeichen</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
</context>
<context>
    <name>Glyphor::KerningPanel</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Kerning</source>
        <translation>Kerning</translation>
    </message>
    <message>
        <source>Font files hold no kerning: File &gt; Save kerning table... writes the pairs of all characters.</source>
        <translation>Schriftdateien enthalten kein Kerning: Datei &gt; Kerning-Tabelle speichern... schreibt die Paare aller Zeichen.</translation>
    </message>
    <message>
        <source>Kerning pairs</source>
        <translation>Kerning-Paare</translation>
    </message>
    <message>
        <source>A code (0x41, U+0041 or 65), or a character that is no digit</source>
        <translation>Ein Code (0x41, U+0041 oder 65) oder ein Zeichen, das keine Ziffer ist</translation>
    </message>
    <message>
        <source>Pixels; negative ones bring the characters closer together</source>
        <translation>Pixel; negative rücken die Zeichen näher zusammen</translation>
    </message>
    <message>
        <source>Next character</source>
        <translation>Nächstes Zeichen</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Behind %1</source>
        <translation>Hinter %1</translation>
    </message>
    <message>
        <source>No character</source>
        <translation>Kein Zeichen</translation>
    </message>
</context>
<context>
    <name>Glyphor::MainWindow</name>
    <message>
        <source>Stopped.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>No font</source>
        <translation>Keine Schrift</translation>
    </message>
    <message>
        <source>Installed fonts</source>
        <translation>Installierte Schriften</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Kerning</source>
        <translation>Kerning</translation>
    </message>
</context>
<context>
    <name>Glyphor::MergeModeDialog</name>
    <message>
        <source>Select merge mode</source>
        <translation>Art des Mischens wählen</translation>
    </message>
    <message>
        <source>Duplicate characters have been found in both fonts.
How should duplicate characters be handled?</source>
        <translation>Einige Zeichen sind in beiden Schriften enthalten.
Was soll mit ihnen geschehen?</translation>
    </message>
    <message>
        <source>Replace duplicates with new characters.</source>
        <translation>Durch die neuen Zeichen ersetzen.</translation>
    </message>
    <message>
        <source>Do not replace, keep old characters.</source>
        <translation>Nicht ersetzen, die alten Zeichen behalten.</translation>
    </message>
</context>
<context>
    <name>Glyphor::NumberField</name>
    <message>
        <source>various</source>
        <translation>verschieden</translation>
    </message>
</context>
<context>
    <name>Glyphor::PixelSelection</name>
    <message>
        <source>Selected pixels: %1 x %2 from [%3, %4] on</source>
        <translation>Ausgewählte Pixel: %1 x %2 ab [%3, %4]</translation>
    </message>
    <message>
        <source>Rotated, the pixels do not fit into the character.</source>
        <translation>Gedreht passen die Pixel nicht in das Zeichen.</translation>
    </message>
</context>
<context>
    <name>Glyphor::PreferencesDialog</name>
    <message>
        <source>&amp;Hide legacy font formats</source>
        <translation>Legacy-Formate &amp;ausblenden</translation>
    </message>
    <message>
        <source>&amp;Log actions in C files</source>
        <translation>&amp;Aktionen in C-Dateien protokollieren</translation>
    </message>
    <message>
        <source>Create a log &amp;file beside a saved font</source>
        <translation>Neben der gespeicherten Schrift eine &amp;Protokolldatei anlegen</translation>
    </message>
    <message>
        <source>Use the s&amp;ystem&apos;s line endings</source>
        <translation>Zeilenenden des S&amp;ystems verwenden</translation>
    </message>
    <message>
        <source>Search additional directories &amp;recursively</source>
        <translation>Zusätzliche Verzeichnisse &amp;rekursiv durchsuchen</translation>
    </message>
    <message>
        <source>&amp;Use included bitmap sizes</source>
        <translation>&amp;Enthaltene Bitmap-Größen verwenden</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Generated files</source>
        <translation>Erzeugte Dateien</translation>
    </message>
    <message>
        <source>Installed fonts</source>
        <translation>Installierte Schriften</translation>
    </message>
    <message>
        <source>Decimal</source>
        <translation>Dezimal</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadezimal</translation>
    </message>
    <message>
        <source>The choice of a format then has the formats for new firmware only.</source>
        <translation>Zur Wahl stehen dann nur die Formate für neue Firmware.</translation>
    </message>
    <message>
        <source>&amp;Numeral system of codes:</source>
        <translation>&amp;Zahlensystem der Codes:</translation>
    </message>
    <message>
        <source>CR LF</source>
        <translation>CR LF</translation>
    </message>
    <message>
        <source>CR</source>
        <translation>CR</translation>
    </message>
    <message>
        <source>LF</source>
        <translation>LF</translation>
    </message>
    <message>
        <source>Line &amp;endings:</source>
        <translation>&amp;Zeilenenden:</translation>
    </message>
    <message>
        <source>A font that has bitmaps of the wanted height then gives these instead of outlines.</source>
        <translation>Eine Schrift mit Bitmaps der gewünschten Höhe liefert dann diese anstelle der Umrisse.</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Hinzufügen...</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>System directories are always searched recursively.&lt;br&gt;&lt;b&gt;Note:&lt;/b&gt; Maximum depth is limited to 10.</source>
        <translation>Systemverzeichnisse werden immer rekursiv durchsucht.&lt;br&gt;&lt;b&gt;Hinweis:&lt;/b&gt; Die Tiefe ist auf 10 begrenzt.</translation>
    </message>
    <message>
        <source>Additional font &amp;directories:</source>
        <translation>Zusätzliche &amp;Schriftverzeichnisse:</translation>
    </message>
    <message>
        <source>Additional font directory</source>
        <translation>Zusätzliches Schriftverzeichnis</translation>
    </message>
    <message>
        <source>There is no such directory now.</source>
        <translation>Dieses Verzeichnis gibt es zurzeit nicht.</translation>
    </message>
    <message>
        <source>CR LF, which the tools for firmware expect</source>
        <translation>CR LF, wie es die Werkzeuge für Firmware erwarten</translation>
    </message>
    <message>
        <source>Additional font directories</source>
        <translation>Zusätzliche Schriftverzeichnisse</translation>
    </message>
    <message>
        <source>&amp;Write the folders of files into both</source>
        <translation>&amp;Ordner der Dateien in beide schreiben</translation>
    </message>
    <message>
        <source>Without them, a font is the same wherever it is made.</source>
        <translation>Ohne sie ist eine Schrift überall gleich, wo sie gemacht wird.</translation>
    </message>
</context>
<context>
    <name>Glyphor::ProgressArea</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop the work (Esc)</source>
        <translation>Die Arbeit abbrechen (Esc)</translation>
    </message>
</context>
<context>
    <name>Glyphor::Recovery</name>
    <message>
        <source>Unsaved changes can&apos;t be kept for recovery: %1</source>
        <translation>Ungespeicherte Änderungen können nicht gesichert werden: %1</translation>
    </message>
    <message>
        <source>Recover unsaved fonts</source>
        <translation>Ungespeicherte Schriften wiederherstellen</translation>
    </message>
    <message>
        <source>There are no unsaved fonts.</source>
        <translation>Es gibt keine ungespeicherten Schriften.</translation>
    </message>
    <message>
        <source>The kept copy of %1 is damaged.</source>
        <translation>Die gesicherte Kopie von %1 ist beschädigt.</translation>
    </message>
</context>
<context>
    <name>Glyphor::RecoveryDialog</name>
    <message>
        <source>Recover unsaved fonts</source>
        <translation>Ungespeicherte Schriften wiederherstellen</translation>
    </message>
    <message>
        <source>These fonts had unsaved changes when their windows were lost:</source>
        <translation>Diese Schriften hatten ungespeicherte Änderungen, als ihre Fenster verloren gingen:</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Kept on</source>
        <translation>Gesichert am</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
</context>
<context>
    <name>Glyphor::RenderingEntries</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>&amp;Keep all ink within the line</source>
        <translation>Zeile so hoch wie &amp;alle Zeichen</translation>
    </message>
    <message>
        <source>As the font wants it</source>
        <translation>Wie von der Schrift vorgesehen</translation>
    </message>
    <message>
        <source>Stems of whole pixels</source>
        <translation>Striche aus ganzen Pixeln</translation>
    </message>
    <message>
        <source>Vertically alone</source>
        <translation>Nur senkrecht</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>How outlines are fitted to the pixels.</source>
        <translation>Wie Umrisse an die Pixel angepasst werden.</translation>
    </message>
    <message>
        <source>Above 1 the edges of strokes are darker, below 1 lighter. For formats with 2 or 4 bits per pixel.</source>
        <translation>Über 1 sind die Ränder der Striche dunkler, unter 1 heller. Für Formate mit 2 oder 4 Bit je Pixel.</translation>
    </message>
    <message>
        <source>The font gets as high as its highest and lowest characters need.</source>
        <translation>Die Schrift wird so hoch, wie ihre höchsten und tiefsten Zeichen es brauchen.</translation>
    </message>
    <message>
        <source>Hi&amp;nting:</source>
        <translation>Hi&amp;nting:</translation>
    </message>
    <message>
        <source>&amp;Gamma:</source>
        <translation>&amp;Gamma:</translation>
    </message>
    <message>
        <source>  (%1 to %2)</source>
        <translation>  (%1 bis %2)</translation>
    </message>
    <message>
        <source>Tags of OpenType features that show other glyphs, such as tnum for figures of equal width.</source>
        <translation>Kürzel von OpenType-Merkmalen, die andere Glyphen zeigen, etwa tnum für Ziffern gleicher Breite.</translation>
    </message>
    <message>
        <source>Glyph &amp;variants:</source>
        <translation>Gl&amp;yphenvarianten:</translation>
    </message>
</context>
<context>
    <name>Glyphor::SourceDialog</name>
    <message>
        <source>&amp;Own height:</source>
        <translation>&amp;Eigene Höhe:</translation>
    </message>
    <message>
        <source>Source of characters</source>
        <translation>Quelle von Zeichen</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>D&amp;urchsuchen...</translation>
    </message>
    <message>
        <source>Codes or ranges, with = and the code where they go; behind a ? those that only fill gaps.</source>
        <translation>Codes oder Bereiche, mit = und dem Code, an den sie kommen; hinter einem ? die, die nur Lücken füllen.</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Datei:</translation>
    </message>
    <message>
        <source>&amp;Characters:</source>
        <translation>&amp;Zeichen:</translation>
    </message>
    <message>
        <source>Font files (%1)</source>
        <translation>Schriftdateien (%1)</translation>
    </message>
</context>
<context>
    <name>Glyphor::SourceEntries</name>
    <message>
        <source>every character to its own code</source>
        <translation>jedes Zeichen an seinen eigenen Code</translation>
    </message>
    <message>
        <source>Which characters of the file to take, and where they go: codes or ranges, decimal or hexadecimal, with = and the code where the first one goes (e.g. 0x20-0x7E, 0xF02D1=0xE001).</source>
        <translation>Welche Zeichen der Datei genommen werden und wohin sie kommen: Codes oder Bereiche, dezimal oder hexadezimal, mit = und dem Code, an den das erste kommt (z. B. 0x20-0x7E, 0xF02D1=0xE001).</translation>
    </message>
    <message>
        <source>The table of the face that tells its codes.</source>
        <translation>Die Tabelle des Schnitts, die seine Codes nennt.</translation>
    </message>
    <message>
        <source>&amp;Charmap:</source>
        <translation>&amp;Zeichentabelle:</translation>
    </message>
    <message>
        <source>&amp;Mapping:</source>
        <translation>Zuo&amp;rdnung:</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Characters of &amp;other files:</source>
        <translation>Zeichen &amp;weiterer Dateien:</translation>
    </message>
    <message>
        <source>A&amp;dd...</source>
        <translation>H&amp;inzufügen...</translation>
    </message>
    <message>
        <source>Edi&amp;t...</source>
        <translation>&amp;Bearbeiten...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>as above</source>
        <translation>wie oben</translation>
    </message>
    <message>
        <source>The one of Unicode</source>
        <translation>Die von Unicode</translation>
    </message>
</context>
<context>
    <name>Glyphor::StartPage</name>
    <message>
        <source>Make a font of an installed one</source>
        <translation>Eine Schrift aus einer installierten erzeugen</translation>
    </message>
    <message>
        <source>Open a font file</source>
        <translation>Eine Schriftdatei öffnen</translation>
    </message>
    <message>
        <source>or drop a font file anywhere in this window</source>
        <translation>oder eine Schriftdatei irgendwo in diesem Fenster ablegen</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt benutzte Dateien</translation>
    </message>
</context>
<context>
    <name>Glyphor::StatusLine</name>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
</context>
<context>
    <name>Glyphor::TextPreview</name>
    <message>
        <source>The quick brown fox jumps over the lazy dog. 0123456789</source>
        <translation>Zwölf Boxkämpfer jagen Viktor quer über den großen Sylter Deich. 0123456789</translation>
    </message>
    <message>
        <source>&amp;Kerning</source>
        <translation>&amp;Kerning</translation>
    </message>
    <message>
        <source>Sa&amp;mple:</source>
        <translation>&amp;Probe:</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>Probetext</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Zoom of the sample</source>
        <translation>Vergrößerung der Probe</translation>
    </message>
    <message>
        <source>Colour of the ink</source>
        <translation>Farbe der Schrift</translation>
    </message>
    <message>
        <source>Colour of the paper</source>
        <translation>Farbe des Papiers</translation>
    </message>
    <message>
        <source>Black on white</source>
        <translation>Schwarz auf Weiß</translation>
    </message>
    <message>
        <source>White on black</source>
        <translation>Weiß auf Schwarz</translation>
    </message>
    <message>
        <source>Several lines are possible.</source>
        <translation>Mehrere Zeilen sind möglich.</translation>
    </message>
    <message>
        <source>Colour behind the frame</source>
        <translation>Farbe hinter dem Rahmen</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Colours that are used often</source>
        <translation>Häufig benutzte Farben</translation>
    </message>
    <message>
        <source>Not in the font or disabled: %1</source>
        <translation>Nicht in der Schrift oder deaktiviert: %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 auf %2</translation>
    </message>
</context>
<context>
    <name>Glyphor::TextStrip</name>
    <message>
        <source>Sample in the font&apos;s pixels</source>
        <translation>Probe in den Pixeln der Schrift</translation>
    </message>
</context>
<context>
    <name>Glyphor::ToolBar</name>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>Glyphor::UndoStack</name>
    <message>
        <source>Undo last action</source>
        <translation>Letzte Aktion rückgängig machen</translation>
    </message>
    <message>
        <source>Redo last action</source>
        <translation>Letzte Aktion wiederholen</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>User manual</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>No web browser could be started. The manual is here:
%1</source>
        <translation>Es konnte kein Webbrowser gestartet werden. Das Handbuch ist hier:
%1</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Bitmap fonts for embedded displays.&lt;/p&gt;&lt;p&gt;Qt %3, FreeType %4&lt;/p&gt;&lt;p&gt;© Morvek&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Bitmap-Schriften für eingebettete Displays.&lt;/p&gt;&lt;p&gt;Qt %3, FreeType %4&lt;/p&gt;&lt;p&gt;© Morvek&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Neu...</translation>
    </message>
    <message>
        <source>Create new font from installed fonts</source>
        <translation>Eine neue Schrift aus installierten Schriften erzeugen</translation>
    </message>
    <message>
        <source>&amp;Open font file...</source>
        <translation>Schriftdatei ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open a font file of the type TTF, BDF, XBF, C or SIF</source>
        <translation>Eine Schriftdatei vom Typ TTF, BDF, XBF, C oder SIF öffnen</translation>
    </message>
    <message>
        <source>&amp;Merge font file...</source>
        <translation>Schriftdatei &amp;mischen...</translation>
    </message>
    <message>
        <source>Merge a font file of the type TTF, BDF, XBF, C or SIF with the currently loaded font</source>
        <translation>Eine Schriftdatei vom Typ TTF, BDF, XBF, C oder SIF in die geladene Schrift mischen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the font data</source>
        <translation>Die Schrift speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save the font data to a different file</source>
        <translation>Die Schrift in einer anderen Datei speichern</translation>
    </message>
    <message>
        <source>Save &amp;kerning table...</source>
        <translation>&amp;Kerning-Tabelle speichern...</translation>
    </message>
    <message>
        <source>Save the kerning table</source>
        <translation>Die Kerning-Tabelle speichern</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Exit the program</source>
        <translation>Das Programm beenden</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Insert a column at the right side of the current character</source>
        <translation>Rechts am aktuellen Zeichen eine Spalte einfügen</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Insert a column at the left side of the current character</source>
        <translation>Links am aktuellen Zeichen eine Spalte einfügen</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Insert a row at the top of the current character</source>
        <translation>Oben am aktuellen Zeichen eine Zeile einfügen</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Insert a row at the bottom of the current character</source>
        <translation>Unten am aktuellen Zeichen eine Zeile einfügen</translation>
    </message>
    <message>
        <source>Delete a column at the right side of the current character</source>
        <translation>Rechts am aktuellen Zeichen eine Spalte löschen</translation>
    </message>
    <message>
        <source>Delete a column at the left side of the current character</source>
        <translation>Links am aktuellen Zeichen eine Spalte löschen</translation>
    </message>
    <message>
        <source>Delete a row from the top of the current character</source>
        <translation>Oben am aktuellen Zeichen eine Zeile löschen</translation>
    </message>
    <message>
        <source>Delete a row from the bottom of the current character</source>
        <translation>Unten am aktuellen Zeichen eine Zeile löschen</translation>
    </message>
    <message>
        <source>Shift pixel data to the right</source>
        <translation>Pixel nach rechts schieben</translation>
    </message>
    <message>
        <source>Shift pixel data to the left</source>
        <translation>Pixel nach links schieben</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Shift pixel data up</source>
        <translation>Pixel nach oben schieben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Shift pixel data down</source>
        <translation>Pixel nach unten schieben</translation>
    </message>
    <message>
        <source>Insert top</source>
        <translation>Oben einfügen</translation>
    </message>
    <message>
        <source>Insert a row at the top of the font</source>
        <translation>Oben an der Schrift eine Zeile einfügen</translation>
    </message>
    <message>
        <source>Insert bottom</source>
        <translation>Unten einfügen</translation>
    </message>
    <message>
        <source>Insert a row at the bottom of the font</source>
        <translation>Unten an der Schrift eine Zeile einfügen</translation>
    </message>
    <message>
        <source>Delete top</source>
        <translation>Oben löschen</translation>
    </message>
    <message>
        <source>Delete a row from the top of the font</source>
        <translation>Oben an der Schrift eine Zeile löschen</translation>
    </message>
    <message>
        <source>Delete bottom</source>
        <translation>Unten löschen</translation>
    </message>
    <message>
        <source>Delete a row from the bottom of the font</source>
        <translation>Unten an der Schrift eine Zeile löschen</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Increase cursor distance</source>
        <translation>Vorschub vergrößern</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Decrease cursor distance</source>
        <translation>Vorschub verkleinern</translation>
    </message>
    <message>
        <source>Increase index</source>
        <translation>Index erhöhen</translation>
    </message>
    <message>
        <source>Increase the index of the current pixel</source>
        <translation>Den Index des aktuellen Pixels erhöhen</translation>
    </message>
    <message>
        <source>Decrease index</source>
        <translation>Index verringern</translation>
    </message>
    <message>
        <source>Decrease the index of the current pixel</source>
        <translation>Den Index des aktuellen Pixels verringern</translation>
    </message>
    <message>
        <source>Invert index</source>
        <translation>Index invertieren</translation>
    </message>
    <message>
        <source>Invert the index of the current pixel</source>
        <translation>Den Index des aktuellen Pixels invertieren</translation>
    </message>
    <message>
        <source>Set index to 0</source>
        <translation>Index auf 0 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 0</source>
        <translation>Das aktuelle Pixel auf Index 0 setzen</translation>
    </message>
    <message>
        <source>Set index to 1</source>
        <translation>Index auf 1 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 1</source>
        <translation>Das aktuelle Pixel auf Index 1 setzen</translation>
    </message>
    <message>
        <source>Set index to 2</source>
        <translation>Index auf 2 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 2</source>
        <translation>Das aktuelle Pixel auf Index 2 setzen</translation>
    </message>
    <message>
        <source>Set index to 3</source>
        <translation>Index auf 3 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 3</source>
        <translation>Das aktuelle Pixel auf Index 3 setzen</translation>
    </message>
    <message>
        <source>Set index to 4</source>
        <translation>Index auf 4 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 4</source>
        <translation>Das aktuelle Pixel auf Index 4 setzen</translation>
    </message>
    <message>
        <source>Set index to 5</source>
        <translation>Index auf 5 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 5</source>
        <translation>Das aktuelle Pixel auf Index 5 setzen</translation>
    </message>
    <message>
        <source>Set index to 6</source>
        <translation>Index auf 6 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 6</source>
        <translation>Das aktuelle Pixel auf Index 6 setzen</translation>
    </message>
    <message>
        <source>Set index to 7</source>
        <translation>Index auf 7 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 7</source>
        <translation>Das aktuelle Pixel auf Index 7 setzen</translation>
    </message>
    <message>
        <source>Set index to 8</source>
        <translation>Index auf 8 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 8</source>
        <translation>Das aktuelle Pixel auf Index 8 setzen</translation>
    </message>
    <message>
        <source>Set index to 9</source>
        <translation>Index auf 9 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 9</source>
        <translation>Das aktuelle Pixel auf Index 9 setzen</translation>
    </message>
    <message>
        <source>Set index to 10</source>
        <translation>Index auf 10 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 10</source>
        <translation>Das aktuelle Pixel auf Index 10 setzen</translation>
    </message>
    <message>
        <source>Set index to 11</source>
        <translation>Index auf 11 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 11</source>
        <translation>Das aktuelle Pixel auf Index 11 setzen</translation>
    </message>
    <message>
        <source>Set index to 12</source>
        <translation>Index auf 12 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 12</source>
        <translation>Das aktuelle Pixel auf Index 12 setzen</translation>
    </message>
    <message>
        <source>Set index to 13</source>
        <translation>Index auf 13 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 13</source>
        <translation>Das aktuelle Pixel auf Index 13 setzen</translation>
    </message>
    <message>
        <source>Set index to 14</source>
        <translation>Index auf 14 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 14</source>
        <translation>Das aktuelle Pixel auf Index 14 setzen</translation>
    </message>
    <message>
        <source>Set index to 15</source>
        <translation>Index auf 15 setzen</translation>
    </message>
    <message>
        <source>Set the current pixel to index 15</source>
        <translation>Das aktuelle Pixel auf Index 15 setzen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Undo last action</source>
        <translation>Letzte Aktion rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Redo previous action</source>
        <translation>Letzte rückgängig gemachte Aktion wiederholen</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Shift</source>
        <translation>&amp;Schieben</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Versetzen</translation>
    </message>
    <message>
        <source>&amp;Font height</source>
        <translation>Schrift&amp;höhe</translation>
    </message>
    <message>
        <source>&amp;Custor distance</source>
        <translation>V&amp;orschub</translation>
    </message>
    <message>
        <source>&amp;Toggle character</source>
        <translation>Zeichen &amp;umschalten</translation>
    </message>
    <message>
        <source>Toggle the activation of the current character</source>
        <translation>Das aktuelle Zeichen aktivieren oder deaktivieren</translation>
    </message>
    <message>
        <source>Pi&amp;xel index</source>
        <translation>Pi&amp;xelindex</translation>
    </message>
    <message>
        <source>&amp;Enable range of characters...</source>
        <translation>Zeichenbereich &amp;aktivieren...</translation>
    </message>
    <message>
        <source>Enable the characters of the given area</source>
        <translation>Die Zeichen eines Bereichs aktivieren</translation>
    </message>
    <message>
        <source>Disa&amp;ble range of characters...</source>
        <translation>Zeichenbereich &amp;deaktivieren...</translation>
    </message>
    <message>
        <source>Disable the characters of the given area</source>
        <translation>Die Zeichen eines Bereichs deaktivieren</translation>
    </message>
    <message>
        <source>Disable &amp;all characters</source>
        <translation>Alle Zeichen dea&amp;ktivieren</translation>
    </message>
    <message>
        <source>Disable all characters</source>
        <translation>Alle Zeichen deaktivieren</translation>
    </message>
    <message>
        <source>&amp;Read pattern file...</source>
        <translation>&amp;Musterdatei lesen...</translation>
    </message>
    <message>
        <source>Enable the characters of the given pattern file</source>
        <translation>Die Zeichen einer Musterdatei aktivieren</translation>
    </message>
    <message>
        <source>Save &amp;pattern file...</source>
        <translation>Musterdatei s&amp;peichern...</translation>
    </message>
    <message>
        <source>Save the currently enabled characters to a pattern file</source>
        <translation>Die aktiven Zeichen in einer Musterdatei speichern</translation>
    </message>
    <message>
        <source>&amp;All Characters</source>
        <translation>&amp;Alle Zeichen</translation>
    </message>
    <message>
        <source>Show enabled characters only</source>
        <translation>Nur aktive Zeichen anzeigen</translation>
    </message>
    <message>
        <source>&amp;Go to character...</source>
        <translation>Zu Zeichen &amp;springen...</translation>
    </message>
    <message>
        <source>Selects and jumps to a desired character</source>
        <translation>Ein Zeichen wählen und dorthin springen</translation>
    </message>
    <message>
        <source>&amp;Index font directories</source>
        <translation>Schriftverzeichnisse &amp;erfassen</translation>
    </message>
    <message>
        <source>Search font directories for available fonts</source>
        <translation>Verzeichnisse nach Schriften durchsuchen</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>Ein&amp;stellungen...</translation>
    </message>
    <message>
        <source>Configure preferences</source>
        <translation>Einstellungen ändern</translation>
    </message>
    <message>
        <source>&amp;User Manual</source>
        <translation>&amp;Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Open the user manual (will be opened in a web browser)</source>
        <translation>Das Benutzerhandbuch im Webbrowser öffnen</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Über...</translation>
    </message>
    <message>
        <source>Show the about dialog</source>
        <translation>Über das Programm</translation>
    </message>
    <message>
        <source>&amp;Command line options...</source>
        <translation>Optionen der Befehls&amp;zeile...</translation>
    </message>
    <message>
        <source>Show the command line options</source>
        <translation>Die Optionen der Befehlszeile zeigen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Export &amp;proof...</source>
        <translation>Schrift&amp;probe exportieren...</translation>
    </message>
    <message>
        <source>Write pictures of the font into a PNG or PDF file</source>
        <translation>Bilder der Schrift in eine PNG- oder PDF-Datei schreiben</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Auswählen</translation>
    </message>
    <message>
        <source>Select pixels by clicking</source>
        <translation>Pixel durch Klicken auswählen</translation>
    </message>
    <message>
        <source>&amp;Pencil</source>
        <translation>&amp;Stift</translation>
    </message>
    <message>
        <source>Paint pixels by clicking and dragging (Ctrl inverts them)</source>
        <translation>Pixel durch Klicken und Ziehen malen (Strg invertiert sie)</translation>
    </message>
    <message>
        <source>&amp;Eraser</source>
        <translation>&amp;Radierer</translation>
    </message>
    <message>
        <source>Set pixels to index 0 by clicking and dragging (as the right button does with every tool)</source>
        <translation>Pixel durch Klicken und Ziehen auf Index 0 setzen (wie mit jedem Werkzeug die rechte Taste)</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Linie</translation>
    </message>
    <message>
        <source>Draw a line by dragging (Shift keeps it level, upright or diagonal)</source>
        <translation>Durch Ziehen eine Linie zeichnen (mit Umschalt waagrecht, senkrecht oder diagonal)</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <translation>Rechtec&amp;k</translation>
    </message>
    <message>
        <source>Draw the outline of a rectangle by dragging (Shift makes it a square)</source>
        <translation>Durch Ziehen den Umriss eines Rechtecks zeichnen (mit Umschalt ein Quadrat)</translation>
    </message>
    <message>
        <source>Filled re&amp;ctangle</source>
        <translation>&amp;Gefülltes Rechteck</translation>
    </message>
    <message>
        <source>Fill a rectangle by dragging (Shift makes it a square)</source>
        <translation>Durch Ziehen ein Rechteck füllen (mit Umschalt ein Quadrat)</translation>
    </message>
    <message>
        <source>&amp;Fill</source>
        <translation>&amp;Füllen</translation>
    </message>
    <message>
        <source>Fill the area of pixels with the same index by clicking</source>
        <translation>Durch Klicken die Fläche der Pixel mit demselben Index füllen</translation>
    </message>
    <message>
        <source>Pic&amp;ker</source>
        <translation>&amp;Pipette</translation>
    </message>
    <message>
        <source>Take the index to paint with from a pixel (as Alt and a click do with every tool)</source>
        <translation>Den Index, mit dem gemalt wird, von einem Pixel nehmen (wie mit jedem Werkzeug Alt und ein Klick)</translation>
    </message>
    <message>
        <source>Too&amp;ls</source>
        <translation>Werk&amp;zeuge</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Show the pixels of the editor larger</source>
        <translation>Die Pixel des Editors größer zeigen</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Show the pixels of the editor smaller</source>
        <translation>Die Pixel des Editors kleiner zeigen</translation>
    </message>
    <message>
        <source>&amp;Fit to view</source>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>Show the whole character as large as the editor has room for</source>
        <translation>Das ganze Zeichen so groß zeigen, wie der Editor Platz hat</translation>
    </message>
    <message>
        <source>Actual &amp;size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>Show each pixel of the character as one of the screen</source>
        <translation>Jedes Pixel des Zeichens als eines des Bildschirms zeigen</translation>
    </message>
    <message>
        <source>Show &amp;neighbours</source>
        <translation>&amp;Nachbarn zeigen</translation>
    </message>
    <message>
        <source>Show in the editor what stands beside the character in the sample text</source>
        <translation>Im Editor zeigen, was im Probetext neben dem Zeichen steht</translation>
    </message>
    <message>
        <source>Show o&amp;utline</source>
        <translation>&amp;Umriss zeigen</translation>
    </message>
    <message>
        <source>Show in the editor the outline that the character was rendered from</source>
        <translation>Im Editor den Umriss zeigen, aus dem das Zeichen gerastert wurde</translation>
    </message>
    <message>
        <source>Flip horizontally</source>
        <translation>Waagerecht spiegeln</translation>
    </message>
    <message>
        <source>Flip the selected pixels, or the characters, from left to right</source>
        <translation>Die ausgewählten Pixel oder die Zeichen von links nach rechts spiegeln</translation>
    </message>
    <message>
        <source>Flip vertically</source>
        <translation>Senkrecht spiegeln</translation>
    </message>
    <message>
        <source>Flip the selected pixels, or the characters, from top to bottom</source>
        <translation>Die ausgewählten Pixel oder die Zeichen von oben nach unten spiegeln</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Rotate the selected pixels, or the characters, to the right</source>
        <translation>Die ausgewählten Pixel oder die Zeichen nach rechts drehen</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Rotate the selected pixels, or the characters, to the left</source>
        <translation>Die ausgewählten Pixel oder die Zeichen nach links drehen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Select all pixels of the character</source>
        <translation>Alle Pixel des Zeichens auswählen</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Fill the selected pixels with the index to paint with</source>
        <translation>Die ausgewählten Pixel mit dem Index füllen, mit dem gemalt wird</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Set the selected pixels to index 0</source>
        <translation>Die ausgewählten Pixel auf Index 0 setzen</translation>
    </message>
    <message>
        <source>Tra&amp;nsform</source>
        <translation>Trans&amp;formieren</translation>
    </message>
    <message>
        <source>Pixel selecti&amp;on</source>
        <translation>P&amp;ixelauswahl</translation>
    </message>
    <message>
        <source>Copy the selected characters to another code and those behind it</source>
        <translation>Die ausgewählten Zeichen auf einen anderen Code und die folgenden kopieren</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneide&amp;n</translation>
    </message>
    <message>
        <source>Cut the selected pixels, or the characters, to the clipboard</source>
        <translation>Die ausgewählten Pixel oder die Zeichen in die Zwischenablage ausschneiden</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected pixels, or the characters, to the clipboard</source>
        <translation>Die ausgewählten Pixel oder die Zeichen in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Aus &amp;Zwischenablage einfügen</translation>
    </message>
    <message>
        <source>Paste pixels or characters from the clipboard</source>
        <translation>Pixel oder Zeichen aus der Zwischenablage einfügen</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>Show the steps that can be undone and redone</source>
        <translation>Die Schritte zeigen, die sich rückgängig machen und wiederholen lassen</translation>
    </message>
    <message>
        <source>&amp;Kerning pairs</source>
        <translation>&amp;Kerning-Paare</translation>
    </message>
    <message>
        <source>Show the kerning pairs of the current character</source>
        <translation>Die Kerning-Paare des aktuellen Zeichens zeigen</translation>
    </message>
    <message>
        <source>&amp;Recover unsaved fonts...</source>
        <translation>Ungespeicherte Schriften &amp;wiederherstellen...</translation>
    </message>
    <message>
        <source>Restore fonts whose windows were lost before they were saved</source>
        <translation>Schriften wiederherstellen, deren Fenster vor dem Speichern verloren gingen</translation>
    </message>
    <message>
        <source>Duplicate to code...</source>
        <translation>Auf &amp;Code duplizieren...</translation>
    </message>
    <message>
        <source>Delete c&amp;haracters</source>
        <translation>Zeichen lös&amp;chen</translation>
    </message>
    <message>
        <source>Delete the selected characters from the font</source>
        <translation>Die ausgewählten Zeichen aus der Schrift löschen</translation>
    </message>
</context>
<context>
    <name>Script</name>
    <message>
        <source>Latin</source>
        <translation>Lateinisch</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griechisch</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Kyrillisch</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>Armenisch</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebräisch</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabisch</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation>Devanagari</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>Bengalisch</translation>
    </message>
    <message>
        <source>Gurmukhi</source>
        <translation>Gurmukhi</translation>
    </message>
    <message>
        <source>Gujarati</source>
        <translation>Gujarati</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation>Tamil</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation>Telugu</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation>Kannada</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation>Malayalam</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thai</translation>
    </message>
    <message>
        <source>Lao</source>
        <translation>Laotisch</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>Georgisch</translation>
    </message>
    <message>
        <source>Mathematical operators</source>
        <translation>Mathematische Operatoren</translation>
    </message>
    <message>
        <source>Box drawing</source>
        <translation>Rahmenzeichen</translation>
    </message>
    <message>
        <source>Hiragana</source>
        <translation>Hiragana</translation>
    </message>
    <message>
        <source>Katakana</source>
        <translation>Katakana</translation>
    </message>
    <message>
        <source>Hangul</source>
        <translation>Hangul</translation>
    </message>
    <message>
        <source>CJK ideographs</source>
        <translation>CJK-Ideogramme</translation>
    </message>
    <message>
        <source>Tibetan</source>
        <translation>Tibetisch</translation>
    </message>
    <message>
        <source>Ethiopic</source>
        <translation>Äthiopisch</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation>Khmer</translation>
    </message>
    <message>
        <source>Mongolian</source>
        <translation>Mongolisch</translation>
    </message>
    <message>
        <source>Braille</source>
        <translation>Braille</translation>
    </message>
</context>
<context>
    <name>Width</name>
    <message>
        <source>ultra-condensed</source>
        <translation>ultraschmal</translation>
    </message>
    <message>
        <source>extra-condensed</source>
        <translation>extraschmal</translation>
    </message>
    <message>
        <source>condensed</source>
        <translation>schmal</translation>
    </message>
    <message>
        <source>semi-condensed</source>
        <translation>halbschmal</translation>
    </message>
    <message>
        <source>normal</source>
        <translation>normal</translation>
    </message>
    <message>
        <source>semi-expanded</source>
        <translation>halbbreit</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>breit</translation>
    </message>
    <message>
        <source>extra-expanded</source>
        <translation>extrabreit</translation>
    </message>
    <message>
        <source>ultra-expanded</source>
        <translation>ultrabreit</translation>
    </message>
</context>
</TS>
