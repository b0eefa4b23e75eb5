#include "support/rows.h"
#include "support/test_main.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

namespace {

QString Captured(const QString& text, const char* pattern)
{
    const QRegularExpression expression(QString::fromUtf8(pattern),
                                        QRegularExpression::DotMatchesEverythingOption);
    return expression.match(text).captured(1);
}

QString FromHtml(QString text)
{
    return text.replace("&lt;"_L1, "<"_L1).replace("&gt;"_L1, ">"_L1).replace("&amp;"_L1, "&"_L1);
}

QString ReadmeMakefile()
{
    QString text = Captured(Test::Document(u"README.md"_s), "In a Makefile:\n\n(.*?)\n\n");
    return text.replace(QRegularExpression(u"^    "_s, QRegularExpression::MultilineOption), {});
}

} // namespace

// Has the recipes of the documents run programs that fail in all the ways there are: none may pass,
// and none may touch the font of the last good run.
class TestRecipes : public QObject
{
    Q_OBJECT

    QString manual_ = Test::Document(u"docs/manual/index.html"_s);

private Q_SLOTS:
    void DocumentsAgree()
    {
        const QString makefile = ReadmeMakefile();
        QVERIFY(makefile.startsWith(u"DejaVu.c: DejaVuSans.ttf\n\t"_s));
        QCOMPARE(FromHtml(Captured(manual_, "<pre><code>(DejaVu\\.c: .*?)</code>")), makefile);
        QString page = Captured(Test::Document(u"docs/Glyphor.1"_s), "\n(DejaVu\\.c: .*?)\n\\.fi");
        page.replace(" \\e\n\t    "_L1, " "_L1).replace("\\-"_L1, "-"_L1);
        QCOMPARE(page.replace("\\(aq"_L1, "'"_L1), makefile);
    }

    void Recipes_data()
    {
        const Test::Rows<QString, QString, QString, bool> rows;
        struct Recipe
        {
            const char* name;
            QString text;
            QString output;
        };
        const Recipe recipes[] = {
            {"Makefile", u"make -f recipe.mk"_s, u"DejaVu.c"_s},
            {"script", FromHtml(Captured(manual_, "<pre><code>(#!/bin/sh.*?)</code>")),
             u"Ui16.c"_s},
            {"no warnings",
             FromHtml(Captured(manual_, "<pre><code>(Glyphor [^<]*a\\.txt.*?)</code>")), u"a.c"_s}};
        const QString good = u"exec '%1' \"$@\""_s.arg(QString::fromUtf8(GLYPHOR_PROGRAM));
        for (const Recipe& recipe : recipes) {
            const auto row = [&](const char* name, const QString& program, bool passes) {
                rows(QTest::addRow("%s, %s", recipe.name, name), recipe.text, recipe.output,
                     program, passes);
            };
            row("good", good, true);
            row("missing", {}, false);
            row("crashing", u"kill -SEGV $$"_s, false);
            row("failing", u"echo 'Critical error!'; echo Reason"_s, false);
            row("crashing on the way", u"echo 'Opened font file: x'; kill -KILL $$"_s, false);
        }
    }

    void Recipes()
    {
        const auto [recipe, output, program, passes] = Test::Row<QString, QString, QString, bool>();
        QVERIFY(!recipe.isEmpty());
        const QTemporaryDir folder;
        const auto file = [&folder](const QString& name) { return folder.filePath(name); };
        QVERIFY(
            QFile::copy(QStringLiteral(SYSTEM_FONTS "/DejaVuSans.ttf"), file(u"DejaVuSans.ttf"_s)));
        Test::WriteAll(file(u"recipe.mk"_s), ReadmeMakefile().toUtf8() + '\n');
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
