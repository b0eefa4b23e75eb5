#include "model/encoding.h"
#include "model/unicode_table.h"
#include "support/rows.h"
#include "support/test_main.h"

#include <QTest>

namespace Glyphor {

class TestTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FormatTablesAgree()
    {
        for (std::size_t index = 0; index < FormatCount; ++index) {
            const auto format = FontFormat(index);
            QCOMPARE(FormatNameTable[index].format, format);
            QVERIFY(!FontTypeName(format, EncodingType::Unicode).isEmpty());
            QCOMPARE(FontTypeName(format, EncodingType::ShiftJis).isEmpty(),
                     !IsLegacyFormat(format));
        }
    }

    void CharacterNames()
    {
        const Encoding& unicode = EncodingFor(EncodingType::Unicode);
        for (const auto& [code, name] : {std::pair(0x0000, "<control>"),
                                         {0x0041, "LATIN CAPITAL LETTER A"},
                                         {0x0378, ""}, // not assigned
                                         {0xE000, "<Private Use, First>"},
                                         {0xFFFD, "REPLACEMENT CHARACTER"},
                                         {0xFFFE, ""}})
            QCOMPARE(unicode.CharName(quint16(code)), QLatin1StringView(name));
        const Encoding& shiftJis = EncodingFor(EncodingType::ShiftJis);
        QCOMPARE(shiftJis.CharName(0xB1), QLatin1StringView("HALFWIDTH KATAKANA LETTER A"));
        QVERIFY(shiftJis.CharName(0xFFFF).isEmpty());
    }

    void CharactersAscend()
    {
        const auto table = CharacterRecords();
        QCOMPARE(table.size(), std::size_t(16890));
        for (std::size_t index = 1; index < table.size(); ++index)
            QVERIFY(table[index - 1].code < table[index].code);
        QCOMPARE(FirstOfCategory(CharacterCategory::LowercaseLetter)->code, quint16('a'));
        QCOMPARE(FirstOfCategory(CharacterCategory::UppercaseLetter)->code, quint16('A'));
    }

    void Blocks_data()
    {
        const Test::Rows<int, int, const char*, int> row;
        row("first", 0, 0, "Basic Latin", 0x7F);
        row("start of the second", 0x80, 1, "Latin-1 Supplement", 0xFF);
        row("none", 0x2FE0, -1, "", 0);
        row("last", 0xFFFF, 163, "Specials", 0xFFFF);
    }

    void Blocks()
    {
        const auto [code, index, name, last] = Test::Row<int, int, const char*, int>();
        QCOMPARE(BlockIndex(quint16(code)), index);
        QCOMPARE(BlockName(quint16(code)), QLatin1StringView(name));
        QCOMPARE(int(BlockRange(quint16(code)).second), last);
        QVERIFY(EncodingFor(EncodingType::ShiftJis).BlockName(quint16(code)).isNull());
    }

    void Conversion_data()
    {
        const Test::Rows<int, int, int, int> row; // -1 for no counterpart
        row("kanji to Shift JIS", 0, 1, 0x4E9C, 0x889F);
        row("kanji to Unicode", 1, 0, 0x889F, 0x4E9C);
        row("half-width katakana", 1, 0, 0xB1, 0xFF71);
        row("last code", 1, 0, 0xEAA4, 0x7199);
        row("zero to Unicode", 1, 0, 0, 0);
        row("not in Shift JIS", 0, 1, 0x0100, -1);
        row("no Shift JIS code", 1, 0, 0xFFFF, -1);
        row("Unicode to itself", 0, 0, 0xFFFF, 0xFFFF);
        row("unknown target", 0, 2, 0x41, -1);
    }

    void Conversion()
    {
        const auto [from, to, code, result] = Test::Row<int, int, int, int>();
        auto converted = quint16(code);
        const bool done = EncodingFor(EncodingType(from)).Convert(EncodingType(to), converted);
        QCOMPARE(done, result >= 0);
        QCOMPARE(int(converted), result >= 0 ? result : code);
    }
};

GLYPHOR_TEST(TestTables)

} // namespace Glyphor

#include "tst_tables.moc"
