#include "support/c_files.h"
#include "support/recipes.h"
#include "support/rows.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

namespace {

QString FromHtml(QString text)
{
    return text.replace("&lt;"_L1, "<"_L1).replace("&gt;"_L1, ">"_L1).replace("&amp;"_L1, "&"_L1);
}

QString ExampleFile(const QString& name)
{
    return QString::fromUtf8(
        Test::ReadAll(QStringLiteral(PROJECT_SOURCES "/docs/examples/firmware/") + name));
}

QString FontFile()
{
    return QStringLiteral(SYSTEM_FONTS "/DejaVuSans.ttf");
}

} // namespace

// Has the recipes of the documents run programs that fail in all the ways there are: none may pass,
// and none may touch the font of the last good run.
class TestRecipes : public QObject
{
    Q_OBJECT

    QString manual_ = Test::Document(u"docs/manual/index.html"_s);

    // The block of code of the manual that begins and goes on like this.
    QString FromManual(const QString& pattern) const
    {
        return FromHtml(Test::Captured(manual_, u"<pre><code>(%1)</code></pre>"_s.arg(pattern)));
    }

private Q_SLOTS:
    void DocumentsAgree()
    {
        const QString makefile = Test::MakefileRecipe();
        QVERIFY(makefile.startsWith(u"Ui24.c: DejaVuSans.ttf"_s));
        QCOMPARE(FromManual(u"Ui24\\.c: .*?"_s), makefile);
        QString page =
            Test::Captured(Test::Document(u"docs/Glyphor.1"_s), u"\n(Ui24\\.c: .*?)\n\\.fi"_s);
        QCOMPARE(page.replace("\\e\n"_L1, "\\\n"_L1).replace("\\-"_L1, "-"_L1), makefile);
        QVERIFY(!Test::CMakeRecipe().isEmpty());
        QCOMPARE(FromManual(u"find_package.*?"_s), Test::CMakeRecipe());
        for (const char* const name : {"GUI.h", "draw.h", "draw.c"}) {
            const QString file = ExampleFile(QString::fromUtf8(name)).chopped(1);
            QVERIFY2(FromHtml(manual_).contains(u"<code>%1</code>"_s.arg(file)), name);
        }
    }

    // What the manual prints is what its programs print.
    void ManualDraws()
    {
        const QTemporaryDir folder;
        const auto write = [&](const QString& name, const QString& text) {
            Test::WriteAll(folder.filePath(name), text.toUtf8() + '\n');
        };
        for (const QString& name : {u"GUI.h"_s, u"draw.h"_s, u"draw.c"_s})
            write(name, ExampleFile(name));
        write(u"main.c"_s, FromManual(u"#include \"draw.h\"\n#include &lt;stdio.h&gt;.*?"_s));
        QString convert = FromManual(u"Glyphor DejaVuSans.ttf -hide [^<]*-save DejaVu.c"_s);
        convert.replace(u"Glyphor"_s, u"'%1'"_s.arg(QString::fromUtf8(GLYPHOR_PROGRAM)));
        convert.replace(u"DejaVuSans.ttf"_s, FontFile());
        write(u"run.sh"_s, u"set -e; cd '%1'\n"_s.arg(folder.path()) + convert + u" >log\n"_s +
                               FromManual(u"awk .*?"_s) + u'\n' + FromManual(u"gcc .*?"_s));
        QString said = QString::fromUtf8(Test::OutputOf(u"sh"_s, {folder.filePath(u"run.sh"_s)}));
        said.replace(QRegularExpression(u" +\n"_s), u"\n"_s);
        const QString picture =
            FromManual(u"gcc [^<]*</code></pre>\n<pre><code>.*?"_s).section(u"<pre><code>"_s, 1);
        QVERIFY2(!picture.isEmpty() && said.contains(picture + u'\n'), qPrintable(said));
        QCOMPARE(Test::ReadAll(folder.filePath(u"GUI_patterns.h"_s)),
                 ExampleFile(u"GUI_patterns.h"_s).section(u'\n', 1).toUtf8());
    }

    void Recipes_data()
    {
        const Test::Rows<QString, QString, QString, bool> rows;
        struct Recipe
        {
            const char* name;
            QString text;
            QString output;
            bool allowsWarnings;
        };
        const Recipe recipes[] = {{"Makefile", u"make -f recipe.mk"_s, u"Ui24.c"_s, false},
                                  {"script", FromManual(u"#!/bin/sh.*?"_s), u"Ui16.c"_s, false},
                                  {"warnings pass",
                                   u"mkdir new\n"_s + FromManual(u"{ Glyphor .*?"_s), u"Ui24.c"_s,
                                   true}};
        const QString good = u"'%1' \"$@\""_s.arg(QString::fromUtf8(GLYPHOR_PROGRAM));
        for (const Recipe& recipe : recipes) {
            const auto row = [&](const char* name, const QString& program, bool passes) {
                rows(QTest::addRow("%s, %s", recipe.name, name), recipe.text, recipe.output,
                     program, passes);
            };
            row("good", good, true);
            row("missing", {}, false);
            row("crashing", u"kill -SEGV $$"_s, false);
            row("failing", u"echo 'Glyphor: error: Reason' >&2; exit 1"_s, false);
            row("failing at the end", good + u"; exit 1"_s, false);
            row("warning", good + u" -chars あ"_s, recipe.allowsWarnings);
            row("crashing at the end", good + u"; kill -KILL $$"_s, false);
        }
    }

    void Recipes()
    {
        const auto [recipe, output, program, passes] = Test::Row<QString, QString, QString, bool>();
        QVERIFY(!recipe.isEmpty());
        const QTemporaryDir folder;
        const auto file = [&folder](const QString& name) { return folder.filePath(name); };
        QVERIFY(QFile::copy(FontFile(), file(u"DejaVuSans.ttf"_s)));
        for (const QString& name : {u"de.po"_s, u"pl.po"_s})
            Test::WriteAll(file(name), ExampleFile(name).toUtf8());
        Test::WriteAll(file(u"recipe.mk"_s), Test::MakefileRecipe().toUtf8() + '\n');
        Test::WriteAll(file(u"recipe.sh"_s), recipe.toUtf8() + '\n');
        Test::WriteAll(file(output), "old");
        QFile old(file(output));
        QVERIFY(old.open(QIODevice::ReadWrite));
        QVERIFY(old.setFileTime(QDateTime(QDate(2000, 1, 1), QTime()),
                                QFileDevice::FileModificationTime));
        old.close();
        QVERIFY(QDir(folder.path()).mkdir(u"bin"_s));
        if (!program.isEmpty()) {
            Test::WriteAll(file(u"bin/Glyphor"_s), "#!/bin/sh\n" + program.toUtf8() + '\n');
            QVERIFY(QFile::setPermissions(file(u"bin/Glyphor"_s), QFile::Permissions(0x7755)));
        }

        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"PATH"_s, file(u"bin"_s) + u":/usr/bin:/bin"_s);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.start(u"/bin/sh"_s, {u"recipe.sh"_s});
        QVERIFY(process.waitForFinished());
        const QByteArray said = process.readAllStandardOutput() + process.readAllStandardError();
        QVERIFY2((process.exitCode() == 0) == passes, said.constData());
        const QByteArray contents = Test::ReadAll(file(output));
        QVERIFY2(passes ? contents.contains("GUI_FONT ") : contents == "old", said.constData());
    }
};

GLYPHOR_TEST(TestRecipes)

} // namespace Glyphor

#include "tst_recipes.moc"
