#include "model/encoding.h"
#include "model/unicode_table.h"
#include "support/test_main.h"

#include <QTest>

namespace Glyphor {

class TestTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FormatTablesAgree()
    {
        for (int value = 0; value < FormatCount; ++value) {
            const auto index = std::size_t(value);
            QCOMPARE(FormatNameTable[index].format, FontFormat(value));
            QCOMPARE(FormatKeywordTable[index].format, FontFormat(value));
            QCOMPARE(FormatNameTable[index].legacy, IsLegacyFormat(FontFormat(value)));
            QVERIFY(!FontTypeName(FontFormat(value), EncodingType::Unicode).isEmpty());
            QCOMPARE(FontTypeName(FontFormat(value), EncodingType::ShiftJis).isEmpty(),
                     !IsLegacyFormat(FontFormat(value)));
        }
        QVERIFY(!IsLegacyFormat(FontFormat::Unknown));
        QVERIFY(FormatDisplayName(FontFormat::Unknown).isEmpty());
    }

    void CharacterNames_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("name");
        QTest::newRow("first") << 0x0000 << "<control>";
        QTest::newRow("letter") << 0x0041 << "LATIN CAPITAL LETTER A";
        QTest::newRow("unassigned") << 0x0378 << "";
        QTest::newRow("range entry") << 0xE000 << "<Private Use, First>";
        QTest::newRow("last") << 0xFFFD << "REPLACEMENT CHARACTER";
        QTest::newRow("behind the last") << 0xFFFE << "";
    }

    void CharacterNames()
    {
        QFETCH(const int, code);
        QFETCH(const QString, name);
        QCOMPARE(CharacterName(quint16(code)), name);
        QCOMPARE(EncodingFor(EncodingType::Unicode).CharName(quint16(code)), name);
    }

    void CharactersAscend()
    {
        const auto table = CharacterRecords();
        QCOMPARE(table.size(), std::size_t(16890));
        for (std::size_t index = 1; index < table.size(); ++index)
            QVERIFY(table[index - 1].code < table[index].code);
    }

    void ReferenceCharacters()
    {
        QCOMPARE(FirstOfCategory(CharacterCategory::LowercaseLetter)->code, quint16('a'));
        QCOMPARE(FirstOfCategory(CharacterCategory::UppercaseLetter)->code, quint16('A'));
        QVERIFY(FirstOfCategory(CharacterCategory(29)) == nullptr);
    }

    void Blocks_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("last");
        QTest::newRow("first") << 0 << 0 << "Basic Latin" << 0x7F;
        QTest::newRow("start of the second") << 0x80 << 1 << "Latin-1 Supplement" << 0xFF;
        QTest::newRow("none") << 0x2FE0 << -1 << "" << 0;
        QTest::newRow("last") << 0xFFFF << 163 << "Specials" << 0xFFFF;
    }

    void Blocks()
    {
        QFETCH(const int, code);
        QFETCH(const int, index);
        QFETCH(const QString, name);
        QFETCH(const int, last);
        QCOMPARE(BlockIndex(quint16(code)), index);
        QCOMPARE(BlockName(quint16(code)), name);
        QCOMPARE(int(BlockRange(quint16(code)).second), last);
        QVERIFY(EncodingFor(EncodingType::ShiftJis).BlockName(quint16(code)).isNull());
    }

    void Conversion_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("result"); // -1: no counterpart
        QTest::newRow("letter to Shift JIS") << 0 << 1 << 0x41 << 0x41;
        QTest::newRow("kanji to Shift JIS") << 0 << 1 << 0x4E9C << 0x889F;
        QTest::newRow("kanji to Unicode") << 1 << 0 << 0x889F << 0x4E9C;
        QTest::newRow("half-width katakana") << 1 << 0 << 0xB1 << 0xFF71;
        QTest::newRow("last code") << 1 << 0 << 0xEAA4 << 0x7199;
        QTest::newRow("zero to Unicode") << 1 << 0 << 0 << 0;
        QTest::newRow("zero to Shift JIS") << 0 << 1 << 0 << 0;
        QTest::newRow("not in Shift JIS") << 0 << 1 << 0x0100 << -1;
        QTest::newRow("no Shift JIS code") << 1 << 0 << 0xFFFF << -1;
        QTest::newRow("Unicode to itself") << 0 << 0 << 0xFFFF << 0xFFFF;
        QTest::newRow("Shift JIS to itself") << 1 << 1 << 0xFFFF << 0xFFFF;
        QTest::newRow("unknown target") << 0 << 2 << 0x41 << -1;
    }

    void Conversion()
    {
        QFETCH(const int, from);
        QFETCH(const int, to);
        QFETCH(const int, code);
        QFETCH(const int, result);
        auto converted = quint16(code);
        const bool done = EncodingFor(EncodingType(from)).Convert(EncodingType(to), converted);
        QCOMPARE(done, result >= 0);
        QCOMPARE(int(converted), result >= 0 ? result : code);
    }

    void ShiftJisNames()
    {
        const Encoding& shiftJis = EncodingFor(EncodingType::ShiftJis);
        QCOMPARE(shiftJis.CharName(0xB1), QLatin1StringView("HALFWIDTH KATAKANA LETTER A"));
        QVERIFY(shiftJis.CharName(0xFFFF).isEmpty());
        QVERIFY(shiftJis.CharName(0).isEmpty());
    }
};

GLYPHOR_TEST(TestTables)

} // namespace Glyphor

#include "tst_tables.moc"
