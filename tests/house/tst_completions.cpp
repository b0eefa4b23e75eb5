#include "cli/command_line_option.h"
#include "support/rows.h"
#include "support/test_main.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

// Asks the shells what they offer behind a line of the program: bash always, others where
// installed.
class TestCompletions : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;

    QStringList Offered(const QString& shell, const QStringList& arguments) const
    {
        QProcess process;
        process.setWorkingDirectory(folder_.path());
        process.start(shell, arguments);
        if (!process.waitForFinished() || process.exitCode() != 0)
            return {QString::fromUtf8(process.readAllStandardError())};
        QStringList lines = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n');
        lines.removeAll(QString());
        for (QString& line : lines)
            line = line.section(u'\t', 0, 0).remove(u'/'); // without its description
        lines.sort();
        return lines;
    }

    QStringList OfferedByBash(const QStringList& words) const
    {
        return Offered(
            u"bash"_s,
            QStringList{u"-c"_s,
                        u"source \"$0\" && COMP_WORDS=(Glyphor \"$@\") COMP_CWORD=$# && "
                        "_glyphor Glyphor \"${!#}\"; printf '%s\\n' \"${COMPREPLY[@]}\""_s,
                        QStringLiteral(COMPLETIONS "/Glyphor")} +
                words);
    }

    QStringList OfferedByFish(const QStringList& words) const
    {
        return Offered(u"fish"_s, {u"-c"_s, u"source '%1'; complete -C 'Glyphor %2'"_s.arg(
                                                QStringLiteral(COMPLETIONS "/Glyphor.fish"),
                                                words.join(u' '))});
    }

    static QStringList Options()
    {
        QStringList names;
        for (const CommandLineOption& option : CommandLineOptions()) {
            if (!option.description.isEmpty() && !option.longName.isEmpty())
                names.append(u'-' + option.longName);
        }
        names.sort();
        return names;
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString& name : {u"a.ttf"_s, u"b.XBF"_s, u"c d.c"_s, u"e.txt"_s})
            Test::WriteAll(folder_.filePath(name), {});
        QVERIFY(QDir(folder_.path()).mkdir(u"fonts"_s));
    }

    void Offers_data()
    {
        const Test::Rows<QStringList, QStringList> row;
        const QStringList formats = Test::Words(u"AA2 AA4 FRM LEG LEG_AA2 LEG_AA4 STD"_s);
        const QStringList fonts = {u"a.ttf"_s, u"b.XBF"_s, u"c d.c"_s, u"fonts"_s};
        row("option", {u"-form"_s}, {u"-format"_s});
        row("option in capitals", {u"-FORM"_s}, {u"-format"_s});
        row("all options", {u"-"_s}, Options());
        row("keywords", {u"-format"_s, {}}, formats);
        row("keyword in small letters", {u"-F"_s, u"aa"_s}, {u"AA2"_s, u"AA4"_s});
        row("font", {QString()}, fonts);
        row("font behind -hide", {u"-Hide"_s, {}}, fonts);
        row("nothing but options behind the font", {u"a.ttf"_s, {}}, Options());
        row("file to save", {u"-save"_s, {}}, fonts.mid(1));
        row("any file", {u"-p"_s, u"e"_s}, {u"e.txt"_s});
        row("free text", {u"-height"_s, {}}, {});
        row("second parameter", {u"-ec"_s, u"inst"_s, {}}, {u"all"_s});
        row("optional keyword", {u"-merge"_s, u"b.XBF"_s, u"k"_s}, {u"KEEP"_s});
        row("option instead of it", {u"-merge"_s, u"b.XBF"_s, u"-sa"_s}, {u"-save"_s});
    }

    void Offers()
    {
        const auto [words, expected] = Test::Row<QStringList, QStringList>();
        QCOMPARE(OfferedByBash(words), expected);
        if (!QStandardPaths::findExecutable(u"fish"_s).isEmpty())
            QCOMPARE(OfferedByFish(words), expected);
    }

    void ZshReadsIt()
    {
        if (QStandardPaths::findExecutable(u"zsh"_s).isEmpty())
            QSKIP("zsh is not installed");
        QCOMPARE(Offered(u"zsh"_s, {u"-n"_s, QStringLiteral(COMPLETIONS "/_Glyphor")}),
                 QStringList());
    }
};

GLYPHOR_TEST(TestCompletions)

} // namespace Glyphor

#include "tst_completions.moc"
