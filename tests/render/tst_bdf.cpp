#include "render/font_file_bdf.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

class TestBdf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Reads()
    {
        const auto font = FontFileBDF(Test::FontPath("bitmap.bdf")).Read();
        const FontMetrics& metrics = font->Metrics();
        QCOMPARE(font->Name(), u"Test Bitmap Bold"_s);
        QCOMPARE(metrics.format, FontFormat::Standard);
        QCOMPARE((QList<int>{metrics.height, metrics.verticalSpace, metrics.baseline,
                             metrics.capitalHeight, metrics.lowercaseHeight, metrics.maxWidth}),
                 (QList<int>{12, 12, 9, 9, 6, 7}));
        QVERIFY(!font->HasKerning());

        // A blank that does not move the cursor is no character; codes beyond 16 bits are not met.
        QList<int> codes;
        font->ForEachEnabled([&codes](quint16 code, const Character&) { codes.append(code); });
        QCOMPARE(codes, (QList<int>{' ', 'A', 'a', 'g'}));
        QCOMPARE(int(font->FindChar(' ')->info.cursorDistance), 4);
        const Character& letter = *font->FindChar('g');
        QCOMPARE(Test::Numbers(letter.info), (QList<int>{6, 9, -1, 3, 7}));
        QCOMPARE(letter.bitmap->Data(), QByteArray::fromHex("748c84848c74048870"));
    }

    void BaselineIsTheProperty()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"font.bdf"_s);
        for (const auto& [property, baseline] : {std::pair("FONT_ASCENT 200\n", 200),
                                                 {"OTHER 1\n", 9}, // from the box
                                                 {"FONT_ASCENT 258\n", 2},
                                                 {"FONT_ASCENT -2147483648\n", 0}}) {
            Test::WriteAll(
                path,
                Test::ReadAll(Test::FontPath("bitmap.bdf")).replace("FONT_ASCENT 9\n", property));
            QCOMPARE(int(FontFileBDF(path).Read()->Metrics().baseline), baseline);
        }
    }

    void Refuses_data()
    {
        QTest::addColumn<QByteArray>("contents");
        const QByteArray whole = Test::ReadAll(Test::FontPath("bitmap.bdf"));
        QTest::newRow("text") << QByteArray("no font\n");
        QTest::newRow("cut") << whole.left(whole.indexOf("STARTCHAR"));
        // FreeType makes room for every box, whether or not its rows follow.
        const auto boxes = [&whole](const QByteArray& box) {
            const QByteArray character = "STARTCHAR a\nENCODING 65\nSWIDTH 1 0\nDWIDTH 8 0\nBBX " +
                                         box + " 0 0\nBITMAP\nENDCHAR\n";
            return whole.left(whole.indexOf("STARTCHAR")) + character.repeated(50) + "ENDFONT\n";
        };
        QTest::newRow("boxes without rows") << boxes("8000 8000");
        QTest::newRow("one large box") << boxes("65000 65000");
        QTest::newRow("letters in a box") << boxes("8000x 8000x");
        QTest::newRow("lines end in CR") << boxes("8000 8000").replace('\n', '\r');
        QTest::newRow("another kind") << Test::ReadAll(Test::FontPath("outlines.ttf"));
    }

    void Refuses()
    {
        QFETCH(const QByteArray, contents);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"font.bdf"_s);
        Test::WriteAll(path, contents);
        QCOMPARE(Test::FailureOf([&path] { (void)FontFileBDF(path).Read(); }),
                 u"Error reading file: BDF font file could not be read!"_s);
    }
};

GLYPHOR_TEST(TestBdf)

} // namespace Glyphor

#include "tst_bdf.moc"
