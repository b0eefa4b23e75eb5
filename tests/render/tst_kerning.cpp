#include "render/kerning_index.h"
#include "support/rows.h"
#include "support/test_main.h"

#include <QFileInfo>
#include <QTest>

namespace Glyphor {

class TestKerning : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SameAsTheFullPass_data()
    {
        // Of large fonts only every so manieth character.
        const Test::Rows<QString, int, int> row;
        row("small", Test::FontPath("outlines.ttf"), 20, 1);
        row("large", Test::FontPath("outlines.ttf"), 200, 1);
        row("no kerning", Test::FontPath("strike.ttf"), 20, 1);
        row("real font", QString::fromUtf8(SYSTEM_FONTS "/DejaVuSans.ttf"), 40, 97);
    }

    void SameAsTheFullPass()
    {
        const auto [path, height, step] = Test::Row<QString, int, int>();
        FreeTypeFace face(path, 0, FreeTypeLibrary());
        QVERIFY2(face.IsOpen(), qUtf8Printable(path));
        face.SetPixelSize(height);
        const KerningIndex index(face);
        int place = 0;
        face.WalkCharmap([&](quint16 left, FT_UInt) {
            if (place++ % step != 0)
                return true;
            [&] { QCOMPARE(index.PairsOf(left), face.KerningPairs(left)); }();
            return !QTest::currentTestFailed();
        });
        QVERIFY(place > 0);
    }

    void PairsFollowTheCharmap()
    {
        FreeTypeFace face(Test::FontPath("outlines.ttf"), 0, FreeTypeLibrary());
        face.SetPixelSize(100);
        // U+0391 has the glyph of "A"; U+10041 counts as "A" again.
        QCOMPARE(KerningIndex(face).PairsOf('V'),
                 (std::vector<KerningPair>{{' ', 8}, {'A', -12}, {0x391, -12}, {'A', -12}}));
        QCOMPARE(face.Kerning('A', 'V'), -15); // the sum of two tables
        QCOMPARE(face.Kerning('A', 'a'), 0);
    }
};

GLYPHOR_TEST(TestKerning)

} // namespace Glyphor

#include "tst_kerning.moc"
