#include "files/font_file_c.h"
#include "files/font_file_sif.h"
#include "files/font_file_xbf.h"
#include "support/cost.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

// No input takes a reader more than a time that grows with it.
class TestLinear : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;

    [[nodiscard]] QByteArray SampleText() const
    {
        const QString path = folder_.filePath(u"sample.c"_s);
        FontFileC(path, {"\n", std::nullopt}).Write(*Test::MakeSampleFont(FontFormat::Standard));
        return Test::ReadAll(path);
    }

private Q_SLOTS:
    void CText_data()
    {
        QTest::addColumn<QByteArray>("piece");
        // Separated by "|".
        const QByteArray pieces =
            "GUI_FONT_PROP_EXT |GUI_FONT_PROP_EXT a = |GUI_FONT_PROP_EXT a = { |"
            "GUI_FONT_PROP_EXT a = { 1, 2, 3 }|GUI_CHARINFO_EXT |GUI_CHARINFO_EXT a[] = ; | "
            "GUI_FONT |"
            "GUI_FONTTYPE_PROP_EXT |GUI_FONT a = { |a[] = { |a[] = { 1, }; |= |= {|{|}|{ }|/|/* |"
            "/* */ |// \n|\"|'|\\\n|#\n|#define a \\\n|a |a(|extern \"C\" { |0 |, 0|\r|\n";
        for (const QByteArray& piece : pieces.split('|'))
            QTest::newRow(piece.constData()) << piece;
    }

    void CText()
    {
        QFETCH(const QByteArray, piece);
        const QByteArray sample = SampleText();
        const QString path = folder_.filePath(u"font.c"_s);
        const auto read = [&](const QByteArray& text) {
            Test::WriteAll(path, text);
            (void)Test::FailureOf([&] { (void)FontFileC(path, {}).Read(); });
        };
        const int count = int(60'000 / piece.size());
        QVERIFY(Test::IsLinear([&](int size) { read(piece.repeated(size) + sample); }, count));
        QVERIFY(Test::IsLinear([&](int size) { read(sample + piece.repeated(size)); }, count));
    }

    void ManyRuns()
    {
        const auto make = [](int count) {
            auto font = std::make_unique<Font>(FontFormat::AA2, EncodingType::Unicode);
            font->SetHeight(9);
            for (int index = 0; index < count; ++index)
                font->AddChar(quint16(2 * index)); // a run for each character
            return font;
        };
        const auto write = [&](int count) {
            const auto font = make(count);
            FontFileXBF(folder_.filePath(u"%1.xbf"_s.arg(count))).Write(*font);
            FontFileSIF(folder_.filePath(u"%1.sif"_s.arg(count))).Write(*font);
            FontFileC(folder_.filePath(u"%1.c"_s.arg(count)), {"\n", std::nullopt}).Write(*font);
        };
        constexpr int count = 0x4000;
        write(count);
        write(2 * count);
        QVERIFY(Test::IsLinear(
            [&](int size) { (void)FontFileXBF(folder_.filePath(u"%1.xbf"_s.arg(size))).Read(); },
            count));
        QVERIFY(Test::IsLinear(
            [&](int size) { (void)FontFileSIF(folder_.filePath(u"%1.sif"_s.arg(size))).Read(); },
            count));
        constexpr int few = 0x800;
        write(few);
        write(2 * few);
        QVERIFY(Test::IsLinear(
            [&](int size) { (void)FontFileC(folder_.filePath(u"%1.c"_s.arg(size)), {}).Read(); },
            few));
    }
};

GLYPHOR_TEST(TestLinear)

} // namespace Glyphor

#include "tst_linear.moc"
