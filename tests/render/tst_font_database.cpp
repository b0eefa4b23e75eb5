#include "app/file.h"
#include "app/file_name.h"
#include "render/font_database.h"
#include "support/rows.h"
#include "support/test_main.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace Glyphor {

class TestFontDatabase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FamiliesAreMerged()
    {
        const QTemporaryDir folder;
        for (const auto* const name : {"collection.ttc", "black.ttf", "variable.ttf"})
            QVERIFY(QFile::copy(Test::FontPath(name), folder.filePath(QString::fromUtf8(name))));
        Test::WriteAll(folder.filePath(u"a_broken.ttf"_s), "no font");
        Test::WriteAll(folder.filePath(u"a_cut.otf"_s),
                       Test::ReadAll(Test::FontPath("outlines.ttf")).left(300));
        Test::WriteAll(folder.filePath(u"readme.txt"_s), "not looked at");
        QCOMPARE(::mkfifo(QFile::encodeName(folder.filePath(u"pipe"_s)).constData(), 0600), 0);
        QVERIFY(QFile::link(folder.filePath(u"pipe"_s), folder.filePath(u"a_link.ttf"_s)));

        FontDatabase database;
        QList<int> reports;
        database.Build(
            {folder.path()}, [&](int count) { reports.append(count); },
            [&](int done) {
                reports.append(done);
                return true;
            });
        QCOMPARE(reports, (QList<int>{5, 1, 2, 3, 4, 5}));
        QStringList names;
        for (const auto& family : database.Families())
            names.append(family->Name());
        QCOMPARE(names, (QStringList{u"Test Collection"_s, u"Test Variable"_s}));

        const FontFamily& collection = *database.Find(names[0]);
        QCOMPARE(collection.StyleNames(), (QStringList{u"Regular"_s, u"Oblique"_s, u"Black"_s}));
        QCOMPARE(collection.FaceIndex(u"Oblique"_s), 1);
        QCOMPARE(collection.Style(u"Oblique"_s), (FaceStyle{700, 5, true}));
        QCOMPARE(collection.Face(u"Oblique"_s).StyleName(), u"Oblique"_s);
        QCOMPARE(collection.Face(u"Black"_s).Path(), folder.filePath(u"black.ttf"_s));
        QVERIFY(!collection.Face(u"Thin"_s).IsOpen());
        QCOMPARE(collection.UnicodeRanges(), (QList<quint32>{1, 2, 3, 4}));

        const FontFamily& variable = *database.Find(names[1]);
        QCOMPARE(variable.StyleNames(), (QStringList{u"Plain"_s, u"Heavy"_s}));
        QCOMPARE(variable.FaceIndex(u"Heavy"_s), 2);
        QCOMPARE(variable.Face(u"Heavy"_s).Style().weight, 900U);
        QVERIFY(database.Find(u"test collection"_s) == nullptr);
    }

    void NamesThatAreNotUtf8()
    {
        const QTemporaryDir folder;
        const QString below = folder.filePath(FileNameOf("caf\xE9"));
        QCOMPARE(::mkdir(BytesOf(below).constData(), 0700), 0);
        const QString path = below + u'/' + FileNameOf("\xFF.ttc");
        File(path).Replace(Test::ReadAll(Test::FontPath("collection.ttc")));
        FontDatabase database;
        database.Build(
            ExpandDirectories({folder.path()}, true), [](int) {}, [](int) { return true; });
        const FontFamily* const family = database.Find(u"Test Collection"_s);
        QVERIFY(family != nullptr && family->Face(u"Oblique"_s).IsOpen());
        QCOMPARE(family->Path(u"Oblique"_s), path);
        Test::RemoveAll(folder.path());
    }

    void TenDirectories_data()
    {
        const Test::Rows<QStringList, int> row;
        QStringList siblings;
        QString nested;
        QStringList deep;
        for (int index = 0; index < 15; ++index) {
            siblings.append(u"s%1"_s.arg(index));
            nested += u"/n%1"_s.arg(index);
            deep.append(nested.mid(1));
        }
        row("siblings", siblings, 10);
        row("nested", deep, 10);
        row("few", siblings.first(3), 4);
    }

    void TenDirectories()
    {
        const auto [made, entered] = Test::Row<QStringList, int>();
        const QTemporaryDir folder;
        for (const QString& name : made)
            QVERIFY(QDir(folder.path()).mkpath(name));
        const QStringList list = ExpandDirectories({folder.path()}, true);
        QCOMPARE(list.size(), entered);
        QCOMPARE(list.first(), folder.path());
        QCOMPARE(ExpandDirectories({folder.path()}, false), QStringList{folder.path()});
        // Directories that are named are entered whatever the count, but each once.
        const QTemporaryDir other;
        QCOMPARE(ExpandDirectories({folder.path(), other.path(), other.path()}, true).size(),
                 entered + 1);
        QVERIFY(ExpandDirectories({folder.filePath(u"none"_s)}, true).isEmpty());
    }

    void ThreadReports()
    {
        FontDatabaseThread thread({QFileInfo(Test::FontPath("outlines.ttf")).path()}, false);
        QSignalSpy counted(&thread, &FontDatabaseThread::initFileCount);
        QSignalSpy done(&thread, &FontDatabaseThread::fileDone);
        QSignalSpy finished(&thread, &FontDatabaseThread::hasFinished);
        thread.start();
        QVERIFY(finished.wait());
        thread.wait();
        QCOMPARE(counted.size(), 1);
        QCOMPARE(done.size(), counted[0][0].toInt());
        QVERIFY(FontDatabase::Current()->Find(u"DejaVu Sans"_s) != nullptr);
    }
};

GLYPHOR_TEST(TestFontDatabase)

} // namespace Glyphor

#include "tst_font_database.moc"
