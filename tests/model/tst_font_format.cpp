#include "model/font_format.h"
#include "support/test_main.h"

#include <QTest>

namespace Glyphor {

class TestFontFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TablesAgree()
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

    void SameWordOtherFormat()
    {
        QCOMPARE(FormatFromKeyword(u"STD", KeywordSyntax::Current), FontFormat::Standard);
        QCOMPARE(FormatFromKeyword(u"STD", KeywordSyntax::Legacy), FontFormat::Legacy);
        QCOMPARE(FormatFromKeyword(u"AA4", KeywordSyntax::Current), FontFormat::AA4);
        QCOMPARE(FormatFromKeyword(u"AA4", KeywordSyntax::Legacy), FontFormat::LegacyAA4);
        QVERIFY(!FormatFromKeyword(u"std", KeywordSyntax::Current));
        QCOMPARE(EncodingFromKeyword(u"Shift-JIS"), EncodingType::ShiftJis);
        QVERIFY(!EncodingFromKeyword(u"JIS"));
    }

    void TypeNames()
    {
        auto format = FontFormat::Standard;
        auto encoding = EncodingType::Unicode;
        FormatFromFontTypeName(u"GUI_FONTTYPE_PROP_AA4_SJIS", format, encoding);
        QCOMPARE(format, FontFormat::LegacyAA4);
        QCOMPARE(encoding, EncodingType::ShiftJis);
        FormatFromFontTypeName(u"GUI_FONTTYPE_NONE", format, encoding);
        QCOMPARE(format, FontFormat::Unknown);
        QCOMPARE(encoding, EncodingType::ShiftJis);
    }

    void ShiftJisNeedsLegacy()
    {
        QVERIFY(IsValidCombination(FontFormat::LegacyAA2, EncodingType::ShiftJis));
        QVERIFY(!IsValidCombination(FontFormat::AA2, EncodingType::ShiftJis));
        QVERIFY(IsValidCombination(FontFormat::AA2, EncodingType::Unicode));
    }
};

GLYPHOR_TEST(TestFontFormat)

} // namespace Glyphor

#include "tst_font_format.moc"
