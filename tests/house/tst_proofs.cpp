#include "support/program.h"
#include "support/rows.h"
#include "support/test_main.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

namespace Glyphor {

// Proofs and comparisons of the program as build scripts run it.
class TestProofs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Test::WriteAll(Path(u"font.opt"_s), '\'' + Test::FontPath("outlines.ttf").toUtf8() +
                                                "' -defaults -height 24px -format AA4\n");
        Test::WriteAll(Path(u"text.txt"_s), "AAA €\n");
        Test::WriteAll(Path(u"latin1.txt"_s), "caf\xE9\n");
        QVERIFY(QDir(folder_.path()).mkdir(u"folder.png"_s));
        QVERIFY(QFile::link(u"/dev/full"_s, Path(u"full.png"_s)));
        QCOMPARE(Run(u"-hide -strict @font.opt -chars A -save old.c"_s).status, 0);
        QCOMPARE(Run(u"-hide -strict @font.opt -chars AV -save new.xbf"_s).status, 0);
    }

    void Runs_data()
    {
        const Test::Rows<QString, int, QString, bool> row; // line, status, what it tells, a proof
        row("rendered", u"@font.opt -chars A -proof"_s, 0, u"Saved proof: a.png\n"_s, true);
        row("saved", u"@font.opt -proof a.png -chars A -save a.c"_s, 0,
            u"Saved font file: a.c\nSaved proof: a.png\n"_s, true);
        row("opened", u"new.xbf -format AA4 -proof a.png -prooftext text.txt"_s, 0, u"Saved"_s,
            true);
        row("PDF", u"old.c -proof a.pdf"_s, 0, u"Saved proof: a.pdf\n"_s, false);
        row("missing characters", u"@font.opt -chars A中 -proof a.png"_s, 2, u"U+4E2D"_s, true);
        row("missing characters as errors",
            u"@font.opt -chars A中 -werror -save a.c -proof a.png"_s, 1,
            u"error: The font lacks characters"_s, true);
        row("unknown kind", u"old.c -save a.c -proof a.gif"_s, 1, u"not supported"_s, false);
        row("no kind", u"old.c -save a.c -proof a"_s, 1, u"not supported"_s, false);
        row("missing folder", u"old.c -proof none/a.png"_s, 1, u"none/a.png"_s, false);
        row("folder", u"old.c -proof folder.png"_s, 1, u"It is a directory."_s, false);
        row("full disk", u"old.c -proof full.png"_s, 1, u"No space left"_s, false);
        row("text without a proof", u"old.c -prooftext text.txt"_s, 1, u"give -proof"_s, false);
        row("no text", u"old.c -save a.c -proof a.png -prooftext none.txt"_s, 1, u"none.txt"_s,
            false);
        row("another encoding", u"old.c -save a.c -proof a.png -prooftext latin1.txt"_s, 1,
            u"latin1.txt:1: error: "_s, false);
        row("equal", u"@font.opt -chars A -compare old.c"_s, 0,
            u"No differences from old.c: 1 character the same.\n"_s, false);
        row("different", u"-werror @font.opt -chars A -compare old.c -save a.c"_s, 0,
            u"No differences"_s, false);
        row("other kind", u"new.xbf -f AA4 -compare old.c"_s, 0,
            u"+ 0x0056 LATIN CAPITAL LETTER V\nDifferences from old.c: 0 of the font, 1 character "
            "added, 0 gone, 0 changed, 1 the same.\n"_s,
            false);
        row("rendered other", u"old.c -height 24px -f AA4 -chars A -compare FONT"_s, 0,
            u"No differences"_s, false);
        row("other without a height", u"old.c -compare FONT"_s, 1, u"give -height"_s, false);
        row("no other", u"old.c -save a.c -compare none.c"_s, 1, u"does not exist"_s, false);
        row("other of an unknown kind", u"old.c -save a.c -compare a.txt"_s, 1, u"not supported"_s,
            false);
        row("differences as errors",
            u"@font.opt -chars AV -werror -compare old.c -save a.c -proof a.png"_s, 1,
            u"old.c: error: The font differs from old.c, which is an error with -werror.\n"_s,
            true);
    }

    void Runs()
    {
        const auto [given, status, expected, hasProof] = Test::Row<QString, int, QString, bool>();
        QString line = given.endsWith(u"-proof"_s) ? given + u" a.png"_s : given;
        line.replace(u"FONT"_s, Test::FontPath("outlines.ttf"));
        QFile::remove(Path(u"a.c"_s));
        QFile::remove(Path(u"a.png"_s));
        const Test::ProgramResult result = Run(u"-hide -strict "_s + line);
        QVERIFY2((result.output + result.errors).contains(expected),
                 qUtf8Printable(result.output + result.errors));
        QCOMPARE(result.status, status);
        QCOMPARE(QFile::exists(Path(u"a.png"_s)), hasProof);
        QCOMPARE(QFile::exists(Path(u"a.c"_s)), line.contains(u"-save"_s) && status != 1);
    }

    // Of what was written, whether it is still at hand or opened again.
    void ShowsTheFile()
    {
        const QString saved = u"-hide -strict @font.opt -chars A -save b.c -proof one.png"_s;
        QCOMPARE(Run(saved).status, 0);
        QCOMPARE(Run(u"-hide -strict b.c -proof two.png"_s).status, 0);
        const QByteArray picture = Test::ReadAll(Path(u"one.png"_s));
        QVERIFY(picture.size() > 1000);
        QCOMPARE(Test::ReadAll(Path(u"two.png"_s)), picture);
    }

    // The file that is replaced is compared as it was.
    void ComparesBeforeSaving()
    {
        QCOMPARE(Run(u"-hide -strict @font.opt -chars A -save c.c"_s).status, 0);
        const QString line = u"-hide @font.opt -chars AV -compare c.c -save c.c -proof c.png"_s;
        QVERIFY(Run(line).output.contains(u"+ 0x0056 LATIN CAPITAL LETTER V\n"_s));
        QVERIFY(Run(line).output.contains(u"No differences from c.c: 2 characters"_s));
    }

    void IsReported()
    {
        QCOMPARE(Run(u"-hide -strict @font.opt -chars A -compare old.c -prooftext text.txt -proof "
                     "d.png -report d.json -depfile d.d"_s)
                     .status,
                 0);
        QVERIFY(Test::ReadAll(Path(u"d.d"_s)).startsWith("d.png d.json: \\\n"));
        QVERIFY(Test::ReadAll(Path(u"d.d"_s)).contains("\n  text.txt \\\n"));
        QVERIFY(Test::ReadAll(Path(u"d.d"_s)).contains("\n  old.c"));
        const auto outputs =
            QJsonDocument::fromJson(Test::ReadAll(Path(u"d.json"_s)))[u"outputs"_s];
        QCOMPARE(outputs[0][u"kind"_s].toString(), u"proof"_s);
        QCOMPARE(outputs[0][u"size"_s].toInt(), int(QFileInfo(Path(u"d.png"_s)).size()));
    }

private:
    [[nodiscard]] QString Path(const QString& name) const { return folder_.filePath(name); }

    [[nodiscard]] Test::ProgramResult Run(const QString& line) const
    {
        return Test::RunProgram(folder_.path(), QString::fromUtf8(GLYPHOR_PROGRAM),
                                Test::Words(line));
    }

    QTemporaryDir folder_;
};

GLYPHOR_TEST(TestProofs)

} // namespace Glyphor

#include "tst_proofs.moc"
