#include "files/font_file_c.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

class TestCReader : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;

    [[nodiscard]] std::unique_ptr<Font> Read(const QByteArray& text) const
    {
        const QString path = folder_.filePath(u"font.c"_s);
        Test::WriteAll(path, text);
        return FontFileC(path, {}).Read();
    }

    // The file of a sample font.
    [[nodiscard]] QByteArray Text(const Font& font, const QByteArray& lineEnding = "\n") const
    {
        const QString path = folder_.filePath(u"sample.c"_s);
        FontFileC(path, {lineEnding, std::nullopt}).Write(font);
        return Test::ReadAll(path);
    }

    [[nodiscard]] QByteArray Text() const
    {
        return Text(*Test::MakeSampleFont(FontFormat::Standard));
    }

private Q_SLOTS:
    void ReadsWhatIsWritten_data()
    {
        const Test::Rows<int, int, QByteArray> row;
        const QByteArray endings[] = {"\r\n", "\r", "\n"};
        for (int format = 0; format < FormatCount; ++format) {
            for (int encoding = 0; encoding <= int(IsLegacyFormat(FontFormat(format))); ++encoding)
                row(QTest::addRow("%d %d", format, encoding), format, encoding,
                    endings[format % 3]);
        }
    }

    void ReadsWhatIsWritten()
    {
        const auto [format, encoding, lineEnding] = Test::Row<int, int, QByteArray>();
        const auto font = Test::MakeSampleFont(FontFormat(format), EncodingType(encoding));
        const QByteArray text = Text(*font, lineEnding);
        const auto read = Read(text);
        QCOMPARE(Test::Snapshot(*read), Test::Snapshot(*font, true));
        QCOMPARE(read->Name(), u"8_Tests_Plain_1"_s);
        read->SetName(font->Name());
        QCOMPARE(Text(*read, lineEnding), text);
    }

    // Changes that leave the font what it is.
    void OtherLayouts_data()
    {
        const Test::Rows<QByteArray, QByteArray> row;
        row("capitals", "GUI_Font8", "GUI_FONT8");
        row("no declaration", "extern GUI_CONST_STORAGE GUI_FONT GUI_Font8_Tests_Plain_1;", "");
        row("only the structure's name", "GUI_FONT GUI_Font8_Tests_Plain_1;", "int other;");
        row("not static", "static ", "");
        row("const", "GUI_CONST_STORAGE GUI", "const GUI");
        row("blanks", " = {", "   =\t{ ");
        row("braces below", " = {", " =\n{\n");
        row("comments inside", ", ", ", /* 12, 0x44 }; */ ");
        row("comments behind", ", // Height", ", // 99, -1 GUI_FONTTYPE_PROP };\n//");
        row("hexadecimal pixels", "X_______,", "0x80,");
        row("octal pixels", "X_______,", "0200 ,");
        row("one line an array", "_, \n", "_,");
        row("two entries a line", "},", "}, ");
        row("type beside the brace", " = {\n  GUI_FONTTYPE", " = { GUI_FONTTYPE");
        row("blanks in numbers", "   1,    2,   -1", "1 , 2,-1");
        row("signs of type", "  3, // Height", "  3U, // Height");
        row("table declared before", "#include",
            "extern const GUI_CHARINFO_EXT GUI_Font8_Tests_Plain_1_CharInfo[];\n#include");
        row("no index", "_CharInfo[0],", "_CharInfo,");
        row("added index", "_CharInfo[3],", "_CharInfo + 3,");
        row("qualified name", " GUI_FONT GUI", " GUI_FONT const GUI");
        row("qualified block", "GUI_FONT_PROP_EXT GUI", "GUI_FONT_PROP_EXT const GUI");
        row("attribute", "[2] = {", "[(1 + 1)] __attribute__((section(\".f\"))) = {");
        row("another font behind", "/*************************** End",
            "const GUI_FONT_PROP_EXT Other = { 0x41, 0x42, &Other_CharInfo[0], 0 };\n/****");
    }

    void OtherLayouts()
    {
        const auto [from, to] = Test::Row<QByteArray, QByteArray>();
        const QByteArray text = Text();
        QVERIFY(text.contains(from));
        const auto read = Read(QByteArray(text).replace(from, to));
        QCOMPARE(Test::Snapshot(*read), Test::Snapshot(*Read(text)));
        QVERIFY(read->Name().endsWith(u"8_Tests_Plain_1"_s));
    }

    void Failures_data()
    {
        const Test::Rows<QByteArray, QByteArray, QByteArray> rows;
        const auto row = [&rows](const QByteArray& from, const QByteArray& to,
                                 const QByteArray& message) {
            rows((message + " " + from.left(12)).constData(), from, to, message);
        };
        const QByteArray table = "GUI_CHARINFO_EXT";
        row(" GUI_FONT ", " GUI_FUNT ", "GUI_FONT structure not found!");
        row("GUI_FONT GUI_Font8_Tests_Plain_1;", "GUI_FONT *;",
            "Array identifier of GUI_FONT structure expected but not found!");
        row("GUI_FONTTYPE", "GUI_FONTKIND", "GUI_FONTTYPE not found!");
        row("_PROP_EXT, //", "_PROP_XXT, //", "Invalid font format!");
        row("  3, // Height", "  -, // Height", "Error parsing integer!");
        row("  3, // Height", "  256, // Height",
            "A font metric of 256 is not possible: 0 to 255 are.");
        row("  2, // Height of capital", "  ", "Integer not found!");
        row(table, "GUI_CHARINFO_EXTRA", table + " structure not found!");
        row("  {    1,", "     1,", table + " entry not found!");
        row("   1,    2,   -1", "   1,\n    2,   -1",
            table + " entry did not end in the same line!");
        row("   1,    2,   -1", "   1,    2",
            "Invalid number of elements (5) found in structure " + table + '!');
        row("   1,    2,   -1", "   1,    2,   -1x", "Error parsing integer!");
        row("   1,    2,   -1", "   1,    2, -129", "No character can have such a size or offset.");
        row("_CharInfo[3]", "_CharInfo[9]",
            "The property block points outside the character table.");
        row("  0x0041, // First", "  0x0040, // First",
            "The property block has characters of another block.");
        row("_CharInfo[3]", "_CharInfo[1]", "The property block has characters of another block.");
        row("  0x007F, // First", "  0x0041, // First",
            "The property block points outside the character table.");
        row("X_______, \n", "", "Invalid amount of bytes read from character bitmap 0x0041");
        row("X_______, \n", "X_______, 0, ",
            "Invalid amount of bytes read from character bitmap 0x0041");
        row("X_______, \n", "0x100, ", "Error parsing integer!");
        row("_0041[", "_0040[", "File ended before all character data could be read!");
    }

    void Failures()
    {
        const auto [from, to, message] = Test::Row<QByteArray, QByteArray, QByteArray>();
        QByteArray text = Text();
        QVERIFY(text.contains(from));
        text.replace(from, to);
        const QString failure = Test::FailureOf([&] { (void)Read(text); });
        const QString start = u"Error reading C file!: "_s + QString::fromUtf8(message) +
                              u"\n\nError occured in:\nLine: "_s;
        QVERIFY2(failure.startsWith(start) && failure.contains(u"\nColumn: "_s),
                 qPrintable(failure));
    }

    void FailuresTellThePlace()
    {
        const QByteArray text = "\r\n/* a\n\r */ const GUI_FONT GUI_FontA = {\r  GUI_FONTTYPE_X,\n";
        QVERIFY(Test::FailureOf([&] { (void)Read(text); }).endsWith(u"Line: 5\nColumn: 3"_s));
        for (qsizetype size = 0; size < text.size(); ++size) // never beyond the end
            QVERIFY(!Test::FailureOf([&] { (void)Read(text.left(size)); }).isEmpty());
    }

    // Property blocks decide; array names that say otherwise are told.
    void CodesOfBlocksAndNames_data()
    {
        const Test::Rows<QByteArray, QByteArray, bool> row;
        row("agree", QByteArray("_0041"), QByteArray("_0041"), false);
        row("another name", QByteArray("_0041"), QByteArray("_0031"), true);
        row("no code in it", QByteArray("_0041"), QByteArray("_a"), true);
        row("no blocks", QByteArray("GUI_FONT_PROP_EXT G"), QByteArray("int G"), true);
    }

    void CodesOfBlocksAndNames()
    {
        const auto [from, to, warns] = Test::Row<QByteArray, QByteArray, bool>();
        Test::RecordingInterface interface;
        const auto font = Read(Text().replace(from, to));
        QCOMPARE(interface.warnings.size(), warns ? 1 : 0);
        QCOMPARE(Test::Snapshot(*font), Test::Snapshot(*Read(Text())));
    }

    void StrangePatterns()
    {
        Test::RecordingInterface interface;
        const auto font = Read(Text().replace("X_X_X___,", "(X_X_X__),"));
        QCOMPARE(interface.warnings.size(), 1);
        QCOMPARE(font->FindChar('B')->bitmap->Data()[0], '\x50');
    }

    // A small file must not make a huge font, nor be read for minutes.
    void SharedArrays()
    {
        QByteArray entries;
        for (int index = 0; index < 20000; ++index)
            entries += "{ 255, 255, 0, 0, 1, acX_0000 },\n";
        QByteArray text = "const GUI_FONT GUI_FontX = { GUI_FONTTYPE_PROP_EXT, 9, 9, 1, 1, 9, 9, "
                          "9 };\nconst unsigned char acX_0000[] = {" +
                          QByteArray("0,").repeated(255 * 32) +
                          "};\nconst GUI_CHARINFO_EXT X[] = {\n" + entries +
                          "};\nconst GUI_FONT_PROP_EXT P = { 0, 19999, X, 0 };\n";
        QVERIFY(Test::FailureOf([&] {
                    (void)Read(text);
                }).contains(u"The array belongs to too many characters."_s));
    }
};

GLYPHOR_TEST(TestCReader)

} // namespace Glyphor

#include "tst_c_reader.moc"
