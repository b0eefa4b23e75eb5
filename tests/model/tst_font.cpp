#include "model/font.h"
#include "support/test_main.h"

#include <QTest>

namespace Glyphor {

class TestFont : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Enabling()
    {
        Font font(FontFormat::AA2, EncodingType::Unicode);
        QVERIFY(!font.HasEnabledChars());
        CodeSet pattern;
        pattern.Set(0x7F, true);
        font.SetEnabledCodes(pattern);
        QVERIFY(!font.IsEnabled(0x7F) && !font.HasEnabledChars());

        font.SetEnabled(0xFFF0, 0xFFFF, true);
        QVERIFY(font.HasEnabledChars());
        QVERIFY(font.FindChar(0xFFFF) != nullptr && font.FindChar(0xFFEF) == nullptr);
        QCOMPARE(int(font.FindChar(0xFFFF)->info.width), 1);

        font.SetEnabled(0xFFF1, 0xFFF1, false);
        font.AddChar(0xFFF1);
        QVERIFY(!font.IsEnabled(0xFFF1));
        QCOMPARE(font.EnabledRuns(), (std::vector<CodeRange>{{0xFFF0, 0xFFF0}, {0xFFF2, 0xFFFF}}));
    }

    void RowEdits_data()
    {
        QTest::addColumn<int>("format");
        QTest::newRow("legacy") << int(FontFormat::LegacyAA2);
        QTest::newRow("standard") << int(FontFormat::AA2);
    }

    void RowEdits()
    {
        QFETCH(const int, format);
        const bool isLegacy = IsLegacyFormat(FontFormat(format));
        Font font(FontFormat(format), EncodingType::Unicode);
        font.SetHeight(3);
        font.SetBaseline(2);
        CharBitmap& bitmap = *font.AddChar('A').bitmap;
        bitmap.SetPixelIndex(0, 0, 3);
        const CharInfo& info = bitmap.Info();
        const FontMetrics& metrics = font.Metrics();
        const int yPos = info.yPos;

        QVERIFY(font.InsertRowTop());
        QCOMPARE((QList<int>{metrics.height, metrics.verticalSpace, metrics.baseline}),
                 (QList<int>{4, 4, 3}));
        QCOMPARE(int(info.yPos), isLegacy ? 0 : yPos + 1);
        QCOMPARE(int(info.height), isLegacy ? 4 : 1);
        QCOMPARE(bitmap.GetPixelIndex(0, isLegacy ? 1 : 0), 3);

        QVERIFY(font.InsertRowBottom());
        QCOMPARE(int(metrics.baseline), 3);
        QCOMPARE(bitmap.Data().size(), isLegacy ? 5 : 1);

        QVERIFY(font.DeleteRowTop() && font.DeleteRowBottom());
        QCOMPARE((QList<int>{metrics.height, metrics.baseline, info.yPos}),
                 (QList<int>{3, 2, yPos}));
        QCOMPARE(bitmap.Data(), QByteArray::fromHex(isLegacy ? "c00000" : "c0"));
    }

    void RowEditsStopAtTheLimits()
    {
        Font font(FontFormat::Standard, EncodingType::Unicode);
        QVERIFY(!font.DeleteRowBottom());
        font.SetHeight(255);
        QVERIFY(!font.InsertRowTop() && !font.InsertRowBottom());
        font.SetHeight(10);
        QVERIFY(font.DeleteRowTop() && font.InsertRowTop()); // the baseline is 0
        QCOMPARE(int(font.Metrics().baseline), 0);
        font.SetBaseline(5);
        Character& low = font.AddChar('A');
        low.info.yPos = 127;
        QVERIFY(font.InsertRowTop()); // the picture moves in its bitmap
        QCOMPARE(int(low.info.yPos), 127);
        QCOMPARE(int(low.info.height), 2);
        QVERIFY(font.DeleteRowTop()); // and back again
        QCOMPARE(int(low.info.yPos), 127);
        QCOMPARE(int(low.info.height), 1);
        QVERIFY(font.DeleteRowTop());
        QCOMPARE(int(low.info.yPos), 126);
        low.info.yPos = -128;
        QVERIFY(!font.DeleteRowTop());
        QCOMPARE(int(font.Metrics().baseline), 4);

        Font legacy(FontFormat::Legacy, EncodingType::Unicode);
        legacy.SetHeight(1);
        legacy.AddChar('A');
        QVERIFY(!legacy.DeleteRowBottom());
    }
};

GLYPHOR_TEST(TestFont)

} // namespace Glyphor

#include "tst_font.moc"
