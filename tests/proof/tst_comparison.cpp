#include "proof/font_comparison.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

namespace Glyphor {

using Change = std::function<void(Font&)>;

class TestComparison : public QObject
{
    Q_OBJECT

    static QStringList Lines(const Font& before, const Font& after)
    {
        QStringList lines =
            ComparisonText(CompareFonts(before, after, true), u"old.c"_s).split(u'\n');
        lines.removeLast();
        return lines;
    }

private Q_SLOTS:
    void Differences_data()
    {
        const Test::Rows<Change, QString> row; // the lines but for the last
        row(
            "nothing", [](Font&) {}, QString());
        row(
            "name", [](Font& font) { font.SetName(u"New"_s); }, u"name: 8_Tests_Plain_1 -> New"_s);
        row(
            "heights",
            [](Font& font) {
                font.SetHeight(4);
                font.SetReferenceHeights(2, 2);
            },
            u"height: 3 -> 4\nline distance: 3 -> 4\nlowercase height: 1 -> 2"_s);
        row(
            "baseline with its characters",
            [](Font& font) {
                font.SetBaseline(3);
                font.ForEachEnabled(
                    [&font](quint16 code, const Character&) { ++font.FindChar(code)->info.yPos; });
            },
            u"baseline: 2 -> 3\n! 0x0041-0x0043: 3 characters, y +1\n"
            "! 0x007F-0x0081: 3 characters, y +1"_s);
        row(
            "gone", [](Font& font) { font.SetEnabled(0x41, 0x42, false); },
            u"- 0x0041-0x0042: 2 characters"_s);
        row(
            "added", [](Font& font) { font.SetEnabled(0x7E, 0x7E, true); }, u"+ 0x007E TILDE"_s);
        row(
            "advance", [](Font& font) { ++font.FindChar(0x42)->info.cursorDistance; },
            u"! 0x0042 LATIN CAPITAL LETTER B: advance 6 -> 7"_s);
        row(
            "pixel", [](Font& font) { font.FindChar(0x41)->bitmap->InvertPixelIndex(0, 0); },
            u"! 0x0041 LATIN CAPITAL LETTER A: 1 pixel"_s);
        row(
            "moved ink", [](Font& font) { font.FindChar(0x41)->info.xPos = 0; },
            u"! 0x0041 LATIN CAPITAL LETTER A: x -1 -> 0, 2 pixels"_s);
        row(
            "empty column",
            [](Font& font) { QVERIFY(font.FindChar(0x42)->bitmap->InsertColumnRight()); },
            u"! 0x0042 LATIN CAPITAL LETTER B: width 5 -> 6"_s);
        row(
            "kerning",
            [](Font& font) {
                font.FindChar(0x41)->kerning = {{0x42, -1}};
            },
            u"! 0x0041 LATIN CAPITAL LETTER A: kerning"_s);
    }

    void Differences()
    {
        const auto [change, expected] = Test::Row<Change, QString>();
        const auto before = Test::MakeSampleFont(FontFormat::Standard);
        const auto after = Test::MakeSampleFont(FontFormat::Standard);
        before->SetHasKerning(true);
        after->SetHasKerning(true);
        change(*after);
        QStringList lines = Lines(*before, *after);
        QCOMPARE(lines.last().startsWith(u"No differences from old.c: 6 characters"_s),
                 expected.isEmpty());
        lines.removeLast();
        QCOMPARE(lines.join(u'\n'), expected);
    }

    void Formats_data()
    {
        const Test::Rows<FontFormat, EncodingType, QString> row; // the last line
        row("deeper", FontFormat::AA4, EncodingType::Unicode,
            u"Differences from old.c: 1 of the font, 0 characters added, 0 gone, 0 changed, 2 the "
            "same."_s);
        row("framed", FontFormat::Framed, EncodingType::Unicode,
            u"Differences from old.c: 1 of the font, 0 characters added, 0 gone, 0 changed, 2 the "
            "same."_s);
        row("legacy", FontFormat::Legacy, EncodingType::Unicode,
            u"Differences from old.c: 1 of the font, 0 characters added, 0 gone, 0 changed, 2 the "
            "same."_s);
        row("Shift JIS", FontFormat::Legacy, EncodingType::ShiftJis,
            u"Differences from old.c: 2 of the font, 1 character added, 1 gone, 1 changed, 0 the "
            "same."_s);
    }

    // Full ink is the same in all of them; codes of the encodings meet in Unicode.
    void Formats()
    {
        const auto [format, encoding, expected] = Test::Row<FontFormat, EncodingType, QString>();
        const auto make = [](FontFormat made, EncodingType madeIn) {
            auto font = std::make_unique<Font>(made, madeIn);
            font->SetHeight(3);
            for (const quint16 code : {quint16(0x41), quint16(0xB1)}) {
                Character& character = font->AddChar(code);
                character.info.Set({code == 0x41 ? 2 : 3, 3, 0, 0, 4});
                character.bitmap->AdjustData();
                for (int x = 0; x < 2; ++x)
                    character.bitmap->SetPixelIndex(x, x, 15);
            }
            return font;
        };
        const auto before = make(FontFormat::Standard, EncodingType::Unicode);
        const auto after = make(format, encoding);
        if (encoding == EncodingType::ShiftJis)
            after->FindChar(0x41)->info.cursorDistance = 5;
        const QStringList lines = Lines(*before, *after);
        QVERIFY(lines.first().startsWith(u"format: Standard, 1bpp -> "_s));
        QCOMPARE(lines.last(), expected);
        QCOMPARE(lines.contains(u"+ 0xFF71 HALFWIDTH KATAKANA LETTER A"_s),
                 encoding == EncodingType::ShiftJis);
    }
};

GLYPHOR_TEST(TestComparison)

} // namespace Glyphor

#include "tst_comparison.moc"
