#include "model/font.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QTest>

namespace Glyphor {

namespace {

// A 1-bit glyph from rows of "X" and "_".
RenderedGlyph Mono(const QList<QByteArray>& rows)
{
    RenderedGlyph glyph;
    glyph.bitsPerPixel = 1;
    glyph.rows = int(rows.size());
    glyph.width = rows.isEmpty() ? 0 : int(rows[0].size());
    glyph.pitch = 4; // padded, as the rasteriser does
    for (const QByteArray& row : rows) {
        std::vector<quint8> bytes(4);
        for (int x = 0; x < row.size(); ++x)
            bytes[std::size_t(x) / 8] |= quint8(row[x] == 'X' ? 0x80 >> x % 8 : 0);
        glyph.pixels.insert(glyph.pixels.end(), bytes.begin(), bytes.end());
    }
    glyph.cursorDistance = glyph.width;
    return glyph;
}

RenderedGlyph Solid(int width, int rows, quint8 coverage = 255)
{
    RenderedGlyph glyph;
    glyph.bitsPerPixel = 8;
    glyph.width = width;
    glyph.rows = rows;
    glyph.pitch = width;
    glyph.cursorDistance = width;
    glyph.pixels.assign(std::size_t(width) * std::size_t(rows), coverage);
    return glyph;
}

} // namespace

class TestGlyphConversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Thresholds_data()
    {
        const Test::Rows<int, int, int> row;
        row("1 bit, below", 1, 127, 0);
        row("1 bit, at", 1, 128, 1);
        row("2 bits, 42", 2, 42, 0);
        row("2 bits, 43", 2, 43, 1);
        row("2 bits, 127", 2, 127, 1);
        row("2 bits, 128", 2, 128, 2);
        row("2 bits, 212", 2, 212, 2);
        row("2 bits, 213", 2, 213, 3);
        row("4 bits, 15", 4, 15, 0);
        row("4 bits, 16", 4, 16, 1);
        row("4 bits, 255", 4, 255, 15);
    }

    void Thresholds()
    {
        const auto [bits, coverage, index] = Test::Row<int, int, int>();
        const RenderedGlyph glyph = Solid(1, 1, quint8(coverage));
        GlyphPlacement placement;
        placement.width = placement.height = 1;
        QCOMPARE(uchar(ConvertGlyph(glyph, placement, bits)[0]) >> (8 - bits), index);
    }

    void SetBitsBecomeTheHighestIndex()
    {
        Font font(FontFormat::AA4, EncodingType::Unicode);
        QCOMPARE(font.AddRendered('A', Mono({"X_X", "_X_"})), Font::AddResult::Added);
        QCOMPARE(font.FindChar('A')->bitmap->Data().toHex(), QByteArray("f0f00f00"));
        QCOMPARE(font.AddRendered('A', Mono({"X"})), Font::AddResult::Exists);
    }

    void LegacyCells_data()
    {
        const Test::Rows<int, int, int, QByteArray> row; // the rows of a font 3 pixels high
        row("in place", 1, 1, 4, QByteArray("004040"));
        row("ink beyond the cursor", 6, 1, 4, QByteArray("000202"));
        row("before the cursor", -3, 0, 4, QByteArray("808000"));
        row("above the font", 0, -1, 4, QByteArray("800000"));
        row("below the font", 0, 2, 4, QByteArray("000080"));
        row("far off", 0, 900, 4, QByteArray("000000"));
    }

    void LegacyCells()
    {
        const auto [xPos, yPos, cursorDistance, rows] = Test::Row<int, int, int, QByteArray>();
        Font font(FontFormat::Legacy, EncodingType::Unicode);
        font.SetHeight(3);
        RenderedGlyph glyph = Mono({"X", "X"});
        glyph.xPos = xPos;
        glyph.yPos = yPos;
        glyph.cursorDistance = cursorDistance;
        QCOMPARE(font.AddRendered('A', glyph), Font::AddResult::Added);
        const Character& character = *font.FindChar('A');
        QCOMPARE(character.bitmap->Data().toHex(), rows);
        const int width = std::max(cursorDistance, std::max(xPos, 0) + 1);
        QCOMPARE(Test::Numbers(character.info), (QList<int>{width, 3, 0, 0, cursorDistance}));
    }

    void FramesGetRoom_data()
    {
        const Test::Rows<QList<QByteArray>, int, int, int, int, QByteArray> row;
        row("ink on every edge", QList<QByteArray>{"X"}, 3, 3, -1, -1, QByteArray("00400040a040"));
        row("room above and on the left", QList<QByteArray>{"__", "_X"}, 3, 3, 0, 0,
            QByteArray("00400040a040"));
        row("ink on the left only", QList<QByteArray>{"__", "X_", "__"}, 3, 3, -1, 0,
            QByteArray("00400040a040"));
        row("no ink", QList<QByteArray>{"_"}, 1, 1, 0, 0, QByteArray("0000"));
    }

    void FramesGetRoom()
    {
        const auto [glyph, width, height, xPos, yPos, planes] =
            Test::Row<QList<QByteArray>, int, int, int, int, QByteArray>();
        Font font(FontFormat::Framed, EncodingType::Unicode);
        QCOMPARE(font.AddRendered('A', Mono(glyph)), Font::AddResult::Added);
        const Character& character = *font.FindChar('A');
        QCOMPARE(Test::Numbers(character.info),
                 (QList<int>{width, height, xPos, yPos, int(glyph[0].size())}));
        QCOMPARE(character.bitmap->DataAsList().toHex(), planes);
    }

    void OffsetsArePadded()
    {
        Font font(FontFormat::AA4, EncodingType::Unicode);
        RenderedGlyph glyph = Solid(2, 1);
        glyph.xPos = 129;
        glyph.yPos = 128;
        QCOMPARE(font.AddRendered('A', glyph), Font::AddResult::Added);
        QCOMPARE(Test::Numbers(font.FindChar('A')->info), (QList<int>{4, 2, 127, 127, 2}));
        QCOMPARE(font.FindChar('A')->bitmap->Data().toHex(), QByteArray("000000ff"));

        RenderedGlyph empty;
        empty.cursorDistance = 5;
        empty.yPos = 200;
        QCOMPARE(font.AddRendered(' ', empty), Font::AddResult::Added);
        QCOMPARE(Test::Numbers(font.FindChar(' ')->info), (QList<int>{0, 0, 0, 127, 5}));
    }

    void Misfits_data()
    {
        const Test::Rows<int, int, int, int, bool> row;
        const int aa = int(FontFormat::AA4);
        const int framed = int(FontFormat::Framed);
        const int legacy = int(FontFormat::LegacyAA4);
        row("255 pixels", aa, 255, 0, 255, true);
        row("256 pixels", aa, 256, 0, 255, false);
        row("256 pixels with padding", aa, 128, 255, 10, false);
        row("cursor distance 256", aa, 5, 0, 256, false);
        row("negative cursor distance", aa, 5, 0, -1, false);
        row("offset -128", aa, 5, -128, 5, true);
        row("offset -129", aa, 5, -129, 5, false);
        row("framed, 253 pixels", framed, 253, 0, 5, true);
        row("framed, 254 pixels", framed, 254, 0, 5, false);
        row("legacy, ink up to 255", legacy, 200, 55, 5, true);
        row("legacy, ink up to 256", legacy, 200, 56, 5, false);
        row("absurd", aa, 1, 0x7FFFFFFF, 5, false);
    }

    void Misfits()
    {
        const auto [format, size, xPos, cursorDistance, fits] =
            Test::Row<int, int, int, int, bool>();
        Font font(FontFormat(format), EncodingType::Unicode);
        font.SetHeight(10);
        RenderedGlyph glyph = Solid(size, size);
        glyph.xPos = xPos;
        glyph.cursorDistance = cursorDistance;
        QCOMPARE(font.AddRendered('A', glyph) == Font::AddResult::Added, fits);
        QCOMPARE(font.FindChar('A') != nullptr, fits);
    }
};

GLYPHOR_TEST(TestGlyphConversion)

} // namespace Glyphor

#include "tst_glyph_conversion.moc"
