#include "app/critical_exception.h"
#include "render/picture_glyph.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QRandomGenerator>
#include <QtEndian>
#include <QTest>

namespace Glyphor {

namespace {

enum Colours { Grey = 0, Rgb = 2, Palette = 3, GreyAlpha = 4, Rgba = 6 };

QByteArray BigEndian(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray Chunk(const QByteArray& type, const QByteArray& data)
{
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : type + data) {
        crc ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
    }
    return BigEndian(quint32(data.size())) + type + data + BigEndian(~crc);
}

// A PNG file around rows that begin with their filter.
struct Png
{
    quint32 width;
    quint32 height;
    int depth;
    int colours;
    QByteArray rows;
    bool isInterlaced = false;
    QByteArray palette = {};

    [[nodiscard]] QByteArray Header() const
    {
        return BigEndian(width) + BigEndian(height) + char(depth) + char(colours) + '\0' + '\0' +
               char(isInterlaced);
    }

    [[nodiscard]] QByteArray Pixels() const { return qCompress(rows).mid(4); }

    [[nodiscard]] QByteArray File() const { return Around(Header(), Pixels()); }

    [[nodiscard]] QByteArray Around(const QByteArray& header, const QByteArray& pixels) const
    {
        return "\x89PNG\r\n\x1A\n" + Chunk("IHDR", header) +
               (palette.isEmpty() ? QByteArray() : Chunk("PLTE", palette)) + Chunk("IDAT", pixels) +
               Chunk("IEND", {});
    }
};

QByteArray Hex(const char* digits)
{
    return QByteArray::fromHex(digits);
}

} // namespace

class TestPictureGlyph : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Kinds_data()
    {
        const Test::Rows<QByteArray, int, QByteArray> row; // the file, the threshold, coverages
        const auto png = [](int depth, int colours, const char* rows, bool isInterlaced = false) {
            return Png{2, 1, depth, colours, Hex(rows), isInterlaced, {}}.File();
        };
        row("grey", png(8, Grey, "00 00 FF"), 0, Hex("FF00"));
        row("between", png(8, Grey, "00 40 80"), 0, Hex("BF7F"));
        row("1 bit", png(1, Grey, "00 40"), 0, Hex("FF00"));
        row("16 bits", png(16, Grey, "00 0000 FFFF"), 0, Hex("FF00"));
        row("colours", png(8, Rgb, "00 000000 FFFFFF"), 0, Hex("FF00"));
        row("opacity", png(8, GreyAlpha, "00 00FF 0000"), 0, Hex("FF00"));
        row("half", png(8, GreyAlpha, "00 0080 FF80"), 0, Hex("8000"));
        row("all channels", png(8, Rgba, "00 00000040 FFFFFFFF"), 0, Hex("4000"));
        row("interlaced", png(8, Grey, "00 00 00 FF", true), 0, Hex("FF00"));
        row("palette", Png{2, 1, 8, Palette, Hex("00 01 00"), false, Hex("FFFFFF 000000")}.File(),
            0, Hex("FF00"));
        row("threshold reached", png(8, Grey, "00 40 41"), 0xBF, Hex("FF00"));
        row("lowest threshold", png(8, Grey, "00 FE FF"), 1, Hex("FF00"));
        row("highest threshold", png(8, Grey, "00 00 01"), 255, Hex("FF00"));
    }

    void Kinds()
    {
        const auto [file, threshold, coverages] = Test::Row<QByteArray, int, QByteArray>();
        const RenderedGlyph glyph = GlyphOfPng(file, u"a.png"_s, threshold);
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(glyph.pixels.data()), glyph.size),
                 coverages);
        QCOMPARE(QList<int>({glyph.width, glyph.rows, glyph.pitch, glyph.bitsPerPixel, glyph.xPos,
                             glyph.yPos, glyph.cursorDistance}),
                 QList<int>({2, 1, 2, 8, 0, -1, 3}));
        QVERIFY(HasInk(glyph));
    }

    void LargestAndEmpty()
    {
        const Png largest{255, 255, 1, Grey, QByteArray(33 * 255, '\0'), false, {}};
        QCOMPARE(GlyphOfPng(largest.File(), {}, 0).cursorDistance, 255);
        QVERIFY(!HasInk(GlyphOfPng(Png{1, 1, 8, Grey, Hex("00FF"), false, {}}.File(), {}, 0)));
    }

    void Refusals_data()
    {
        const Test::Rows<QByteArray, QString> row;
        const Png good{2, 1, 8, Grey, Hex("00 00 FF"), false, {}};
        const QString none = u"The file a.png is no PNG file that can be read: "_s;
        const auto sized = [rows = good.rows](quint32 width, quint32 height) {
            return Png{width, height, 1, Grey, rows, false, {}}.File();
        };
        row("nothing", {}, none);
        row("no PNG", "GIF89a..........", none);
        row("truncated", good.File().chopped(20), none);
        row("header alone", good.File().left(33), none);
        const QByteArray length = BigEndian(0x7FFFFFFF); // for which no memory is taken
        row("chunk beyond the file", good.File().left(33) + length + "zTXt and no more of it",
            none + u"it is cut off."_s);
        row("pixels missing", good.Around(good.Header(), good.Pixels().left(6)), none);
        row("palette missing", Png{2, 1, 8, Palette, good.rows, false, {}}.File(), none);
        row("no width", sized(0, 1), none);
        row("too wide", sized(256, 1),
            u"The picture a.png has 256 x 1 pixels; a character has 255 x 255 at most."_s);
        row("too high", sized(1, 256), u"The picture a.png has 1 x 256 pixels"_s);
        row("huge", sized(1000000, 1000000), u"The picture a.png has 1000000 x 1000000"_s);
        row("beyond", sized(0xFFFFFFFF, 0xFFFFFFFF), none);
    }

    void Refusals()
    {
        const auto [file, text] = Test::Row<QByteArray, QString>();
        const QString failure =
            Test::FailureOf([&bytes = file] { (void)GlyphOfPng(bytes, u"a.png"_s, 0); });
        QVERIFY2(failure.startsWith(u"Font creation failed!: "_s + text), qPrintable(failure));
    }

    // Whatever the bytes are, there is a glyph of a character's size or a failure. The checksums of
    // some are right, so that the damage gets beyond them.
    void SurvivesDamage()
    {
        const std::array pngs = {
            Png{9, 5, 1, Grey, QByteArray(5 * 3, '\x11'), false, {}},
            Png{5, 2, 8, Rgba, QByteArray(2 * 21, '\x02'), true, {}},
            Png{3, 3, 8, Palette, QByteArray(3 * 4, '\x01'), false, Hex("FFFFFF 000000")}};
        QRandomGenerator random(1);
        const auto damage = [&random](QByteArray& bytes) {
            for (int count = random.bounded(1, 4); count > 0; --count)
                bytes[random.bounded(int(bytes.size()))] = char(random.bounded(256));
        };
        int refused = 0;
        for (int run = 0; run < 6000; ++run) {
            const Png& png = pngs[std::size_t(run) % pngs.size()];
            QByteArray parts[] = {png.Header(), png.Pixels(), png.File()};
            const int damaged = run / 3 % 3;
            damage(parts[damaged]);
            const QByteArray file = damaged == 2 ? parts[2] : png.Around(parts[0], parts[1]);
            try {
                const RenderedGlyph glyph = GlyphOfPng(file, {}, 0);
                QVERIFY(glyph.width <= 255 && glyph.rows <= 255);
                QCOMPARE(glyph.pixels.size(), std::size_t(glyph.size));
            } catch (const CriticalException&) {
                ++refused;
            }
        }
        QVERIFY(refused > 1000);
    }
};

GLYPHOR_TEST(TestPictureGlyph)

} // namespace Glyphor

#include "tst_picture_glyph.moc"
