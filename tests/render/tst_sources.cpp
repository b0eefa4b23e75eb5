#include "render/font_assembly.h"
#include "render/font_file_bdf.h"
#include "render/font_file_scalable.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QTest>

#include <algorithm>

namespace Glyphor {

namespace {

RenderOptions Mapped(const char* map, int height = 20)
{
    RenderOptions options;
    options.height = height;
    if (map != nullptr)
        options.map = ParseCharacterMap(QString::fromLatin1(map));
    return options;
}

// The own font's map, then that of collection.ttc, whose "A" is the only character.
std::unique_ptr<Font> Assembled(const char* map, const char* otherMap,
                                const std::optional<CodeSet>& filter = {})
{
    FontFileTTF file(Test::FontPath("outlines.ttf"), Mapped(map));
    FontFileTTC other(Test::FontPath("collection.ttc"), Mapped(otherMap, 30));
    file.SetCharacterFilter(filter);
    other.SetCharacterFilter(filter);
    file.AddSource(other.Source());
    return file.Read();
}

} // namespace

class TestSources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Maps_data()
    {
        const Test::Rows<QString, QString> row; // the text again, or a part of the refusal
        row("ranges", u"32-0x7e, 0X20AC"_s, u"0x20-0x7E,0x20AC"_s);
        row("moved", u"0xF02D1=0xE001:heart,?0xF0000-0xF00FF=0xE100"_s,
            u"0xF02D1=0xE001:heart,?0xF0000-0xF00FF=0xE100"_s);
        row("all", u"?all"_s, u"?0x0-0xFFFF"_s);
        row("beyond", u"0xF0000-0xF00FF"_s, u"e.g. 0xF0000-0xF00FF=0xE000."_s);
        row("end beyond", u"0x20-0x7E=0xFFF0"_s, u"goes beyond 0xFFFF"_s);
        row("too many", u"0-0x10000=0"_s, u"more codes than a font"_s);
        row("named range", u"0x20-0x21:blank"_s, u"a single code"_s);
        row("bad name", u"0x20:a-b"_s, u"letters of ASCII"_s);
        for (const char* const bad : {"", ",", "0x20,", "x", "0x", "-5", "0x20-", "0x30-0x20",
                                      "0x110000=0", "0x20=", "0x20==0x30", "??0x20", "+5", "٣"})
            row(bad, QString::fromUtf8(bad), u"is not usable"_s);
    }

    void Maps()
    {
        const auto [text, expected] = Test::Row<QString, QString>();
        const QString failure = Test::FailureOf(
            [&, map = text] { QCOMPARE(TextOf(ParseCharacterMap(map)), expected); });
        QVERIFY2(failure.isEmpty() || failure.contains(expected), qPrintable(failure));
    }

    void MappedCharacters()
    {
        Test::RecordingInterface interface;
        const auto plain = FontFileTTF(Test::FontPath("outlines.ttf"), Mapped(nullptr)).Read();
        FontFileTTF file(Test::FontPath("outlines.ttf"),
                         Mapped("0x41,0x1F600=0xE000,0x56=0xE001,0x41=0xE002,0x42-0x45"));
        const auto font = file.Read();
        QCOMPARE(font->EnabledRuns(), (std::vector<CodeRange>{{'A', 'A'}, {0xE000, 0xE002}}));
        QCOMPARE(font->FindChar(0xE000)->bitmap->Data(), plain->FindChar('a')->bitmap->Data());
        // Pairs speak of the codes that the characters have in the font.
        QCOMPARE(font->FindChar('A')->kerning, font->FindChar(0xE002)->kerning);
        QVERIFY(std::ranges::any_of(font->FindChar('A')->kerning,
                                    [](const auto& pair) { return pair.right == 0xE001; }));
        QCOMPARE(interface.lacking.size(), 1);
        QVERIFY(interface.lacking[0].startsWith(u"4 of the 4 characters U+0042 to U+0045"_s));
    }

    void SeveralSources_data()
    {
        const Test::Rows<const char*, const char*, QString> row; // the codes, or why not
        row("other code", "0x61", "0x41", u"0x41 0x61"_s);
        row("gap", "0x61,0x56", "?all", u"0x41 0x56 0x61"_s);
        row("no gap", "0x41", "?all", u"0x41"_s);
        row("claimed", "0x41", "0x41", u"Both "_s);
        row("claimed by all", nullptr, "0x41", u"Both "_s);
        row("claimed twice", "0x41,0x56=0x41", "0x41=0xE000", u"Both "_s);
    }

    void SeveralSources()
    {
        const auto [map, otherMap, expected] = Test::Row<const char*, const char*, QString>();
        Test::RecordingInterface interface;
        QStringList codes;
        const QString failure = Test::FailureOf([&, own = map, other = otherMap] {
            const auto font = Assembled(own, other);
            for (const quint16 code : font->ExistingCodes())
                codes.append(u"0x"_s + QString::number(code, 16));
        });
        if (failure.isEmpty())
            QCOMPARE(codes.join(u' '), expected);
        else
            QVERIFY2(failure.contains(expected) && failure.contains(u"outlines.ttf"_s),
                     qPrintable(failure));
    }

    // What is named is taken whatever else is selected; gaps are filled for what is.
    void Selections()
    {
        Test::RecordingInterface interface;
        CodeSet filter;
        filter.Set('V', true);
        QCOMPARE(Assembled(nullptr, "0x41", filter)->EnabledRuns(),
                 (std::vector<CodeRange>{{'A', 'A'}, {'V', 'V'}}));
        QCOMPARE(Assembled(nullptr, "?0x41", filter)->EnabledRuns(),
                 (std::vector<CodeRange>{{'V', 'V'}}));
    }

    void OneBaseline()
    {
        Test::RecordingInterface interface;
        const auto font = Assembled("0x61", "0x41");
        const CharInfo& own = font->FindChar('a')->info;
        const CharInfo& other = font->FindChar('A')->info;
        const int baseline = font->Metrics().baseline;
        QCOMPARE(own.yPos + own.height, baseline);
        QCOMPARE(other.yPos + other.height, baseline);
        QVERIFY(other.height > own.height);
        QCOMPARE(interface.warnings.size(), 1); // 21 rows stand on a baseline at 16
        QVERIFY2(interface.warnings[0].endsWith(
                     u"that leave the font's line: 1 (0x0041), by up to 14 rows above it and 0 "
                     "below it; -fit makes the line high enough."_s),
                 qPrintable(interface.warnings[0]));

        GlyphSource bitmaps(FontFileBDF(Test::FontPath("bitmap.bdf")).SourceFace(), u"b"_s);
        bitmaps.PlanGiven(ParseCharacterMap(u"0x67,0x1F600=0xE000"_s), EncodingType::Unicode, {});
        FontAssembly assembly(*font, u"a"_s, 1);
        assembly.Add(std::move(bitmaps));
        assembly.Render([](const PlannedGlyph&) {});
        QCOMPARE(int(font->FindChar('g')->info.yPos), baseline - 6);
        QVERIFY(font->FindChar(0xE000) != nullptr);
    }

    void Charmaps()
    {
        const auto symbols = FontFileTTF(Test::FontPath("symbol.ttf"), Mapped(nullptr)).Read();
        QCOMPARE(symbols->EnabledRuns(), (std::vector<CodeRange>{{0xF041, 0xF042}}));
        RenderOptions roman = Mapped(nullptr);
        roman.charmapIndex = 0;
        QCOMPARE(FontFileTTF(Test::FontPath("roman.ttf"), roman).Read()->EnabledRuns(),
                 (std::vector<CodeRange>{{0x41, 0x42}}));
    }

    void MappedBitmaps()
    {
        const auto font =
            FontFileBDF(Test::FontPath("bitmap.bdf"), ParseCharacterMap(u"0x41,0x1F600=0xE000"_s))
                .Read();
        QCOMPARE(font->EnabledRuns(), (std::vector<CodeRange>{{'A', 'A'}, {0xE000, 0xE000}}));
        QCOMPARE(int(font->Metrics().maxWidth), 7);
    }
};

GLYPHOR_TEST(TestSources)

} // namespace Glyphor

#include "tst_sources.moc"
