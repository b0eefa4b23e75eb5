#include "files/font_file_sif.h"
#include "files/font_file_xbf.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QTemporaryDir>
#include <QtEndian>
#include <QTest>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// A plain reader of numbers, apart from the program's own.
class Numbers
{
public:
    explicit Numbers(const QByteArray& bytes, qsizetype offset = 0) : bytes_(bytes), at_(offset) {}

    int U16() { return Next<quint16>(); }
    int I16() { return Next<qint16>(); }
    int U32() { return static_cast<int>(Next<quint32>()); }
    QByteArray Bytes(qsizetype size)
    {
        at_ += size;
        return bytes_.mid(at_ - size, size);
    }
    [[nodiscard]] qsizetype At() const { return at_; }

private:
    template <typename Number>
    Number Next()
    {
        const auto number = qFromLittleEndian<Number>(bytes_.constData() + at_);
        at_ += qsizetype(sizeof number);
        return number;
    }

    const QByteArray& bytes_;
    qsizetype at_;
};

QByteArray Record(const CharInfo& info, Numbers& numbers, const std::vector<int>& fields)
{
    for (const int field : fields)
        if (const int value = numbers.I16(); value != field)
            return QByteArray::number(info.width) + " wide: " + QByteArray::number(value);
    return "right";
}

void AddFormats(bool withLegacy)
{
    QTest::addColumn<int>("format");
    for (int format = withLegacy ? 0 : 3; format < FormatCount; ++format)
        QTest::addRow("format %d", format) << format;
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
    [[nodiscard]] QByteArray Damaged(QByteArray bytes, int offset, const QByteArray& hex) const
    {
        const qsizetype at = offset < 0 ? bytes.size() + offset : offset;
        const QByteArray change = QByteArray::fromHex(hex);
        return change.isEmpty() ? bytes.left(at) : bytes.replace(at, change.size(), change);
    }

private Q_SLOTS:
    void XbfLayout_data() { AddFormats(false); }

    void XbfLayout()
    {
        QFETCH(const int, format);
        const auto font = Test::MakeSampleFont(FontFormat(format));
        const QByteArray bytes = Written<FontFileXBF>(*font, u"font.v1.xbf"_s);
        Numbers header(bytes);
        QCOMPARE(header.Bytes(4), QByteArray("GUIX"));
        for (const int value : {3, 3, 2, 1, 2, 0x41, 0x81})
            QCOMPARE(header.U16(), value);
        qsizetype dataAt = 24 + 6 * (0x81 - 0x41);
        for (int code = 0x41; code <= 0x81; ++code) {
            const bool isEnabled = font->IsEnabled(quint16(code));
            const int offset = header.U32();
            const int size = header.U16();
            QCOMPARE(offset, isEnabled ? int(dataAt) : 0);
            if (!isEnabled) {
                QCOMPARE(size, 0);
                continue;
            }
            const Character& character = *font->FindChar(quint16(code));
            const CharInfo& info = character.info;
            Numbers data(bytes, offset);
            QCOMPARE(Record(info, data,
                            {info.cursorDistance, info.width, info.height, info.xPos, info.yPos,
                             info.bytesPerLine}),
                     QByteArray("right"));
            const QByteArray pixels = character.bitmap->DataAsList();
            QCOMPARE(data.Bytes(pixels.size()), pixels);
            QCOMPARE(size, int(data.At() - dataAt));
            dataAt = data.At();
        }
        QCOMPARE(bytes.mid(dataAt), QByteArray("XBF") + char(format));

        const auto read = FontFileXBF(Path(u"font.v1.xbf"_s)).Read();
        QCOMPARE(Test::Snapshot(*read), Test::Snapshot(*font, true));
        QCOMPARE(read->Name(), u"font.v1"_s);
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
        const CharInfo& info = read->FindChar('A')->info;
        QCOMPARE(int(info.width), 10);
        QCOMPARE(int(info.cursorDistance), 10);
        QCOMPARE(int(info.height), 3);
        QCOMPARE(read->FindChar('A')->bitmap->Data(), QByteArray::fromHex("ffc00000ff00"));
    }

    void XbfDamage_data()
    {
        QTest::addColumn<int>("offset"); // negative: from the end
        QTest::addColumn<QByteArray>("hex");
        QTest::addColumn<QString>("expected");
        QTest::newRow("magic") << 3 << QByteArray("59") << u"begin with \"GUIX\""_s;
        QTest::newRow("cut trailer") << -1 << QByteArray() << u"end with \"XBF\""_s;
        QTest::newRow("cut data") << 420 << QByteArray() << u"end with \"XBF\""_s;
        QTest::newRow("header only") << 18 << QByteArray() << u"end with \"XBF\""_s;
        QTest::newRow("format") << -1 << QByteArray("07") << u"no font format"_s;
        QTest::newRow("height") << 5 << QByteArray("01") << u"259 pixels"_s;
        QTest::newRow("codes") << 14 << QByteArray("8200") << u"0x0082 to 0x0081"_s;
        QTest::newRow("table") << 16 << QByteArray("ffff") << u"too short for its table"_s;
        QTest::newRow("offset") << 18 << QByteArray("ffffff7f") << u"0x0041 lies outside"_s;
        QTest::newRow("into the table") << 18 << QByteArray("12000000") << u"0x0041 lies outside"_s;
        QTest::newRow("size") << 22 << QByteArray("0d00") << u"0x0041 has a size in the table"_s;
        QTest::newRow("no offset") << 18 << QByteArray("00000000") << u"0x0041 lies outside"_s;
        QTest::newRow("tiny size") << 22 << QByteArray("0100") << u"0x0041 is too small"_s;
        QTest::newRow("overlap") << 28 << QByteArray("2800") << u"overlap"_s;
        QTest::newRow("width") << 410 << QByteArray("0001") << u"0x0041 has rows of 1 bytes"_s;
        QTest::newRow("x offset") << 414 << QByteArray("0001") << u"0x0041 has a size or an"_s;
        QTest::newRow("bytes per line") << 418 << QByteArray("02") << u"rows of 2 bytes"_s;
    }

    void XbfDamage()
    {
        QFETCH(const int, offset);
        QFETCH(const QByteArray, hex);
        QFETCH(const QString, expected);
        const auto font = Test::MakeSampleFont(FontFormat::Standard);
        Test::WriteAll(Path(u"bad.xbf"_s),
                       Damaged(Written<FontFileXBF>(*font, u"good.xbf"_s), offset, hex));
        const QString failure =
            Test::FailureOf([&] { (void)FontFileXBF(Path(u"bad.xbf"_s)).Read(); });
        QVERIFY2(failure.startsWith(u"Error reading XBF file!: The file "_s), qPrintable(failure));
        QVERIFY2(failure.contains(expected) && failure.contains(u"bad.xbf"_s), qPrintable(failure));
    }

    void SifLayout_data() { AddFormats(true); }

    void SifLayout()
    {
        QFETCH(const int, format);
        const bool isLegacy = IsLegacyFormat(FontFormat(format));
        const auto font = Test::MakeSampleFont(FontFormat(format));
        const QByteArray bytes = Written<FontFileSIF>(*font, u"font.sif"_s);
        Numbers numbers(bytes);
        QCOMPARE(numbers.Bytes(4), QByteArray("GUIP"));
        for (const int value : {3, 3, 2, 1, 2, 2, 0x41, isLegacy ? 0x42 : 0x43, 0x7F, 0x81})
            QCOMPARE(numbers.U16(), value);
        qsizetype pixelsAt = 16 + 4 * 2 + (isLegacy ? 12 * 5 : 16 * 6);
        for (int code = 0x41; code <= 0x81; ++code) {
            if (!font->IsEnabled(quint16(code)))
                continue;
            const Character& character = *font->FindChar(quint16(code));
            const CharInfo& info = character.info;
            QCOMPARE(Record(info, numbers,
                            isLegacy ? std::vector<int>{info.width, info.cursorDistance,
                                                        info.bytesPerLine, 0}
                                     : std::vector<int>{info.width, info.height, info.xPos,
                                                        info.yPos, info.cursorDistance, 0}),
                     QByteArray("right"));
            QCOMPARE(numbers.U32(), int(pixelsAt));
            const QByteArray pixels = character.bitmap->DataAsList();
            QCOMPARE(bytes.mid(pixelsAt, pixels.size()), pixels);
            pixelsAt += pixels.size();
        }
        QCOMPARE(bytes.mid(pixelsAt), QByteArray("SIF") + char(format));

        const auto read = FontFileSIF(Path(u"font.sif"_s)).Read();
        QCOMPARE(Test::Snapshot(*read), Test::Snapshot(*font, true));
        QCOMPARE(read->Name(), u"font"_s);
    }

    void SifFirstBitmap()
    {
        Font font(FontFormat::Legacy, EncodingType::ShiftJis);
        font.SetHeight(1);
        font.SetEnabled(0x20, 0x7E, true);
        font.SetEnabled(0xA0, 0xFF, true);
        const QByteArray bytes = Written<FontFileSIF>(font, u"font.sif"_s);
        QCOMPARE(Numbers(bytes, 16 + 8 + 8).U32(), 2316);
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

    void SifDamage_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<QByteArray>("hex");
        QTest::addColumn<QString>("expected");
        QTest::newRow("magic") << 0 << QByteArray("00") << u"begin with \"GUIP\""_s;
        QTest::newRow("header only") << 15 << QByteArray() << u"begin with \"GUIP\""_s;
        QTest::newRow("format") << -1 << QByteArray("ff") << u"no font format"_s;
        QTest::newRow("baseline") << 9 << QByteArray("ff") << u"height of 65282 pixels"_s;
        QTest::newRow("runs") << 14 << QByteArray("ffff") << u"65535 ranges"_s;
        QTest::newRow("reversed run") << 18 << QByteArray("4000") << u"ascending order"_s;
        QTest::newRow("overlapping runs") << 20 << QByteArray("4200") << u"ascending order"_s;
        QTest::newRow("longer run") << 22 << QByteArray("ff00") << u"may be corrupted"_s;
        QTest::newRow("height of a character") << 26 << QByteArray("ff00") << u"corrupted"_s;
        QTest::newRow("y offset") << 31 << QByteArray("7f") << u"0x0041 has a size or an offset"_s;
        QTest::newRow("pixels") << 36 << QByteArray("00") << u"0x0041 points to other pixels"_s;
    }

    void SifDamage()
    {
        QFETCH(const int, offset);
        QFETCH(const QByteArray, hex);
        QFETCH(const QString, expected);
        const auto font = Test::MakeSampleFont(FontFormat::Framed);
        Test::WriteAll(Path(u"bad.sif"_s),
                       Damaged(Written<FontFileSIF>(*font, u"good.sif"_s), offset, hex));
        const QString failure =
            Test::FailureOf([&] { (void)FontFileSIF(Path(u"bad.sif"_s)).Read(); });
        QVERIFY2(failure.startsWith(u"Reading of SIF file failed!: The file "_s),
                 qPrintable(failure));
        QVERIFY2(failure.contains(expected) && failure.contains(u"bad.sif"_s), qPrintable(failure));
    }
};

GLYPHOR_TEST(TestBinaryFiles)

} // namespace Glyphor

#include "tst_binary_files.moc"
