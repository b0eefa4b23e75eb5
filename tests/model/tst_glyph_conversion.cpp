#include "model/font.h"
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
        QTest::addColumn<int>("bits");
        QTest::addColumn<int>("coverage");
        QTest::addColumn<int>("index");
        QTest::newRow("1 bit, below") << 1 << 127 << 0;
        QTest::newRow("1 bit, at") << 1 << 128 << 1;
        QTest::newRow("1 bit, full") << 1 << 255 << 1;
        QTest::newRow("2 bits, 42") << 2 << 42 << 0;
        QTest::newRow("2 bits, 43") << 2 << 43 << 1;
        QTest::newRow("2 bits, 127") << 2 << 127 << 1;
        QTest::newRow("2 bits, 128") << 2 << 128 << 2;
        QTest::newRow("2 bits, 212") << 2 << 212 << 2;
        QTest::newRow("2 bits, 213") << 2 << 213 << 3;
        QTest::newRow("4 bits, 15") << 4 << 15 << 0;
        QTest::newRow("4 bits, 16") << 4 << 16 << 1;
        QTest::newRow("4 bits, 255") << 4 << 255 << 15;
    }

    void Thresholds()
    {
        QFETCH(const int, bits);
        QFETCH(const int, coverage);
        QFETCH(const int, index);
        const RenderedGlyph glyph = Solid(1, 1, quint8(coverage));
        GlyphPlacement placement;
        placement.width = placement.height = 1;
        QCOMPARE(uchar(ConvertGlyph(glyph, placement, bits)[0]) >> (8 - bits), index);
    }

    void SetBitsBecomeTheHighestIndex()
    {
        Font font(FontFormat::AA4, EncodingType::Unicode);
        QCOMPARE(font.AddRendered('A', Mono({"X_X", "_X_"})), Font::AddResult::Added);
        QCOMPARE(font.FindChar('A')->bitmap->Data().toHex(), QByteArray("f0f0"
                                                                        "0f00"));
        QCOMPARE(font.AddRendered('A', Mono({"X"})), Font::AddResult::Exists);
    }

    void LegacyCells_data()
    {
        QTest::addColumn<int>("xPos");
        QTest::addColumn<int>("yPos");
        QTest::addColumn<int>("cursorDistance");
        QTest::addColumn<QByteArray>("rows"); // of a font 3 pixels high
        QTest::newRow("in place") << 1 << 1 << 4
                                  << QByteArray("00"
                                                "40"
                                                "40");
        QTest::newRow("ink beyond the cursor") << 6 << 1 << 4
                                               << QByteArray("00"
                                                             "02"
                                                             "02");
        QTest::newRow("before the cursor") << -3 << 0 << 4
                                           << QByteArray("80"
                                                         "80"
                                                         "00");
        QTest::newRow("above the font") << 0 << -1 << 4
                                        << QByteArray("80"
                                                      "00"
                                                      "00");
        QTest::newRow("below the font") << 0 << 2 << 4
                                        << QByteArray("00"
                                                      "00"
                                                      "80");
        QTest::newRow("far off") << 0 << 900 << 4
                                 << QByteArray("00"
                                               "00"
                                               "00");
    }

    void LegacyCells()
    {
        QFETCH(const int, xPos);
        QFETCH(const int, yPos);
        QFETCH(const int, cursorDistance);
        QFETCH(const QByteArray, rows);
        Font font(FontFormat::Legacy, EncodingType::Unicode);
        font.SetHeight(3);
        RenderedGlyph glyph = Mono({"X", "X"});
        glyph.xPos = xPos;
        glyph.yPos = yPos;
        glyph.cursorDistance = cursorDistance;
        QCOMPARE(font.AddRendered('A', glyph), Font::AddResult::Added);
        const Character& character = *font.FindChar('A');
        QCOMPARE(character.bitmap->Data().toHex(), rows);
        QCOMPARE(int(character.info.width), std::max(cursorDistance, std::max(xPos, 0) + 1));
        QCOMPARE(int(character.info.cursorDistance), cursorDistance);
        QCOMPARE(int(character.info.xPos), 0);
        QCOMPARE(int(character.info.yPos), 0);
    }

    void FramesGetRoom_data()
    {
        QTest::addColumn<QList<QByteArray>>("glyph");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("xPos");
        QTest::addColumn<int>("yPos");
        QTest::addColumn<QByteArray>("planes");
        QTest::newRow("ink on every edge") << QList<QByteArray>{"X"} << 3 << 3 << -1 << -1
                                           << QByteArray("004000"
                                                         "40a040");
        QTest::newRow("room above and on the left")
            << QList<QByteArray>{"__", "_X"} << 3 << 3 << 0 << 0
            << QByteArray("004000"
                          "40a040");
        QTest::newRow("ink on the left only")
            << QList<QByteArray>{"__", "X_", "__"} << 3 << 3 << -1 << 0
            << QByteArray("004000"
                          "40a040");
        QTest::newRow("no ink") << QList<QByteArray>{"_"} << 1 << 1 << 0 << 0 << QByteArray("0000");
    }

    void FramesGetRoom()
    {
        QFETCH(const QList<QByteArray>, glyph);
        QFETCH(const int, width);
        QFETCH(const int, height);
        QFETCH(const int, xPos);
        QFETCH(const int, yPos);
        QFETCH(const QByteArray, planes);
        Font font(FontFormat::Framed, EncodingType::Unicode);
        QCOMPARE(font.AddRendered('A', Mono(glyph)), Font::AddResult::Added);
        const Character& character = *font.FindChar('A');
        QCOMPARE(int(character.info.width), width);
        QCOMPARE(int(character.info.height), height);
        QCOMPARE(int(character.info.xPos), xPos);
        QCOMPARE(int(character.info.yPos), yPos);
        QCOMPARE(int(character.info.cursorDistance), int(glyph[0].size()));
        QCOMPARE(character.bitmap->DataAsList().toHex(), planes);
    }

    void OffsetsArePadded()
    {
        Font font(FontFormat::AA4, EncodingType::Unicode);
        RenderedGlyph glyph = Solid(2, 1);
        glyph.xPos = 129;
        glyph.yPos = 128;
        QCOMPARE(font.AddRendered('A', glyph), Font::AddResult::Added);
        const CharInfo& info = font.FindChar('A')->info;
        QCOMPARE(int(info.xPos), 127);
        QCOMPARE(int(info.yPos), 127);
        QCOMPARE(int(info.width), 4);
        QCOMPARE(int(info.height), 2);
        QCOMPARE(font.FindChar('A')->bitmap->Data().toHex(), QByteArray("0000"
                                                                        "00ff"));

        RenderedGlyph empty;
        empty.cursorDistance = 5;
        empty.yPos = 200;
        QCOMPARE(font.AddRendered(' ', empty), Font::AddResult::Added);
        QCOMPARE(int(font.FindChar(' ')->info.yPos), 127);
        QCOMPARE(int(font.FindChar(' ')->info.height), 0);
    }

    void Misfits_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("xPos");
        QTest::addColumn<int>("cursorDistance");
        QTest::addColumn<bool>("fits");
        const int aa = int(FontFormat::AA4);
        const int framed = int(FontFormat::Framed);
        const int legacy = int(FontFormat::LegacyAA4);
        QTest::newRow("255 pixels") << aa << 255 << 0 << 255 << true;
        QTest::newRow("256 pixels") << aa << 256 << 0 << 255 << false;
        QTest::newRow("256 pixels with padding") << aa << 128 << 255 << 10 << false;
        QTest::newRow("cursor distance 256") << aa << 5 << 0 << 256 << false;
        QTest::newRow("negative cursor distance") << aa << 5 << 0 << -1 << false;
        QTest::newRow("offset -128") << aa << 5 << -128 << 5 << true;
        QTest::newRow("offset -129") << aa << 5 << -129 << 5 << false;
        QTest::newRow("framed, 253 pixels") << framed << 253 << 0 << 5 << true;
        QTest::newRow("framed, 254 pixels") << framed << 254 << 0 << 5 << false;
        QTest::newRow("legacy, ink up to 255") << legacy << 200 << 55 << 5 << true;
        QTest::newRow("legacy, ink up to 256") << legacy << 200 << 56 << 5 << false;
        QTest::newRow("absurd") << aa << 1 << 0x7FFFFFFF << 5 << false;
    }

    void Misfits()
    {
        QFETCH(const int, format);
        QFETCH(const int, size);
        QFETCH(const int, xPos);
        QFETCH(const int, cursorDistance);
        QFETCH(const bool, fits);
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
