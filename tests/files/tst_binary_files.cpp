#include "files/font_file_sif.h"
#include "files/font_file_xbf.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QTemporaryDir>
#include <QtEndian>
#include <QTest>

#include <functional>
#include <numeric>

namespace Glyphor {

namespace {

// "A" and "C", of a font 3 pixels high.
std::unique_ptr<Font> MakeSmallFont(FontFormat format)
{
    auto font = std::make_unique<Font>(format, EncodingType::Unicode);
    font->SetHeight(3);
    font->SetBaseline(2);
    font->SetReferenceHeights(1, 2);
    const auto add = [&](quint16 code, const CharMetrics& metrics) {
        std::vector<uchar> bytes(std::size_t(BitmapSize(metrics, font->Metrics())));
        std::iota(bytes.begin(), bytes.end(), uchar(code));
        font->PutChar(code, metrics, bytes);
    };
    add('A', {9, 2, -1, 1, 10});
    add('C', {3, 1, 2, -2, 4});
    return font;
}

} // namespace

class TestBinaryFiles : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;

    [[nodiscard]] QString Path(const QString& name) const { return folder_.filePath(name); }

    template <typename FileKind>
    QByteArray Written(const Font& font, const QString& name) const
    {
        FileKind(Path(name)).Write(font);
        return Test::ReadAll(Path(name));
    }

    // A damaged copy: bytes at an offset replaced, or cut there where there are none.
    [[nodiscard]] QByteArray Damaged(QByteArray bytes, int offset, const char* hex) const
    {
        const qsizetype at = offset < 0 ? bytes.size() + offset : offset;
        const QByteArray change = QByteArray::fromHex(hex);
        return change.isEmpty() ? bytes.left(at) : bytes.replace(at, change.size(), change);
    }

private Q_SLOTS:
    void Layout_data()
    {
        const Test::Rows<int, QByteArray, QByteArray> row;
        row("framed", int(FontFormat::Framed),
            QByteArray("4755495803000300020001000200410043002400000014000000000000003800"
                       "00000e000a0009000200ffff0100020041004300450047000400030001000200"
                       "feff0100404058424604"),
            QByteArray("47554950030003000200010002000200410041004300430009000200ffff0100"
                       "0a00000038000000030001000200feff04000000400000004100430045004700"
                       "404053494604"));
        row("plain", int(FontFormat::LegacyAA4),
            QByteArray("4755495803000300020001000200410043002400000013000000000000003700"
                       "00000a0009000500414243444046474849404b4c4d4e40030002004340454047"
                       "4058424602"),
            QByteArray("47554950030003000200010002000200410041004300430009000a0005000000"
                       "3000000003000400020000003f000000414243444046474849404b4c4d4e4043"
                       "404540474053494602"));
    }

    void Layout()
    {
        const auto [format, xbf, sif] = Test::Row<int, QByteArray, QByteArray>();
        const auto font = MakeSmallFont(FontFormat(format));
        QCOMPARE(Written<FontFileXBF>(*font, u"font.xbf"_s).toHex(), xbf);
        QCOMPARE(Written<FontFileSIF>(*font, u"font.sif"_s).toHex(), sif);
    }

    void ReadsWhatIsWritten_data()
    {
        QTest::addColumn<int>("format");
        for (int format = 0; format < FormatCount; ++format)
            QTest::addRow("format %d", format) << format;
    }

    void ReadsWhatIsWritten()
    {
        QFETCH(const int, format);
        const auto font = Test::MakeSampleFont(FontFormat(format));
        const QByteArray expected = Test::Snapshot(*font, true);
        FontFileSIF(Path(u"font.v1.sif"_s)).Write(*font);
        const auto read = FontFileSIF(Path(u"font.v1.sif"_s)).Read();
        QCOMPARE(Test::Snapshot(*read), expected);
        QCOMPARE(read->Name(), u"font.v1"_s);
        if (IsLegacyFormat(FontFormat(format)))
            return; // plain records have no cursor distance
        FontFileXBF(Path(u"font.xbf"_s)).Write(*font);
        QCOMPARE(Test::Snapshot(*FontFileXBF(Path(u"font.xbf"_s)).Read()), expected);
    }

    void XbfToolText()
    {
        const auto font = Test::MakeSampleFont(FontFormat::AA2);
        const QByteArray plain = Written<FontFileXBF>(*font, u"tool.xbf"_s);
        font->SetToolText(u"ABC"_s);
        const QByteArray bytes = Written<FontFileXBF>(*font, u"tool.xbf"_s);
        QCOMPARE(bytes, plain + QByteArray("ABCKSTX\3\0XBF\5", 13));
        QCOMPARE(FontFileXBF(Path(u"tool.xbf"_s)).Read()->ToolText(), u"ABC"_s);
        // The tag is not compared, so pixels in its place can look like a length.
        Test::WriteAll(Path(u"tool.xbf"_s), Damaged(plain, -6, "0200"));
        QCOMPARE(FontFileXBF(Path(u"tool.xbf"_s)).Read()->ToolText().size(), 2);
    }

    void XbfPlainRecords()
    {
        // A header, one entry, and a record of a width and bytes per line.
        const QByteArray bytes = QByteArray::fromHex("47554958 0300 0300 0200 0100 0200 4100 4100"
                                                     "18000000 0a00 0a00 0200 ffc0 0000 ff00"
                                                     "58424600");
        Test::WriteAll(Path(u"old.xbf"_s), bytes);
        const auto read = FontFileXBF(Path(u"old.xbf"_s)).Read();
        QCOMPARE(Test::Numbers(read->FindChar('A')->info), (QList<int>{10, 3, 0, 0, 10}));
        QCOMPARE(read->FindChar('A')->bitmap->Data(), QByteArray::fromHex("ffc00000ff00"));
    }

    void SifFirstBitmap()
    {
        Font font(FontFormat::Legacy, EncodingType::ShiftJis);
        font.SetHeight(1);
        font.SetEnabled(0x20, 0x7E, true);
        font.SetEnabled(0xA0, 0xFF, true);
        const QByteArray bytes = Written<FontFileSIF>(font, u"font.sif"_s);
        QCOMPARE(qFromLittleEndian<qint32>(bytes.constData() + 16 + 8 + 8), 2316);
        const FormatAnswer answer = {std::nullopt, EncodingType::ShiftJis};
        QCOMPARE(FontFileSIF(Path(u"font.sif"_s), answer).Read()->Metrics().encoding,
                 EncodingType::ShiftJis);
    }

    // Files without a trailer have to be told their format.
    void SifWithoutTrailer()
    {
        const auto font = Test::MakeSampleFont(FontFormat::AA2);
        const QByteArray bytes = Written<FontFileSIF>(*font, u"font.sif"_s).chopped(4);
        const QString path = Path(u"old.sif"_s);
        Test::WriteAll(path, bytes);
        QVERIFY(FontFileSIF(Path(u"font.sif"_s)).TellsFormat());
        QVERIFY(!FontFileSIF(path).TellsFormat());
        QVERIFY(Test::FailureOf([&] { (void)FontFileSIF(path).Read(); }).contains(u"not told"_s));
        QCOMPARE(Test::Snapshot(*FontFileSIF(path, {FontFormat::AA2, {}}).Read()),
                 Test::Snapshot(*font, true));
        for (const FontFormat wrong : {FontFormat::AA4, FontFormat::LegacyAA2}) {
            const QString failure = Test::FailureOf([&] {
                (void)FontFileSIF(path, {wrong, {}}).Read();
            });
            const QString start = u"Reading of SIF file failed!: File size of input file: %1 "
                                  "bytes.\r\nFile size that was expected: "_s.arg(bytes.size());
            QVERIFY2(failure.startsWith(start) &&
                         failure.endsWith(u" bytes.\r\n\r\nThe previously entered font format may "
                                          "not be correct or the file may be corrupted."_s),
                     qPrintable(failure));
        }
    }

    void Damage_data()
    {
        // A negative offset is from the end.
        const Test::Rows<QString, FontFormat, int, const char*, QString> row;
        const auto rowOf = [&row](const QString& kind, FontFormat format, const char* name,
                                  int offset, const char* hex, const char* expected) {
            row(QTest::addRow("%s, %s", qPrintable(kind), name), kind, format, offset, hex,
                QString::fromUtf8(expected));
        };
        const auto xbf = std::bind_front(rowOf, u"xbf"_s, FontFormat::Standard);
        xbf("magic", 3, "59", "begin with \"GUIX\"");
        xbf("cut trailer", -1, "", "end with \"XBF\"");
        xbf("cut data", 420, "", "end with \"XBF\"");
        xbf("header only", 18, "", "end with \"XBF\"");
        xbf("format", -1, "07", "no font format");
        xbf("height", 5, "01", "259 pixels");
        xbf("codes", 14, "8200", "0x0082 to 0x0081");
        xbf("table", 16, "ffff", "too short for its table");
        xbf("offset", 18, "ffffff7f", "0x0041 lies outside");
        xbf("into the table", 18, "12000000", "0x0041 lies outside");
        xbf("size", 22, "0d00", "0x0041 has a size in the table");
        xbf("no offset", 18, "00000000", "0x0041 lies outside");
        xbf("tiny size", 22, "0100", "0x0041 is too small");
        xbf("overlap", 28, "2800", "overlap");
        xbf("width", 410, "0001", "0x0041 has rows of 1 bytes");
        xbf("x offset", 414, "0001", "0x0041 has a size or an");
        xbf("bytes per line", 418, "02", "rows of 2 bytes");
        const auto sif = std::bind_front(rowOf, u"sif"_s, FontFormat::Framed);
        sif("magic", 0, "00", "begin with \"GUIP\"");
        sif("header only", 15, "", "begin with \"GUIP\"");
        sif("format", -1, "ff", "no font format");
        sif("baseline", 9, "ff", "height of 65282 pixels");
        sif("runs", 14, "ffff", "65535 ranges");
        sif("reversed run", 18, "4000", "ascending order");
        sif("overlapping runs", 20, "4200", "ascending order");
        sif("longer run", 22, "ff00", "may be corrupted");
        sif("height of a character", 26, "ff00", "corrupted");
        sif("y offset", 31, "7f", "0x0041 has a size or an offset");
        sif("pixels", 36, "00", "0x0041 points to other pixels");
    }

    void Damage()
    {
        const auto [kind, format, offset, hex, expected] =
            Test::Row<QString, FontFormat, int, const char*, QString>();
        const auto font = Test::MakeSampleFont(format);
        const bool isXbf = kind == u"xbf";
        const QByteArray good = isXbf ? Written<FontFileXBF>(*font, u"good.xbf"_s)
                                      : Written<FontFileSIF>(*font, u"good.sif"_s);
        const QString path = Path(u"bad."_s + kind);
        Test::WriteAll(path, Damaged(good, offset, hex));
        const QString failure = Test::FailureOf(
            [&] { (void)(isXbf ? FontFileXBF(path).Read() : FontFileSIF(path).Read()); });
        const QString start = isXbf ? u"Error reading XBF file!: The file "_s
                                    : u"Reading of SIF file failed!: The file "_s;
        QVERIFY2(failure.startsWith(start + path) && failure.contains(expected),
                 qPrintable(failure));
    }
};

GLYPHOR_TEST(TestBinaryFiles)

} // namespace Glyphor

#include "tst_binary_files.moc"
