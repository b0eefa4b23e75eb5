#include "files/kerning_file.h"
#include "support/c_files.h"
#include "support/rows.h"

#include <QTemporaryDir>

namespace Glyphor {

namespace {

std::unique_ptr<Font> MakeFont(const std::vector<int>& distances)
{
    auto font = std::make_unique<Font>(FontFormat::AA2, EncodingType::Unicode);
    font->SetName(u"8 Tests"_s);
    font->SetHeight(7);
    for (std::size_t index = 0; index < distances.size(); ++index) {
        const auto left = quint16('a' + index);
        font->AddChar(left).kerning = {{quint16('Z'), distances[index]}, {quint16('0'), 1}};
    }
    font->AddChar('Z');
    return font;
}

} // namespace

class TestKerningFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OnlyEnabledPairs()
    {
        const auto font = MakeFont({-1, 2, 3});
        font->SetEnabled('b', 'b', false);
        const std::vector<KerningEntry> pairs = EnabledKerning(*font);
        QCOMPARE(pairs.size(), std::size_t(2));
        QCOMPARE(char(pairs[1].left), 'c');
        QCOMPARE(pairs[1].distance, 3);
    }

    void Golden_data()
    {
        const Test::Rows<QString, QList<int>> row;
        row("narrow, two lines", u"kerning.c"_s, QList<int>{-1, 2, 0, -3, 1});
        row("wide, a full line", u"kerning.h"_s, QList<int>{-12, 9, -9, 10});
    }

    void Golden()
    {
        const auto [fileName, distances] = Test::Row<QString, QList<int>>();
        const auto font = MakeFont({distances.begin(), distances.end()});
        const QTemporaryDir folder;
        const QString path = folder.filePath(fileName);
        const auto file = MakeKerningFile(path, {});
        file->Write(EnabledKerning(*font), *font);
        Test::CompareWithGolden(Test::ReadAll(path), fileName);

        const QString object = folder.filePath(u"kerning.o"_s);
        QCOMPARE(Test::Compile(folder.path(), {u"-x"_s, u"c"_s, u"-c"_s, u"-o"_s, object, path}),
                 QByteArray());
    }

    void Kinds()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"pairs.KERN"_s);
        MakeKerningFile(path, {})->Write(EnabledKerning(*MakeFont({5})), *MakeFont({5}));
        QVERIFY(QFile::exists(path) && Test::ReadAll(path).isEmpty());
        QVERIFY(dynamic_cast<KerningFileC*>(MakeKerningFile(u"kern.H"_s, {}).get()) != nullptr);
        QVERIFY(MakeKerningFile(u"a.xbf"_s, {}) == nullptr);
    }
};

GLYPHOR_TEST(TestKerningFile)

} // namespace Glyphor

#include "tst_kerning_file.moc"
